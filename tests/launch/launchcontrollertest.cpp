#include "launch/ui/launchcontroller.h"

#include "launch/launchroom.h"
#include "launch/ui/generalpage.h"
#include "launch/usagetexts.h"
#include "support/endings.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QPushButton>

using namespace tessera;
using tessera::test::Room;

namespace {

const QString header = QStringLiteral("SDL MAME :  %1  Launch...\n\n");

} // namespace

class LaunchControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qunsetenv("FAKE_COMMAND");
        qunsetenv("FAKE_USAGE");
        qunsetenv("FAKE_CONFIG");
    }

    void startsTheGameWithTheBuildersList()
    {
        Room room;
        QVERIFY(room.launch("print"));
        QCOMPARE(room.printed(), room.built());
        QVERIFY(room.text().startsWith(header.arg("print") + "[print]\n[-video]\n[opengl]\n"));
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"recent " + room.folder.path() + "/roms/print.zip"}));
    }

    void worksInTheEmulatorsFolder()
    {
        Room room;
        QVERIFY(room.launch("folder"));
        QCOMPARE(room.text(),
                 header.arg("folder") + QFileInfo(room.folder.path()).canonicalFilePath() + "\n");
    }

    void theRecordFileIsNamedAfterTheSelectedGame()
    {
        Room room;
        room.defaults.setFlag(keys::Replaymove, true);
        room.defaults.setIndex(keys::Recordfilepop, 2);
        QVERIFY(room.launch("print"));
        QVERIFY(room.printed().contains(QString::fromUtf8("\"題.inp\"")));
    }

    void ownOptionsOfAFavouriteComeLast()
    {
        Room room;
        room.favourites.insert("print", "-cheat  -autosave");
        QVERIFY(room.launch("print"));
        QCOMPARE(room.printed(), room.built() + QStringList({"-cheat", "", "-autosave"}));
    }

    void anArchiveIsTheFirstArgumentAndMatchesNoFavourite()
    {
        qputenv("FAKE_COMMAND", "print");
        Room room;
        room.favourites.insert("pong", "-by-its-name");
        QVERIFY(room.launch("/r/pong.zip"));
        QCOMPARE(room.allPrinted(), QStringList("/r/pong.zip") + room.built());
        // Deliberate: only one whose name is the whole path would match.
        room.favourites.insert("/r/pong.zip", "-by-its-path");
        room.running.clear();
        QVERIFY(room.launch("/r/pong.zip"));
        QCOMPARE(room.allPrinted(), QStringList("/r/pong.zip") + room.built() + QStringList("-by-its-path"));
    }

    void aGameThatTheEmulatorDoesNotKnowIsExplained()
    {
        Room room;
        room.desktop.answerAlert("errerAlert 5", 0);
        QVERIFY(room.launch("/r/pong.zip"));
        QVERIFY(QTest::qWaitFor([&] { return room.desktop.transcript().size() == 3; }));
        QCOMPARE(room.text(), header.arg("pong") + "Unknown system \"/r/pong.zip\"\n");
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"recent /r/pong.zip", "beep", "alert errerAlert 5"}));
        // In plain words, before where to read on.
        QCOMPARE(room.desktop.alerts.at(0).informative, QStringLiteral("reason_system\n\nerrerInfo"));
    }

    void theRecentDocumentLiesInTheRomFolderWhereThatIsUsed_data()
    {
        QTest::addColumn<Qt::CheckState>("use");
        QTest::addColumn<bool>("exists");
        QTest::addColumn<QString>("recent");
        QTest::newRow("used") << Qt::Checked << true << "recent %1/my roms/exit0.zip";
        QTest::newRow("used but missing") << Qt::Checked << false << "recent %1/roms/exit0.zip";
        QTest::newRow("not used") << Qt::Unchecked << true << "recent %1/roms/exit0.zip";
        QTest::newRow("mixed, which is on") << Qt::PartiallyChecked << true << "recent %1/my roms/exit0.zip";
    }

    void theRecentDocumentLiesInTheRomFolderWhereThatIsUsed()
    {
        QFETCH(Qt::CheckState, use);
        QFETCH(bool, exists);
        QFETCH(QString, recent);
        Room room;
        if (exists)
            QVERIFY(QDir(room.folder.path()).mkdir("my roms"));
        room.defaults.setText(keys::RomsPath, room.folder.filePath("my roms"));
        QCheckBox& box = room.pages.general().control<QCheckBox>("checkboxRompath");
        box.setTristate();
        box.setCheckState(use);
        QCOMPARE(room.controller.romsfolder_FoundCheck(), exists);
        QVERIFY(room.launch("exit0"));
        QCOMPARE(room.desktop.transcript(), QStringList({recent.arg(room.folder.path())}));
    }

    void theProfileFitsTheListAndTheLogSaysHow()
    {
        Room room;
        QFile usage(room.folder.filePath("usage"));
        QVERIFY(usage.open(QIODevice::WriteOnly));
        usage.write(test::newUsage());
        usage.close();
        qputenv("FAKE_USAGE", QFile::encodeName(usage.fileName()));
        room.favourites.insert("print", "-nomultithreading");
        QVERIFY(room.launch("print"));
        const QStringList sent = room.printed();
        QVERIFY(sent.contains("-beam_width_min") && !sent.contains("-bios"));
        QCOMPARE(sent.count("-nomultithreading"), 1);
        QCOMPARE(sent.last(), QStringLiteral("-nomultithreading"));
        QCOMPARE(room.text().count("launch_leftout"), 1);
        QVERIFY(room.text().startsWith(header.arg("print") + "launch_leftout"));
    }

    void anArchiveIsFoundBeforeTheEmulatorsOwnRoms()
    {
        Room room;
        QFile usage(room.folder.filePath("usage"));
        QVERIFY(usage.open(QIODevice::WriteOnly));
        usage.write(test::newUsage());
        usage.close();
        QFile config(room.folder.filePath("config"));
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write("rompath                   $HOME/own;/more\n");
        config.close();
        qputenv("FAKE_USAGE", QFile::encodeName(usage.fileName()));
        qputenv("FAKE_CONFIG", QFile::encodeName(config.fileName()));
        QVERIFY(room.launch("/archives/print.zip"));
        QVERIFY(room.text().contains("\n[print]\n"));
        QCOMPARE(room.printed().last(), QStringLiteral("/archives;$HOME/own;/more"));
    }

    void aLaunchBeforeTheAnswerWaitsWithoutBlocking()
    {
        Room room;
        room.controller.Launchusing("print");
        QCOMPARE(room.text(), header.arg("print"));
        QVERIFY(room.controller.isRunning());
        QVERIFY(!room.task.isRunning());
        QVERIFY(room.waitForEnd());
        // Now that the answer is known, the next one starts at once.
        room.running.clear();
        room.controller.Launchusing("exit0");
        QVERIFY(room.task.isRunning());
        QVERIFY(room.waitForEnd());
    }

    void aWaitingLaunchCanBeStoppedAndReplaced()
    {
        Room room;
        room.controller.Launchusing("exit3");
        room.controller.stopProcess();
        QVERIFY(!room.controller.isRunning());
        room.running.clear();
        room.controller.Launchusing("exit4");
        room.running.clear();
        room.controller.Launchusing("print");
        room.running.clear();
        QVERIFY(room.waitForEnd());
        QCOMPARE(room.printed(), room.built());
    }

    void aBadEndRaisesTheAlertAfterTheOutput()
    {
        Room room;
        room.desktop.answerAlert("errerAlert 3", 0);
        QVERIFY(room.launch("exit3"));
        QVERIFY(QTest::qWaitFor([&] { return !room.desktop.alerts.empty(); }));
        QVERIFY(room.desktop.alerts.at(0).message.endsWith(" 3"));
        QCOMPARE(room.desktop.alerts.at(0).informative, QStringLiteral("errerInfo"));
        QCOMPARE(room.desktop.alerts.at(0).buttons, QStringList({"OK", "Log"}));
        QCOMPARE(room.desktop.transcript().mid(1), QStringList({"beep", "alert errerAlert 3"}));
        QCOMPARE(room.text(), header.arg("exit3") + "leaving\n");
        QVERIFY(!room.log.isVisible());
    }

    void theAlertsOtherButtonShowsTheLog()
    {
        Room room;
        room.desktop.answerAlert("errerAlert 11", 1);
        QVERIFY(room.launch("signal11"));
        QVERIFY(QTest::qWaitFor([&] { return room.log.isVisible(); }));
    }

    void aGoodEndRaisesNoAlert()
    {
        Room room;
        QVERIFY(room.launch("exit0"));
        QVERIFY(room.desktop.alerts.empty());
    }

    void aNewLaunchWaitsForTheEndOfTheRunningGame()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        const pid_t first = room.process();
        QString oldLog;
        connect(&room.task, &EmulatorTask::output, this, [&] {
            if (room.text().contains("windowed"))
                oldLog = room.text();
        });
        bool wereTwo = false;
        QStringList started;
        connect(&room.runs, &RunController::started, this, [&](const QString& game) {
            started << game;
            wereTwo = test::isAlive(first);
        });
        room.controller.Launchusing("print");
        QCOMPARE(room.text(), header.arg("windowed") + "ready\n");
        QCOMPARE(room.controller.runningText(), QStringLiteral("launch_stopping"));
        QVERIFY(room.waitForText("[print]"));
        QVERIFY(QTest::qWaitFor([&] { return !room.controller.isRunning(); }, 20000));
        // What the first one prints until its end is of its own log.
        QCOMPARE(oldLog, header.arg("windowed") + "ready\nasked to close\n");
        QVERIFY(room.text().startsWith(header.arg("print") + "[print]\n"));
        QCOMPARE(room.printed(), room.built());
        QCOMPARE(started, QStringList({"print"}));
        QVERIFY(!wereTwo);
        QVERIFY(room.desktop.alerts.empty());
    }

    void theLastLaunchOfManyIsTheOneThatFollows()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        QSignalSpy started(&room.runs, &RunController::started);
        room.controller.Launchusing("exit2");
        room.controller.Launchusing("exit0");
        QVERIFY(room.waitForText("leaving"));
        QVERIFY(QTest::qWaitFor([&] { return !room.controller.isRunning(); }, 20000));
        QCOMPARE(room.text(), header.arg("exit0") + "leaving\n");
        QCOMPARE(started.size(), 1);
        QVERIFY(room.desktop.alerts.empty());
    }

    void stoppingGivesUpWhatWasToFollow()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        QSignalSpy started(&room.runs, &RunController::started);
        room.controller.Launchusing("print");
        QVERIFY(room.stop());
        QCOMPARE(room.text(), header.arg("windowed") + "ready\nasked to close\n");
        QVERIFY(started.isEmpty());
    }

    // Between the end of a program and that of its output.
    void theOutputOfAnEndedGameDoesNotGetIntoTheNextLog()
    {
        Room room;
        QString oldLog;
        connect(&room.task, &EmulatorTask::output, this, [&](const QString& piece) {
            if (!piece.contains(QChar::ReplacementCharacter))
                return;
            room.controller.Launchusing("print");
            oldLog = room.text();
        });
        room.controller.Launchusing("cutoff");
        QVERIFY(room.waitForText("[print]"));
        QVERIFY(QTest::qWaitFor([&] { return !room.controller.isRunning(); }, 20000));
        QCOMPARE(oldLog, header.arg("cutoff") + "a\uFFFD");
        QVERIFY(room.text().startsWith(header.arg("print") + "[print]\n"));
    }

    void stopProcessEndsTheGameAndKeepsItsOutput()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        QSignalSpy status(&room.runs, &RunController::statusMessage);
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        room.running.clear();
        status.clear();
        room.controller.stopProcess();
        // It runs until it does not.
        QVERIFY(room.controller.isRunning());
        QCOMPARE(status.takeFirst().first().toString(), QStringLiteral("launch_stopping"));
        QCOMPARE(room.controller.runningText(), QStringLiteral("launch_stopping"));
        QVERIFY(room.running.takeFirst().first().toBool());
        QVERIFY(room.waitForEnd());
        QVERIFY(!room.controller.isRunning());
        QCOMPARE(status.takeFirst().first().toString(), QStringLiteral("launch_stopped"));
        QVERIFY(status.isEmpty());
        QCOMPARE(room.text(), header.arg("windowed") + "ready\nasked to close\n");
        QVERIFY(room.desktop.alerts.empty());
    }

    void quittingWaitsForTheGame()
    {
        const QTemporaryDir folder;
        qputenv("FAKE_SAVED", QFile::encodeName(folder.filePath("saved")));
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        const pid_t process = room.process();
        room.controller.stopAndWait();
        qunsetenv("FAKE_SAVED");
        QVERIFY(!test::isAlive(process));
        QVERIFY(QFile::exists(folder.filePath("saved")));
        QVERIFY(!room.controller.isRunning());
        // Nothing runs: there is nothing to wait for.
        room.controller.stopAndWait();
    }

    void quittingAsksNothingAboutAGameThatEnds()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("frozen");
        QVERIFY(room.waitForText("ready"));
        room.controller.stopProcess();
        QVERIFY(room.controller.confirmQuit());
        QVERIFY(room.desktop.alerts.empty());
        // Nor about the one that is to follow: it has not begun.
        room.controller.Launchusing("exit0");
        QVERIFY(room.controller.confirmQuit());
        QVERIFY(room.desktop.alerts.empty());
        QVERIFY(room.waitForText("leaving"));
    }

    void stoppingSaysWhatIsGivenUp()
    {
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.controller.Launchusing("windowed");
        QVERIFY(room.waitForText("ready"));
        room.controller.Launchusing("first");
        QSignalSpy status(&room.controller, &LaunchController::statusMessage);
        // Another one takes its place without a word.
        room.controller.Launchusing("exit0");
        QVERIFY(status.isEmpty());
        room.controller.stopProcess();
        QCOMPARE(status.takeFirst().first().toString(), QStringLiteral("launch_given_up"));
        QVERIFY(room.waitForEnd());
        QVERIFY(!room.text().contains("exit0"));
    }

    void aMissingEmulatorAlertsAndTheLaunchGoesOn()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "/missing/mame");
        room.desktop.answerAlert("alert_Message1", 1);
        QVERIFY(room.launch("pong"));
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"beep", "alert alert_Message1", "recent /missing/roms/pong.zip"}));
        QVERIFY(room.text().startsWith(header.arg("pong") + "launch_notstarted"));
        QVERIFY(room.text().endsWith('\n'));
    }

    void anEmulatorChosenInTheAlertIsUsed()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "/missing/mame");
        room.desktop.answerAlert("alert_Message1", 0);
        room.desktop.answerOpen(room.emulator());
        QVERIFY(room.launch("exit0"));
        QCOMPARE(room.text(), header.arg("exit0") + "leaving\n");
    }

    // By another start of the program: it ends as any running game does, and is not cut short.
    void aGameThatIsStartedWhileTheAlertStandsEndsFirst()
    {
        const QTemporaryDir folder;
        qputenv("FAKE_SAVED", QFile::encodeName(folder.filePath("saved")));
        Room room;
        room.desktop.windows = test::clickCloseButton;
        room.defaults.setText(keys::ExecutionPath, "/missing/mame");
        room.desktop.answerAlert("alert_Message1", 1);
        room.desktop.whileAsked = [&room] {
            room.defaults.setText(keys::ExecutionPath, room.emulator());
            room.controller.Launchusing("windowed");
            QVERIFY(room.waitForText("ready"));
        };
        room.controller.Launchusing("print");
        QVERIFY(room.waitForText("[print]"));
        qunsetenv("FAKE_SAVED");
        QVERIFY(QFile::exists(folder.filePath("saved")));
        QVERIFY(QTest::qWaitFor([&] { return !room.controller.isRunning(); }, 20000));
        QVERIFY(room.text().startsWith(header.arg("print") + "[print]\n"));
    }

    void anEmulatorThatIsInstalledLaterIsFoundByTheNextLaunch()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "");
        room.desktop.answerAlert("alert_Message1", 1);
        QVERIFY(room.launch("exit0"));
        QVERIFY(room.text().contains("launch_notstarted"));

        room.installed = room.emulator();
        room.running.clear();
        QVERIFY(room.launch("exit0"));
        QCOMPARE(room.text(), header.arg("exit0") + "leaving\n");
        QCOMPARE(room.settings.string(keys::ExecutionPath.name), QString());
    }

    void whatCannotBeStartedIsToldInTheLog_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a folder") << "folder";
        QTest::newRow("not executable") << "Tessera.ini";
    }

    void whatCannotBeStartedIsToldInTheLog()
    {
        QFETCH(QString, name);
        Room room;
        QVERIFY(QDir(room.folder.path()).mkdir("folder"));
        QVERIFY(room.settings.synchronize());
        room.defaults.setText(keys::ExecutionPath, room.folder.filePath(name));
        QSignalSpy status(&room.runs, &RunController::statusMessage);
        QVERIFY(room.launch("pong"));
        QVERIFY(room.text().startsWith(header.arg("pong") + "launch_notstarted"));
        QVERIFY(status.last().first().toString().contains("launch_notstarted"));
        QVERIFY(room.desktop.alerts.empty());
    }

    void theCheckPassesAFoundEmulator()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "");
        room.desktop.answerAlert("alert_Message1", 1);
        room.controller.LaunchemuCheck();
        QCOMPARE(room.desktop.takeTranscript(), QStringList({"beep", "alert alert_Message1"}));
        room.installed = room.emulator();
        room.controller.LaunchemuCheck();
        QVERIFY(room.desktop.transcript().isEmpty());
        QCOMPARE(room.choice.emulator(), room.installed);
    }

    // Its alert stands before the log of the game before.
    void theCheckComesBeforeTheHeader()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "");
        room.runs.beginLog("of the game before");
        QStringList seen;
        room.find = [&] {
            seen << room.text();
            return room.emulator();
        };
        QVERIFY(room.launch("exit0"));
        QVERIFY(!seen.isEmpty());
        QCOMPARE(seen.first(), QStringLiteral("of the game before"));
        QCOMPARE(room.text(), header.arg("exit0") + "leaving\n");
    }

    void theShownLineNamesEmptyValuesToo_data()
    {
        QTest::addColumn<QString>("game");
        QTest::newRow("of a game") << "pong";
        QTest::newRow("of no game") << "";
    }

    void theShownLineNamesEmptyValuesToo()
    {
        QFETCH(QString, game);
        Room room;
        room.defaults.setText(keys::Displaybeam, "");
        const QStringList named = game.isEmpty() ? QStringList() : QStringList(game);
        QCOMPARE(room.controller.shownLine(game).line.arguments, named + room.built());
        QVERIFY(room.controller.shownCommandLine(game).contains(" -beam '' -flicker "));
    }

    void anUnknownModeLaunchesNothing()
    {
        Room room;
        room.defaults.setIndex(keys::Launchgamesusing, 3);
        room.controller.Launchusing("pong");
        QCOMPARE(room.text(), QStringLiteral(" :  pong  Launch...\n\n"));
        QVERIFY(!room.controller.isRunning());
        QVERIFY(room.desktop.transcript().isEmpty());
    }

    void outputHasTheListsTextColour()
    {
        Room room;
        room.defaults.setText(keys::TableViewTextColor, "#ff102030");
        room.runs.appendOutput("text");
        QTextCursor cursor(room.log.infomationTextView->document());
        cursor.movePosition(QTextCursor::End);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(0x10, 0x20, 0x30));
    }

    void aChangeOfTheModeIsTold()
    {
        Room room;
        QList<int> stored;
        connect(&room.controller, &LaunchController::launchModeChanged, this,
                [&] { stored << room.defaults.index(keys::Launchgamesusing); });
        QComboBox* mode = room.pages.general().launchusingPop;
        QTest::keyClick(mode, Qt::Key_Down);
        QTest::keyClick(mode, Qt::Key_End);
        // Whoever hears of it finds it stored.
        QCOMPARE(stored, QList<int>({1, 2}));
        QTest::keyClick(mode, Qt::Key_Down);
        QCOMPARE(stored.size(), 2);
    }

    void anEmptyLogIsNotSaved()
    {
        Room room;
        room.log.saveButton->click();
        QCOMPARE(room.desktop.transcript(), QStringList({"beep"}));
    }

    void theLogIsSavedAsText()
    {
        Room room;
        room.runs.appendOutput(QString::fromUtf8("行\nline\r10%\r20%\r\nend"));
        const QString path = room.folder.filePath("log.txt");
        room.desktop.answerSave("Log output", path);
        room.log.saveButton->click();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("行\nline\r10%\r20%\r\nend"));
        QCOMPARE(room.desktop.saveRequests.at(0).extensions, QStringList({"txt"}));
    }

    void aLogThatCannotBeSavedIsSaidInTheStatusLineOnly()
    {
        Room room;
        QSignalSpy status(&room.runs, &RunController::statusMessage);
        room.runs.appendOutput("text");
        room.desktop.answerSave("Log output", "/no such folder/log.txt");
        room.runs.saveLogAction();
        QCOMPARE(status.size(), 1);
        QVERIFY(!status.at(0).at(0).toString().isEmpty());
        room.desktop.answerSave("Log output", std::nullopt);
        room.runs.saveLogAction();
        QCOMPARE(status.size(), 1);
        QCOMPARE(room.desktop.transcript(), QStringList({"save Log output", "save Log output"}));
    }

    void theLogWindowTogglesOrComesForward()
    {
        Room room;
        room.runs.showLogWindow();
        QVERIFY(room.log.isVisible());
        room.runs.windowLog();
        QVERIFY(room.log.isVisible());
        room.runs.showLogWindow();
        QVERIFY(!room.log.isVisible());
        room.runs.windowLog();
        QVERIFY(room.log.isVisible());
    }

    void quittingAsksOnceWhileAGameRuns()
    {
        Room room;
        QVERIFY(room.controller.confirmQuit());
        room.controller.Launchusing("wait");
        QVERIFY(room.waitForText("ready"));
        room.desktop.takeTranscript();
        room.desktop.answerAlert("launch_quitmessage", 1);
        QVERIFY(!room.controller.confirmQuit());
        QVERIFY(room.controller.isRunning());
        room.desktop.answerAlert("launch_quitmessage", 0);
        QVERIFY(room.controller.confirmQuit());
        // What is asked after us may still keep the program running.
        QVERIFY(room.controller.isRunning());
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"beep", "alert launch_quitmessage", "beep", "alert launch_quitmessage"}));
        QVERIFY(room.stop());
        QVERIFY(room.controller.confirmQuit());
    }

    void theProfileCanBePreparedAhead()
    {
        Room room;
        QSignalSpy spy(&room.profiles, &ProfileCache::answered);
        room.controller.prepareProfile();
        QVERIFY(spy.wait());
        room.controller.Launchusing("exit0");
        QVERIFY(room.task.isRunning());
        QVERIFY(room.waitForEnd());
    }

    void aFloodWithoutLineEndsReachesTheLogWhole()
    {
        Room room;
        room.log.show();
        QVERIFY(room.launch("wide3"));
        QCOMPARE(room.text().size(), header.arg("wide3").size() + 3'000'000);
        QCOMPARE(room.text().count('\n'), 2);
    }
};

TESSERA_TEST(LaunchControllerTest);
#include "launchcontrollertest.moc"
