#include "stagedapp.h"

#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/finding.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/miniwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/favouritestable.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

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
            QStringLiteral("tessera::FavoritesWindow"), QStringLiteral("tessera::MiniWindow"),
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
        m_staged->app->saveFavoritesNow();
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

    void fromTheMiniWindowEachComesBackToItsOwnPlace()
    {
        main().setGeometry(40, 50, 900, 600);
        m_staged->app->windowMini();
        QVERIFY(!main().isVisible());
        QVERIFY(mini().isVisible());
        favorites().setGeometry(5, 6, 700, 500);
        m_staged->app->windowFavorites();
        QVERIFY(!mini().isVisible());
        QCOMPARE(favorites().geometry(), QRect(5, 6, 700, 500));
        m_staged->app->windowMini();
        m_staged->app->windowMain();
        QCOMPARE(main().geometry(), QRect(40, 50, 900, 600));
    }

    void switchingRefreshesTheSelection()
    {
        QSignalSpy refreshed(&m_staged->app->gameList(), &GameListController::selectionChanged);
        m_staged->app->windowFavorites();
        QCOMPARE(refreshed.count(), 1);
        m_staged->app->windowMini();
        QCOMPARE(refreshed.count(), 1);
        m_staged->app->windowMain();
        QCOMPARE(refreshed.count(), 2);
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

    void runTakesTheGameOfTheKeyWindow()
    {
        add("qix");
        m_staged->desktop.takeTranscript();
        m_staged->app->windowMini();
        becomeKey(mini());
        m_staged->app->menuRun();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
        mini().setnameTextField2->setText(QStringLiteral("galaga"));
        m_staged->app->menuRun();
        QTRY_VERIFY(main().stopButton->isEnabled());
        QVERIFY(logText().contains(QStringLiteral("galaga")));
        m_staged->app->stopGame();
        QTRY_VERIFY(!main().stopButton->isEnabled());
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
        m_staged->desktop.answerAlert(QStringLiteral("Remove selected data?"), 0);
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
    FavoritesWindow& favorites() const { return m_staged->app->favorites().window(); }
    MiniWindow& mini() const { return m_staged->app->mini().window(); }

    void add(const char* set)
    {
        QVERIFY(m_staged->app->gameList().selectGame(QString::fromLatin1(set)));
        m_staged->app->addFavorite();
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
