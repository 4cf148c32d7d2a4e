#include "launch/emulatortask.h"

#include "support/endings.h"
#include "support/grandchild.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <csignal>

#include <sys/wait.h>

using namespace tessera;
using test::clickCloseButton;
using test::isAlive;
using namespace std::chrono_literals;

namespace {

// A task with what was heard of it.
struct Heard {
    test::ScriptedDesktop desktop;
    EmulatorTask task{desktop, Patience{200ms, 200ms}};
    QString text;
    QList<int> statuses;
    QStringList failures;
    int pieces = 0;
    bool isStopped = false;

    Heard()
    {
        QObject::connect(&task, &EmulatorTask::output, &task, [this](const QString& piece) {
            text += piece;
            ++pieces;
        });
        QObject::connect(&task, &EmulatorTask::stopped, &task, [this] { isStopped = true; });
        QObject::connect(&task, &EmulatorTask::ended, &task, [this](int status) { statuses << status; });
        QObject::connect(&task, &EmulatorTask::failedToStart, &task,
                         [this](const QString& reason) { failures << reason; });
    }

    void start(const QString& game, const QStringList& more = {}, const QString& folder = QStringLiteral("/"))
    {
        task.start(QStringLiteral(TESSERA_FAKEEMULATOR), folder, QStringList{game} + more);
    }

    bool waitForEnd()
    {
        QEventLoop loop;
        QObject::connect(&task, &EmulatorTask::ended, &loop, &QEventLoop::quit);
        QObject::connect(&task, &EmulatorTask::failedToStart, &loop, &QEventLoop::quit);
        QTimer::singleShot(20000, &loop, &QEventLoop::quit);
        loop.exec();
        return !statuses.isEmpty() || !failures.isEmpty();
    }
    bool waitForText(const QString& wanted)
    {
        return QTest::qWaitFor([&] { return text.contains(wanted); }, 20000);
    }
    bool stop()
    {
        task.stop();
        return QTest::qWaitFor([&] { return isStopped; }, 20000);
    }
    pid_t process() const { return static_cast<pid_t>(task.findChild<QProcess*>()->processId()); }
};

} // namespace

class EmulatorTaskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesArgumentsAsTheyStand()
    {
        Heard heard;
        heard.start("print", {"", "two words", "\"quoted\"", "$HOME", QString::fromUtf8("日本")});
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.text, QString::fromUtf8("[print]\n[]\n[two words]\n[\"quoted\"]\n[$HOME]\n[日本]\n"));
        QCOMPARE(heard.statuses, {0});
    }

    void tellsTheStatusAfterTheOutput()
    {
        Heard heard;
        QString atEnd;
        connect(&heard.task, &EmulatorTask::ended, this, [&] { atEnd = heard.text; });
        heard.start("exit3");
        QVERIFY(heard.task.isRunning());
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.statuses, {3});
        QCOMPARE(atEnd, QStringLiteral("leaving\n"));
        QVERIFY(!heard.task.isRunning());
    }

    void aSignalShowsItsNumber_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("segmentation fault") << SIGSEGV;
        QTest::newRow("abort") << SIGABRT;
        QTest::newRow("kill") << SIGKILL;
    }

    void aSignalShowsItsNumber()
    {
        QFETCH(int, number);
        Heard heard;
        heard.start(QStringLiteral("signal%1").arg(number));
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.statuses, {number});
    }

    void decodesWhatItHears_data()
    {
        QTest::addColumn<QString>("game");
        QTest::addColumn<QString>("text");
        QTest::newRow("two bytes in two pieces") << "split0" << QString::fromUtf8("é\n");
        QTest::newRow("three bytes in two pieces") << "split1" << QString::fromUtf8("あ\n");
        QTest::newRow("the first lead of three bytes") << "split2" << QString::fromUtf8("ก\n");
        QTest::newRow("the first lead of four bytes") << "split3" << QString::fromUtf8("😀\n");
        QTest::newRow("bytes that are not UTF-8") << "latin1" << QString::fromUtf8("caf\uFFFD \uFFFD\n");
        QTest::newRow("a character broken off by the next piece")
            << "brokenoff" << QString::fromUtf8("\uFFFDxyz\n");
        QTest::newRow("a character cut off by the end") << "cutoff" << QString::fromUtf8("a\uFFFD");
        QTest::newRow("both channels") << "both" << "out\nerr\n";
        QTest::newRow("no input") << "stdin" << "nothing\n";
        QTest::newRow("numbers with a point") << "numeric" << "C unset\n";
    }

    void decodesWhatItHears()
    {
        QFETCH(QString, game);
        QFETCH(QString, text);
        Heard heard;
        heard.start(game);
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.text, text);
    }

    void worksInTheGivenFolder()
    {
        const QTemporaryDir folder;
        Heard heard;
        heard.start("folder", {}, folder.path());
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.text.trimmed(), QFileInfo(folder.path()).canonicalFilePath());
    }

    void saysWhyAProgramCannotBeStarted_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::addColumn<QString>("folder");
        QTest::newRow("missing") << "missing" << ".";
        QTest::newRow("a folder") << "folder" << ".";
        QTest::newRow("not executable") << "file" << ".";
        QTest::newRow("no program") << "" << ".";
        QTest::newRow("missing folder") << "program" << "missing";
    }

    void saysWhyAProgramCannotBeStarted()
    {
        QFETCH(QString, executable);
        QFETCH(QString, folder);
        QTemporaryDir place;
        QVERIFY(QDir(place.path()).mkdir("folder"));
        QFile file(place.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(TESSERA_FAKEEMULATOR, place.filePath("program")));
        Heard heard;
        heard.task.start(executable.isEmpty() ? QString() : place.filePath(executable),
                         place.filePath(folder), {"print"});
        QVERIFY(heard.failures.isEmpty());
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.failures.size(), 1);
        QVERIFY(!heard.failures.first().isEmpty());
        QVERIFY(heard.statuses.isEmpty());
        QVERIFY(!heard.task.isRunning());
    }

    void startsAgainAfterAFailure()
    {
        Heard heard;
        heard.task.start("/missing/program", "/", {});
        QVERIFY(heard.waitForEnd());
        heard.failures.clear();
        heard.start("exit0");
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.statuses, {0});
    }

    void ourOwnStopIsSilent()
    {
        Heard heard;
        heard.start("wait");
        QVERIFY(heard.waitForText("ready\n"));
        const pid_t process = heard.process();
        QVERIFY(heard.stop());
        QVERIFY(!isAlive(process));
        QVERIFY(!heard.task.isRunning());
        heard.start("exit0");
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.text, QStringLiteral("ready\nleaving\n"));
        QCOMPARE(heard.statuses, {0});
    }

    // Its window first, the signals only as far as they are needed; and everything that it prints is heard.
    void isToldToEndMoreAndMoreFirmly_data()
    {
        QTest::addColumn<QString>("game");
        QTest::addColumn<bool>("hasWindow");
        QTest::addColumn<QString>("heard");
        QTest::newRow("closes with its window") << "windowed" << true << "ready\nasked to close\n";
        QTest::newRow("its window does not close")
            << "frozen" << true << "ready\nasked to close\ntold to end\n";
        QTest::newRow("ignores everything") << "stubborn" << true << "ready\nasked to close\ntold to end\n";
        QTest::newRow("without a window") << "frozen" << false << "ready\ntold to end\n";
        QTest::newRow("without a window, ignores everything")
            << "stubborn" << false << "ready\ntold to end\n";
    }

    void isToldToEndMoreAndMoreFirmly()
    {
        QFETCH(QString, game);
        QFETCH(bool, hasWindow);
        QFETCH(QString, heard);
        Heard run;
        if (hasWindow)
            run.desktop.windows = clickCloseButton;
        run.start(game);
        QVERIFY(run.waitForText("ready\n"));
        const pid_t process = run.process();
        run.task.stop();
        QVERIFY(run.task.isEnding());
        QVERIFY(run.task.isRunning());
        QVERIFY(QTest::qWaitFor([&] { return run.isStopped; }, 20000));
        QVERIFY(!isAlive(process));
        QVERIFY(!run.task.isRunning());
        QVERIFY(!run.task.isEnding());
        QCOMPARE(run.text, heard);
        QCOMPARE(run.desktop.transcript(), QStringList({"close"}));
        QVERIFY(run.statuses.isEmpty());
    }

    void aRunMayEndWhileItIsAsked()
    {
        Heard heard;
        heard.desktop.windows = [](qint64 process) {
            ::kill(static_cast<pid_t>(process), SIGKILL);
            siginfo_t how{};
            return ::waitid(P_PID, static_cast<id_t>(process), &how, WEXITED | WNOWAIT) == 0;
        };
        heard.start("windowed");
        QVERIFY(heard.waitForText("ready\n"));
        QVERIFY(heard.stop());
        QVERIFY(heard.statuses.isEmpty());
        heard.start("exit2");
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.statuses, {2});
    }

    void askingTwiceIsAskingOnce()
    {
        Heard heard;
        heard.desktop.windows = clickCloseButton;
        heard.start("frozen");
        QVERIFY(heard.waitForText("ready\n"));
        heard.task.stop();
        heard.task.stop();
        QVERIFY(heard.stop());
        QCOMPARE(heard.desktop.transcript(), QStringList({"close"}));
    }

    // A signal would still be taken by our own handler in the process that is to become the program.
    void aRunThatIsAboutToBeginIsAskedOnceItHasBegun()
    {
        Heard heard;
        QSignalSpy started(&heard.task, &EmulatorTask::started);
        heard.start("frozen");
        heard.task.stop();
        QVERIFY(heard.desktop.transcript().isEmpty());
        QVERIFY(QTest::qWaitFor([&] { return heard.isStopped; }, 20000));
        QCOMPARE(heard.desktop.transcript(), QStringList({"close"}));
        QVERIFY(started.isEmpty());
    }

    void whatCannotBeStartedCanBeStopped_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::newRow("found out later") << "/missing/program";
        QTest::newRow("found out at once") << "";
    }

    void whatCannotBeStartedCanBeStopped()
    {
        QFETCH(QString, executable);
        Heard heard;
        heard.task.start(executable, "/", {});
        QVERIFY(heard.task.isRunning());
        QVERIFY(heard.stop());
        QVERIFY(!heard.task.isRunning());
        heard.start("exit0");
        QVERIFY(heard.waitForEnd());
        QVERIFY(heard.failures.isEmpty());
    }

    void aRunGoesOnUntilItsLastOutputWasHeard()
    {
        Heard heard;
        bool wasRunning = false;
        connect(&heard.task, &EmulatorTask::output, this, [&](const QString& piece) {
            // What this is of can only be known after the end of the program.
            if (!piece.contains(QChar::ReplacementCharacter))
                return;
            QCOMPARE(heard.task.findChild<QProcess*>()->state(), QProcess::NotRunning);
            wasRunning = heard.task.isRunning();
            heard.task.stop();
        });
        heard.start("cutoff");
        QVERIFY(QTest::qWaitFor([&] { return heard.isStopped; }, 20000));
        QVERIFY(wasRunning);
        QCOMPARE(heard.text, QStringLiteral("a\uFFFD"));
        QVERIFY(heard.statuses.isEmpty());
    }

    // A script that starts the emulator, and stays in between.
    void whatAScriptStartedEndsWithIt_data()
    {
        QTest::addColumn<QString>("game");
        QTest::newRow("heeds the signal") << "frozen";
        QTest::newRow("ignores it") << "stubborn";
    }

    void whatAScriptStartedEndsWithIt()
    {
        QFETCH(QString, game);
        const QTemporaryDir folder;
        QFile script(folder.filePath("mame"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n\"" TESSERA_FAKEEMULATOR "\" \"$@\" &\necho \"game $!\"\nwait\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        Heard heard;
        heard.task.start(script.fileName(), "/", {game});
        QVERIFY(heard.waitForText("ready\n") && heard.waitForText("game "));
        const pid_t child = heard.text.section("game ", 1).section('\n', 0, 0).toInt();
        QVERIFY(child > 0 && isAlive(child));
        QVERIFY(heard.stop());
        QVERIFY(!isAlive(child));
    }

    void aRunThatWillNotEndIsEndedWithTheTask()
    {
        pid_t process = 0;
        {
            Heard heard;
            heard.start("stubborn");
            QVERIFY(heard.waitForText("ready\n"));
            process = heard.process();
            QVERIFY(isAlive(process));
        }
        QVERIFY(!isAlive(process));
    }

    void aRunThatNobodyStoppedIsKilledByTheNext()
    {
        Heard heard;
        heard.start("stubborn");
        QVERIFY(heard.waitForText("ready\n"));
        const pid_t process = heard.process();
        heard.start("exit4");
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.statuses, {4});
        QVERIFY(QTest::qWaitFor([&] { return !isAlive(process); }, 20000));
    }

    void aGrandchildThatKeepsTheOutputOpenIsNotWaitedFor()
    {
        test::Grandchild grandchild;
        Heard heard;
        heard.start("grandchild");
        QVERIFY(heard.waitForEnd());
        QVERIFY(grandchild.isAlive());
        QCOMPARE(heard.text, QStringLiteral("gone\n"));
        QCOMPARE(heard.statuses, {0});
    }

    void aFloodComesWholeInBoundedPieces()
    {
        Heard heard;
        qsizetype longest = 0;
        connect(&heard.task, &EmulatorTask::output, this,
                [&](const QString& piece) { longest = std::max(longest, piece.size()); });
        heard.start("flood20");
        QVERIFY(heard.waitForEnd());
        QCOMPARE(heard.text.size(), 20'000'000);
        QVERIFY(longest <= qsizetype{64} * 1024);
    }

    void timersRunDuringAFlood()
    {
        Heard heard;
        int turns = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++turns; });
        heard.start("endless");
        QVERIFY(QTest::qWaitFor([&] { return heard.pieces > 0; }));
        timer.start(0);
        QVERIFY(QTest::qWaitFor([&] { return turns > 20 && heard.pieces > 50; }, 20000));
        heard.task.stop();
    }

    void aListenerMayStartAnotherRun()
    {
        Heard heard;
        bool again = false;
        connect(&heard.task, &EmulatorTask::ended, this, [&] {
            if (!std::exchange(again, true))
                heard.start("exit2");
        });
        heard.start("exit1");
        QVERIFY(QTest::qWaitFor([&] { return heard.statuses.size() == 2; }));
        QCOMPARE(heard.statuses, QList<int>({1, 2}));
    }

    void aListenerMayStopTheRunWhoseOutputItHears()
    {
        Heard heard;
        connect(&heard.task, &EmulatorTask::output, this, [&] { heard.task.stop(); });
        heard.start("endless");
        QVERIFY(QTest::qWaitFor([&] { return heard.isStopped; }, 20000));
        QVERIFY(!heard.task.isRunning());
        heard.start("exit0");
        QVERIFY(QTest::qWaitFor([&] { return heard.text.contains("leaving"); }));
    }
};

TESSERA_TEST(EmulatorTaskTest);
#include "emulatortasktest.moc"
