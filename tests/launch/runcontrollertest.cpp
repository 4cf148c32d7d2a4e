#include "launch/ui/runcontroller.h"

#include "launch/launchroom.h"
#include "support/argumenttexts.h"
#include "support/testmain.h"

#include <QLayout>
#include <QPushButton>
#include <QTextCursor>

using namespace tessera;
using tessera::test::Room;

class RunControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatHappensToARunIsSaidWithItsName_data()
    {
        QTest::addColumn<QString>("game");
        QTest::addColumn<QString>("said");
        // How the last run ended is taken back first.
        QTest::newRow("good") << "exit0" << "|launch_ended (exit0, %2)";
        QTest::newRow("bad") << "exit3" << "|launch_endedbadly (exit3, 3)";
    }

    void whatHappensToARunIsSaidWithItsName()
    {
        QFETCH(QString, game);
        QFETCH(QString, said);
        Room room;
        const test::ArgumentTexts texts;
        QStringList heard;
        connect(&room.runs, &RunController::statusMessage, this, [&](const QString& text) { heard << text; });
        if (game != "exit0")
            room.desktop.answerAlert("errerAlert (%1, %2) 3", 0);
        QVERIFY(room.launch(game));
        QCOMPARE(heard.join('|'), said);
    }

    void stoppingIsSaidWithTheName()
    {
        Room room;
        const test::ArgumentTexts texts;
        QStringList heard;
        connect(&room.runs, &RunController::statusMessage, this, [&](const QString& text) { heard << text; });
        room.controller.Launchusing("frozen");
        QVERIFY(room.waitForText("ready"));
        QCOMPARE(room.controller.runningText(), QStringLiteral("launch_running (frozen, %2)"));
        room.runs.stopProcess();
        // Once is enough.
        room.runs.stopProcess();
        QVERIFY(room.stop());
        QCOMPARE(heard, QStringList({"", "launch_stopping (frozen, %2)", "launch_stopped (frozen, %2)"}));
        room.runs.stopProcess();
        QCOMPARE(heard.size(), 3);
    }

    void aLaunchThatWaitsForTheAnswerIsSaidAndStoppedByName()
    {
        Room room;
        const test::ArgumentTexts texts;
        QSignalSpy said(&room.controller, &LaunchController::statusMessage);
        room.controller.Launchusing("/r/pong.zip");
        QVERIFY(!room.task.isRunning());
        QCOMPARE(room.controller.runningText(), QStringLiteral("launch_running (pong, %2)"));
        QCOMPARE(room.running.size(), 1);
        QCOMPARE(room.running.takeFirst().first().toBool(), true);
        room.controller.stopProcess();
        QCOMPARE(said.takeLast().first().toString(), QStringLiteral("launch_stopped (pong, %2)"));
        QCOMPARE(room.running.takeFirst().first().toBool(), false);
    }

    void whatCannotBeStartedIsSaidWithItsPathAndTheReason()
    {
        Room room;
        const test::ArgumentTexts texts;
        QSignalSpy said(&room.runs, &RunController::statusMessage);
        room.runs.start({"pong", "/missing/program", "/", {}, "pong"});
        QVERIFY(room.waitForEnd());
        const QString sentence = said.last().first().toString();
        QVERIFY2(sentence.startsWith("launch_notstarted (/missing/program, "), qPrintable(sentence));
        QVERIFY(!sentence.contains("%2"));
        QCOMPARE(room.text(), sentence + '\n');
    }

    void onlyAGameIsToldAsStarted()
    {
        Room room;
        QSignalSpy started(&room.runs, &RunController::started);
        room.runs.start({"mame -help", room.emulator(), "/", {"exit0"}});
        QVERIFY(room.waitForEnd());
        QVERIFY(started.isEmpty());
        room.running.clear();
        room.runs.start({"pong", room.emulator(), "/", {"exit0"}, "/r/pong.zip"});
        QVERIFY(room.waitForEnd());
        QCOMPARE(started.takeFirst().first().toString(), QStringLiteral("/r/pong.zip"));
    }

    void theAlertIsAWarningThatEscapeAnswersWithOk()
    {
        Room room;
        room.desktop.answerAlert("errerAlert 3", 0);
        room.runs.errerAlert("3");
        QCOMPARE(room.desktop.alerts.at(0).style, Alert::Style::Warning);
        QCOMPARE(room.desktop.alerts.at(0).escape, 0);
        QCOMPARE(room.desktop.alerts.at(0).informative, QStringLiteral("errerInfo"));
    }

    // A reason is looked for in the end of what was printed, however much that was.
    void theLastSixtyFourKibiAreLookedThrough_data()
    {
        QTest::addColumn<int>("behind");
        QTest::addColumn<QString>("informative");
        QTest::newRow("just in it") << 65536 - 12 << "reason_missing\n\nerrerInfo";
        QTest::newRow("cut off") << 65536 - 11 << "errerInfo";
    }

    void theLastSixtyFourKibiAreLookedThrough()
    {
        QFETCH(int, behind);
        QFETCH(QString, informative);
        Room room;
        room.runs.getData("before\n");
        room.runs.getData("a NOT FOUND\n");
        room.runs.getData(QString(behind - 1, '\n'));
        room.runs.getData("\n");
        room.desktop.answerAlert("errerAlert 1", 0);
        room.runs.errerAlert("1");
        QCOMPARE(room.desktop.alerts.at(0).informative, informative);
    }

    void theReasonsOfOneRunAreNotThoseOfTheNext()
    {
        Room room;
        room.runs.getData("a NOT FOUND\nError: unknown option: -x\n");
        room.desktop.answerAlert("errerAlert 1", 0);
        room.runs.errerAlert("1");
        QCOMPARE(room.desktop.alerts.at(0).informative,
                 QStringLiteral("reason_missing\nreason_option\n\nerrerInfo"));
        room.desktop.answerAlert("errerAlert 3", 0);
        QVERIFY(room.launch("exit3"));
        QCOMPARE(room.desktop.alerts.at(1).informative, QStringLiteral("errerInfo"));
    }

    void theLogIsSavedUnderATitle()
    {
        Room room;
        room.runs.appendOutput("text");
        room.desktop.answerSave("Log output", std::nullopt);
        room.log.saveButton->click();
        QCOMPARE(room.desktop.saveRequests.at(0).title, QStringLiteral("log_save"));
    }

    void quittingAsksByName()
    {
        Room room;
        const test::ArgumentTexts texts;
        room.controller.Launchusing("/r/pong.zip");
        room.desktop.answerAlert("launch_quitmessage", 1);
        QVERIFY(!room.controller.confirmQuit());
        const Alert& alert = room.desktop.alerts.at(0);
        QCOMPARE(alert.message, QStringLiteral("launch_quitmessage (pong, %2)"));
        QCOMPARE(alert.informative, QStringLiteral("launch_quitinfo (%1, %2)"));
        QCOMPARE(alert.buttons, QStringList({"launch_quitend (%1, %2)", "cancel (%1, %2)"}));
        QCOMPARE(alert.style, Alert::Style::Warning);
        room.controller.stopProcess();
    }

    void whatIsLeftOutIsNamedInTheLog()
    {
        const test::ArgumentTexts texts;
        CommandLine line{{"pong"}, {"-beam 1", "-log"}};
        QCOMPARE(line.leftOutLine(), QStringLiteral("launch_leftout (-beam 1, -log, %2)"));
        line.unwritable = "/usr/games";
        QCOMPARE(line.leftOutLine(),
                 QStringLiteral("launch_leftout (-beam 1, -log, %2) launch_nolog (/usr/games, %2)"));
        QCOMPARE(CommandLine().leftOutLine(), QString());
    }

    // The header stands in the colour of the view, what is printed in the list's.
    void theHeaderReplacesEverything()
    {
        Room room;
        room.runs.appendOutput("old");
        room.runs.beginLog("head\n");
        QCOMPARE(room.text(), QStringLiteral("head\n"));
        QTextCursor cursor(room.log.infomationTextView->document());
        cursor.setPosition(2);
        QCOMPARE(cursor.charFormat().foreground().color(),
                 room.log.infomationTextView->palette().color(QPalette::Text));
    }

    // It is made when the window is first shown, and has to be seen at once.
    void theCommandsStandAboveTheLog()
    {
        Room room;
        auto* bar = new QWidget;
        connect(&room.log, &LogWindow::aboutToShow, bar, [&] { room.log.setCommands(bar); });
        room.log.show();
        QVERIFY(bar->isVisible());
        QVERIFY(bar->y() <= room.log.infomationTextView->y());
        QCOMPARE(room.log.layout()->indexOf(bar), 0);
        QCOMPARE(room.log.layout()->indexOf(room.log.infomationTextView), 1);
        QVERIFY(QTest::qWaitForWindowActive(&room.log));
        QTest::keyClick(room.log.infomationTextView, Qt::Key_Escape);
        QVERIFY(!room.log.isVisible());
    }
};

TESSERA_TEST(RunControllerTest);
#include "runcontrollertest.moc"
