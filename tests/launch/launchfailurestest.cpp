#include "launch/launchroom.h"
#include "support/grandchild.h"
#include "support/endings.h"
#include "support/testmain.h"

#include <QTimer>

using namespace tessera;
using tessera::test::Room;

/// What an emulator can do wrong, in whole launches.
class LaunchFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEndIsTold_data()
    {
        QTest::addColumn<QString>("game");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("printed");
        const auto row = [](const char* name, const char* game, int status, const char* printed) {
            QTest::newRow(name) << QString::fromLatin1(game) << status << QString::fromUtf8(printed);
        };
        row("status 3", "exit3", 3, "leaving\n");
        row("a signal", "signal11", 11, "");
        row("no output", "silent0", 0, "");
        row("no output and a status", "silent2", 2, "");
        row("no line ends", "wide1", 0, nullptr);
        row("not UTF-8", "latin1", 0, "caf\uFFFD \uFFFD\n");
        row("cut off in a character", "cutoff", 0, "a\uFFFD");
        row("a grandchild that keeps the output open", "grandchild", 0, "gone\n");
        row("a grandchild without a word", "quietgrandchild", 0, "");
        row("no such game", "nothing", 5, "Unknown system \"nothing\"\n");
    }

    void everyEndIsTold()
    {
        QFETCH(QString, game);
        QFETCH(int, status);
        QFETCH(QString, printed);
        test::Grandchild grandchild;
        Room room;
        QStringList said;
        connect(&room.runs, &RunController::statusMessage, this, [&](const QString& text) { said << text; });
        if (status != 0)
            room.desktop.answerAlert(QStringLiteral("errerAlert %1").arg(status), 0);
        QVERIFY(room.launch(game));
        QTRY_COMPARE(room.desktop.alerts.size(), std::size_t(status != 0 ? 1 : 0));
        const QString header = QStringLiteral("SDL MAME :  %1  Launch...\n\n").arg(game);
        if (printed.isNull())
            QCOMPARE(room.text().size(), header.size() + 1'000'000);
        else
            QCOMPARE(room.text(), header + printed);
        QVERIFY(!room.controller.isRunning());
        QCOMPARE(said.last(), status != 0 ? QStringLiteral("launch_endedbadly") : "launch_ended");
    }

    void whatDoesNotEndIsStopped_data()
    {
        QTest::addColumn<QString>("game");
        QTest::newRow("endless output") << "endless";
        QTest::newRow("deaf to the request to end") << "stubborn";
    }

    // The windows never stand still for it.
    void whatDoesNotEndIsStopped()
    {
        QFETCH(QString, game);
        Room room;
        room.controller.Launchusing(game);
        const qsizetype header = room.text().size();
        QVERIFY(QTest::qWaitFor([&] { return room.text().size() > header; }, 20000));
        int turns = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++turns; });
        timer.start(0);
        QVERIFY(QTest::qWaitFor([&] { return turns > 20; }, 20000));
        QVERIFY(room.controller.isRunning());
        const pid_t process = room.process();
        turns = 0;
        QVERIFY(room.stop());
        QVERIFY(turns > 0);
        QVERIFY(!test::isAlive(process));
        QVERIFY(room.desktop.alerts.empty());
        room.running.clear();
        QVERIFY(room.launch("exit0"));
        QVERIFY(room.text().endsWith(QStringLiteral("leaving\n")));
        QVERIFY(room.desktop.alerts.empty());
    }
};

TESSERA_TEST(LaunchFailuresTest);
#include "launchfailurestest.moc"
