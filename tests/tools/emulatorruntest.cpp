#include "tools/emulatorrun.h"

#include "support/grandchild.h"
#include "support/testmain.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <thread>

using namespace tessera;

/// Real programs that play the emulator.
class EmulatorRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsPrintedComesWhole()
    {
        const auto printed = printedBy(script("echo one; echo two >&2; printf three"), {}, false);
        QVERIFY(printed);
        QCOMPARE(*printed, std::string("one\nthree"));
    }

    void muchIsPrintedWhole()
    {
        const auto printed = printedBy(script("head -c 5000000 /dev/zero"), {}, false);
        QVERIFY(printed);
        QCOMPARE(printed->size(), std::size_t(5'000'000));
    }

    void argumentsArrive()
    {
        const auto printed
            = printedBy(script("printf '%s|' \"$@\""), {"-verifyroms", "-rompath", "/a b"}, false);
        QCOMPARE(*printed, std::string("-verifyroms|-rompath|/a b|"));
    }

    void numbersAreWrittenWithPoints()
    {
        QCOMPARE(*printedBy(script("printf \"$LC_NUMERIC\""), {}, false), std::string("C"));
    }

    void anotherStatusIsAFailureWhereItMustNotBe()
    {
        const QString program = script("echo bad; exit 2");
        QCOMPARE(*printedBy(program, {}, true), std::string("bad\n"));
        const auto printed = printedBy(program, {"-listfull"}, false);
        QVERIFY(!printed);
        QCOMPARE(printed.error().key, "emulator_status");
        QCOMPARE(printed.error().arguments, QStringList({program, "-listfull", "2"}));
    }

    void failuresAreNamed_data()
    {
        QTest::addColumn<QString>("commands");
        QTest::addColumn<QString>("key");
        QTest::newRow("nothing printed") << "exit 0" << "emulator_silent";
        QTest::newRow("crashed") << "echo half; kill -SEGV $$" << "emulator_crashed";
    }

    void failuresAreNamed()
    {
        QFETCH(QString, commands);
        QFETCH(QString, key);
        const auto printed = printedBy(script(commands), {}, true);
        QVERIFY(!printed);
        QCOMPARE(QString(printed.error().key), key);
    }

    void whatIsNoProgramIsAFailure()
    {
        const auto printed = printedBy(m_folder.filePath("none"), {}, true);
        QVERIFY(!printed);
        QCOMPARE(printed.error().key, "build_not_started");
    }

    void stoppingKillsItAndWhatItHasStarted()
    {
        test::Grandchild grandchild;
        std::stop_source stop;
        QElapsedTimer timer;
        timer.start();
        // The child runs on in the background with the lock; the script waits for ever.
        const QString program
            = script(QStringLiteral("trap '' TERM; exec 9>\"$FAKE_GRANDCHILD\"; flock -x 9; "
                                    "sleep 100 & echo ready; wait"));
        const EmulatorRunWatch watch{stop.get_token(), [&](std::string_view) { stop.request_stop(); }};
        QVERIFY(runEmulator(program, {}, watch));
        QVERIFY(timer.elapsed() < 20'000);
        QTRY_VERIFY(!grandchild.isAlive());
    }

    void piecesComeWhileItRuns()
    {
        std::vector<std::string> pieces;
        const EmulatorRunWatch watch{{}, [&](std::string_view piece) { pieces.emplace_back(piece); }};
        QVERIFY(runEmulator(script("echo one; sleep 0.3; echo two"), {}, watch));
        QCOMPARE(pieces, (std::vector<std::string>{"one\n", "two\n"}));
    }

    void whatWasPrintedIsKept()
    {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder.filePath("cache")));
        const auto printed = keptPrintedBy(script("echo Name:"), {}, false, "listfull.txt");
        QCOMPARE(printed.value_or(""), std::string("Name:\n"));
        QCOMPARE(printedPath("listfull.txt"), m_folder.filePath("cache/Tessera/printed/listfull.txt"));
        QFile file(printedPath("listfull.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("Name:\n"));
        qunsetenv("XDG_CACHE_HOME");
    }

private:
    QString script(const QString& commands)
    {
        QFile file(m_folder.filePath("mame"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write("#!/bin/sh\n" + commands.toUtf8() + '\n') < 0)
            QTest::qFail("no script", __FILE__, __LINE__);
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TESSERA_TEST(EmulatorRunTest);
#include "emulatorruntest.moc"
