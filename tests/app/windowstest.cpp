#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "launch/ui/launchcontroller.h"
#include "favourites/ui/favouriteeditor.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"
#include "widgets/bringforward.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMimeDatabase>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

#include <functional>
#include <map>

using namespace tessera;
using test::StagedApp;

/// The three windows of the same work, and what commands act on in each.
class WindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
    }

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

    void aFavouriteAddedUnseenIsInTheWindow()
    {
        add("pong");
        m_staged->app->windowFavorites();
        QCOMPARE(favorites().favoritesTable->model()->rowCount(), 1);
        QVERIFY(favorites().saveButton->isVisible());
    }

    void theMenuSwitchesOffWhatIsNotedOfPlaying()
    {
        auto* notes = main().menuBar()->findChild<QAction*>(QStringLiteral("menu_notesplayed"));
        QVERIFY(notes != nullptr && notes->isChecked());
        notes->trigger();
        QVERIFY(m_staged->defaults.flag(keys::PlayedIsOff.name));
        m_staged->app.reset();
        m_staged->start();
        notes = main().menuBar()->findChild<QAction*>(QStringLiteral("menu_notesplayed"));
        QVERIFY(!notes->isChecked());
        notes->trigger();
        QVERIFY(!m_staged->defaults.flag(keys::PlayedIsOff.name));
    }

    void theFavouritesChipShowsThemInTheMainList()
    {
        add("pong");
        add("qix");
        m_staged->app->finding().finder().setChip(Chip::Favorites);
        QCOMPARE(m_staged->app->gameList().list().size(), std::size_t(2));
        m_staged->app->favorites().favourites().undoStack().undo();
        QCOMPARE(m_staged->app->gameList().list().size(), std::size_t(1));
        // What is chosen is remembered, and follows the file at the next start.
        m_staged->app->applicationWillTerminate();
        m_staged->app.reset();
        m_staged->start();
        QCOMPARE(m_staged->app->gameList().list().size(), std::size_t(1));
        QCOMPARE(m_staged->app->gameList().list()[0][Field::Name], std::string_view("pong"));
    }

    void savingTheFavouritesIsToldInTheMainWindowToo()
    {
        add("pong");
        m_staged->app->saveFavouritesNow();
        QCOMPARE(main().findChild<QLabel*>(QStringLiteral("messageLabel"))->text(),
                 QStringLiteral("favourites_saved"));
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

    void aDroppedFileIsOpened_data()
    {
        QTest::addColumn<QString>("on");
        QTest::newRow("the list") << QStringLiteral("gameTable");
        QTest::newRow("the search field") << QStringLiteral("titleSearchField");
        QTest::newRow("the mini window") << QStringLiteral("miniImageView");
        QTest::newRow("its field") << QStringLiteral("setnameTextField2");
    }
    void aDroppedFileIsOpened()
    {
        QFETCH(QString, on);
        const bool isMini
            = on == QStringLiteral("miniImageView") || on == QStringLiteral("setnameTextField2");
        if (isMini)
            m_staged->app->windowMini();
        QWidget& window = isMini ? static_cast<QWidget&>(mini()) : main();
        auto* target = window.findChild<QWidget*>(on);
        QVERIFY(target != nullptr);
        if (auto* list = qobject_cast<QAbstractItemView*>(target))
            target = list->viewport();
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(QStringLiteral("/roms/galaga.zip"))});
        dragged.setText(QStringLiteral("/roms/galaga.zip"));
        const QPoint place = target->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(place, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        QApplication::sendEvent(target, &drop);
        QVERIFY(drop.isAccepted());
        QTRY_VERIFY(logText().contains(QStringLiteral("galaga")));
        QTRY_VERIFY(main().stopButton->isEnabled());
        m_staged->app->stopGame();
        QTRY_VERIFY(!main().stopButton->isEnabled());
    }

    void fileManagersOfferTheProgramForArchives_data()
    {
        QTest::addColumn<QString>("archive");
        QTest::newRow("zip") << QStringLiteral("pong.zip");
        QTest::newRow("7z") << QStringLiteral("pong.7z");
    }
    void fileManagersOfferTheProgramForArchives()
    {
        QFETCH(QString, archive);
        QFile file(QStringLiteral(TESSERA_DESKTOP_ENTRY));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString types;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("MimeType="))
                types = QString::fromUtf8(line.mid(9));
        }
        const QString type = QMimeDatabase().mimeTypeForFile(archive, QMimeDatabase::MatchExtension).name();
        QVERIFY2(types.split(u';', Qt::SkipEmptyParts).contains(type), qPrintable(type));
        QVERIFY(types.endsWith(u';'));
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

    void addingNeedsASelectedGame()
    {
        main().gameTable->clearSelection();
        m_staged->app->addFavorite();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
        add("pong");
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("sound shutter")});
        QCOMPARE(m_staged->app->favorites().favourites().records().size(), std::size_t(1));
    }

    void favouritesAreSavedAtQuit()
    {
        add("pong");
        m_staged->app->applicationWillTerminate();
        QVERIFY(QFile::exists(m_staged->app->favorites().favourites().path()));
        m_staged->app.reset();
        m_staged->start();
        QCOMPARE(m_staged->app->favorites().favourites().records().size(), std::size_t(1));
    }

    void randomActsOnTheKeyWindowsList()
    {
        add("qix");
        m_staged->app->windowFavorites();
        becomeKey(favorites());
        m_staged->app->mameslotAction();
        QCOMPARE(m_staged->app->favorites().controller().tableViewSelectionROM2(), QStringLiteral("qix"));
        m_staged->app->windowMini();
        becomeKey(mini());
        m_staged->app->mameslotAction();
        QCOMPARE(mini().setnameTextField2->text(), m_staged->app->gameList().tableViewSelectionROM());
        QVERIFY(!mini().setnameTextField2->text().isEmpty());
    }

    void runTakesTheGameOfTheKeyWindow_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("game");
        QTest::newRow("main") << "main" << "pong";
        QTest::newRow("record editor") << "editor" << "pong";
        QTest::newRow("favourites") << "favourites" << "qix";
        QTest::newRow("favourites' editor") << "favourites' editor" << "qix";
        QTest::newRow("mini") << "mini" << "typed";
        // Any other.
        for (const char* other : {"log", "preferences", "help", "history", "filter", "utility"})
            QTest::newRow(other) << other << "";
    }

    // The main list, the favourites and the mini window have three different games.
    void runTakesTheGameOfTheKeyWindow()
    {
        QFETCH(QString, window);
        QFETCH(QString, game);
        add("qix");
        QVERIFY(m_staged->app->gameList().selectGame(QStringLiteral("pong")));
        QWidget& shown = open(window);
        becomeKey(shown);
        m_staged->desktop.takeTranscript();
        m_staged->app->menuRun();
        if (game.isEmpty()) {
            QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
            QVERIFY(logText().isEmpty());
            return;
        }
        QVERIFY(logText().startsWith(QStringLiteral("SDL MAME :  %1  Launch...\n\n").arg(game)));
        m_staged->app->stopGame();
        QTRY_VERIFY(!m_staged->app->launcher().isRunning());
    }

    void runBeepsWhereNothingIsChosen_data()
    {
        QTest::addColumn<QString>("window");
        for (const char* window : {"main", "favourites", "mini"})
            QTest::newRow(window) << window;
    }

    void runBeepsWhereNothingIsChosen()
    {
        QFETCH(QString, window);
        QWidget& shown = open(window);
        main().gameTable->clearSelection();
        if (window == QStringLiteral("mini"))
            mini().setnameTextField2->clear();
        becomeKey(shown);
        m_staged->desktop.takeTranscript();
        m_staged->app->menuRun();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
        QVERIFY(!m_staged->app->launcher().isRunning());
    }

    void commandsOfTheFavouritesActOnTheFavourites()
    {
        add("qix");
        add("pong");
        m_staged->app->windowFavorites();
        becomeKey(favorites());
        favorites().favoritesTable->selectRow(0);
        m_staged->app->editRecord();
        QVERIFY(m_staged->app->favorites().editing().editor().isVisible());
        becomeKey(favorites());
        m_staged->desktop.takeTranscript();
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        m_staged->app->removeOfKeyWindow();
        QCOMPARE(m_staged->app->favorites().favourites().records().size(), std::size_t(1));
        QCOMPARE(m_staged->app->catalogue().records().size(), std::size_t(4));
        m_staged->app->undo();
        QCOMPARE(m_staged->app->favorites().favourites().records().size(), std::size_t(2));
        m_staged->app->saveOfKeyWindow();
        QVERIFY(QFile::exists(m_staged->app->favorites().favourites().path()));
    }

    void commandsOnCellsActOnTheListThatIsShown()
    {
        add("qix");
        m_staged->app->gameList().selectGame(QStringLiteral("pong"));
        m_staged->app->windowFavorites();
        becomeKey(favorites());
        favorites().favoritesTable->selectRow(0);
        m_staged->app->copySelection();
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("qix\t")));
        m_staged->app->editCell();
        QVERIFY(favorites().favoritesTable->findChild<QLineEdit*>() != nullptr);
        QVERIFY(main().gameTable->findChild<QLineEdit*>() == nullptr);
        auto* columns
            = main().menuBar()->findChild<QMenu*>(QStringLiteral("menu_view"))->actions().constLast();
        Q_EMIT columns->menu()->aboutToShow();
        QCOMPARE(columns->menu()->actions().size(), favorites().favoritesTable->model()->columnCount());
        m_staged->app->focusSearch();
        QVERIFY(main().isVisible());
        QVERIFY(!favorites().isVisible());
    }

    void homeAndEndScrollTheFavourites()
    {
        for (int i = 0; i < 200; ++i)
            add(i % 2 == 0 ? "qix" : "pong");
        m_staged->app->windowFavorites();
        becomeKey(favorites());
        const QScrollBar* bar = favorites().favoritesTable->verticalScrollBar();
        m_staged->app->scrollsEndAction();
        QVERIFY(bar->value() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        m_staged->app->scrollsHomeAction();
        QCOMPARE(bar->value(), 0);
        QVERIFY(!main().isVisible());
    }

    void undoIsDimWhereThereIsNothingToUndo()
    {
        auto* undo = main().menuBar()->findChild<QAction*>(QStringLiteral("menu_undo"));
        becomeKey(main());
        QVERIFY(!undo->isEnabled());
        add("pong");
        QVERIFY(!undo->isEnabled());
        m_staged->app->windowFavorites();
        becomeKey(favorites());
        QVERIFY(undo->isEnabled());
    }

    void theMiniWindowKnowsTitles()
    {
        m_staged->app->windowMini();
        becomeKey(mini());
        QTest::keyClicks(mini().setnameTextField2, QStringLiteral("gala"));
        mini().setnameTextField2->setText(QStringLiteral("galaga"));
        const auto labels = mini().findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(
            labels, [](const QLabel* label) { return label->text() == QStringLiteral("Galaga"); }));
        // And follows their edits.
        m_staged->app->catalogue().setValue(1, Field::Title, QStringLiteral("Galaga again"));
        QVERIFY(std::ranges::any_of(
            labels, [](const QLabel* label) { return label->text() == QStringLiteral("Galaga again"); }));
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
    MainWindow& main() const { return m_staged->app->mainWindow(); }
    FavouritesWindow& favorites() const { return m_staged->app->favorites().window(); }
    MiniWindow& mini() const { return m_staged->app->mini().window(); }

    static QWidget* windowNamed(const QString& name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (QString::fromLatin1(window->metaObject()->className()) == name)
                return window;
        }
        return nullptr;
    }

    void add(const char* set)
    {
        QVERIFY(m_staged->app->gameList().selectGame(QString::fromLatin1(set)));
        m_staged->app->addFavorite();
    }

    // Opens a window by its name in the tests' tables; what can be chosen in it is.
    QWidget& open(const QString& name)
    {
        test::App& app = *m_staged->app;
        if (name.startsWith(QStringLiteral("favourites"))) {
            app.windowFavorites();
            favorites().favoritesTable->selectRow(0);
        }
        if (name == QStringLiteral("favourites"))
            return favorites();
        if (name == QStringLiteral("mini")) {
            app.windowMini();
            mini().setnameTextField2->setText(QStringLiteral("typed"));
            return mini();
        }
        const std::map<QString, std::pair<std::function<void()>, const char*>> others{
            {"main", {[] {}, "MainWindow"}},
            {"editor", {[&] { app.editing().editRecord(); }, "RecordEditor"}},
            {"favourites' editor", {[&] { app.favorites().editing().editRecord(); }, "FavouriteEditor"}},
            {"log", {[&] { app.windowLog(); }, "LogWindow"}},
            {"preferences", {[&] { app.showPrefsWindow(); }, "PreferencesWindow"}},
            {"help", {[&] { app.showHelpWindow(); }, "HelpWindow"}},
            {"history", {[&] { app.showHistoryinfo(); }, "HistoryWindow"}},
            {"filter", {[&] { app.showPredicatePanel(); }, "FilterPanel"}},
            {"utility", {[&] { app.utilityOrderFront(); }, "UtilityWindow"}}};
        const auto& [show, className] = others.at(name);
        show();
        const QByteArray wanted = QByteArray("tessera::") + className;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->inherits(wanted.constData()))
                return *window;
        }
        qFatal("no such window: %s", className);
    }

    QString logText() const { return m_staged->app->logWindow().infomationTextView->text(); }

    static void becomeKey(QWidget& window)
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    std::unique_ptr<StagedApp> m_staged;
};

TESSERA_TEST(WindowsTest);
#include "windowstest.moc"
