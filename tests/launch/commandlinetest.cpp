#include "launch/commandline.h"

#include "launch/usagetexts.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>
#include <QTemporaryDir>

using namespace tessera;

namespace {

const QStringList built{"-video", "opengl", "-nomultithreading", "-bios", "\"\"", "-rompath", "\"/roms\""};

std::optional<EmulatorProfile> profile()
{
    return EmulatorProfile::fromUsage(test::newUsage());
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAProfileEverythingGoesAsBuilt()
    {
        const CommandLine line = commandLine(std::nullopt, "/r/pong.zip", built, {"-x", ""});
        QCOMPARE(line.arguments, QStringList({"/r/pong.zip"}) + built + QStringList({"-x", ""}));
        QVERIFY(line.leftOutLine().isEmpty());
    }

    void withAProfileTheGameComesFirstAndOwnOptionsGoUntouched()
    {
        const CommandLine line
            = commandLine(profile(), "pong", built, {"-nomultithreading", "", "-effect", "\"x\""});
        QCOMPARE(line.arguments,
                 QStringList({"pong", "-video", "opengl", "-rompath", "/roms", "-nomultithreading", "",
                              "-effect", "\"x\""}));
        QCOMPARE(line.leftOut, QStringList({"-nomultithreading", "-bios \"\""}));
        QVERIFY(!line.leftOutLine().isEmpty());
        QVERIFY(!line.leftOutLine().contains(QLatin1Char('\n')));
    }

    void anArchiveGoesByNameWithItsFolderFirst()
    {
        QCOMPARE(commandLine(profile(), "/my archives/pong.zip", built, {}).arguments,
                 QStringList({"pong", "-video", "opengl", "-rompath", "/my archives;/roms"}));
        QCOMPARE(commandLine(profile(), "/my archives/pong.zip", built.mid(0, 2), {}).arguments,
                 QStringList({"pong", "-video", "opengl", "-rompath", "/my archives"}));
        QCOMPARE(commandLine(profile(), "/pong.zip", {}, {}).arguments,
                 QStringList({"pong", "-rompath", "/"}));
    }

    void theEmulatorsOwnRomFoldersStayBehindTheArchives()
    {
        const auto own
            = EmulatorProfile::fromUsage(test::newUsage().append("rompath  $HOME/roms;/usr/roms\n"));
        QCOMPARE(commandLine(own, "/my archives/pong.zip", built.mid(0, 2), {}).arguments,
                 QStringList({"pong", "-video", "opengl", "-rompath", "/my archives;$HOME/roms;/usr/roms"}));
        // The folder that we send takes their place in any launch.
        QCOMPARE(commandLine(own, "/my archives/pong.zip", built, {}).arguments.last(),
                 QStringLiteral("/my archives;/roms"));
        QCOMPARE(commandLine(own, "pong", {}, {}).arguments, QStringList({"pong"}));
    }

    void aFolderThatNoListCanHoldGoesWithTheArchive()
    {
        const QString archive = QStringLiteral("/a;b/pong.zip");
        QCOMPARE(commandLine(profile(), archive, built, {"-x"}).arguments,
                 QStringList({archive, "-video", "opengl", "-rompath", "/roms", "-x"}));
        QCOMPARE(commandLine(profile(), "/ab/po;ng.zip", {}, {}).arguments,
                 QStringList({"po;ng", "-rompath", "/ab"}));
    }

    void aRomPathThatIsAValueIsNotTakenForTheOption()
    {
        QCOMPARE(commandLine(profile(), "/r/pong.zip", {"-wavwrite", "-rompath"}, {}).arguments,
                 QStringList({"pong", "-wavwrite", "-rompath", "-rompath", "/r"}));
    }

    void aLogFileThatCannotBeWrittenIsLeftOut_data()
    {
        QTest::addColumn<QStringList>("sent");
        QTest::addColumn<QString>("where");
        QTest::addColumn<bool>("leftOut");
        const QStringList log{"-log", "-noverbose"};
        QTest::newRow("a folder of others") << log << "others" << true;
        QTest::newRow("a file of others") << log << "locked" << true;
        QTest::newRow("a folder of our own") << log << "own" << false;
        QTest::newRow("no such folder") << log << "missing" << true;
        QTest::newRow("nobody knows where") << log << "" << false;
        QTest::newRow("no log") << QStringList{"-nolog", "-noverbose"} << "others" << false;
        QTest::newRow("a value of that name") << QStringList{"-effect", "-log"} << "others" << false;
        QTest::newRow("as a favourite's own") << QStringList{} << "others" << false;
    }

    void aLogFileThatCannotBeWrittenIsLeftOut()
    {
        QFETCH(QStringList, sent);
        QFETCH(QString, where);
        QFETCH(bool, leftOut);
        QTemporaryDir folder;
        for (const char* name : {"others", "own", "locked"})
            QVERIFY(QDir(folder.path()).mkdir(QLatin1String(name)));
        QFile log(folder.filePath("locked/error.log"));
        QVERIFY(log.open(QIODevice::WriteOnly));
        // Whoever tries the tests, and in whatever group.
        constexpr QFileDevice::Permissions read(0x5555);
        constexpr QFileDevice::Permissions write(0x2222);
        QVERIFY(log.setPermissions(read));
        QVERIFY(QFile::setPermissions(folder.path(), read | QFileDevice::WriteOwner));
        QVERIFY(QFile::setPermissions(folder.filePath("others"), read));
        for (const char* name : {"own", "locked"})
            QVERIFY(QFile::setPermissions(folder.filePath(QLatin1String(name)), read | write));
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            const QStringList own{"-log", "-cheat"};
            const CommandLine line = commandLine(profile(), "pong", sent, own,
                                                 where.isEmpty() ? QString() : folder.filePath(where));
            QCOMPARE(line.arguments, QStringList("pong") + (leftOut ? sent.mid(1) : sent) + own);
            QCOMPARE(line.leftOut, leftOut ? QStringList("-log") : QStringList());
            QCOMPARE(line.leftOutLine().contains("launch_nolog"), leftOut);
        }
    }

    void aValueThatReadsLikeTheLogOptionDoesNotHideIt()
    {
        const CommandLine line
            = commandLine(profile(), "pong", {"-effect", "-log", "-log", "-noverbose"}, {}, "/missing");
        QCOMPARE(line.arguments, QStringList({"pong", "-effect", "-log", "-noverbose"}));
    }

    void ownOptionsArePartedAtEverySingleBlank()
    {
        QCOMPARE(ownOptions("-cheat  -autosave"), QStringList({"-cheat", "", "-autosave"}));
        QCOMPARE(ownOptions(""), QStringList());
        QCOMPARE(ownOptions(" "), QStringList({"", ""}));
    }

    void aShellReadsTheWordsAsTheyAre_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("line");
        QTest::newRow("plain") << QStringList{"/usr/games/mame", "-beam", "1.5", "a_b@c%d+e=f:g,h"}
                               << "/usr/games/mame -beam 1.5 a_b@c%d+e=f:g,h";
        QTest::newRow("empty") << QStringList{"a", "", "b"} << "a '' b";
        QTest::newRow("a blank") << QStringList{"two words"} << "'two words'";
        QTest::newRow("quotes") << QStringList{"it's \"x\""} << "'it'\\''s \"x\"'";
        QTest::newRow("a variable") << QStringList{"$HOME;x"} << "'$HOME;x'";
        QTest::newRow("no ASCII") << QStringList{QString::fromUtf8("日本")} << QString::fromUtf8("'日本'");
    }

    void aShellReadsTheWordsAsTheyAre()
    {
        QFETCH(QStringList, words);
        QTEST(shellWords(words), "line");
    }

    void theNameOfAGame()
    {
        QCOMPARE(gameName("pong"), QStringLiteral("pong"));
        QCOMPARE(gameName("odd.name"), QStringLiteral("odd.name"));
        QCOMPARE(gameName("/r/pong.zip"), QStringLiteral("pong"));
        QCOMPARE(gameName("/r.d/pong"), QStringLiteral("pong"));
    }
};

TESSERA_TEST(CommandLineTest);
#include "commandlinetest.moc"
