#include "stagedapp.h"

#include "app/windows/mainwindow.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/supportpage.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "app/windows/filespage.h"
#include "launch/ui/folderproposal.h"
#include "support/endings.h"
#include "support/testmain.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>

using namespace tessera;
using test::StagedApp;

namespace {

const QByteArray usage("-rompath             path to ROM sets\n"
                       "-video               video output method: soft, opengl or vulkan\n"
                       "-sound               sound output method: sdl, none or jack\n"
                       "-scalemode           Scale mode: none, async (-video soft only)\n"
                       "-keepaspect          keep the aspect ratio\n");

} // namespace

/// What the preferences show of the emulator in use.
class OptionsDeskTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<StagedApp> m_staged;

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_staged->path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    template <class Control>
    Control* control(const char* name) const
    {
        return m_staged->app->preferencesWindow().findChild<Control*>(QLatin1String(name));
    }
    bool isMarked(const char* name) const { return control<QWidget>(name)->property("unknown").toBool(); }

    void showPreferences()
    {
        m_staged->app->showPrefsWindow();
        QTRY_VERIFY(isMarked("checkboxMaximize"));
    }

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        qputenv("XDG_CACHE_HOME", m_staged->path(QStringLiteral("cache")).toUtf8());
        QVERIFY(QDir(m_staged->folder.path()).mkdir(QStringLiteral("theirs")));
        write(QStringLiteral("usage"), usage);
        write(QStringLiteral("config"),
              "rompath                   /nowhere/at/all;" + m_staged->path(QStringLiteral("theirs")).toUtf8()
                  + "\nsnapshot_directory        theirs\n");
        qputenv("FAKE_USAGE", m_staged->path(QStringLiteral("usage")).toUtf8());
        qputenv("FAKE_CONFIG", m_staged->path(QStringLiteral("config")).toUtf8());
        qputenv("FAKE_RUNS", m_staged->path(QStringLiteral("runs")).toUtf8());
        m_staged->start();
    }
    void cleanup()
    {
        m_staged.reset();
        for (const char* name : {"FAKE_USAGE", "FAKE_CONFIG", "FAKE_RUNS", "XDG_CACHE_HOME"})
            qunsetenv(name);
    }

    void optionsThatTheEmulatorDoesNotKnowAreMarked()
    {
        showPreferences();
        QVERIFY(!isMarked("checkboxAspect"));
        QVERIFY(!isMarked("devicevideoPop"));
        QVERIFY(isMarked("beemTextField"));
        QVERIFY(!isMarked("checkboxRompath"));
        QCOMPARE(control<QCheckBox>("checkboxMaximize")->toolTip(), QStringLiteral("option_unknown"));
    }

    void theOtherModesKnowNothingOfIt()
    {
        showPreferences();
        auto* mode = control<QComboBox>("launchusingPop");
        mode->setCurrentIndex(1);
        Q_EMIT mode->activated(1);
        QVERIFY(!isMarked("checkboxMaximize"));
        mode->setCurrentIndex(0);
        Q_EMIT mode->activated(0);
        QVERIFY(isMarked("checkboxMaximize"));
    }

    void theyAreMarkedAgainWhenTheModeGoesBackWithAllSettings()
    {
        showPreferences();
        m_staged->app->program().launches.MenuLaunchusing(QStringLiteral("MAME OS X"));
        QVERIFY(!isMarked("checkboxMaximize"));
        m_staged->desktop.answerAlert(QStringLiteral("reset_Message"), 0);
        m_staged->app->preferencesWindow().resetButton->click();
        QCOMPARE(control<QComboBox>("launchusingPop")->currentIndex(), 0);
        QVERIFY(isMarked("checkboxMaximize"));
    }

    void popUpsOfferWhatTheEmulatorListsBesides()
    {
        showPreferences();
        const auto last = [this](const char* name) {
            const auto* popup = control<QComboBox>(name);
            return popup->itemText(popup->count() - 1);
        };
        QCOMPARE(last("devicevideoPop"), QStringLiteral("vulkan"));
        QCOMPARE(last("popup_Sound"), QStringLiteral("jack"));
        QCOMPARE(last("scalemodePop"), QStringLiteral("async"));
        QCOMPARE(control<QComboBox>("popup_Sound")->count(), 5);
    }

    void theEmulatorsRomFolderIsProposedWhereItExists()
    {
        showPreferences();
        auto* proposal = control<FolderProposal>("romProposal");
        QTRY_VERIFY(proposal->isVisible());
        const QString folder = m_staged->path(QStringLiteral("theirs"));
        const auto uses = proposal->findChildren<QPushButton*>();
        QCOMPARE(uses.size(), 1);
        QVERIFY(uses.first()->accessibleName().endsWith(folder));
        QVERIFY(uses.first()->focusPolicy() & Qt::TabFocus);
        // Proposed is not taken.
        QCOMPARE(control<QLineEdit>("romsTextField")->text(), QString());
        QVERIFY(!m_staged->defaults.value(keys::RomsPath.name));
        uses.first()->click();
        QCOMPARE(control<QLineEdit>("romsTextField")->text(), folder);
        QCOMPARE(m_staged->defaults.string(keys::RomsPath.name), folder);
        QVERIFY(!proposal->isVisible());
    }

    void theEmulatorsSnapshotsAreProposedWhereTheyExist()
    {
        showPreferences();
        auto* proposal = control<FolderProposal>("snapProposal");
        const QString beside = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).path();
        QTRY_VERIFY(control<FolderProposal>("romProposal")->isVisible());
        // Beside the program there is no such folder.
        QVERIFY(!QFileInfo::exists(beside + QStringLiteral("/theirs")));
        QVERIFY(proposal->findChildren<QPushButton*>().isEmpty());
        write(QStringLiteral("config"),
              "snapshot_directory        " + m_staged->path(QStringLiteral("theirs")).toUtf8() + '\n');
        m_staged->app.reset();
        QVERIFY(QDir(m_staged->path(QStringLiteral("cache"))).removeRecursively());
        m_staged->start();
        showPreferences();
        proposal = control<FolderProposal>("snapProposal");
        QTRY_COMPARE(proposal->findChildren<QPushButton*>().size(), 1);
        proposal->findChildren<QPushButton*>().constFirst()->click();
        QCOMPARE(m_staged->defaults.string(keys::SnapPath.name), m_staged->path(QStringLiteral("theirs")));
        QVERIFY(proposal->isHidden());
    }

    void aChosenRomFolderIsLeftAlone()
    {
        control<QLineEdit>("romsTextField");
        UserDefaults& settings = m_staged->defaults;
        settings.setValue(keys::RomsPath.name, QStringLiteral("/mine"));
        m_staged->app.reset();
        m_staged->start();
        showPreferences();
        QTRY_COMPARE(control<FolderProposal>("romProposal")->findChildren<QPushButton*>().size(), 1);
        QVERIFY(!control<FolderProposal>("romProposal")->isVisible());
        QCOMPARE(control<QLineEdit>("romsTextField")->text(), QStringLiteral("/mine"));
        // Once it is taken away they are proposed.
        control<QLineEdit>("romsTextField")->clear();
        QVERIFY(control<FolderProposal>("romProposal")->isVisible());
    }

    void nothingOfThisIsMadeBeforeTheyAreShown()
    {
        QVERIFY(control<SupportPage>("") == nullptr);
        QVERIFY(m_staged->app->preferencesWindow().findChild<FilesPage*>() == nullptr);
        QVERIFY(control<FolderProposal>("romProposal") == nullptr);
    }

    void theSupportPageHasItsStrip()
    {
        m_staged->app->showPrefsWindow();
        PreferencesWindow& window = m_staged->app->preferencesWindow();
        window.findChild<QToolButton*>(QStringLiteral("support"))->click();
        auto* support = window.findChild<SupportPage*>();
        QVERIFY(support != nullptr && support->isVisible());
        QCOMPARE(support->strip->count(), support->preferencesTab2->count());
        for (int i = support->strip->count() - 1; i >= 0; --i) {
            support->strip->setCurrentIndex(i);
            QCOMPARE(support->preferencesTab2->currentIndex(), i);
        }
        QVERIFY(window.findChild<FilesPage*>()->isVisible());
    }

    void theSupportPagesPathsAreChosenAndShown()
    {
        m_staged->app->showPrefsWindow();
        auto* page = m_staged->app->preferencesWindow().findChild<FilesPage*>();
        const QString place = m_staged->path(QStringLiteral("theirs"));
        for (PathField* path :
             {page->snapPath, page->titlesnapPath, page->flyerPath, page->historyPath, page->mameinfoPath}) {
            m_staged->desktop.takeTranscript();
            path->revealButton()->click();
            QCOMPARE(m_staged->desktop.takeTranscript(), QStringList("beep"));
            m_staged->desktop.answerOpen(place);
            path->chooseButton()->click();
            QCOMPARE(path->field()->text(), place);
            m_staged->desktop.takeTranscript();
            path->revealButton()->click();
            const bool isFile = path == page->historyPath || path == page->mameinfoPath;
            QCOMPARE(m_staged->desktop.takeTranscript(),
                     QStringList((isFile ? QStringLiteral("reveal ") : QStringLiteral("folder ")) + place));
        }
        for (const ChosenKey& key : {keys::SnapPath, keys::TitlesnapPath, keys::GameflyersPath,
                                     keys::HistoryPath, keys::MameinfoPath})
            QCOMPARE(m_staged->defaults.string(key.name), place);
        QCOMPARE(m_staged->desktop.openRequests.front().folders, true);
        QCOMPARE(m_staged->desktop.openRequests.back().files, true);
    }

    void aRunningGameIsSaidAndCanBeStopped()
    {
        qunsetenv("FAKE_USAGE");
        qunsetenv("FAKE_CONFIG");
        const MainWindow& window = m_staged->app->mainWindow();
        QVERIFY(!window.runningStopButton->isVisible());
        qputenv("FAKE_COMMAND", "wait");
        m_staged->app->gameList().selectGame(QStringLiteral("pong"));
        m_staged->app->playSelected();
        QTRY_VERIFY(window.runningLabel->isVisible());
        qunsetenv("FAKE_COMMAND");
        QCOMPARE(window.runningLabel->text(), QStringLiteral("launch_running"));
        QVERIFY(window.runningStopButton->isVisible() && window.runningStopButton->isEnabled());
        QCOMPARE(window.runningStopButton->accessibleName(), QStringLiteral("main_stop"));
        QVERIFY(window.runningStopButton->focusPolicy() & Qt::TabFocus);
        window.runningStopButton->setFocus();
        QTest::keyClick(window.runningStopButton, Qt::Key_Space);
        QTRY_VERIFY(!window.runningStopButton->isVisible());
        QVERIFY(!window.runningLabel->isVisible());
        QVERIFY(!window.stopButton->isEnabled());
    }

    void aGameThatIsAskedToEndIsSaidUntilItHasEnded()
    {
        // By then the emulator was asked, and the game starts at once.
        showPreferences();
        const MainWindow& window = m_staged->app->mainWindow();
        const auto* message = window.findChild<QLabel*>("messageLabel");
        pid_t game = 0;
        m_staged->desktop.windows = [&game](qint64 process) {
            game = static_cast<pid_t>(process);
            return true;
        };
        qputenv("FAKE_COMMAND", "windowed");
        m_staged->app->gameList().selectGame(QStringLiteral("pong"));
        m_staged->app->playSelected();
        QTRY_VERIFY(window.runningLabel->isVisible());
        qunsetenv("FAKE_COMMAND");
        window.runningStopButton->click();
        QTRY_VERIFY(game > 0);
        QCOMPARE(window.runningLabel->text(), QStringLiteral("launch_stopping"));
        QCOMPARE(message->text(), QStringLiteral("launch_stopping"));
        QVERIFY(test::clickCloseButton(game));
        QTRY_VERIFY(!window.runningLabel->isVisible());
        QCOMPARE(message->text(), QStringLiteral("launch_stopped"));
    }
};

TESSERA_TEST(OptionsDeskTest);
#include "optionsdesktest.moc"
