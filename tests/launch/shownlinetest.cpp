#include "launch/launchroom.h"
#include "launch/ui/generalpage.h"
#include "launch/usagetexts.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>

using namespace tessera;

namespace {

/// A launch's room whose folder is the user's home.
struct Home : test::Room {
    QByteArray before = qgetenv("HOME");

    explicit Home(int mode)
    {
        qputenv("HOME", QFile::encodeName(folder.path()));
        defaults.setIndex(keys::Launchgamesusing, mode);
    }
    ~Home() { qputenv("HOME", before); }

    QString write(const QString& name, const QByteArray& bytes = {}) const
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
                && file.write(bytes) == bytes.size()
            ? path
            : QString();
    }
    /// The emulator is asked for its options.
    bool learn(const QByteArray& usage)
    {
        qputenv("FAKE_USAGE", QFile::encodeName(write(QStringLiteral("usage"), usage)));
        QSignalSpy answered(&profiles, &ProfileCache::answered);
        controller.prepareProfile();
        const bool isAnswered = answered.wait(20000);
        qunsetenv("FAKE_USAGE");
        return isAnswered;
    }
};

} // namespace

/// What would be started, as it is shown.
class ShownLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isFittedOnceTheEmulatorHasAnswered()
    {
        Home home(0);
        home.favourites.insert("pong", "-cheat");
        QCOMPARE(home.controller.shownLine("pong").line.arguments,
                 QStringList("pong") + home.built() + QStringList("-cheat"));
        QCOMPARE(home.controller.shownLine("pong").executable, home.emulator());
        QCOMPARE(home.controller.shellOptions(), home.built());
        QVERIFY(home.learn(test::newUsage()));
        const ShownLine shown = home.controller.shownLine("pong");
        QVERIFY(!shown.line.arguments.contains("-nomultithreading"));
        QCOMPARE(shown.line.arguments.last(), QStringLiteral("-cheat"));
        QVERIFY(shown.line.leftOut.contains("-nomultithreading"));
        QVERIFY(
            home.controller.shownCommandLine("pong").startsWith(home.emulator() + " pong -video opengl "));
        // A shell takes the quotes off itself.
        home.defaults.setFlag(keys::Effect, true);
        home.defaults.setText(keys::Effectname, "scan lines");
        const QStringList options = home.controller.shellOptions();
        QCOMPARE(options.value(options.indexOf("-effect") + 1), QStringLiteral("\"scan lines\""));
        QVERIFY(!options.contains("-nomultithreading"));
        const QStringList sent = home.controller.shownLine("pong").line.arguments;
        QCOMPARE(sent.value(sent.indexOf("-effect") + 1), QStringLiteral("scan lines"));
    }

    void anUnusableAnswerFitsNothing()
    {
        Home home(0);
        QVERIFY(home.learn("no emulator\n"));
        QCOMPARE(home.controller.shownLine("pong").line.arguments, QStringList("pong") + home.built());
        QCOMPARE(home.controller.shellOptions(), home.built());
    }

    void theBundlesExecutableTakesItsOwnOptions()
    {
        Home home(1);
        QVERIFY(QDir().mkpath(home.folder.filePath("MAME.app")));
        home.defaults.setText(keys::MameosxPath, home.folder.filePath("MAME.app"));
        const ShownLine shown = home.controller.shownLine("pong");
        QCOMPARE(shown.executable, home.folder.filePath("MAME.app/Contents/MacOS/MAME"));
        QCOMPARE(shown.line.arguments, QStringList({"-Game", "pong"}) + home.controller.osxOptions());
        QCOMPARE(home.controller.osxOptions().first(), QStringLiteral("-Cheat"));
        // Where no game is selected there is none to name.
        QCOMPARE(home.controller.shownLine("").line.arguments.mid(0, 2), QStringList({"-Game", "-Cheat"}));
        home.defaults.setText(keys::RomsPath, home.folder.path());
        QVERIFY(!home.controller.shownLine("pong").line.arguments.contains("-RomPath"));
        home.defaults.setFlag(keys::Outputserror, true);
        QCOMPARE(home.controller.shownLine("pong").line.arguments.mid(0, 4),
                 QStringList({"-Game", "pong", "-RomPath", home.folder.path()}));
        home.defaults.setText(keys::RomsPath, "/no such folder");
        QVERIFY(!home.controller.shownLine("pong").line.arguments.contains("-RomPath"));
    }

    void theOtherApplicationTakesTheArchive()
    {
        Home home(2);
        home.defaults.setText(keys::ApplicationPath, "/usr/bin/other");
        QCOMPARE(home.controller.shownCommandLine("pong"), QStringLiteral("/usr/bin/other pong"));
        const QString archive = home.write("Documents/MacMAME User Data/ROMs/pong.zip");
        QCOMPARE(home.controller.shownCommandLine("pong"), "/usr/bin/other '" + archive + '\'');
        QCOMPARE(home.controller.shownCommandLine(""), QStringLiteral("/usr/bin/other"));
    }

    // With a separator at its end, as a panel may give it.
    void aBundleWorksBesideItsFolder()
    {
        qputenv("FAKE_COMMAND", "folder");
        Home home(1);
        QVERIFY(QDir().mkpath(home.folder.filePath("apps/MAME.app/Contents/MacOS")));
        QVERIFY(QFile::link(QStringLiteral(TESSERA_FAKEEMULATOR),
                            home.folder.filePath("apps/MAME.app/Contents/MacOS/MAME")));
        home.defaults.setText(keys::MameosxPath, home.folder.filePath("apps/MAME.app/"));
        QVERIFY(home.launch("pong"));
        qunsetenv("FAKE_COMMAND");
        QVERIFY(home.text().endsWith("\n\n" + QFileInfo(home.folder.filePath("apps")).canonicalFilePath()
                                     + '\n'));
        // Nobody knows where its archives are.
        QVERIFY(home.desktop.transcript().isEmpty());
    }

    void whatIsTypedIsStarted()
    {
        Home home(0);
        home.installed = "/found/mame";
        QCOMPARE(home.choice.emulator(), home.emulator());
        QVERIFY(home.choice.findsEmulator());
        QLineEdit* field = home.pages.general().exeTextField;
        field->selectAll();
        QTest::keyClicks(field, "/typed/mame");
        QCOMPARE(home.choice.emulator(), QStringLiteral("/typed/mame"));
        QVERIFY(!home.choice.findsEmulator());
        QCOMPARE(home.controller.archiveFolders().executable, QStringLiteral("/typed/mame"));
    }

    // The answer for another program than the one that waits for its own.
    void aLaunchWaitsForItsOwnAnswer()
    {
        Home home(0);
        home.controller.Launchusing("exit0");
        QVERIFY(home.controller.isRunning());
        Q_EMIT home.profiles.answered("/other/mame", {});
        QVERIFY(!home.task.isRunning());
        Q_EMIT home.profiles.answered(home.emulator(), {});
        QVERIFY(home.task.isRunning());
        QVERIFY(home.waitForEnd());
    }

    void theMenuChoosesTheModeByItsTitle()
    {
        Home home(0);
        home.controller.MenuLaunchusing("mode_application");
        QCOMPARE(home.pages.general().launchusingPop->currentIndex(), 2);
        QCOMPARE(home.defaults.index(keys::Launchgamesusing), 2);
    }
};

TESSERA_TEST(ShownLineTest);
#include "shownlinetest.moc"
