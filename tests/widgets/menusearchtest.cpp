#include "widgets/menusearch.h"

#include "support/testmain.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

using namespace tessera;

class MenuSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Bar: File (Open, Recent (Pong, Clear), separator, "Save && Quit"), Edit (Undo, Clear, Find (Open,
    // Again)).
    void init()
    {
        m_bar = std::make_unique<QMenuBar>();
        QMenu* file = add(*m_bar, QStringLiteral("&File"), QStringLiteral("file"));
        add(*file, QStringLiteral("&Open"), "file/open");
        QMenu* recent = add(*file, QStringLiteral("Open &Recent"), QStringLiteral("file/recent"));
        add(*recent, QStringLiteral("Pong"), "recent/pong");
        add(*recent, QStringLiteral("&Clear"), "recent/clear");
        file->addSeparator();
        add(*file, QStringLiteral("&Save && Quit"), "file/savequit");
        QMenu* edit = add(*m_bar, QStringLiteral("編集(&E)"), QStringLiteral("edit"));
        add(*edit, QStringLiteral("Undo"), "edit/undo");
        add(*edit, QStringLiteral("&Clear"), "edit/clear");
        QMenu* find = add(*edit, QStringLiteral("Find"), QStringLiteral("edit/find"));
        add(*find, QStringLiteral("Open"), "find/open");
        add(*find, QStringLiteral("Again"), "find/again");
    }

    void theNearestItemIsFound_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("found");
        const QString bar;
        QTest::newRow("a menu of the bar") << bar << "File" << "file";
        QTest::newRow("an item") << bar << "Undo" << "edit/undo";
        QTest::newRow("without its mnemonic") << bar << "Open Recent" << "file/recent";
        QTest::newRow("with an ampersand") << bar << "Save & Quit" << "file/savequit";
        QTest::newRow("a mnemonic in brackets") << bar << "編集(E)" << "edit";
        QTest::newRow("a level higher wins over a menu earlier") << bar << "Clear" << "edit/clear";
        QTest::newRow("in one level the earlier menu wins") << bar << "Open" << "file/open";
        QTest::newRow("the third level") << bar << "Again" << "find/again";
        QTest::newRow("within one menu") << "edit" << "Open" << "find/open";
        QTest::newRow("not outside it") << "edit" << "Pong" << QString();
        QTest::newRow("not the menu itself") << "edit" << "編集(E)" << QString();
        QTest::newRow("as it is written only") << bar << "undo" << QString();
        QTest::newRow("not a part") << bar << "Und" << QString();
        QTest::newRow("not with ampersands") << bar << "&Open" << QString();
        QTest::newRow("no separator") << bar << "" << QString();
    }

    void theNearestItemIsFound()
    {
        QFETCH(QString, start);
        QFETCH(QString, title);
        QFETCH(QString, found);
        const QAction* item = start.isEmpty()
            ? findMenuItemNamed(title, m_bar.get())
            : findMenuItemNamed(title, m_bar->findChild<QAction*>(start)->menu());
        QCOMPARE(item == nullptr ? QString() : item->objectName(), found);
    }

    void withoutAMenuNothingIsFound()
    {
        QCOMPARE(findMenuItemNamed(QStringLiteral("Open"), static_cast<QMenu*>(nullptr)), nullptr);
    }

private:
    // The menus' own items are named, too.
    template <class Menu>
    QMenu* add(Menu& menu, const QString& title, const QString& name)
    {
        QMenu* added = menu.addMenu(title);
        added->menuAction()->setObjectName(name);
        return added;
    }
    void add(QMenu& menu, const QString& title, const char* name)
    {
        menu.addAction(title)->setObjectName(QLatin1String(name));
    }

    std::unique_ptr<QMenuBar> m_bar;
};

TESSERA_TEST(MenuSearchTest);
#include "menusearchtest.moc"
