#include "stagedwindows.h"

#include "app/desks/finding.h"
#include "app/windows/emptystate.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/searchfield.h"
#include "favourites/ui/favouriteeditor.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"
#include "widgets/logview.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMimeDatabase>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include <functional>
#include <map>

using namespace tessera;
using namespace tessera::test;

/// What commands, and files that are dropped, act on in each of the three windows.
class WindowCommandsTest : public StagedWindows
{
    Q_OBJECT

private Q_SLOTS:
    void init() { stage(); }
    void cleanup() { m_staged.reset(); }

    void aFavouriteAddedUnseenIsInTheWindow()
    {
        add("pong");
        m_staged->app->windowFavorites();
        QCOMPARE(favorites().favoritesTable->model()->rowCount(), 1);
        QCOMPARE(favorites().favoritesTable->accessibleName(), QStringLiteral("favorites_list"));
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

    void ctrlFSearchesTheFavouritesThemselves()
    {
        add("pong");
        add("qix");
        m_staged->app->windowFavorites();
        FavouritesWindow& window = favorites();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.favoritesTable->setFocus();
        m_staged->desktop.takeTranscript();
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(window.searchField->hasFocus());
        QVERIFY(window.isVisible() && !main().isVisible());
        QTest::keyClicks(window.searchField, QStringLiteral("qi"));
        const QAbstractItemModel* rows = window.favoritesTable->model();
        QCOMPARE(rows->rowCount(), 1);
        QCOMPARE(window.findChild<QLabel*>(QStringLiteral("favoritesCount"))->text(),
                 QStringLiteral("favorites_count_some"));
        QCOMPARE(m_staged->app->gameList().list().size(), std::size_t(4));
        // Deletes a letter, and no favourite.
        QTest::keyClick(window.searchField, Qt::Key_Home);
        QTest::keyClick(window.searchField, Qt::Key_Delete);
        QCOMPARE(window.searchField->text(), QStringLiteral("i"));
        QVERIFY(m_staged->desktop.takeTranscript().isEmpty());
        QTest::keyClick(window.searchField, Qt::Key_Down);
        QVERIFY(window.favoritesTable->hasFocus());
        QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(window.searchField, Qt::Key_Escape);
        QCOMPARE(rows->rowCount(), 2);
        QVERIFY(window.searchField->hasFocus());
        QTest::keyClick(window.searchField, Qt::Key_Escape);
        QVERIFY(window.favoritesTable->hasFocus());
        QVERIFY(window.isVisible());
    }

    void aFavouritesSearchThatFindsNothingShowsAllAgain()
    {
        add("pong");
        m_staged->app->windowFavorites();
        FavouritesWindow& window = favorites();
        auto* message = window.findChild<QLabel*>(QStringLiteral("messageLabel"));
        window.searchField->setText(QStringLiteral("nowhere stauts:good"));
        QVERIFY(window.emptyState->isVisible());
        QCOMPARE(window.emptyState->findChild<QLabel*>()->text(), QStringLiteral("favorites_none_found"));
        QCOMPARE(message->text(), QStringLiteral("search_near_key"));
        auto* button = window.emptyState->findChild<QPushButton*>();
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(window.favoritesTable->model()->rowCount(), 1);
        QVERIFY(window.searchField->text().isEmpty());
        QVERIFY(message->text().isEmpty());
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
        QVERIFY(favorites().searchField->hasFocus());
        QVERIFY(!main().isVisible());
        // From any other window it is the game list that is searched.
        m_staged->app->showLogWindow();
        becomeKey(m_staged->app->logWindow());
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

private:
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
};

TESSERA_TEST(WindowCommandsTest);
#include "windowcommandstest.moc"
