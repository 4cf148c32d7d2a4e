// The installed emulator, ended from here: it takes SIGTERM and goes on, and saves only when its window
// closes.

#include "launch/emulatorfinder.h"
#include "launch/launchroom.h"
#include "platform/qt/windowclosing.h"
#include "support/endings.h"
#include "support/needed.h"
#include "support/testmain.h"
#include "support/xserver.h"

#include <QDir>
#include <QElapsedTimer>

#include <chrono>
#include <memory>

using namespace tessera;
using namespace std::chrono_literals;

namespace {

constexpr int patience = 60000; // milliseconds, for a computer that has other things to do

// A launch's room with the emulator in a home of its own, before a desktop whose windows are real.
class MameRoom
{
public:
    MameRoom()
    {
        qputenv("HOME", QFile::encodeName(m_home.path()));
        QVERIFY(QDir(m_home.path()).mkdir(QStringLiteral(".mame")));
        QFile settings(m_home.filePath(QStringLiteral(".mame/mame.ini")));
        QVERIFY(settings.open(QIODevice::WriteOnly));
        for (const char* kind : {"cfg", "nvram", "input", "state", "snapshot", "diff", "comment"})
            settings.write(kind + QByteArray("_directory ") + QFile::encodeName(m_home.filePath(kind))
                           + '\n');
        // So that it is the window that ends it, however busy the computer is.
        room = std::make_unique<test::Room>(Patience{60s, 60s});
        room->defaults.setText(keys::ExecutionPath, findEmulator());
        room->defaults.setIndex(keys::Videodriver, 0);
        room->defaults.setIndex(keys::Soundoutput, 0);
        room->desktop.windows = [](qint64 process) { return askWindowsToClose(static_cast<pid_t>(process)); };
    }
    ~MameRoom()
    {
        room.reset();
        qputenv("HOME", m_before);
    }
    MameRoom(const MameRoom&) = delete;
    MameRoom& operator=(const MameRoom&) = delete;

    /// Starts it, and waits until it plays: with its window, and past the last file that it looks for before.
    bool play()
    {
        room->favourites.insert(QStringLiteral("pong"), QStringLiteral("-verbose"));
        room->controller.Launchusing(QStringLiteral("pong"));
        return waitUntilItPlays();
    }
    bool waitUntilItPlays()
    {
        return QTest::qWaitFor([this] { return room->text().contains(QStringLiteral("pong.cfg")); },
                               patience);
    }
    bool waitForTheEnd()
    {
        return QTest::qWaitFor([this] { return !room->controller.isRunning(); }, patience);
    }
    QString lastWords() const { return room->text().right(200); }
    /// True when it is there; then it is not any more.
    bool takeSaved() { return QFile::remove(m_home.filePath(QStringLiteral("cfg/pong.cfg"))); }

    std::unique_ptr<test::Room> room;

private:
    QByteArray m_before = qgetenv("HOME");
    QTemporaryDir m_home;
};

} // namespace

class EndingMameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TESSERA_NEEDS(!findEmulator().isEmpty(), "MAME");
        TESSERA_NEEDS(test::XServer::isInstalled(), "Xvfb");
        m_server = std::make_unique<test::XServer>();
        QVERIFY(m_server->isThere());
    }
    void cleanup() { m_server.reset(); }

    void stoppingLetsItSave()
    {
        MameRoom mame;
        QVERIFY(mame.play());
        const pid_t process = mame.room->process();
        QVERIFY(!mame.takeSaved());
        QElapsedTimer clock;
        clock.start();
        mame.room->controller.stopProcess();
        QVERIFY(mame.waitForTheEnd());
        qInfo("ended %lld ms after it was asked", static_cast<long long>(clock.elapsed()));
        QVERIFY(!test::isAlive(process));
        QVERIFY(mame.takeSaved());
        // Its last words are in the log, and its end was no surprise.
        QVERIFY2(mame.room->text().endsWith("Leave sdlwindow_exit\n"), qPrintable(mame.lastWords()));
        QVERIFY(mame.room->desktop.alerts.empty());
    }

    void thereAreNeverTwo()
    {
        MameRoom mame;
        QVERIFY(mame.play());
        const pid_t first = mame.room->process();
        bool isSaved = false;
        bool wereTwo = true;
        connect(&mame.room->runs, &RunController::started, this, [&] {
            wereTwo = test::isAlive(first);
            isSaved = mame.takeSaved();
        });
        QElapsedTimer clock;
        clock.start();
        mame.room->controller.Launchusing("pong");
        QVERIFY(QTest::qWaitFor([&] { return !wereTwo; }, patience));
        qInfo("the next one began %lld ms after it was wanted", static_cast<long long>(clock.elapsed()));
        QVERIFY(isSaved);
        QVERIFY(mame.waitUntilItPlays());
        QVERIFY(mame.room->process() != first);
        mame.room->controller.stopAndWait();
        QVERIFY(mame.takeSaved());
    }

    void oneThatAScriptStartedSavesToo()
    {
        MameRoom mame;
        const QTemporaryDir folder;
        QFile script(folder.filePath("mame"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + QFile::encodeName(findEmulator()) + " \"$@\"\necho \"status $?\"\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        mame.room->defaults.setText(keys::ExecutionPath, script.fileName());
        QVERIFY(mame.play());
        mame.room->controller.stopProcess();
        QVERIFY(mame.waitForTheEnd());
        QVERIFY(mame.takeSaved());
        QVERIFY2(mame.room->text().endsWith("status 0\n"), qPrintable(mame.lastWords()));
    }

private:
    std::unique_ptr<test::XServer> m_server;
};

TESSERA_TEST(EndingMameTest);
#include "endingmametest.moc"
