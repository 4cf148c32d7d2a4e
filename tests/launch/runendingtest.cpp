#include "launch/runending.h"

#include "launch/emulatortask.h"
#include "support/endings.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <csignal>

using namespace tessera;
using namespace std::chrono_literals;

namespace {

// A run that the stand-in plays, with all that it printed.
struct Run {
    test::ScriptedDesktop desktop;
    EmulatorTask task;
    QString text;
    bool isStopped = false;

    explicit Run(const Patience& patience)
        : task(desktop, patience)
    {
        QObject::connect(&task, &EmulatorTask::output, &task,
                         [this](const QString& piece) { text += piece; });
        QObject::connect(&task, &EmulatorTask::stopped, &task, [this] { isStopped = true; });
    }

    bool start(const QString& executable, const QString& game)
    {
        task.start(executable, QStringLiteral("/"), {game});
        return QTest::qWaitFor([this] { return text.contains(QStringLiteral("ready\n")); }, 20000);
    }
    bool stop()
    {
        task.stop();
        return QTest::qWaitFor([this] { return isStopped; }, 20000);
    }
};

} // namespace

class RunEndingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRunHasFiveSecondsToCloseAndTwoToHeedASignal()
    {
        QCOMPARE(Patience().closing, 5s);
        QCOMPARE(Patience().terminating, 2s);
    }

    // Each of the two is asked for in its place: the other would take longer than this test waits.
    void theWindowHasItsTimeAndTheSignalItsOwn_data()
    {
        QTest::addColumn<bool>("hasWindow");
        QTest::addColumn<QString>("game");
        QTest::addColumn<int>("closing");
        QTest::addColumn<int>("terminating");
        QTest::newRow("a window that does not close") << true << "frozen" << 200 << 300000;
        QTest::newRow("a signal that is not heeded") << false << "stubborn" << 300000 << 200;
    }

    void theWindowHasItsTimeAndTheSignalItsOwn()
    {
        QFETCH(bool, hasWindow);
        QFETCH(QString, game);
        QFETCH(int, closing);
        QFETCH(int, terminating);
        Run run(Patience{std::chrono::milliseconds(closing), std::chrono::milliseconds(terminating)});
        if (hasWindow)
            run.desktop.windows = test::clickCloseButton;
        QVERIFY(run.start(TESSERA_FAKEEMULATOR, game));
        QVERIFY(run.stop());
        QVERIFY(run.text.endsWith("told to end\n"));
    }

    // A script that ends with the window of its game: the game itself is still to be told.
    void whatItsLeaderLeavesBehindIsToldToEnd()
    {
        const QTemporaryDir folder;
        QFile script(folder.filePath("mame"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n"
                     "sh -c 'trap \"echo told > \\\"$0.said\\\"; exit\" TERM; echo game $$; echo ready\n"
                     "       exec >/dev/null 2>&1\n"
                     "       while :; do sleep 0.02; done' \"$0\" &\n"
                     "wait\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        Run run(Patience{300s, 300s});
        run.desktop.windows
            = [](qint64 process) { return ::kill(static_cast<pid_t>(process), SIGKILL) == 0; };
        QVERIFY(run.start(script.fileName(), "pong"));
        const pid_t game = run.text.section("game ", 1).section('\n', 0, 0).toInt();
        QVERIFY(game > 0 && test::isAlive(game));
        QVERIFY(run.stop());
        QVERIFY(!test::isAlive(game));
        QFile said(script.fileName() + ".said");
        QVERIFY(said.open(QIODevice::ReadOnly));
        QCOMPARE(said.readAll(), QByteArray("told\n"));
    }

    void nothingIsWaitedForWhereNothingRuns()
    {
        Run run(Patience{});
        QVERIFY(!run.task.waitForExit());
        QVERIFY(!run.task.isWaitedFor());
        run.task.stop();
        QVERIFY(!run.task.isEnding());
        // A place that is taken by what was never started is not running.
        run.task.occupy();
        QVERIFY(!run.task.isRunning());
        run.task.stop();
        QVERIFY(!run.isStopped);
    }

    void onlyOneWaitsForTheEnd()
    {
        Run run(Patience{200ms, 200ms});
        QVERIFY(run.start(TESSERA_FAKEEMULATOR, "wait"));
        bool hasEnded = true;
        bool isWaitedFor = false;
        QMetaObject::invokeMethod(
            &run.task,
            [&] {
                isWaitedFor = run.task.isWaitedFor();
                hasEnded = run.task.waitForExit();
                run.task.stop();
            },
            Qt::QueuedConnection);
        // Stopped is not ended.
        QVERIFY(!run.task.waitForExit());
        QVERIFY(isWaitedFor);
        QVERIFY(!hasEnded);
        QVERIFY(!run.task.isWaitedFor());
        run.task.start(TESSERA_FAKEEMULATOR, "/", {"exit3"});
        QVERIFY(run.task.waitForExit());
    }

    void waitingEndsWhereNothingCouldBeStarted()
    {
        Run run(Patience{});
        run.task.start("/missing/program", "/", {});
        QVERIFY(!run.task.waitForExit());
        QVERIFY(!run.task.isRunning());
    }

    void charactersAreHeardAsSoonAsTheyAreWhole_data()
    {
        QTest::addColumn<QByteArray>("printed");
        QTest::addColumn<QString>("heard");
        const QByteArray pause = "; sleep 0.05; ";
        QTest::newRow("two bytes") << QByteArray("printf 'a\\303\\251'") << QString::fromUtf8("aé");
        QTest::newRow("three bytes") << QByteArray("printf '\\343\\201\\202'") << QString::fromUtf8("あ");
        QTest::newRow("four bytes") << QByteArray("printf '\\360\\237\\230\\200'") << QString::fromUtf8("😀");
        QTest::newRow("two bytes in pieces")
            << QByteArray("printf 'a\\303'" + pause + "printf '\\251'") << QString::fromUtf8("aé");
        QTest::newRow("three bytes in pieces")
            << QByteArray("printf '\\343\\201'" + pause + "printf '\\202'") << QString::fromUtf8("あ");
        QTest::newRow("four bytes in pieces")
            << QByteArray("printf '\\360'" + pause + "printf '\\237\\230'" + pause + "printf '\\200'")
            << QString::fromUtf8("😀");
    }

    // Not only when more is printed, or nothing any more.
    void charactersAreHeardAsSoonAsTheyAreWhole()
    {
        QFETCH(QByteArray, printed);
        QFETCH(QString, heard);
        const QTemporaryDir folder;
        QFile script(folder.filePath("mame"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + printed + "\nexec sleep 120\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        Run run(Patience{200ms, 200ms});
        run.task.start(script.fileName(), "/", {});
        QTRY_COMPARE(run.text, heard);
        QVERIFY(run.task.isRunning());
        QVERIFY(run.stop());
        QCOMPARE(run.text, heard);
    }

    void whatARunPrintsGoesToItsFile()
    {
        const QTemporaryDir folder;
        Run run(Patience{});
        run.task.start(TESSERA_FAKEEMULATOR, "/", {"both"}, folder.filePath("out"));
        QVERIFY(run.task.waitForExit());
        QFile file(folder.filePath("out"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("out\nerr\n"));
        QCOMPARE(run.text, QString());
    }
};

TESSERA_TEST(RunEndingTest);
#include "runendingtest.moc"
