#include "widgets/toolbar.h"

#include "support/testmain.h"

#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

using namespace tessera;

namespace {

// A window with the pages in another order than the toolbar's.
struct Window {
    QWidget window;
    QVBoxLayout layout{&window};
    QStackedWidget* tab = new QStackedWidget;
    Toolbar toolbar{window, *tab};

    Window()
    {
        layout.addWidget(tab);
        QStringList pages = Toolbar::toolbarDefaultItemIdentifiers();
        std::ranges::reverse(pages);
        for (const QString& page : pages) {
            auto* widget = new QWidget;
            widget->setObjectName(page);
            tab->addWidget(widget);
        }
        toolbar.awakeFromNib();
    }
    QString shown() const { return tab->currentWidget()->objectName(); }
};

} // namespace

class ToolbarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsItemsInOrder()
    {
        const Window room;
        const QStringList order
            = QStringLiteral("general video effect av ioport misc support appearance").split(u' ');
        QCOMPARE(Toolbar::toolbarDefaultItemIdentifiers(), order);
        const auto* bar = room.window.findChild<QWidget*>(QStringLiteral("ToolbarForTabView"));
        QVERIFY(bar != nullptr);
        QCOMPARE(room.window.layout()->itemAt(0)->widget(), bar);
        QStringList labels;
        for (const QToolButton* item : bar->findChildren<QToolButton*>()) {
            labels << item->text();
            QVERIFY2(!item->icon().isNull(), qPrintable(item->text()));
        }
        QCOMPARE(labels, order);
    }

    void beginsWithTheGeneralPage()
    {
        const Window room;
        QCOMPARE(room.shown(), QStringLiteral("general"));
        QCOMPARE(room.toolbar.selectedItem()->objectName(), QStringLiteral("general"));
    }

    void eachItemShowsThePageOfItsName()
    {
        const Window room;
        for (const QString& identifier : Toolbar::toolbarDefaultItemIdentifiers()) {
            room.toolbar.itemForIdentifier(identifier)->click();
            QCOMPARE(room.shown(), identifier);
            QCOMPARE(room.toolbar.selectedItem()->objectName(), identifier);
        }
    }

    void otherIdentifiersHaveNoItem()
    {
        Window room;
        room.toolbar._showTab(QStringLiteral("misc"));
        for (const char* other : {"", "General", "sound", "tb_General"}) {
            QVERIFY(!room.toolbar.itemForIdentifier(QLatin1String(other)));
            room.toolbar._showTab(QLatin1String(other));
        }
        QCOMPARE(room.shown(), QStringLiteral("misc"));
        QCOMPARE(room.toolbar.selectedItem()->objectName(), QStringLiteral("misc"));
    }

    void theStripDrivesTheSecondTabView()
    {
        Window room;
        room.toolbar.pagestrip(1);
        QStackedWidget second;
        second.addWidget(new QWidget);
        second.addWidget(new QWidget);
        room.toolbar.setPreferencesTab2(second);
        room.toolbar.pagestrip(1);
        QCOMPARE(second.currentIndex(), 1);
        room.toolbar.pagestrip(7);
        QCOMPARE(second.currentIndex(), 1);
        QCOMPARE(room.shown(), QStringLiteral("general"));
    }
};

TESSERA_TEST(ToolbarTest);
#include "toolbartest.moc"
