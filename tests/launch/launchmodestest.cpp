#include "launch/ui/launchcontroller.h"

#include "launch/launchroom.h"
#include "launch/ui/generalpage.h"
#include "support/endings.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QDir>
#include <QSignalSpy>

using namespace tessera;
using tessera::test::Room;

namespace {

/// A launch's room whose folder is the user's home.
struct Home : Room {
    QByteArray before = qgetenv("HOME");

    explicit Home(int mode)
    {
        qputenv("HOME", QFile::encodeName(folder.path()));
        defaults.setIndex(keys::Launchgamesusing, mode);
    }
    ~Home() { qputenv("HOME", before); }

    QString path(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const QByteArray& bytes = {}) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// MAME.app, whose executable is the stand-in.
    void installBundle()
    {
        write(QStringLiteral("MAME.app/Contents/Info.plist"),
              "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict><key>CFBundleExecutable</key>"
              "<string>Mame OS X</string></dict></plist>\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("MAME.app/Contents/MacOS"))));
        QVERIFY(QFile::link(QStringLiteral(TESSERA_FAKEEMULATOR),
                            path(QStringLiteral("MAME.app/Contents/MacOS/Mame OS X"))));
        defaults.setText(keys::MameosxPath, path(QStringLiteral("MAME.app")));
    }
    QStringList osx() const
    {
        return argumentsArray2(
            pages.options({QStringLiteral("sel"), QStringLiteral("Title"), QStringLiteral("題")}));
    }
};

const QString archives = QStringLiteral("Documents/MacMAME User Data/ROMs/");

} // namespace

class LaunchModesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("FAKE_COMMAND"); }

    void theBundlesExecutableIsStartedWithItsOwnOptions()
    {
        qputenv("FAKE_COMMAND", "print");
        Home home(1);
        home.installBundle();
        home.favourites.insert("pong", "-cheat");
        QVERIFY(home.launch("pong"));
        // Options of favourites take no part here.
        QCOMPARE(home.allPrinted(), QStringList({"-Game", "pong"}) + home.osx());
        QVERIFY(home.text().startsWith("MAME OS X :  pong  Launch...\n\n"));
        QVERIFY(home.desktop.transcript().isEmpty());
    }

    void itWorksBesideItsBundle()
    {
        qputenv("FAKE_COMMAND", "folder");
        Home home(1);
        home.installBundle();
        QVERIFY(home.launch("pong"));
        QVERIFY(home.text().endsWith("\n\n" + QFileInfo(home.folder.path()).canonicalFilePath() + "\n"));
    }

    void anArchiveBringsItsFolder()
    {
        qputenv("FAKE_COMMAND", "print");
        Home home(1);
        home.installBundle();
        home.defaults.setText(keys::RomsPath, home.folder.path());
        home.defaults.setFlag(keys::Outputserror, true);
        QVERIFY(home.launch("/r/roms/galaga.zip"));
        QCOMPARE(home.allPrinted(), QStringList({"-Game", "galaga", "-RomPath", "/r/roms"}) + home.osx());
        QCOMPARE(home.desktop.transcript(), QStringList({"recent /r/roms/galaga.zip"}));
    }

    void theRomFolderIsNamedWhereItIsUsed()
    {
        qputenv("FAKE_COMMAND", "print");
        Home home(1);
        home.installBundle();
        home.defaults.setText(keys::RomsPath, home.folder.path());
        home.defaults.setFlag(keys::Outputserror, true);
        QVERIFY(home.launch("pong"));
        QCOMPARE(home.allPrinted().mid(0, 4), QStringList({"-Game", "pong", "-RomPath", home.folder.path()}));
        QCOMPARE(home.desktop.transcript(), QStringList({"recent " + home.path("pong.zip")}));
    }

    void itsOwnSettingsSayWhereTheRecentArchiveLies()
    {
        qputenv("FAKE_COMMAND", "print");
        Home home(1);
        home.installBundle();
        home.write(
            "Library/Preferences/net.mame.mameosx.plist",
            "<plist version=\"1.0\"><dict><key>RomPath</key><string>/mac/roms</string></dict></plist>");
        QVERIFY(home.launch("pong"));
        QVERIFY(!home.allPrinted().contains("-RomPath"));
        QCOMPARE(home.desktop.transcript(), QStringList({"recent /mac/roms/pong.zip"}));
    }

    void aBadEndRaisesTheAlert()
    {
        qputenv("FAKE_COMMAND", "exit3");
        Home home(1);
        home.installBundle();
        home.desktop.answerAlert("errerAlert 3", 0);
        QVERIFY(home.launch("pong"));
        QVERIFY(home.text().endsWith("leaving\n"));
    }

    void theOtherApplicationGetsTheArchiveOfTheUserData()
    {
        Home home(2);
        home.write(archives + "pong.zip");
        home.write("other");
        home.defaults.setText(keys::ApplicationPath, home.path("other"));
        QSignalSpy handedOver(&home.controller, &LaunchController::handedOver);
        for (const char* game : {"pong", "/elsewhere/pong.zip"}) {
            home.controller.Launchusing(QLatin1String(game));
            // It counts as played.
            QCOMPARE(handedOver.takeLast().constFirst().toString(), QStringLiteral("pong"));
            QCOMPARE(home.desktop.takeTranscript(),
                     QStringList({"recent " + home.path(archives + "pong.zip"),
                                  "with " + home.path("other") + ' ' + home.path(archives + "pong.zip")}));
            QVERIFY(!home.controller.isRunning());
            QCOMPARE(home.text(), QStringLiteral("mode_application :  pong  Launch...\n\n"));
        }
    }

    void theOtherApplicationWaitsForTheEndOfTheGame()
    {
        Home home(0);
        home.write(archives + "pong.zip");
        home.write("other");
        home.defaults.setText(keys::ApplicationPath, home.path("other"));
        home.desktop.windows = test::clickCloseButton;
        home.controller.Launchusing("windowed");
        QVERIFY(home.waitForText("ready"));
        const pid_t game = home.process();
        home.defaults.setIndex(keys::Launchgamesusing, 2);
        home.desktop.takeTranscript();
        bool wasAlive = true;
        connect(&home.controller, &LaunchController::handedOver, this,
                [&] { wasAlive = test::isAlive(game); });
        home.controller.Launchusing("pong");
        QCOMPARE(home.desktop.transcript(), QStringList({"close"}));
        QVERIFY(QTest::qWaitFor([&] { return !wasAlive; }, 20000));
        QCOMPARE(home.desktop.transcript(),
                 QStringList({"close", "recent " + home.path(archives + "pong.zip"),
                              "with " + home.path("other") + ' ' + home.path(archives + "pong.zip")}));
        QVERIFY(!home.controller.isRunning());
        QCOMPARE(home.text(), QStringLiteral("mode_application :  pong  Launch...\n\n"));
    }

    void theUserDataMayBeLinks()
    {
        Home home(2);
        home.write("data/pong.zip");
        home.write("other");
        home.defaults.setText(keys::ApplicationPath, home.path("other"));
        QVERIFY(QDir().mkpath(home.path("Documents")));
        QVERIFY(QDir().mkpath(home.path("user data")));
        QVERIFY(QFile::link(home.path("user data"), home.path("Documents/MacMAME User Data")));
        QVERIFY(QFile::link(home.path("data"), home.path("user data/ROMs")));
        home.controller.Launchusing("pong");
        const QString archive = QFileInfo(home.path("data/pong.zip")).canonicalFilePath();
        QCOMPARE(home.desktop.transcript().first(), "recent " + archive);
    }

    void whatIsMissingForTheOtherApplicationIsOneAlert_data()
    {
        QTest::addColumn<QString>("there");
        QTest::newRow("user data") << "Documents/file";
        QTest::newRow("ROM folder") << "Documents/MacMAME User Data/file";
        QTest::newRow("archive") << archives + "qix.zip";
    }

    void whatIsMissingForTheOtherApplicationIsOneAlert()
    {
        QFETCH(QString, there);
        Home home(2);
        home.write("other");
        home.write(there);
        home.defaults.setText(keys::ApplicationPath, home.path("other"));
        home.desktop.answerAlert("alert_Message4", 0);
        home.controller.Launchusing("pong");
        QCOMPARE(home.desktop.transcript(), QStringList({"beep", "alert alert_Message4"}));
        QCOMPARE(home.text(), QStringLiteral("mode_application :  pong  Launch...\n\n"));
    }

    void aMissingEmulatorHasAnAlertForEachMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("message");
        QTest::newRow("SDL MAME") << 0 << "alert_Message1";
        QTest::newRow("MAME OS X") << 1 << "alert_Message2";
        QTest::newRow("other") << 2 << "alert_Message3";
    }

    void aMissingEmulatorHasAnAlertForEachMode()
    {
        QFETCH(int, mode);
        QFETCH(QString, message);
        Home home(mode);
        for (const auto& key : {keys::ExecutionPath, keys::MameosxPath, keys::ApplicationPath})
            home.defaults.setText(key, home.path("missing"));
        home.desktop.answerAlert(message, 1);
        home.controller.LaunchemuCheck();
        QCOMPARE(home.desktop.transcript(), QStringList({"beep", "alert " + message}));
        for (const auto& key : {keys::ExecutionPath, keys::MameosxPath, keys::ApplicationPath})
            home.defaults.setText(key, home.folder.path());
        home.controller.LaunchemuCheck();
        QCOMPARE(home.desktop.transcript().size(), 2);
    }

    void aMissingApplicationIsAlertedAndTriedAllTheSame()
    {
        Home home(2);
        home.write(archives + "pong.zip");
        home.defaults.setText(keys::ApplicationPath, home.path("missing"));
        QSignalSpy status(&home.controller, &LaunchController::statusMessage);
        home.desktop.answerAlert("alert_Message3", 1);
        home.controller.Launchusing("pong");
        QVERIFY(home.desktop.transcript().last().startsWith("with "));
        QVERIFY(status.last().first().toString().contains("launch_notopened"));
    }

    void theMenuStoresTheMode()
    {
        Room room;
        QSignalSpy changed(&room.controller, &LaunchController::launchModeChanged);
        room.controller.MenuLaunchusing("MAME OS X");
        QCOMPARE(room.pages.general().launchusingPop->currentIndex(), 1);
        QCOMPARE(room.defaults.index(keys::Launchgamesusing), 1);
        QCOMPARE(changed.size(), 1);
    }
};

TESSERA_TEST(LaunchModesTest);
#include "launchmodestest.moc"
