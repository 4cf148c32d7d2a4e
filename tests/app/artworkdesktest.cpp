#include "../artwork/scriptedserver.h"
#include "stagedapp.h"

#include "app/desks/artworkdesk.h"
#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/sidepanel.h"
#include "artwork/ui/aspectview.h"
#include "artwork/ui/downloadpanel.h"
#include "artwork/ui/downloadprocessing.h"
#include "artwork/ui/imagewindow.h"
#include "artwork/ui/picturepane.h"
#include "artwork/ui/picturespage.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "app/windows/filespage.h"
#include "launch/ui/folderproposal.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "widgets/bringforward.h"
#include "widgets/pathfield.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QToolButton>

using namespace tessera;
using test::StagedApp;

namespace {

const QString noImage = QStringLiteral(":/pictures/No_image.jpg");

} // namespace

/// Pictures as a person sees them, over the whole program.
class ArtworkDeskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->defaults.setValue(keys::SnapPath.name, m_staged->path("snap"));
        m_staged->defaults.setValue(keys::GameflyersPath.name, m_staged->path("flyers"));
        paint("snap/pong.png", {64, 48});
        paint("snap/qix.png", {48, 64});
        paint("flyers/pong.png", {30, 40});
        m_staged->start();
        m_staged->desktop.takeTranscript();
        // Pictures are read once the main window was painted.
        QTRY_VERIFY(!mainPane().imageView->image().isNull());
    }

    void cleanup() { m_staged.reset(); }

    void aStartMakesNoWindowOfIt()
    {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            QVERIFY(qobject_cast<const ImageWindow*>(window) == nullptr);
            QVERIFY(qobject_cast<const DownloadPanel*>(window) == nullptr);
        }
        QCOMPARE(m_staged->app->mainWindow().findChildren<PicturesPage*>().size(), 0);
    }

    void theStartShowsWhatIsSelected()
    {
        QCOMPARE(mainPane().shotTextField->text(), QStringLiteral("Snapshot"));
        QCOMPARE(artwork().folder().snappath(), m_staged->path("snap"));
    }

    void thePictureFollowsTheSelection()
    {
        select("pong");
        QTRY_COMPARE(mainPane().imageView->image().size(), QSize(64, 48));
        select("qix");
        QTRY_COMPARE(mainPane().imageView->image().size(), QSize(48, 64));
        m_staged->app->mainWindow().gameTable->clearSelection();
        QCOMPARE(artwork().snapshot().snapimag(), noImage);
    }

    void aCloneShowsItsParentsPicture()
    {
        select("galaga");
        const QString parent = m_staged->app->gameList().tableViewSelectionParentROM();
        const QString path = paint("snap/" + parent + ".png", {20, 20});
        select("pong");
        select("galaga");
        QCOMPARE(artwork().snapshot().snapimag(), path);
        m_staged->app->showPrefsWindow();
        m_staged->app->preferencesWindow().findChild<PicturesPage*>()->checkboxSuppress->click();
        QCOMPARE(artwork().snapshot().snapimag(), noImage);
    }

    // Whatever window is key, and whatever the main list has selected.
    void theFavouritesOwnMenuActsOnTheFavourite()
    {
        select("qix");
        m_staged->app->addFavorite();
        m_staged->app->windowFavorites();
        const auto* table = m_staged->app->favorites().window().favoritesTable;
        m_staged->app->favorites().window().favoritesTable->selectRow(0);
        m_staged->app->windowMain();
        QTRY_COMPARE(m_staged->app->keyWindow(), KeyWindow::Kind::Main);
        select("pong");
        m_staged->desktop.takeTranscript();
        const auto choose = [table](const char* name) {
            const QList<QAction*> actions = table->actions();
            const auto found = std::ranges::find(actions, QLatin1StringView(name), &QAction::objectName);
            QVERIFY(found != actions.end());
            QCOMPARE((*found)->text() + u'2', QLatin1StringView(name));
            (*found)->trigger();
        };
        choose("menu_revealpicture2");
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"reveal " + m_staged->path("snap/qix.png")});
        QVERIFY(QDir().mkpath(m_staged->path("roms/qix")));
        m_staged->defaults.setValue(keys::RomsPath.name, m_staged->path("roms"));
        choose("menu_revealrom2");
        QCOMPARE(m_staged->desktop.takeTranscript(),
                 (QStringList{"reveal " + m_staged->path("roms/qix.zip"),
                              "reveal " + m_staged->path("roms/qix")}));
        choose("menu_showpicture2");
        QTRY_VERIFY(artwork().imageWindow().isVisible());
        QVERIFY(artwork().imageWindow().windowTitle().contains("qix"));
        const test::InstalledTexts texts("en");
        choose("menu_downloadpicture2");
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"beep"});
        QVERIFY(says("Picture site 1 has no host yet: Preferences › Support › Pictures."));
    }

    void theNextKindIsShownEverywhere()
    {
        select("pong");
        m_staged->app->windowMini();
        mainPane().buttonShot->click();
        mainPane().buttonShot->click();
        QCOMPARE(mainPane().shotTextField->text(), QStringLiteral("Game Flyer"));
        QCOMPARE(m_staged->app->mini().window().shotTextField2->text(), QStringLiteral("Game Flyer"));
        QTRY_COMPARE(mainPane().imageView->image().size(), QSize(30, 40));
        QCOMPARE(m_staged->desktop.takeTranscript(), (QStringList{"sound typing", "sound typing"}));
        action("menu_nextkind")->trigger();
        QCOMPARE(mainPane().shotTextField->text(), QStringLiteral("Snapshot"));
    }

    void theKindsMenuChecksTheOneThatIsShown()
    {
        QMenu& menu = *mainPane().buttonShot->menu();
        Q_EMIT menu.aboutToShow();
        QVERIFY(menu.actions().at(0)->isChecked());
        menu.actions().at(2)->trigger();
        QCOMPARE(artwork().folder().kind(), 2);
        m_staged->desktop.takeTranscript();
    }

    void theFavouritesHaveTheirOwnPicture()
    {
        select("qix");
        m_staged->app->addFavorite();
        select("pong");
        m_staged->app->windowFavorites();
        FavouritesWindow& window = m_staged->app->favorites().window();
        QTRY_VERIFY(window.isActiveWindow());
        window.favoritesTable->selectRow(0);
        QCOMPARE(artwork().snapshot().snapimag(), m_staged->path("snap/qix.png"));
        QTRY_COMPARE(window.sidePanel->picturePane->imageView->image().size(), QSize(48, 64));
        QTRY_COMPARE(mainPane().imageView->image().size(), QSize(64, 48));
        m_staged->desktop.takeTranscript();
        m_staged->app->display_image_Finder();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"reveal " + m_staged->path("snap/qix.png")});
    }

    void theMiniWindowShowsTheSetInItsField()
    {
        m_staged->app->windowMini();
        MiniWindow& window = m_staged->app->mini().window();
        m_staged->app->mini().setGame("pong");
        QTRY_COMPARE(window.imageView->image().size(), QSize(64, 48));
        m_staged->desktop.takeTranscript();
    }

    // The list behind it may show a picture that cannot be read.
    void theMiniWindowSpeaksOfItsOwnGameOnly()
    {
        select("1943");
        m_staged->app->windowMini();
        MiniWindow& window = m_staged->app->mini().window();
        m_staged->app->mini().setGame("pong");
        QTRY_COMPARE(window.imageView->image().size(), QSize(64, 48));
        QStringList labels;
        for (const QLabel* label : window.findChildren<QLabel*>())
            labels << label->text();
        QFile broken(m_staged->path("snap/1943.png"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
        broken.close();
        const auto* message = m_staged->app->mainWindow().findChild<QLabel*>("messageLabel");
        QVERIFY(message->text().isEmpty());
        artwork().snap_change();
        QTRY_VERIFY(!message->text().isEmpty());
        QStringList left;
        for (const QLabel* label : window.findChildren<QLabel*>())
            left << label->text();
        QCOMPARE(left, labels);
        m_staged->desktop.takeTranscript();
    }

    void theRatioIsOneForAll()
    {
        QMenu& menu = *m_staged->app->mainWindow().menuBar()->findChild<QMenu*>("Menu_aspect");
        menu.actions().at(4)->trigger();
        QCOMPARE(mainPane().aspectPop->currentIndex(), 4);
        QCOMPARE(mainPane().imageView->rationum(), 4);
        m_staged->app->windowFavorites();
        QCOMPARE(m_staged->app->favorites().window().sidePanel->picturePane->aspectPop->currentIndex(), 4);
        m_staged->app->DefaultAction();
        QCOMPARE(mainPane().aspectPop->currentIndex(), 0);
        QVERIFY(menu.actions().at(0)->isChecked() && !menu.actions().at(4)->isChecked());
        m_staged->desktop.takeTranscript();
    }

    void aPictureOpensInItsOwnWindow()
    {
        select("pong");
        QTest::mouseClick(mainPane().imageView, Qt::LeftButton);
        QTRY_VERIFY(artwork().imageWindow().isVisible());
        QCOMPARE(artwork().imageWindow().windowTitle(), QStringLiteral("pong.png"));
        QCOMPARE(artwork().imageWindow().size(), QSize(64, 68));
    }

    void withoutAPictureTheEmptyOneOpens()
    {
        m_staged->app->mainWindow().gameTable->clearSelection();
        m_staged->app->snappreview();
        QTRY_COMPARE(artwork().imageWindow().windowTitle(), QStringLiteral("No_image.jpg"));
    }

    void aDownloadRefreshesTheLists()
    {
        select("1943");
        QCOMPARE(artwork().snapshot().snapimag(), noImage);
        paint("snap/1943.png", {10, 10});
        Q_EMIT artwork().download().SnapChange(QStringLiteral("downloadDidFinish"));
        QCOMPARE(artwork().snapshot().snapimag(), m_staged->path("snap/1943.png"));
    }

    void aMinimisedDownloadComesBackBesides()
    {
        Q_EMIT artwork().download().began();
        DownloadPanel* panel = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<DownloadPanel*>(window))
                panel = found;
        }
        if (panel == nullptr)
            QFAIL("no panel is made");
        QTRY_VERIFY(isShown(*panel));
        panel->setWindowState(panel->windowState() | Qt::WindowMinimized);
        QVERIFY(!isShown(*panel));
        Q_EMIT artwork().download().began();
        QTRY_VERIFY(isShown(*panel));
    }

    void aCloneIsDownloadedUnderItsOwnName()
    {
        test::ScriptedServer server;
        server.answers["/galaga.png"] = {test::ScriptedServer::answer(
            "200 OK\r\nContent-Type: image/png", QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(92, 'x'))};
        m_staged->defaults.setValue(keys::Snapdownsite.name, 3);
        m_staged->defaults.setValue(keys::snapdownloadPath.name,
                                    QString(server.url({}).toString() + QStringLiteral("/{$gamename}")));
        select("galaga");
        m_staged->app->snapdownload();
        QTRY_VERIFY(!artwork().download().downloadstate());
        QVERIFY(QFile::exists(m_staged->path("snap/galaga.png")));
        QCOMPARE(artwork().snapshot().snapimag(), m_staged->path("snap/galaga.png"));
        QCOMPARE(server.requests.size(), 1);
        QVERIFY(m_staged->desktop.takeTranscript().contains(QStringLiteral("sound Pop")));
    }

    void aSiteWithoutAHostIsNamed()
    {
        select("pong");
        const test::InstalledTexts texts("en");
        m_staged->app->snapdownload();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"beep"});
        QVERIFY(says("Picture site 1 has no host yet: Preferences › Support › Pictures."));
        m_staged->app->openROMinfo();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"beep"});
        QVERIFY(says("Information site 1 has no host yet: Preferences › Support › Information sites."));
    }

    // The second site has none.
    void aDownloadWithoutATemplateIsAnError()
    {
        m_staged->defaults.setValue(keys::Snapdownsite.name, 1);
        m_staged->defaults.setValue(keys::SnapsiteHost2.name, QStringLiteral("two.test"));
        m_staged->defaults.setValue(keys::Screenfolder.name, 2);
        m_staged->app->artwork().folder().Setsnapfolder();
        select("pong");
        m_staged->desktop.answerAlert(QStringLiteral("download_Miss"), 0);
        m_staged->app->snapdownload();
        QTRY_VERIFY(!artwork().download().downloadstate());
        QVERIFY(m_staged->desktop.takeTranscript().contains(QStringLiteral("log didFailWithError")));
    }

    void thePreferencesChooseFolders()
    {
        m_staged->app->showPrefsWindow();
        auto* page = m_staged->app->preferencesWindow().findChild<FilesPage*>();
        QVERIFY(page != nullptr);
        paint("other/pong.png", {12, 12});
        select("pong");
        m_staged->desktop.answerOpen(m_staged->path("other"));
        page->snapPath->chooseButton()->click();
        QCOMPARE(artwork().folder().snappath(), m_staged->path("other"));
        QCOMPARE(artwork().snapshot().snapimag(), m_staged->path("other/pong.png"));
        m_staged->desktop.takeTranscript();
    }

    void theEmulatorsOwnSnapshotsAreProposed()
    {
        m_staged->app->showPrefsWindow();
        auto* page = m_staged->app->preferencesWindow().findChild<FilesPage*>();
        page->snapProposal->setFolders({m_staged->path("flyers")});
        QVERIFY(page->snapProposal->isHidden());
        page->snapPath->field()->clear();
        QVERIFY(!page->snapProposal->isHidden());
        page->snapProposal->findChild<QPushButton*>()->click();
        QCOMPARE(artwork().folder().snappath(), m_staged->path("flyers"));
        QVERIFY(page->snapProposal->isHidden());
        m_staged->desktop.takeTranscript();
    }

    void theSidePanelActsOnTheSelection()
    {
        m_staged->defaults.setValue(keys::RomsPath.name, m_staged->path("roms"));
        select("pong");
        m_staged->desktop.takeTranscript();
        m_staged->app->mainWindow().sidePanel->revealButton->click();
        QCOMPARE(
            m_staged->desktop.takeTranscript(),
            (QStringList{"reveal " + m_staged->path("roms/pong.zip"), "reveal " + m_staged->path("roms/pong"),
                         "folder " + m_staged->path("roms"), "beep"}));
    }

    void theDividersStayWhereTheyWere()
    {
        QCOMPARE(m_staged->app->mainWindow().sidePanel->splitView->objectName(),
                 QStringLiteral("SecondSplitView"));
        QCOMPARE(m_staged->app->favorites().window().sidePanel->splitView->objectName(),
                 QStringLiteral("SecondSplitView2"));
        QVERIFY(mainPane().minimumHeight() == 173);
    }

    void theLabelsAreTheSameInEveryLanguage()
    {
        m_staged.reset();
        const test::InstalledTexts texts("ja");
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
        const QStringList labels{"Snapshot", "Title Snapshot", "Game Flyer"};
        m_staged->app->windowMini();
        for (const QString& label : labels) {
            QCOMPARE(mainPane().shotTextField->text(), label);
            QCOMPARE(m_staged->app->mini().window().shotTextField2->text(), label);
            m_staged->app->ChangesnapPop();
        }
        m_staged->app->showPrefsWindow();
        const auto* page = m_staged->app->preferencesWindow().findChild<PicturesPage*>();
        for (int kind = 0; kind < 3; ++kind) {
            QCOMPARE(mainPane().buttonShot->menu()->actions().at(kind)->text(), labels[kind]);
            QCOMPARE(page->screenfolderPop->itemText(kind), labels[kind]);
        }
        m_staged->desktop.takeTranscript();
    }

private:
    // Of the status line.
    bool says(const QString& sentence)
    {
        const auto labels = m_staged->app->mainWindow().findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](const QLabel* each) { return each->text() == sentence; });
    }

    ArtworkDesk& artwork() { return m_staged->app->artwork(); }
    PicturePane& mainPane() { return *m_staged->app->mainWindow().sidePanel->picturePane; }
    void select(const char* name) { QVERIFY(m_staged->app->gameList().selectGame(QLatin1String(name))); }
    QAction* action(const char* name)
    {
        return m_staged->app->mainWindow().menuBar()->findChild<QAction*>(QLatin1String(name));
    }
    QString paint(const QString& name, QSize size) const
    {
        const QString path = m_staged->path(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }

    std::unique_ptr<StagedApp> m_staged;
};

TESSERA_TEST(ArtworkDeskTest);

#include "artworkdesktest.moc"
