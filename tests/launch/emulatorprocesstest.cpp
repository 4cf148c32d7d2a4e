#include "launch/emulatorprocess.h"

#include "support/endings.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace tessera;

class EmulatorProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Numbers are written with a point, all the rest as the user has it.
    void itsEnvironmentIsOursButForNumbers_data()
    {
        QTest::addColumn<QByteArray>("everything");
        QTest::addColumn<QString>("language");
        QTest::newRow("one setting for everything") << QByteArray("de_DE.UTF-8") << "de_DE.UTF-8";
        QTest::newRow("an empty one") << QByteArray("") << "fr_FR.UTF-8";
        QTest::newRow("none") << QByteArray() << "fr_FR.UTF-8";
    }

    void itsEnvironmentIsOursButForNumbers()
    {
        QFETCH(QByteArray, everything);
        const QByteArray before = qgetenv("LC_ALL");
        if (everything.isNull())
            qunsetenv("LC_ALL");
        else
            qputenv("LC_ALL", everything);
        qputenv("LANG", "fr_FR.UTF-8");
        qputenv("LC_NUMERIC", "fr_FR.UTF-8");
        qputenv("TESSERA_A", "b");
        const QProcessEnvironment environment = emulatorEnvironment();
        for (const char* name : {"LANG", "LC_NUMERIC", "TESSERA_A"})
            qunsetenv(name);
        qputenv("LC_ALL", before);
        QVERIFY(!environment.contains("LC_ALL"));
        QTEST(environment.value("LANG"), "language");
        QCOMPARE(environment.value("LC_NUMERIC"), QStringLiteral("C"));
        QCOMPARE(environment.value("TESSERA_A"), QStringLiteral("b"));
    }

    void itRunsInItsOwnFolderOrInTheOneThatIsNamed_data()
    {
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("expected");
        QTest::newRow("its own") << QString() << "bin";
        QTest::newRow("another") << "data" << "data";
    }

    void itRunsInItsOwnFolderOrInTheOneThatIsNamed()
    {
        QFETCH(QString, named);
        QFETCH(QString, expected);
        const QTemporaryDir place;
        const QDir root(QDir(place.path()).canonicalPath());
        QVERIFY(root.mkpath("bin") && root.mkpath("data"));
        const QString program = root.filePath("bin/mame");
        writeScript(program, "#!/bin/sh\npwd\n");
        EmulatorProcess process;
        process.run(program, {}, named.isEmpty() ? QString() : root.filePath(named));
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromLocal8Bit(process.readAll()).trimmed(), root.filePath(expected));
    }

    void thereIsNothingToRead()
    {
        EmulatorProcess process;
        process.run("/bin/sh", {"-c", "cat; echo end"});
        QVERIFY(process.waitForFinished(5000));
        QCOMPARE(process.readAll(), QByteArray("end\n"));
    }

    void theWordsAreHandedOverAsTheyStand()
    {
        EmulatorProcess process;
        process.run("/bin/sh", {"-c", "printf '[%s]' \"$@\"", "sh", "a b", "", "\"c\""});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAll(), QByteArray("[a b][][\"c\"]"));
    }

    // A start script may have started the emulator.
    void whatItHasStartedEndsWithTheObject()
    {
        qint64 grandchild = 0;
        {
            EmulatorProcess process;
            process.run("/bin/sh", {"-c", "sleep 60 & echo $!; wait"});
            QVERIFY(process.waitForReadyRead());
            grandchild = process.readLine().trimmed().toLongLong();
            QVERIFY(test::isAlive(grandchild));
        }
        QTRY_VERIFY(!test::isAlive(grandchild));
    }

    void aSignalReachesAllOfIt()
    {
        EmulatorProcess process;
        process.run("/bin/sh", {"-c", "sleep 60 & echo $!; wait"});
        QVERIFY(process.waitForReadyRead());
        const qint64 grandchild = process.readLine().trimmed().toLongLong();
        process.signalAll(SIGTERM);
        QVERIFY(process.waitForFinished());
        QTRY_VERIFY(!test::isAlive(grandchild));
    }

    void aQuestionIsKilledWithUsAndAGameGoesOn_data()
    {
        QTest::addColumn<EmulatorProcess::End>("end");
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("a question") << EmulatorProcess::End::WithUs << false;
        QTest::newRow("a game") << EmulatorProcess::End::ByItself << true;
    }

    void aQuestionIsKilledWithUsAndAGameGoesOn()
    {
        QFETCH(EmulatorProcess::End, end);
        QFETCH(bool, goesOn);
        int ends[2];
        QCOMPARE(pipe(ends), 0);
        // A program of its own that starts an emulator and is killed.
        const pid_t us = fork();
        if (us == 0) {
            auto* process = new EmulatorProcess(end);
            process->run("/bin/sleep", {"60"});
            if (process->waitForStarted()) {
                const qint64 started = process->processId();
                (void)!write(ends[1], &started, sizeof started);
            }
            ::raise(SIGKILL);
        }
        close(ends[1]);
        qint64 started = 0;
        QCOMPARE(read(ends[0], &started, sizeof started), static_cast<ssize_t>(sizeof started));
        close(ends[0]);
        waitpid(us, nullptr, 0);
        if (goesOn) {
            QVERIFY(test::isAlive(started));
            signalGroup(started, SIGKILL);
        }
        QTRY_VERIFY(!test::isAlive(started));
    }

    // 0 would be our own group, 1 and what is below it everybody.
    void whatLeadsNoGroupIsSentNothing()
    {
        for (const qint64 leader : {0, 1, -1})
            signalGroup(leader, SIGKILL);
    }

private:
    static void writeScript(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TESSERA_TEST(EmulatorProcessTest);
#include "emulatorprocesstest.moc"
