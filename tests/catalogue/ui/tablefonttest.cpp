#include "catalogue/ui/tablefont.h"

#include "stagedpage.h"
#include "support/testmain.h"
#include "widgets/fontname.h"

#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>

using namespace tessera;
using test::StagedPage;

namespace {

void chooseFamily(FontPanel& panel, const QString& family)
{
    panel.filterField->setText(family);
    panel.familyList->setCurrentIndex(panel.familyList->model()->index(0, 0));
}

void chooseStyle(FontPanel& panel, const QString& style)
{
    const QAbstractItemModel* styles = panel.styleList->model();
    const auto found = styles->match(styles->index(0, 0), Qt::DisplayRole, style, 1, Qt::MatchExactly);
    QVERIFY(!found.isEmpty());
    panel.styleList->setCurrentIndex(found.constFirst());
}

} // namespace

class TableFontTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStepChangesSizeAndRowHeight_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("bigger");
        QTest::addColumn<QVariant>("size"); // invalid for a beep
        QTest::addColumn<QVariant>("height");
        const QVariant beep;
        const QVariant initial;
        QTest::newRow("the initial size, bigger") << initial << true << QVariant(14) << QVariant(21.0);
        QTest::newRow("the initial size, smaller") << initial << false << QVariant(12) << QVariant(18.0);
        QTest::newRow("27, bigger") << QVariant(27) << true << QVariant(28) << QVariant(42.0);
        QTest::newRow("28, bigger") << QVariant(28) << true << beep << beep;
        QTest::newRow("28, smaller") << QVariant(28) << false << QVariant(27) << QVariant(40.5);
        QTest::newRow("10, smaller") << QVariant(10) << false << QVariant(9) << QVariant(13.5);
        QTest::newRow("9, smaller") << QVariant(9) << false << beep << beep;
        QTest::newRow("9, bigger") << QVariant(9) << true << QVariant(10) << QVariant(15.0);
        QTest::newRow("8, bigger") << QVariant(8) << true << beep << beep;
        QTest::newRow("8, smaller") << QVariant(8) << false << beep << beep;
        QTest::newRow("29, bigger") << QVariant(29) << true << beep << beep;
        QTest::newRow("29, smaller") << QVariant(29) << false << beep << beep;
        QTest::newRow("nought") << QVariant(0) << true << beep << beep;
        QTest::newRow("below nought") << QVariant(-14) << false << beep << beep;
        QTest::newRow("huge") << QVariant(1e30) << false << beep << beep;
        QTest::newRow("a part of a pixel is left")
            << QVariant(14.7) << true << QVariant(15) << QVariant(22.5);
        QTest::newRow("no number") << QVariant("large") << true << beep << beep;
        QTest::newRow("not a number") << QVariant("nan") << true << beep << beep;
    }

    void aStepChangesSizeAndRowHeight()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, bigger);
        QFETCH(QVariant, size);
        QFETCH(QVariant, height);
        StagedPage at(stored);
        (bigger ? at.page.biggerButton : at.page.smallerButton)->click();
        if (!size.isValid()) {
            QCOMPARE(at.desktop.transcript(), QStringList{QStringLiteral("beep")});
            QCOMPARE(at.defaults.value(keys::fontSize.name).value_or(QVariant()), stored);
            QVERIFY(!at.defaults.value(keys::rowHeight.name));
            return;
        }
        QCOMPARE(at.desktop.transcript(), QStringList());
        QCOMPARE(at.page.fontSizeField->text(), size.toString());
        QCOMPARE(at.controller.index(keys::fontSize), size.toInt());
        QCOMPARE(at.controller.number(keys::rowHeight), height.toDouble());
    }

    void halfAPixelOutlivesTheProgram()
    {
        StagedPage at(10);
        at.font.makeTextSmaller();
        QVERIFY(at.defaults.synchronize());
        const QString copy = at.folder.filePath(QStringLiteral("copy.ini"));
        QVERIFY(QFile::copy(at.defaults.path(), copy));
        UserDefaults later(copy);
        const DefaultsController controller(later);
        QCOMPARE(controller.number(keys::rowHeight), 13.5);
        QCOMPARE(controller.index(keys::fontSize), 9);
    }

    void everySizeIsReachedUpAndDown()
    {
        StagedPage at(9);
        for (int size = 10; size <= 28; ++size) {
            at.font.makeTextBigger();
            QCOMPARE(at.controller.index(keys::fontSize), size);
        }
        for (int size = 27; size >= 9; --size) {
            at.font.makeTextSmaller();
            QCOMPARE(at.controller.index(keys::fontSize), size);
            QCOMPARE(at.controller.number(keys::rowHeight), size * 1.5);
        }
        QCOMPARE(at.desktop.transcript(), QStringList());
    }

    void thePanelHasEveryModeButTheSize()
    {
        StagedPage at;
        QCOMPARE(at.font.validModesForFontPanel() | FontPanel::SizeMode,
                 FontPanel::Modes(FontPanel::AllModes));
        QVERIFY(!at.font.validModesForFontPanel().testFlag(FontPanel::SizeMode));
        at.font.showFontPanel1();
        QVERIFY(!at.font.fontPanel().sizeField->isVisible());
        QVERIFY(at.font.fontPanel().styleList->isVisible());
        QVERIFY(at.font.fontPanel().filterField->isVisible());
    }

    void theButtonBringsThePanelWithTheStoredFont()
    {
        StagedPage at;
        at.controller.setText(keys::TablefontName, QStringLiteral("DejaVu Serif Bold"));
        at.page.fontButton->click();
        const FontPanel& panel = at.font.fontPanel();
        QVERIFY(panel.isVisible() && !panel.isModal());
        QCOMPARE(panel.familyList->currentIndex().data().toString(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(panel.styleList->currentIndex().data().toString(), QStringLiteral("Bold"));
        QCOMPARE(at.controller.text(keys::TablefontName), QStringLiteral("DejaVu Serif Bold"));
    }

    void anOpenPanelStaysAsItIs()
    {
        StagedPage at;
        at.font.showFontPanel1();
        FontPanel& panel = at.font.fontPanel();
        panel.filterField->setText(QStringLiteral("mono"));
        at.font.showFontPanel1();
        QCOMPARE(panel.filterField->text(), QStringLiteral("mono"));
        panel.showMinimized();
        at.font.showFontPanel1();
        QVERIFY(panel.isVisible() && !panel.isMinimized());
    }

    void aChoiceIsStoredFlushedAndShown()
    {
        StagedPage at;
        at.font.showFontPanel1();
        chooseFamily(at.font.fontPanel(), QStringLiteral("DejaVu Sans Mono"));
        QCOMPARE(onDisk(at), QStringLiteral("DejaVu Sans Mono"));
        chooseStyle(at.font.fontPanel(), QStringLiteral("Bold"));
        QCOMPARE(onDisk(at), QStringLiteral("DejaVu Sans Mono Bold"));
        QCOMPARE(at.page.fontSampleField->text(), QStringLiteral("DejaVu Sans Mono Bold"));
        QCOMPARE(fontName(at.page.fontSampleField->font()), QStringLiteral("DejaVu Sans Mono Bold"));
    }

    void anOpenPanelFollowsAReset()
    {
        StagedPage at;
        at.font.showFontPanel1();
        chooseFamily(at.font.fontPanel(), QStringLiteral("DejaVu Serif"));
        at.controller.revertToInitialValues();
        QCOMPARE(at.font.fontPanel().familyList->currentIndex().data().toString(),
                 QStringLiteral("DejaVu Sans"));
        QCOMPARE(at.controller.text(keys::TablefontName), QStringLiteral("DejaVu Sans"));
    }

    void theFavouritesFontIsChosenByItself()
    {
        StagedPage at;
        QCOMPARE(at.page.favoriteFontField->text(), QStringLiteral("DejaVu Sans"));
        at.page.favoriteFontButton->click();
        chooseFamily(at.font.fontPanel(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(at.controller.text(keys::FavoritefontName), QStringLiteral("DejaVu Serif"));
        QCOMPARE(at.page.favoriteFontField->text(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(fontName(at.page.favoriteFontField->font()), QStringLiteral("DejaVu Serif"));
        QVERIFY(!at.defaults.value(keys::TablefontName.name));
        // The open panel goes over to the other list, with its font.
        at.page.fontButton->click();
        QCOMPARE(at.font.fontPanel().familyList->currentIndex().data().toString(),
                 QStringLiteral("DejaVu Sans"));
        chooseFamily(at.font.fontPanel(), QStringLiteral("DejaVu Sans Mono"));
        QCOMPARE(at.controller.text(keys::TablefontName), QStringLiteral("DejaVu Sans Mono"));
        QCOMPARE(at.controller.text(keys::FavoritefontName), QStringLiteral("DejaVu Serif"));
        at.controller.revertToInitialValues();
        QCOMPARE(at.page.favoriteFontField->text(), QStringLiteral("DejaVu Sans"));
    }

    void aChoiceThatCannotBeWrittenIsSaid()
    {
        const QTemporaryDir folder;
        QFile inTheWay(folder.filePath(QStringLiteral("file")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        UserDefaults defaults(folder.filePath(QStringLiteral("file/settings.ini")));
        DefaultsController controller(defaults);
        controller.setInitialValues(QStringLiteral("DejaVu Sans"), QString());
        AppearancePage page(controller);
        test::ScriptedDesktop desktop;
        TableFont font(desktop, controller);
        QSignalSpy said(&font, &TableFont::statusMessage);
        chooseFamily(font.fontPanel(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(said.count(), 1);
        QVERIFY(!said.at(0).at(0).toString().isEmpty());
        QCOMPARE(page.fontSampleField->text(), QStringLiteral("DejaVu Serif"));
    }

private:
    // As another program would find it, from a copy: settings objects of one file share what they hold.
    static QString onDisk(const StagedPage& at)
    {
        const QString copy = at.folder.filePath(QStringLiteral("copy.ini"));
        QFile::remove(copy);
        QFile::copy(at.defaults.path(), copy);
        return UserDefaults(copy).string(keys::TablefontName.name);
    }
};

TESSERA_TEST(TableFontTest);
#include "tablefonttest.moc"
