#include "stagedapp.h"

#include "app/desks/artworkdesk.h"
#include "app/desks/biosdesk.h"
#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/desks/infodesk.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/sidepanel.h"
#include "bios/ui/biosmodel.h"
#include "artwork/ui/downloadprocessing.h"
#include "bios/ui/biospanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "info/ui/infopage.h"
#include "info/ui/infosites.h"
#include "info/ui/sitechoice.h"
#include "app/windows/filespage.h"
#include "widgets/logview.h"
#include "launch/ui/pathchooser.h"
#include "support/showwatch.h"
#include "support/testmain.h"
#include "widgets/bringforward.h"
#include "widgets/pathfield.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeView>
#include <QTimer>

using namespace tessera;
using test::StagedApp;

/// Which set is meant when its history or its page is asked for.
class InfoDeskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        write("history.dat",
              "$info=galaga88\r\n$bio\r\nShips.\r\n$end\r\n$info=galaxian\r\n$bio\r\nAliens.\r\n$end\r\n$"
              "info=pong\r\n$bio\r\nBats.\r\n$end\r\n"
              "$info=qix\r\n$bio\r\nLines.\r\n$end\r\n");
        m_staged->defaults.setValue(keys::HistoryPath.name, m_staged->path("history.dat"));
        m_staged->defaults.setValue(keys::InfositeHost3.name, QStringLiteral("a.test"));
        m_staged->defaults.setValue(keys::Rominfosite.name, 2.0);
        m_staged->start();
        m_staged->desktop.takeTranscript();
    }

    void cleanup() { m_staged.reset(); }

    void aStartMakesNothingOfIt()
    {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            QVERIFY(qobject_cast<const HistoryWindow*>(window) == nullptr);
            QVERIFY(qobject_cast<const BiosPanel*>(window) == nullptr);
            QVERIFY(qobject_cast<const InfoPage*>(window) == nullptr);
        }
    }

    void aCloneIsLookedUpUnderItsParent()
    {
        m_staged->app->gameList().selectGame("galaga");
        const QString parent = m_staged->app->gameList().tableViewSelectionParentROM();
        QVERIFY(!parent.isEmpty() && parent != "galaga");
        m_staged->app->searchHistoryinfo();
        QVERIFY(history().isVisible());
        QCOMPARE(history().historySearchField->text(), QStringLiteral("galaga"));
        QCOMPARE(history().parentTextField->text(), parent);
    }

    // The offscreen platform makes every new window key, so the request alone can be seen here.
    void theListStaysKey()
    {
        test::ShowWatch watch;
        history().installEventFilter(&watch);
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        shows("Bats.");
        QVERIFY(watch.withoutActivating);
        m_staged->app->showHistoryinfo();
        m_staged->app->showHistoryinfo();
        QVERIFY(!watch.withoutActivating);
        QVERIFY(m_staged->desktop.takeTranscript().contains("sound sound_page"));
    }

    void nothingSelectedShowsNothing()
    {
        m_staged->app->mainWindow().gameTable->clearSelection();
        m_staged->app->searchHistoryinfo();
        m_staged->app->info().searchHistoryinfo_menu(2);
        for (const QWidget* window : QApplication::topLevelWidgets())
            QVERIFY(qobject_cast<const HistoryWindow*>(window) == nullptr);
    }

    void theFavouritesHaveTheirOwnSelection()
    {
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->windowFavorites();
        QTRY_VERIFY(m_staged->app->favorites().window().isActiveWindow());
        m_staged->app->favorites().window().favoritesTable->selectRow(0);
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Favourites);
        m_staged->app->searchHistoryinfo();
        QCOMPARE(history().historySearchField->text(), QStringLiteral("qix"));
        shows("Lines.");
        bringForward(m_staged->app->favorites().window());
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Favourites);
        m_staged->app->openROMinfo();
        QVERIFY(m_staged->desktop.takeTranscript().contains("url http://a.test/game/qix"));
    }

    void theFavouritesWindowHasASiteOfItsOwn_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<QString>("said"); // the transcript's line
        QTest::newRow("site 1") << 0 << QStringLiteral("url https://site1.test/index.php?p=roms&jeu=qix");
        QTest::newRow("site 2") << 1
                                << QStringLiteral(
                                       "url https://site2.test/php/emulator_game.php?id=mame&game=qix");
        QTest::newRow("site 3") << 2 << QStringLiteral("url https://site3.test/game/qix");
        QTest::newRow("site 4") << 3 << QStringLiteral("url https://site4.test/r/qix");
        QTest::newRow("site 5") << 4 << QStringLiteral("url https://site5.test/maws/romset/qix");
        QTest::newRow("without an address") << 5 << QStringLiteral("beep");
        QTest::newRow("a typed one") << 6 << QStringLiteral("url https://own.test/qix/qix.html");
    }
    void theFavouritesWindowHasASiteOfItsOwn()
    {
        QFETCH(int, item);
        QFETCH(QString, said);
        for (int site = 1; site <= 7; ++site)
            m_staged->defaults.setValue(
                QLatin1StringView(QStringLiteral("InfositeHost%1").arg(site).toLatin1()),
                QStringLiteral("https://site%1.test").arg(site));
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        m_staged->app->windowFavorites();
        FavouritesWindow& window = m_staged->app->favorites().window();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Favourites);
        window.favoritesTable->selectRow(0);
        QComboBox& popup = *window.siteChoice->infositePop2;
        QCOMPARE(popup.count(), 7);
        QCOMPARE(popup.itemText(6), QStringLiteral("Other site"));
        popup.setCurrentIndex(item);
        QCOMPARE(window.siteChoice->addressField2->isVisible(), item == 6);
        if (item == 6) {
            window.siteChoice->addressField2->setText(QString());
            QTest::keyClicks(window.siteChoice->addressField2,
                             QStringLiteral("https://own.test/{$gamename}/{$gamename}.html"));
        }
        m_staged->desktop.takeTranscript();
        QTest::mouseClick(window.sidePanel->pageButton, Qt::LeftButton);
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{said});
        // The menu's command goes by the preferences.
        m_staged->app->openROMinfo();
        QCOMPARE(m_staged->desktop.takeTranscript(),
                 QStringList{QStringLiteral("url https://site3.test/game/qix")});
        window.favoritesTable->clearSelection();
        QTest::mouseClick(window.sidePanel->pageButton, Qt::LeftButton);
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
    }

    void aSiteOfTheFavouritesWithoutAHostIsNamed()
    {
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        m_staged->app->windowFavorites();
        FavouritesWindow& window = m_staged->app->favorites().window();
        window.favoritesTable->selectRow(0);
        m_staged->desktop.takeTranscript();
        QStringList said;
        // Only the third site has a host here; the fifth item has no address whatever its host.
        for (const int item : {0, 2, 5}) {
            window.showMessage(QString());
            window.siteChoice->infositePop2->setCurrentIndex(item);
            m_staged->app->info().openROMinfo2();
            said << window.findChild<QLabel*>(QStringLiteral("messageLabel"))->text();
        }
        QCOMPARE(said, (QStringList{QStringLiteral("infosite_no_host"), QString(), QString()}));
        QCOMPARE(m_staged->desktop.takeTranscript(),
                 (QStringList{QStringLiteral("beep"), QStringLiteral("url http://a.test/game/qix"),
                              QStringLiteral("beep")}));
    }

    // Where the main window's line is hidden.
    void theWindowThatIsShownSaysWhyNoPageOpens_data()
    {
        QTest::addColumn<bool>("isMini");
        QTest::newRow("mini") << true;
        QTest::newRow("favourites") << false;
    }
    void theWindowThatIsShownSaysWhyNoPageOpens()
    {
        QFETCH(bool, isMini);
        m_staged->defaults.setValue(keys::Rominfosite.name, 0);
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        isMini ? m_staged->app->windowMini() : m_staged->app->windowFavorites();
        QTRY_COMPARE(m_staged->app->keyWindow(),
                     isMini ? KeyWindow::Kind::Mini : KeyWindow::Kind::Favourites);
        if (isMini)
            m_staged->app->mini().setGame(QStringLiteral("qix"));
        else
            m_staged->app->favorites().window().favoritesTable->selectRow(0);
        QWidget* window = isMini ? static_cast<QWidget*>(&m_staged->app->mini().window())
                                 : &m_staged->app->favorites().window();
        const auto says = [window](const QString& text) {
            const auto labels = window->findChildren<QLabel*>();
            return std::ranges::any_of(
                labels, [&](const QLabel* each) { return each->isVisible() && each->text() == text; });
        };
        QVERIFY(!says(QStringLiteral("infosite_no_host")));
        isMini ? m_staged->app->openROMinfo() : m_staged->app->info().openROMinfo2();
        QVERIFY(says(QStringLiteral("infosite_no_host")));
        m_staged->desktop.takeTranscript();
        if (!isMini)
            return;
        // Until another game is named.
        m_staged->app->mini().setGame(QStringLiteral("pong"));
        QVERIFY(!says(QStringLiteral("infosite_no_host")));
    }

    void theFavouritesSitesAreTitledByTheirAddresses()
    {
        const QComboBox& popup = *m_staged->app->favorites().window().siteChoice->infositePop2;
        QCOMPARE(popup.currentIndex(), 2); // as in the preferences, at first
        QCOMPARE(popup.itemText(1), QStringLiteral("infosite_number"));
        QCOMPARE(popup.itemText(2), QStringLiteral("http://a.test/game/{$gamename}"));
        m_staged->app->showPrefsWindow();
        auto* host = m_staged->app->preferencesWindow().findChild<QLineEdit*>(QStringLiteral("hostField"));
        QVERIFY(host != nullptr);
        host->selectAll();
        QTest::keyClicks(host, QStringLiteral("b.test"));
        QCOMPARE(popup.itemText(2), QStringLiteral("http://b.test/game/{$gamename}"));
    }

    void eachListsMenuIsAboutThatList()
    {
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->favorites().window().favoritesTable->selectRow(0);
        m_staged->app->info().searchHistoryinfo_menu(3);
        shows("Lines.");
        m_staged->app->info().searchHistoryinfo_menu(2);
        shows("Bats.");
        m_staged->app->info().searchHistoryinfo_menu(1);
        shows("Bats.");
        // The first two of the table's own menu.
        const QList<QAction*> actions = m_staged->app->favorites().window().favoritesTable->actions();
        QVERIFY(actions.size() >= 2);
        actions[0]->trigger();
        shows("Lines.");
    }

    void theMiniWindowsNameIsTakenAsItIsTyped()
    {
        m_staged->app->windowMini();
        MiniWindow& mini = m_staged->app->mini().window();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Mini);
        mini.setnameTextField2->setText("galaxian");
        m_staged->app->searchHistoryinfo();
        QCOMPARE(history().historySearchField->text(), QStringLiteral("galaxian"));
        QCOMPARE(history().parentTextField->text(), QStringLiteral("????"));
        shows("Aliens.");
        bringForward(mini);
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Mini);
        mini.setnameTextField2->setText("nosuchset");
        m_staged->desktop.takeTranscript();
        m_staged->app->openROMinfo();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"url http://a.test/game/nosuchset"});
    }

    void theRecordEditorLooksUpTheFavouritesParent()
    {
        m_staged->app->gameList().selectGame("qix");
        m_staged->app->addFavorite();
        m_staged->app->favorites().window().favoritesTable->selectRow(0);
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->editing().editRecord();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Editor);
        m_staged->app->searchHistoryinfo();
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
        QCOMPARE(history().parentTextField->text(), QStringLiteral("qix"));
        m_staged->desktop.takeTranscript();
        bringForward(m_staged->app->editing().editor());
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Editor);
        m_staged->app->openROMinfo();
        QVERIFY(m_staged->desktop.takeTranscript().contains("url http://a.test/game/pong"));
    }

    void inAnyOtherWindowNoSetIsMeant()
    {
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->showHistoryinfo();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::History);
        const QString text = m_staged->app->info().history().mstr_Mameinfo();
        m_staged->app->searchHistoryinfo();
        QCOMPARE(m_staged->app->info().history().mstr_Mameinfo(), text);
        m_staged->desktop.takeTranscript();
        m_staged->app->openROMinfo();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"beep"});
    }

    void theHistoryWindowOpensAndCloses()
    {
        m_staged->app->showHistoryinfo();
        QVERIFY(history().isVisible());
        m_staged->app->showHistoryinfo();
        QVERIFY(!history().isVisible());
    }

    void whereItIsKeyFindAndSizeAreItsOwn()
    {
        m_staged->app->showHistoryinfo();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::History);
        m_staged->app->focusSearch();
        QTRY_VERIFY(history().findField->hasFocus());
        m_staged->app->makeTextBigger();
        QCOMPARE(m_staged->defaults.value(keys::History_fontsize.name)->toDouble(), 13.0);
        QVERIFY(!m_staged->defaults.value(keys::fontSize.name));
        m_staged->app->makeTextSmaller();
        QCOMPARE(m_staged->defaults.value(keys::History_fontsize.name)->toDouble(), 12.0);
    }

    void homeAndEndMoveItByOnePage()
    {
        write("history.dat", "$info=pong\r\n$bio\r\n" + QByteArray("line\n").repeated(400) + "$end\r\n");
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        QTRY_VERIFY(!m_staged->app->info().history().isLoading());
        bringForward(history());
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::History);
        QScrollBar& bar = *history().historyinfoTextView->verticalScrollBar();
        QTRY_VERIFY(bar.maximum() > 2 * bar.pageStep());
        m_staged->app->scrollsEndAction();
        QCOMPARE(bar.value(), bar.pageStep());
        m_staged->app->scrollsHomeAction();
        QCOMPARE(bar.value(), 0);
    }

    void itFollowsTheSelectionWhereThatIsWanted()
    {
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        shows("Bats.");
        // What is followed is in the field at once.
        m_staged->app->gameList().selectGame("qix");
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
        history().followBox->click();
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->gameList().selectGame("qix");
        QCOMPARE(history().historySearchField->text(), QStringLiteral("qix"));
        shows("Lines.");
    }

    void itFollowsTheListThatIsShown()
    {
        followBeside();
        m_staged->app->windowFavorites();
        GameTableView& table = *m_staged->app->favorites().window().favoritesTable;
        table.selectRow(0);
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
        m_staged->app->gameList().selectGame("1943");
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
        table.selectRow(1);
        QCOMPARE(history().historySearchField->text(), QStringLiteral("qix"));
        m_staged->app->windowMain();
        m_staged->app->gameList().selectGame("pong");
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
    }

    // What makes the lists tell of the selection that they have.
    void anotherPictureIsNotFollowed_data()
    {
        QTest::addColumn<int>("event");
        QTest::newRow("another kind") << 0;
        QTest::newRow("a finished download") << 1;
        QTest::newRow("a new favourite") << 2;
        QTest::newRow("the window again") << 3;
    }

    void anotherPictureIsNotFollowed()
    {
        QFETCH(int, event);
        followBeside();
        m_staged->app->gameList().selectGame("pong");
        QCOMPARE(history().historySearchField->text(), QStringLiteral("pong"));
        shows("Bats.");
        // What somebody typed stays, too.
        history().historySearchField->setText("galaxian");
        QTest::keyClick(history().historySearchField, Qt::Key_Return);
        shows("Aliens.");
        if (event == 0)
            m_staged->app->ChangesnapPop();
        else if (event == 1)
            Q_EMIT m_staged->app->artwork().download().SnapChange(QStringLiteral("downloadDidFinish"));
        else if (event == 2)
            m_staged->app->addFavorite();
        else
            m_staged->app->windowMain();
        QCOMPARE(history().historySearchField->text(), QStringLiteral("galaxian"));
        QVERIFY(m_staged->app->info().history().findChild<QTimer*>() != nullptr);
        QVERIFY(!m_staged->app->info().history().findChild<QTimer*>()->isActive());
        m_staged->desktop.takeTranscript();
    }

    void aTypedPathIsReadAtOnce()
    {
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        shows("Bats.");
        write("other.dat", "$info=pong\r\n$bio\r\nTwo bats.\r\n$end\r\n");
        m_staged->app->showPrefsWindow();
        QLineEdit* field = m_staged->app->preferencesWindow().findChild<FilesPage*>()->historyPath->field();
        field->selectAll();
        QTest::keyClicks(field, m_staged->path("other.dat"));
        QTRY_VERIFY(!m_staged->app->info().history().isLoading());
        m_staged->app->info().searchHistoryinfo_menu(2);
        shows("Two bats.");
    }

    void aChosenFileIsReadAnew()
    {
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        shows("Bats.");
        write("history.dat", "$info=pong\r\n$bio\r\nTwo bats.\r\n$end\r\n");
        Q_EMIT m_staged->app->program().paths.chosen(keys::HistoryPath.name, QString());
        QTRY_VERIFY(!m_staged->app->info().history().isLoading());
        m_staged->app->info().searchHistoryinfo_menu(2);
        shows("Two bats.");
    }

    void theWindowsButtonsChooseTheFiles()
    {
        m_staged->app->gameList().selectGame("pong");
        m_staged->app->searchHistoryinfo();
        shows("Bats.");
        write("other.dat", "$info=pong\r\n$bio\r\nTwo bats.\r\n$end\r\n");
        m_staged->desktop.answerOpen(m_staged->path("other.dat"));
        QTest::mouseClick(history().historyButton, Qt::LeftButton);
        QCOMPARE(m_staged->defaults.string(keys::HistoryPath.name), m_staged->path("other.dat"));
        QTRY_VERIFY(!m_staged->app->info().history().isLoading());
        m_staged->app->info().searchHistoryinfo_menu(2);
        shows("Two bats.");
        m_staged->desktop.answerOpen(std::nullopt);
        QTest::mouseClick(history().mameinfoButton, Qt::LeftButton);
        QVERIFY(!m_staged->app->info().history().isLoading());
        QCOMPARE(m_staged->defaults.string(keys::MameinfoPath.name), QString());
    }

    void thePreferencesGetTheirPageWhenTheyAreShown()
    {
        m_staged->app->showPrefsWindow();
        auto* page = m_staged->app->preferencesWindow().findChild<InfoPage*>();
        QVERIFY(page != nullptr);
        QCOMPARE(page->rominfoTextField->text(), QStringLiteral("http://a.test/game/{$gamename}"));
        m_staged->app->showPrefsWindow();
        m_staged->app->showPrefsWindow();
        QCOMPARE(m_staged->app->preferencesWindow().findChildren<InfoPage*>().size(), 1);
    }

    void theBiosPanelOpensAndCloses()
    {
        m_staged->app->ViewBiosList();
        QVERIFY(m_staged->app->bios().panel().isVisible());
        m_staged->app->ViewBiosList();
        QVERIFY(!m_staged->app->bios().panel().isVisible());
    }

    void inTheBiosPanelUndoBringsBackItsEntry()
    {
        BiosPanel& panel = m_staged->app->bios().panel();
        BiosModel& list = *panel.treeController_list;
        m_staged->app->ViewBiosList();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QAction& undo = *m_staged->app->mainWindow().findChild<QAction*>(QStringLiteral("menu_undo"));
        QVERIFY(!undo.isEnabled());
        const int rows = list.rowCount();
        panel.biosView->setCurrentIndex(list.index(2, 0));
        QTest::mouseClick(panel.removeButton, Qt::LeftButton);
        QCOMPARE(list.rowCount(), rows - 1);
        QVERIFY(undo.isEnabled());
        QTest::keyClick(panel.biosView, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(list.rowCount(), rows);
        QTest::keyClick(panel.biosView, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(list.rowCount(), rows - 1);
    }

private:
    /// The history of "galaga" beside the main window, which has it selected; of two favourites, pong and
    /// qix, the second one is selected.
    void followBeside()
    {
        for (const char* each : {"pong", "qix"}) {
            m_staged->app->gameList().selectGame(QString::fromLatin1(each));
            m_staged->app->addFavorite();
        }
        m_staged->app->favorites().window().favoritesTable->selectRow(1);
        m_staged->app->gameList().selectGame("galaga");
        m_staged->app->searchHistoryinfo();
        shows("Ships.");
        history().followBox->click();
        QVERIFY(m_staged->app->mainWindow().isVisible());
    }

    HistoryWindow& history() { return m_staged->app->info().window(); }

    void shows(const char* words)
    {
        QTRY_VERIFY2(m_staged->app->info().history().mstr_Mameinfo().contains(QString::fromLatin1(words)),
                     qPrintable(m_staged->app->info().history().mstr_Mameinfo()));
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_staged->path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::unique_ptr<StagedApp> m_staged;
};

TESSERA_TEST(InfoDeskTest);
#include "infodesktest.moc"
