#include "launch/ui/commandcontroller.h"

#include "launch/emulatorcommands.h"
#include "launch/launchroom.h"
#include "launch/ui/commandbar.h"
#include "support/grandchild.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QDir>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

using namespace tessera;

namespace {

// A launch's room with the commands in its log window.
struct Room : test::Room {
    CommandBar& bar = *new CommandBar(defaults);
    CommandController commands{CommandParts{desktop, choice, bar, task, runs, controller, chooser, selected}};

    Room() { log.setCommands(&bar); }

    void choose(int position) { defaults.setIndex(keys::Commandoption, position); }
    void run(int position)
    {
        choose(position);
        bar.returnButton->click();
    }
    QString exported(int position, const QString& path)
    {
        defaults.setIndex(keys::Commandexport, position);
        desktop.answerSave(QString::fromLatin1(exportRow(position).fileName), path);
        bar.exportButton->click();
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    /// Once the command prints.
    void whileItRuns(const std::function<void()>& act)
    {
        auto* watch = new QTimer(&commands);
        QObject::connect(watch, &QTimer::timeout, watch, [this, act, watch] {
            if (!text().contains(QLatin1String("ready")))
                return;
            watch->stop();
            act();
        });
        watch->start(10);
    }
};

} // namespace

class CommandControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("FAKE_COMMAND"); }

    void everyPositionRunsItsCommand_data()
    {
        QTest::addColumn<int>("position");
        for (int position = 0; position < static_cast<int>(commandRows.size()); ++position)
            QTest::addRow("%d", position) << position;
    }

    void everyPositionRunsItsCommand()
    {
        QFETCH(int, position);
        qputenv("FAKE_COMMAND", "print");
        Room room;
        room.selected.game.name = "galaga";
        room.run(position);
        const QString title = QString::fromLatin1(commandRow(position).title);
        QVERIFY(room.text().startsWith(commandHeader(position, "galaga", title)));
        QCOMPARE(room.allPrinted(),
                 *commandArguments(position,
                                   {"galaga", room.folder.path() + "/roms/galaga.zip", room.emulator()}));
        QCOMPARE(room.desktop.transcript(), QStringList({"sound Pop"}));
        QVERIFY(room.log.isVisible());
        QVERIFY(!room.task.isRunning());
        QVERIFY(!room.bar.progressInd->isVisible());
        QVERIFY(room.bar.returnButton->isEnabled());
    }

    void aCommandWithoutItsGameBeepsAndChangesNothing()
    {
        Room room;
        room.selected.game = {};
        room.runs.appendOutput("before");
        for (const int position : {7, 17, 20, 21, 23}) {
            room.run(position);
            QCOMPARE(room.desktop.takeTranscript(), QStringList({"beep"}));
        }
        QCOMPARE(room.text(), QStringLiteral("before"));
        QVERIFY(!room.log.isVisible());
        // What stands in the slot now was never started, so the next one may be.
        QVERIFY(!room.controller.isRunning());
        qputenv("FAKE_COMMAND", "print");
        room.run(0);
        QCOMPARE(room.allPrinted(), QStringList({"-help"}));
    }

    void anArchiveLiesInTheRomFolderWhereThatIsUsed()
    {
        qputenv("FAKE_COMMAND", "print");
        Room room;
        QVERIFY(QDir(room.folder.path()).mkdir("my roms"));
        room.defaults.setText(keys::RomsPath, room.folder.filePath("my roms"));
        room.defaults.setFlag(keys::Outputserror, true);
        room.run(20);
        QCOMPARE(room.allPrinted(), QStringList({room.folder.path() + "/my roms/sel.zip", "-romident"}));
    }

    // By another start of the program.
    void aGameThatIsStartedWhileThePanelStandsGoesOn()
    {
        Room room;
        const QString path = room.folder.filePath("kept.txt");
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("as it was");
        }
        room.desktop.whileAsked = [&room] { room.controller.Launchusing("windowed"); };
        QCOMPARE(room.exported(0, path), QStringLiteral("as it was"));
        QVERIFY(room.desktop.transcript().endsWith(QStringLiteral("beep")));
        QVERIFY(room.bar.exportButton->isEnabled());
        QTRY_VERIFY(room.task.isRunning() && room.text().contains("windowed"));
        room.controller.stopAndWait();
        QVERIFY(!room.desktop.transcript().contains(QStringLiteral("sound Pop")));
    }

    void worksInTheEmulatorsFolder()
    {
        Room room;
        room.selected.game.name = "folder";
        room.run(8);
        QVERIFY(room.text().endsWith("\n\n" + QFileInfo(room.folder.path()).canonicalFilePath() + "\n"));
    }

    void whileAGameRunsACommandIsRefused()
    {
        Room room;
        room.controller.Launchusing("wait");
        QVERIFY(room.waitForText("ready"));
        room.desktop.takeTranscript();
        const QString before = room.text();
        room.run(0);
        room.bar.exportButton->click();
        QCOMPARE(room.desktop.takeTranscript(), QStringList({"beep", "beep"}));
        QCOMPARE(room.text(), before);
        QVERIFY(room.task.isRunning());
        room.controller.stopProcess();
    }

    void aMissingEmulatorAlertsAndNothingRuns()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "/missing/mame");
        room.bar.returnButton->setEnabled(false);
        room.desktop.answerAlert("alert_Message1", 1);
        room.commands.commandAction();
        QVERIFY(room.bar.returnButton->isEnabled());
        // Even where one is chosen in the alert.
        room.desktop.answerAlert("alert_Message1", 0);
        room.desktop.answerOpen(room.emulator());
        room.commands.exportAction();
        QVERIFY(room.bar.exportButton->isEnabled());
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"beep", "alert alert_Message1", "beep", "alert alert_Message1", "open"}));
        QVERIFY(room.text().isEmpty());
        QVERIFY(!room.log.isVisible());
    }

    void aBadEndIsToldBehindTheOutputAndBeforeThePop()
    {
        Room room;
        room.selected.game.name = "exit3";
        QString atEnd;
        connect(&room.runs, &RunController::runningChanged, this, [&](bool running) {
            if (!running)
                atEnd = room.text();
        });
        room.desktop.answerAlert("errerAlert 3", 0);
        room.run(7);
        QVERIFY(atEnd.endsWith("leaving\n"));
        QCOMPARE(room.desktop.transcript(), QStringList({"beep", "alert errerAlert 3", "sound Pop"}));
    }

    void whatCannotBeStartedIsToldInTheLog()
    {
        Room room;
        QVERIFY(QDir(room.folder.path()).mkdir("folder"));
        room.defaults.setText(keys::ExecutionPath, room.folder.filePath("folder"));
        room.run(0);
        QVERIFY(room.text().contains("launch_notstarted"));
        QVERIFY(room.desktop.transcript().isEmpty());
        QVERIFY(room.log.isVisible());
        QVERIFY(room.bar.returnButton->isEnabled());
    }

    void outputFlowsWhileItIsWaitedFor()
    {
        Room room;
        room.log.show();
        room.selected.game.name = "wait";
        bool seen = false;
        room.whileItRuns([&] {
            seen = room.bar.progressInd->isVisible() && !room.bar.returnButton->isEnabled()
                && room.task.isWaitedFor();
            room.runs.stopProcess();
        });
        room.run(7);
        QVERIFY(seen);
        QVERIFY(!room.task.isRunning());
        // Stopped is not finished. It had no window that could be asked.
        QCOMPARE(room.desktop.transcript(), QStringList({"close"}));
        QVERIFY(!room.bar.progressInd->isVisible());
    }

    void onlyStopAnswersWhileItIsWaitedFor()
    {
        Room room;
        room.log.show();
        QVERIFY(QTest::qWaitForWindowExposed(&room.log));
        room.selected.game.name = "wait";
        room.whileItRuns([&] {
            QTest::mouseClick(room.log.saveButton, Qt::LeftButton);
            QTest::keyClick(room.log.infomationTextView, Qt::Key_Escape);
            QTest::mouseClick(room.bar.stopButton, Qt::LeftButton);
        });
        room.run(7);
        QCOMPARE(room.desktop.transcript(), QStringList({"close"}));
        QVERIFY(room.log.isVisible());
        QVERIFY(!room.task.isRunning());
    }

    void quittingAndLaunchesAreRefusedWhileItIsWaitedFor()
    {
        Room room;
        room.selected.game.name = "wait";
        bool quits = true;
        room.whileItRuns([&] {
            quits = room.controller.confirmQuit();
            QCoreApplication::quit();
            room.controller.Launchusing("print");
            QTimer::singleShot(50, &room.commands, [&] { room.runs.stopProcess(); });
        });
        room.run(7);
        QVERIFY(!quits);
        QCOMPARE(room.desktop.transcript(), QStringList({"beep", "beep", "close"}));
        QVERIFY(room.text().endsWith("ready\n"));
    }

    void endlessOutputCanBeStopped()
    {
        Room room;
        room.log.show();
        room.selected.game.name = "endless";
        QTimer::singleShot(300, &room.commands, [&] { room.runs.stopProcess(); });
        room.run(7);
        QVERIFY(room.text().size() > 1000);
        QVERIFY(!room.task.isRunning());
    }

    void aGrandchildDoesNotHoldItUp()
    {
        test::Grandchild grandchild;
        Room room;
        room.selected.game.name = "grandchild";
        room.run(7);
        QVERIFY(room.text().endsWith("gone\n"));
        QVERIFY(grandchild.isAlive());
        QCOMPARE(room.desktop.transcript(), QStringList({"sound Pop"}));
    }

    void everyPositionExportsIntoAFile_data()
    {
        QTest::addColumn<int>("position");
        for (int position = 0; position < static_cast<int>(exportRows.size()); ++position)
            QTest::addRow("%d", position) << position;
    }

    void everyPositionExportsIntoAFile()
    {
        QFETCH(int, position);
        qputenv("FAKE_COMMAND", "print");
        Room room;
        QString wanted;
        for (const QString& argument : exportArguments(position))
            wanted += '[' + argument + "]\n";
        QCOMPARE(room.exported(position, room.folder.filePath("out")), wanted);
        QCOMPARE(room.desktop.saveRequests.at(0).title, QString::fromLatin1(exportRow(position).panelTitle));
        QCOMPARE(room.text(), exportHeader(QString::fromLatin1(exportRow(position).title)) + exportCompleted);
        QCOMPARE(room.desktop.transcript().last(), QStringLiteral("sound Pop"));
        QVERIFY(room.log.isVisible());
        QVERIFY(room.bar.exportButton->isEnabled());
    }

    void theFileTakesBothChannelsAndNothingOfBefore()
    {
        qputenv("FAKE_COMMAND", "both");
        Room room;
        QFile file(room.folder.filePath("out"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(1000, 'x'));
        file.close();
        QCOMPARE(room.exported(1, file.fileName()), QStringLiteral("out\nerr\n"));
    }

    void aBadEndOfAnExportIsNoAlert()
    {
        qputenv("FAKE_COMMAND", "exit3");
        Room room;
        QCOMPARE(room.exported(1, room.folder.filePath("out")), QStringLiteral("leaving\n"));
        QVERIFY(room.desktop.alerts.empty());
        QVERIFY(room.text().endsWith(exportCompleted));
    }

    void aCancelledExportLeavesNothing()
    {
        Room room;
        room.desktop.answerSave("listfull.txt", std::nullopt);
        room.bar.exportButton->click();
        QVERIFY(room.bar.exportButton->isEnabled());
        QVERIFY(room.text().isEmpty());
        QCOMPARE(room.desktop.transcript(), QStringList({"save listfull.txt"}));
        QCOMPARE(QDir(room.folder.path()).entryList(QDir::Files), QStringList({"mame"}));
    }

    void aFileThatCannotBeWrittenIsToldInTheStatusLineOnly()
    {
        qputenv("FAKE_COMMAND", "print");
        Room room;
        QSignalSpy said(&room.commands, &CommandController::statusMessage);
        room.exported(1, "/no such folder/out");
        QCOMPARE(said.size(), 1);
        QVERIFY(said[0][0].toString().contains("command_unwritable"));
        QVERIFY(!room.text().contains("command_unwritable"));
        QVERIFY(room.text().endsWith(exportCompleted));
        QVERIFY(room.bar.exportButton->isEnabled());
    }

    void aStoppedExportIsNotCalledSaved()
    {
        qputenv("FAKE_COMMAND", "wait");
        Room room;
        QTimer::singleShot(200, &room.commands, [&] { room.runs.stopProcess(); });
        room.exported(1, room.folder.filePath("out"));
        QVERIFY(!room.text().contains(exportCompleted));
        QVERIFY(!room.desktop.transcript().contains("sound Pop"));
    }

    void aQuickAuditChoosesItsCommandAndRunsIt()
    {
        qputenv("FAKE_COMMAND", "print");
        Room room;
        room.commands.MiniAudit(17);
        QCOMPARE(room.bar.commandPop->currentIndex(), 17);
        QCOMPARE(room.defaults.index(keys::Commandoption), 17);
        QCOMPARE(room.allPrinted(), QStringList({"sel", "-verifyroms"}));
    }

    void theQuickAuditOfNothingLeavesThePopUpAlone()
    {
        Room room;
        room.choose(5);
        room.commands.MiniAudit(0);
        QCOMPARE(room.bar.commandPop->currentIndex(), 5);
        QVERIFY(room.text().isEmpty());
        QVERIFY(room.desktop.transcript().isEmpty());
    }
};

TESSERA_TEST(CommandControllerTest);
#include "commandcontrollertest.moc"
