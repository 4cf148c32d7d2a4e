#include "stagedwindows.h"

#include "catalogue/ui/recordediting.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"
#include "widgets/bringforward.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

using namespace tessera;
using namespace tessera::test;

/// Which of the three windows of the same work is shown, and where; which others come forward.
class WindowSwitchingTest : public StagedWindows
{
    Q_OBJECT

private Q_SLOTS:
    void init() { stage(); }
    void cleanup() { m_staged.reset(); }

    void aWindowIsMadeWhenItIsFirstAskedFor()
    {
        const auto made = [] {
            QStringList names;
            for (const QWidget* window : QApplication::topLevelWidgets())
                names << QString::fromLatin1(window->metaObject()->className());
            return names;
        };
        const QStringList later{
            QStringLiteral("tessera::FavouritesWindow"), QStringLiteral("tessera::MiniWindow"),
            QStringLiteral("tessera::RecordEditor"), QStringLiteral("tessera::FavouriteEditor"),
            QStringLiteral("tessera::FilterPanel")};
        for (const QString& name : later)
            QVERIFY2(!made().contains(name), qPrintable(name));
        m_staged->app->windowFavorites();
        m_staged->app->favorites().editing().editRecord();
        m_staged->app->windowMini();
        m_staged->app->windowMain();
        m_staged->app->editing().editRecord();
        m_staged->app->showPredicatePanel();
        for (const QString& name : later)
            QVERIFY2(made().contains(name), qPrintable(name));
    }

    void theFavouritesTakeTheMainWindowsPlaceAndGiveItBack()
    {
        main().setGeometry(40, 50, 900, 600);
        m_staged->app->windowFavorites();
        QVERIFY(!main().isVisible());
        QVERIFY(favorites().isVisible());
        QCOMPARE(favorites().geometry(), QRect(40, 50, 900, 600));
        favorites().setGeometry(10, 20, 1000, 640);
        m_staged->app->windowMain();
        QVERIFY(main().isVisible());
        QVERIFY(!favorites().isVisible());
        QCOMPARE(main().geometry(), QRect(10, 20, 1000, 640));
    }

    void inALaterRunTheFavouritesTakeTheMainWindowsPlaceToo()
    {
        main().setGeometry(40, 50, 900, 600);
        m_staged->app->windowFavorites();
        m_staged->app->applicationWillTerminate();
        m_staged->app.reset();
        m_staged->start();
        main().setGeometry(70, 80, 1000, 640);
        m_staged->app->windowFavorites();
        QCOMPARE(favorites().geometry(), QRect(70, 80, 1000, 640));
    }

    void aMaximisedWindowGivesItsNormalSizeOn()
    {
        main().setGeometry(40, 50, 900, 600);
        main().showMaximized();
        const QRect normal = main().normalGeometry();
        m_staged->app->windowFavorites();
        QVERIFY(favorites().isMaximized());
        QCOMPARE(favorites().normalGeometry(), normal);
    }

    void inEveryRunTheFavouritesAreSortedByTheirFirstColumn()
    {
        add("qix");
        add("pong");
        m_staged->app->windowFavorites();
        favorites().favoritesTable->sortByColumn(1, Qt::DescendingOrder);
        m_staged->app->applicationWillTerminate();
        m_staged->app.reset();
        m_staged->start();
        m_staged->app->windowFavorites();
        const QHeaderView* header = favorites().favoritesTable->horizontalHeader();
        QCOMPARE(header->sortIndicatorSection(), 0);
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
        QCOMPARE(favorites().favoritesTable->model()->index(0, 0).data().toString(), QStringLiteral("pong"));
    }

    void fromTheMiniWindowEachComesBackToItsOwnLastPlace()
    {
        main().setGeometry(40, 50, 900, 600);
        m_staged->app->windowFavorites();
        // It was moved while it was shown, and the main window was not.
        favorites().setGeometry(5, 6, 700, 500);
        m_staged->app->windowMini();
        QVERIFY(!main().isVisible() && !favorites().isVisible());
        QVERIFY(mini().isVisible());
        m_staged->app->windowFavorites();
        QVERIFY(!mini().isVisible());
        QCOMPARE(favorites().geometry(), QRect(5, 6, 700, 500));
        m_staged->app->windowMini();
        m_staged->app->windowMain();
        QCOMPARE(main().geometry(), QRect(40, 50, 900, 600));
    }

    // First the selection, as if it had changed, and only then the places.
    void switchingRefreshesTheSelection_data()
    {
        QTest::addColumn<bool>("fromFavorites");
        QTest::newRow("to the favourites") << false;
        QTest::newRow("to the main window") << true;
    }
    void switchingRefreshesTheSelection()
    {
        QFETCH(bool, fromFavorites);
        QVERIFY(m_staged->app->gameList().selectGame(QStringLiteral("1943")));
        m_staged->app->windowFavorites();
        if (!fromFavorites)
            m_staged->app->windowMain();
        QWidget& shown = fromFavorites ? static_cast<QWidget&>(favorites()) : main();
        QWidget& next = fromFavorites ? static_cast<QWidget&>(main()) : favorites();
        shown.setGeometry(70, 80, 1000, 640);
        QStringList steps;
        const auto note = [&](const char* what) {
            steps << QStringLiteral("%1, %2, %3")
                         .arg(QLatin1StringView(what), shown.isVisible() ? u"not switched" : u"switched",
                              next.geometry() == shown.geometry() ? u"adjusted" : u"not adjusted");
        };
        connect(&m_staged->app->gameList(), &GameListController::selectionChanged, this,
                [&] { note("picture"); });
        connect(&m_staged->app->gameList(), &GameListController::markChanged, this,
                [&](const QString& mark) { note(mark.toLatin1().constData()); });
        if (fromFavorites)
            m_staged->app->windowMain();
        else
            m_staged->app->windowFavorites();
        QCOMPARE(steps,
                 (QStringList{QStringLiteral("picture, not switched, not adjusted"),
                              QStringLiteral("plovermark_imperfect, not switched, not adjusted")}));
        QVERIFY(next.isVisible() && !shown.isVisible());
        QCOMPARE(next.geometry(), QRect(70, 80, 1000, 640));
        // The mini window shows nothing of it.
        steps.clear();
        m_staged->app->windowMini();
        QCOMPARE(steps, QStringList());
    }

    void closingOneOfTheOthersBringsTheMainWindowBack()
    {
        m_staged->app->windowFavorites();
        favorites().close();
        QVERIFY(main().isVisible());
        QVERIFY(!favorites().isVisible());
        m_staged->app->windowMini();
        mini().orderOut();
        QVERIFY(main().isVisible());
        // As the desktop closes it.
        m_staged->app->windowMini();
        mini().close();
        QVERIFY(main().isVisible());
        QVERIFY(!mini().isVisible());
    }

    void aMinimisedWindowIsBroughtForward_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("window");
        QTest::addColumn<bool>("closes");
        const auto row = [](const char* command, const char* window, bool closes = true) {
            QTest::newRow(window) << QString::fromLatin1(command)
                                  << QStringLiteral("tessera::") + QLatin1StringView(window) << closes;
        };
        row("menu_log", "LogWindow");
        row("menu_preferences", "PreferencesWindow");
        row("menu_showhelp", "HelpWindow");
        row("menu_historywindow", "HistoryWindow");
        row("menu_filter", "FilterPanel");
        row("menu_bioslist", "BiosPanel");
        row("menu_showpicture", "ImageWindow", false);
    }
    void aMinimisedWindowIsBroughtForward()
    {
        QFETCH(QString, command);
        QFETCH(QString, window);
        QFETCH(bool, closes);
        m_staged->app->gameList().selectGame(QStringLiteral("pong"));
        const auto choose = [&] { main().menuBar()->findChild<QAction*>(command)->trigger(); };
        choose();
        QTRY_VERIFY(windowNamed(window) != nullptr);
        QWidget* shown = windowNamed(window);
        QTRY_VERIFY(isShown(*shown));
        shown->setWindowState(shown->windowState() | Qt::WindowMinimized);
        choose();
        QTRY_VERIFY(isShown(*shown));
        choose();
        QCOMPARE(shown->isVisible(), !closes);
    }

    void anotherStartBringsForwardWhatIsShown_data()
    {
        QTest::addColumn<QString>("window");
        for (const char* name : {"MainWindow", "FavouritesWindow", "MiniWindow"})
            QTest::newRow(name) << QStringLiteral("tessera::") + QLatin1StringView(name);
    }
    void anotherStartBringsForwardWhatIsShown()
    {
        QFETCH(QString, window);
        m_staged->app->windowFavorites();
        m_staged->app->windowMini();
        m_staged->app->windowMain();
        if (window.endsWith(QStringLiteral("FavouritesWindow")))
            m_staged->app->windowFavorites();
        else if (window.endsWith(QStringLiteral("MiniWindow")))
            m_staged->app->windowMini();
        QWidget* shown = windowNamed(window);
        shown->setWindowState(shown->windowState() | Qt::WindowMinimized);
        m_staged->app->comeForward(QString());
        QVERIFY(isShown(*shown));
        QVERIFY(QTest::qWaitForWindowActive(shown));
        for (const QWidget* each : std::initializer_list<QWidget*>{&main(), &favorites(), &mini()})
            QCOMPARE(each->isVisible(), each == shown);
    }

    void titlesNameTheKindOfEmulator()
    {
        QCOMPARE(mini().windowTitle(), QStringLiteral("SDL MAME :"));
        QCOMPARE(mini().emulatorLabel->text(), QStringLiteral("SDL MAME :"));
    }

    void theMenusStandInTheFavouritesWindowToo()
    {
        QCOMPARE(favorites().menuBar()->actions(), main().menuBar()->actions());
    }

    void windowsAreShownWhereTheyWereLeft()
    {
        m_staged->app->windowLog();
        m_staged->app->logWindow().setGeometry(60, 70, 640, 480);
        m_staged->app->applicationWillTerminate();
        m_staged->app.reset();
        m_staged->start();
        m_staged->app->windowLog();
        QCOMPARE(m_staged->app->logWindow().size(), QSize(640, 480));
    }

private:
    static QWidget* windowNamed(const QString& name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (QString::fromLatin1(window->metaObject()->className()) == name)
                return window;
        }
        return nullptr;
    }
};

TESSERA_TEST(WindowSwitchingTest);
#include "windowswitchingtest.moc"
