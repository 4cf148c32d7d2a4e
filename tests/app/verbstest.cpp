#include "app/verbs/names.h"
#include "catalogue/storewriter.h"
#include "platform/recentdocuments.h"
#include "platform/userdefaults.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

using namespace tessera;

namespace {

struct Outcome {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

constexpr char oneGame[] = "<game name=\"pong\" sourcefile=\"pong.c\">\n<description>Pong</description>\n"
                           "<year>1972</year>\n<manufacturer>Atari</manufacturer>\n"
                           "<driver status=\"good\" emulation=\"good\"/>\n</game>\n";

constexpr char oneMachine[]
    = "<mame>\n<machine name=\"pong\" sourcefile=\"pong.cpp\">\n<description>Pong</description>\n"
      "</machine>\n</mame>\n";

} // namespace

/// The program itself, run as from a shell, with a home of its own.
class VerbsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            m_environment.insert(QLatin1String(variable), path(QLatin1String(variable)));
        // No verb needs a display.
        m_environment.remove(QStringLiteral("DISPLAY"));
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none at all"));
    }

    void helpNamesEveryVerb()
    {
        const Outcome help = tessera({QStringLiteral("--help")});
        QCOMPARE(help.status, 0);
        for (const std::string_view verb : verbNames)
            QVERIFY2(help.out.contains(
                         QByteArray("\n  ").append(verb.data(), static_cast<qsizetype>(verb.size()))),
                     help.out);
        QCOMPARE(tessera({QStringLiteral("-h")}).out, help.out);
        QCOMPARE(tessera({QStringLiteral("--version")}).out, QByteArray("Tessera " TESSERA_VERSION "\n"));
    }

    void badWordsForTheWindowsEndWithTwo()
    {
        // Also where no window could open.
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            m_environment.remove(QString::fromLatin1(name));
        for (const QStringList& words :
             {QStringList{QStringLiteral("--nonsense")},
              {QStringLiteral("a.zip"), QStringLiteral("b.zip")},
              {QStringLiteral("lsit"), QStringLiteral("pong")},
              {QStringLiteral("-style"), QStringLiteral("fusion"), QStringLiteral("--nonsense")}}) {
            const Outcome bad = tessera(words);
            QCOMPARE(bad.status, 2);
            QVERIFY2(bad.err.contains("tessera --help"), bad.err);
        }
    }

    void badCommandLinesEndWithTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const auto row = [](const char* name, const QString& line) {
            QTest::newRow(name) << line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        };
        row("convert without files", QStringLiteral("convert"));
        row("convert without -o", QStringLiteral("convert a b"));
        row("an unknown option", QStringLiteral("list --nonsense"));
        row("an unknown term", QStringLiteral("list pong foo:bar"));
        row("an unknown value", QStringLiteral("list status:bad"));
        row("a term without a value", QStringLiteral("list maker:"));
        row("a minus before the dashes", QStringLiteral("list -bootleg"));
        row("an unknown format", QStringLiteral("list --format xml"));
        row("an unknown dialect", QStringLiteral("arguments --dialect dos"));
        row("--set without a value", QStringLiteral("arguments --set Maximize"));
        row("an unknown setting", QStringLiteral("arguments --set Nonsense=1"));
        row("a flag that is none", QStringLiteral("arguments --set Maximize=perhaps"));
        row("a number that is none", QStringLiteral("arguments --set Videodriver=abc"));
        row("convert-favourites without a file", QStringLiteral("convert-favourites"));
        row("convert-favourites with two files", QStringLiteral("convert-favourites a b"));
        row("diff with one file", QStringLiteral("diff a"));
        row("history without a name", QStringLiteral("history"));
        row("history of two names", QStringLiteral("history a b"));
        row("launch without a game", QStringLiteral("launch"));
        row("command without a position", QStringLiteral("command"));
        row("command with a word for a position", QStringLiteral("command help"));
        row("command without its game", QStringLiteral("command 7"));
        row("export without -o", QStringLiteral("export 1"));
        row("export with a negative position", QStringLiteral("export -o file -- -1"));
        row("picture without a name", QStringLiteral("picture --folder a"));
        row("picture without a folder", QStringLiteral("picture pong"));
        row("picture of two names", QStringLiteral("picture pong qix --folder a"));
        row("script without a format", QStringLiteral("script pong -o file"));
        row("script in an unknown format", QStringLiteral("script pong --format bat -o file"));
        row("script for an unknown emulator", QStringLiteral("script pong --format sh --emulator 3 -o file"));
        row("script without -o", QStringLiteral("script pong --format sh"));
        row("existence without -o", QStringLiteral("existence a b"));
        row("existence without a folder", QStringLiteral("existence a -o c"));
        row("separate without a destination", QStringLiteral("separate a b"));
        row("separate with one too many", QStringLiteral("separate a b c d"));
        row("verify without -o", QStringLiteral("verify a"));
        row("verify with an unknown key", QStringLiteral("verify a -o b --only isbad --only isBad"));
        row("verify with a whole key", QStringLiteral("verify a -o b --only verifyromsButton_isbad"));
        row("an unknown option for the windows", QStringLiteral("--nonsense"));
    }

    void badCommandLinesEndWithTwo()
    {
        QFETCH(QStringList, arguments);
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 2);
        QVERIFY(outcome.out.isEmpty());
        QVERIFY(outcome.err.contains("Usage:"));
    }

    void aFullOutputIsAFailure()
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        process.start(QStringLiteral(TESSERA_PROGRAM), {QStringLiteral("arguments")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAllStandardError().contains("stdout"));
    }

    void everyVerbHasHelp_data()
    {
        QTest::addColumn<QString>("verb");
        for (const std::string_view name : verbNames) {
            const QByteArray verb(name.data(), static_cast<qsizetype>(name.size()));
            QTest::newRow(verb.constData()) << QString::fromLatin1(verb);
        }
    }

    void everyVerbHasHelp()
    {
        QFETCH(QString, verb);
        const Outcome outcome = tessera({verb, QStringLiteral("--help")});
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.startsWith(QByteArray("Usage: tessera " + verb.toUtf8())));
        QVERIFY(tessera({QStringLiteral("--help")}).out.contains(QByteArray("  " + verb.toUtf8())));
    }

    void failuresEndWithOneAndASentence_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("sentence");
        QTest::newRow("no catalogue") << QStringList{QStringLiteral("list")} << QByteArray("does not exist");
        QTest::newRow("no list to convert")
            << QStringList{QStringLiteral("convert"), QStringLiteral("/nowhere/a"),
                           QStringLiteral("/nowhere/b"), QStringLiteral("-o"), QStringLiteral("/nowhere/c")}
            << QByteArray("/nowhere/a");
        QTest::newRow("an emulator that is none")
            << QStringList{QStringLiteral("build"), QStringLiteral("--emulator"),
                           QStringLiteral("/nowhere/mame")}
            << QByteArray("/nowhere/mame");
        QTest::newRow("a folder as emulator")
            << QStringList{QStringLiteral("build"), QStringLiteral("--emulator"), QStringLiteral("/usr")}
            << QByteArray("/usr");
    }

    void failuresEndWithOneAndASentence()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, sentence);
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(sentence),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }

    void convertWritesAStoreAndSaysTheReport()
    {
        write(QStringLiteral("list.xml"), oneGame);
        write(QStringLiteral("titles.lst"), "pong\tポン\n");
        const Outcome outcome = tessera({QStringLiteral("convert"), path(QStringLiteral("list.xml")),
                                         path(QStringLiteral("titles.lst")), QStringLiteral("-o"),
                                         path(QStringLiteral("store.xml"))});
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("The conversion work is finished.  ( 1 games )\n"));
        QCOMPARE(listed(), QByteArray("game\tpong\tpong\tPong\tポン\t1972\tAtari\tgood\t\n"));
    }

    void existenceWritesTheReportAndSaysTheCounts()
    {
        write(QStringLiteral("listfull.txt"), "Name: Description:\npong \"Pong\"\ngone \"Gone\"\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms/pong"))));
        const QStringList arguments{QStringLiteral("existence"), path(QStringLiteral("listfull.txt")),
                                    path(QStringLiteral("roms")), QStringLiteral("-o"),
                                    path(QStringLiteral("report.txt"))};
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Found: 1 / Not found: 2 )\n"));
        QCOMPARE(read(QStringLiteral("report.txt")),
                 QByteArray("MAME ROM Existence Report\nAll: 3 ROMs ( Found: 1 / Not found: 2 )\n\n"
                            "pong\t\tFound\nName:\t\tNot found\ngone\t\tNot found\n"));

        write(QStringLiteral("listfull.txt"), "pong \"Pong\"\n");
        expectRefusal(arguments, "header");
        QVERIFY(read(QStringLiteral("report.txt")).contains("gone"));
    }

    void existenceTestsTheListBeforeTheFolder()
    {
        const QString report = path(QStringLiteral("report.txt"));
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("none")),
                       path(QStringLiteral("none")), QStringLiteral("-o"), report},
                      "listfull.txt file is not found.");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("listfull.txt")),
                       path(QStringLiteral("none")), QStringLiteral("-o"), report},
                      "ROMs folder is not found.");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("listfull.txt")), m_folder->path(),
                       QStringLiteral("-o"), path(QStringLiteral("none/report.txt"))},
                      "none/report.txt");
        QVERIFY(!QFile::exists(report));
    }

    void separateCopiesAndSaysTheCounts()
    {
        write(QStringLiteral("listfull.txt"), "Name: Description:\npong \"Pong\"\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms/old")))
                && QDir().mkpath(path(QStringLiteral("aside"))));
        write(QStringLiteral("roms/PONG.ZIP"), "pong");
        write(QStringLiteral("roms/gone.zip"), "gone");
        write(QStringLiteral("roms/.hidden"), "hidden");
        const QStringList arguments{QStringLiteral("separate"), path(QStringLiteral("roms")),
                                    path(QStringLiteral("listfull.txt")), path(QStringLiteral("aside"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Support: 1 / Moved: 2 )\n"));
        QCOMPARE(QDir(path(QStringLiteral("aside")))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({QStringLiteral("gone.zip"), QStringLiteral("old")}));
        QCOMPARE(read(QStringLiteral("roms/gone.zip")), QByteArray("gone"));

        // A second time nothing is replaced, and that is said.
        write(QStringLiteral("roms/gone.zip"), "newer");
        outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Support: 1 / Moved: 2 )\n"));
        QVERIFY2(outcome.err.contains("2") && outcome.err.count('\n') == 1, outcome.err.constData());
        QCOMPARE(read(QStringLiteral("aside/gone.zip")), QByteArray("gone"));
    }

    void separateTestsTheRomFolderFirst()
    {
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms"))));
        const QString none = path(QStringLiteral("none"));
        const QString roms = path(QStringLiteral("roms"));
        const QString list = path(QStringLiteral("listfull.txt"));
        expectRefusal({QStringLiteral("separate"), none, none, none}, "ROMs folder is not found.");
        expectRefusal({QStringLiteral("separate"), roms, none, none}, "listfull.txt file is not found.");
        expectRefusal({QStringLiteral("separate"), roms, list, none}, "Move folder is not found.");
        expectRefusal({QStringLiteral("separate"), roms, list, roms}, "No Separating file.");
    }

    void anInterruptedSeparationLeavesNoHalves()
    {
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms"))) && QDir().mkpath(path(QStringLiteral("aside"))));
        for (int i = 0; i < 400; ++i)
            write(QStringLiteral("roms/%1.zip").arg(i), QByteArray(1 << 20, 'x'));
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(TESSERA_PROGRAM),
                      {QStringLiteral("separate"), path(QStringLiteral("roms")),
                       path(QStringLiteral("listfull.txt")), path(QStringLiteral("aside"))});
        const QDir aside(path(QStringLiteral("aside")));
        QTRY_VERIFY(!aside.isEmpty());
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
        const QFileInfoList copies
            = aside.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        QVERIFY(!copies.isEmpty() && copies.size() < 400);
        for (const QFileInfo& copy : copies)
            QVERIFY2(copy.size() == 1 << 20, qPrintable(copy.fileName()));
    }

    void verifyWritesTheReport_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QByteArray>("report");
        QTest::newRow("bad sets by default")
            << QStringList() << QByteArray("romset a is bad\n\n(is bad: 1)\n\n");
        QTest::newRow("another key alone")
            << QStringList{QStringLiteral("notfound")} << QByteArray("\n(NOT FOUND: 0)\n\n");
        QTest::newRow("several, in the report's order")
            << QStringList{QStringLiteral("isbad"), QStringLiteral("isgood")}
            << QByteArray("romset b is good\n\n(is good: 1)\n\nromset a is bad\n\n(is bad: 1)\n\n");
    }

    void verifyWritesTheReport()
    {
        QFETCH(QStringList, keys);
        QFETCH(QByteArray, report);
        write(QStringLiteral("verifyroms.txt"), "romset a is bad\nromset b is good\n");
        QStringList arguments{QStringLiteral("verify"), path(QStringLiteral("verifyroms.txt")),
                              QStringLiteral("-o"), path(QStringLiteral("report.txt"))};
        for (const QString& key : keys)
            arguments << QStringLiteral("--only") << key;
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("Saved a Verifyroms text.\n"));
        QCOMPARE(read(QStringLiteral("report.txt")), report);
    }

    void verifySaysWhatIsMissing()
    {
        write(QStringLiteral("verifyroms.txt"), "romset a is bad\n");
        expectRefusal({QStringLiteral("verify"), path(QStringLiteral("none")), QStringLiteral("-o"),
                       path(QStringLiteral("report.txt"))},
                      "verifyroms.txt file is not found.");
        expectRefusal({QStringLiteral("verify"), path(QStringLiteral("verifyroms.txt")), QStringLiteral("-o"),
                       path(QStringLiteral("none/report.txt"))},
                      "Error writing file at ");
    }

    void convertFavouritesDoesWhatTheWindowDoes()
    {
        writeCatalogue();
        // The Trash is a home's own only where there is a home.
        QVERIFY(QDir().mkpath(path(QStringLiteral("HOME"))));
        writeOldFavourites({"pong", "gone"});
        const QStringList arguments{QStringLiteral("convert-favourites"), path(QStringLiteral("old.xml"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.out, QByteArray("File conversion is now complete.\n"));
        QCOMPARE(outcome.err, QByteArray("gone は見つかりませんでした\n"));
        QCOMPARE(outcome.status, 0);
        const QString favourites
            = QStringLiteral("XDG_DATA_HOME/Plover.Tessera/jp.Plover.Tessera_Favorites.xml");
        const QByteArray first = read(favourites);
        QVERIFY(first.contains("<string>pong</string>") && !first.contains("gone"));
        QVERIFY(QFile::exists(path(QStringLiteral("XDG_DATA_HOME/Trash/files/old.xml"))));
        QVERIFY(!QFile::exists(path(QStringLiteral("old.xml"))));

        writeOldFavourites({"qix"});
        outcome = tessera(arguments + QStringList{QStringLiteral("--keep-old")});
        QCOMPARE(outcome.err, QByteArray("Backup files are copied successfully\n"));
        QVERIFY(read(favourites).contains("<string>qix</string>"));
        QVERIFY(QFile::exists(path(QStringLiteral("old.xml"))));
        const QDir folder(path(QStringLiteral("XDG_DATA_HOME/Plover.Tessera")));
        const QStringList kept = folder.entryList({QStringLiteral("jp.Plover.Tessera_Favorites_*.xml")});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(read(QStringLiteral("XDG_DATA_HOME/Plover.Tessera/") + kept.constFirst()), first);
    }

    void convertFavouritesSaysWhatIsMissing()
    {
        const QStringList arguments{QStringLiteral("convert-favourites"), path(QStringLiteral("old.xml"))};
        expectRefusal(arguments, "Old Favorites.xml file is not found.");
        writeOldFavourites({"unknown"});
        expectRefusal(arguments, "Tessera.xml");
        writeCatalogue();
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.endsWith("tessera: Conversion data not found.\n"));
        QVERIFY(QFile::exists(path(QStringLiteral("old.xml"))));
        write(QStringLiteral("old.xml"), "no list");
        QCOMPARE(tessera(arguments).status, 1);
    }

    void diffSaysWhatIsAnother()
    {
        writeStoreOf(QStringLiteral("old.store"), {"pong", "qix"});
        writeStoreOf(QStringLiteral("new.store"), {"galaga", "pong"});
        QStringList arguments{QStringLiteral("diff"), path(QStringLiteral("old.store")),
                              path(QStringLiteral("new.store"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out,
                 QByteArray("Added: 1, gone: 1, renamed: 0, another status: 0.\n\n"
                            "Added: 1\n  galaga  Title of galaga\n\nGone: 1\n  qix  Title of qix\n"));
        write(
            QStringLiteral("favourites.xml"),
            "<plist version=\"1.0\"><array><dict><key>name</key><string>qix</string></dict></array></plist>");
        arguments << QStringLiteral("--favourites") << path(QStringLiteral("favourites.xml"));
        outcome = tessera(arguments);
        QVERIFY2(outcome.out.contains("Favourites among them: 1.\n\nFavourites among them: 1\n  qix"),
                 outcome.out);
        arguments[2] = arguments[1];
        QCOMPARE(tessera(arguments).out, QByteArray("Every machine is as it was.\n"));
        arguments[1] = path(QStringLiteral("none"));
        expectRefusal(arguments, "does not exist");
    }

    void historyPrintsWhatTheWindowShows()
    {
        write("history.dat", "$info=pacman,puckman,\r\n$bio\r\n\r\nA maze.\r\n$end\r\n");
        write("mameinfo.dat", "$info=puckman\r\n$mame\r\n\x83\x70\r\n$end\r\n");
        const QStringList files{"--history", path("history.dat"), "--mameinfo", path("mameinfo.dat")};
        const Outcome first = tessera(QStringList{"history", "pacman"} + files);
        QCOMPARE(first.status, 0);
        QCOMPARE(first.out, QByteArray("MAME History\r\n\r\nA maze.\r\nNo MAME Info\r\n"));
        QCOMPARE(first.err, QByteArray());
        const Outcome second = tessera(QStringList{"history", "puckman"} + files);
        QCOMPARE(second.status, 0);
        QCOMPARE(second.out, QByteArray("No MAME history.\r\n\r\nMAME Info\r\n\r\n\xE3\x83\x91\r\n"));
        QVERIFY2(second.err.contains("pacman") && second.err.count('\n') == 1, second.err);
        QCOMPARE(tessera({"history", ""}).out, QByteArray("No result.\n"));
    }

    void historyTakesTheFilesOfTheSettings()
    {
        const QByteArray nothing("MAME History\r\n\r\n\r\nMAME Info\r\n\r\n\r\n");
        QCOMPARE(tessera({"history", "pong"}).out, nothing);
        write("history.xml",
              "<history><entry><systems><system name=\"pong\"/></systems>"
              "<text>Two bats.</text></entry></history>");
        UserDefaults settings(settingsPath());
        settings.setValue(keys::HistoryPath.name, path("history.xml"));
        QVERIFY(settings.synchronize());
        QCOMPARE(tessera({"history", "pong"}).out,
                 QByteArray("MAME History\r\n\r\nTwo bats.\n\r\nMAME Info\r\n\r\n\r\n"));
    }

    void historySaysWhichFileIsMissing()
    {
        expectRefusal({"history", "pong", "--history", path("none")}, "history.dat  is not found. (");
        expectRefusal({"history", "pong", "--mameinfo", path("none")}, "mameinfo.dat  is not found. (");
        expectRefusal({"history", "pong", "--history", m_folder->path()}, m_folder->path().toUtf8());
    }

    void pictureSaysWhereItLies()
    {
        write("puckman.png", "");
        const QStringList asked{"picture", "pacman", "--folder", m_folder->path()};
        expectRefusal(asked, "There is no picture of \u201cpacman\u201d in ");
        Outcome outcome = tessera(asked + QStringList{"--parent", "puckman"});
        QCOMPARE(outcome.out, path("puckman.png").toUtf8() + '\n');
        QCOMPARE(outcome.status, 0);
        expectRefusal(asked + QStringList{"--parent", "puckman", "--no-parent"}, "no picture");
        write("pacman.png", "");
        outcome = tessera(asked + QStringList{"--parent", "puckman"});
        QCOMPARE(outcome.out, path("pacman.png").toUtf8() + '\n');
    }

    void pictureStaysInItsFolder()
    {
        write("secret.png", "");
        QVERIFY(QDir().mkpath(path("art")));
        expectRefusal({"picture", "../secret", "--folder", path("art")}, "no picture");
        expectRefusal({"picture", "pong", "--folder", path("art"), "--parent", "../secret"}, "no picture");
    }

    void listPrintsNineFieldsInOrder()
    {
        GameRecord record{
            {"game", "a", "b", "tab\there", "line\nhere", "back\\slash", "\"quoted\"", "good", ""}};
        record[Field::Device] = std::string_view();
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), std::array{record}));
        QCOMPARE(listed(),
                 QByteArray("game\ta\tb\ttab\\there\tline\\nhere\tback\\\\slash\t\"quoted\"\tgood\t\n"));

        const QJsonArray json = QJsonDocument::fromJson(listed(QStringLiteral("json"))).array();
        QCOMPARE(json.size(), 1);
        QCOMPARE(json[0].toObject().size(), 9);
        QCOMPARE(json[0][QStringLiteral("title")].toString(), QStringLiteral("tab\there"));
        QCOMPARE(json[0][QStringLiteral("maker")].toString(), QStringLiteral("\"quoted\""));
        QVERIFY(json[0][QStringLiteral("device")].isNull());
    }

    void listPrintsWhatAQueryFinds_data()
    {
        QTest::addColumn<QStringList>("query");
        QTest::addColumn<QByteArray>("names");
        const auto row = [](const char* query, const char* names) {
            QTest::newRow(query) << QString::fromUtf8(query).split(u'|') << QByteArray(names);
        };
        row("", "alien begins clone pong whole");
        row("pong", "pong whole clone begins");
        row("pong|-clone:yes", "");
        row("pong|--|-clone:yes", "pong whole begins");
        row("--|-pong", "alien");
        row("atari year:1972", "begins pong whole");
        row("atari|year:1972", "begins pong whole");
        row("ポン", "whole");
        row("eirian", "alien");
        row("have:yes", "clone pong");
        row("have:own", "pong");
        row("nothing", "");
    }

    void listPrintsWhatAQueryFinds()
    {
        QFETCH(QStringList, query);
        const GameRecord records[]{
            {{"game", "whole", "whole", "PONG", "ポン", "1972", "Atari", "good", ""}},
            {{"game", "pong", "pong", "Arcade", "Arcade", "1972", "Atari", "good", ""}},
            {{"game", "begins", "begins", "Super Pong", "Super Pong", "1972", "Atari", "good", ""}},
            {{"game", "clone", "pong", "Pong Doubles", "Pong Doubles", "1973", "Atari", "good", ""}},
            {{"game", "alien", "alien", "Alien", "エイリアン", "1980", "Sega", "good", ""}},
        };
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), records));
        write(QStringLiteral("pong.zip"), "x");
        UserDefaults settings(settingsPath());
        settings.setValue(keys::RomsPath.name, m_folder->path());
        QVERIFY(settings.synchronize());
        const Outcome outcome = tessera(QStringList{QStringLiteral("list"), QStringLiteral("--catalogue"),
                                                    path(QStringLiteral("store.xml"))}
                                        + query);
        QByteArrayList names;
        for (const QByteArray& line : outcome.out.split('\n')) {
            if (!line.isEmpty())
                names << line.split('\t')[1];
        }
        QTEST(names.join(' '), "names");
    }

    void wrongTermsAreNamedOneByOne()
    {
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), {}));
        const Outcome outcome
            = tessera({QStringLiteral("list"), QStringLiteral("status:bad"), QStringLiteral("foo:bar")});
        QCOMPARE(outcome.status, 2);
        QVERIFY(outcome.err.contains("bad") && outcome.err.contains("foo"));
        QVERIFY(outcome.err.contains("good, imperfect, preliminary"));
    }

    void anEmptyCatalogueIsAnEmptyList()
    {
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), {}));
        QCOMPARE(listed(), QByteArray());
        QVERIFY(QJsonDocument::fromJson(listed(QStringLiteral("json"))).isArray());
    }

    void argumentsAreTheBuildersElements()
    {
        const QList<QByteArray> lines = tessera({QStringLiteral("arguments")}).out.split('\n');
        QCOMPARE(lines.mid(0, 6),
                 (QList<QByteArray>{"-video", "opengl", "-window", "-prescale", "1", "-nomaximize"}));
        const auto bios = lines.indexOf("-bios");
        QVERIFY(bios > 0);
        QCOMPARE(lines[bios + 1], QByteArray("\"\""));
    }

    void settingsAreTriedWithoutChangingThem()
    {
        const QByteArray out
            = tessera({QStringLiteral("arguments"), QStringLiteral("--set"), QStringLiteral("Maximize=true"),
                       QStringLiteral("--set"), QStringLiteral("Videodriver=0")})
                  .out;
        QVERIFY(out.startsWith("-video\nsoft\n"));
        QVERIFY(out.contains("\n-maximize\n"));
        QVERIFY(tessera({QStringLiteral("arguments")}).out.contains("\n-nomaximize\n"));
    }

    void theRecordFileIsNamedAfterTheGame()
    {
        const GameRecord record{{"game", "pong", "pong", "Pong", "ポン", "1972", "Atari", "good", ""}};
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), std::array{record}));
        const QByteArray out = tessera({QStringLiteral("arguments"), QStringLiteral("--catalogue"),
                                        path(QStringLiteral("store.xml")), QStringLiteral("--set"),
                                        QStringLiteral("Replaymove=true"), QStringLiteral("--set"),
                                        QStringLiteral("Recordfilepop=2"), QStringLiteral("pong")})
                                   .out;
        QVERIFY2(out.contains("-record\n\"ポン.inp\"\n"), out.constData());
    }

    void theOtherDialectHasItsOwnOptions()
    {
        const QByteArray out
            = tessera({QStringLiteral("arguments"), QStringLiteral("--dialect"), QStringLiteral("osx")}).out;
        QVERIFY(out.startsWith("-Cheat\n0\n-AutoSave\n0\n-SoundEnabled\n1\n"));
    }

    void anEmulatorTakesWhatItUnderstands()
    {
        write(QStringLiteral("usage.txt"),
              "Usage:  mame [machine] [media] [software] [options]\n\nOptions:\n\n"
              "-video               video output method\n-window              enable window mode\n"
              "-rompath             path to ROM sets\n");
        m_environment.insert(QStringLiteral("FAKE_USAGE"), path(QStringLiteral("usage.txt")));
        const Outcome outcome = tessera({QStringLiteral("arguments"), QStringLiteral("--for"),
                                         QStringLiteral(TESSERA_FAKEEMULATOR), QStringLiteral("pong")});
        QCOMPARE(outcome.out, QByteArray("pong\n-video\nopengl\n-window\n"));
        QVERIFY(outcome.err.contains("-multithreading") || outcome.err.contains("-nomultithreading"));
    }

    void launchGivesTheEmulatorsOutputAndStatus()
    {
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("launch"), QStringLiteral("exit3")});
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.out, QByteArray("leaving\n"));
        outcome = tessera({QStringLiteral("launch"), QStringLiteral("both")});
        QCOMPARE(outcome.out, QByteArray("out\nerr\n"));
        outcome = tessera({QStringLiteral("launch"), QStringLiteral("print")});
        QVERIFY(outcome.out.startsWith("[print]\n[-video]\n[opengl]\n"));
    }

    void commandGivesTheEmulatorsOutputAndStatus()
    {
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("command"), QStringLiteral("7"), QStringLiteral("exit3")});
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.out, QByteArray("leaving\n"));
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        const auto printed = [&](const QString& line) { return tessera(line.split(QLatin1Char(' '))).out; };
        const QByteArray emulator = TESSERA_FAKEEMULATOR;
        QCOMPARE(printed(QStringLiteral("command 0")), QByteArray("[-help]\n"));
        QCOMPARE(printed(QStringLiteral("command 17 galaga")), QByteArray("[galaga]\n[-verifyroms]\n"));
        QCOMPARE(printed(QStringLiteral("command 20 galaga")),
                 '[' + QFileInfo(QString::fromLatin1(emulator)).path().toUtf8()
                     + "/roms/galaga.zip]\n[-romident]\n");
        QCOMPARE(printed(QStringLiteral("command 21 galaga")), '[' + emulator + "]\n[-listdevices]\n");
        QCOMPARE(printed(QStringLiteral("command 24 galaga")), QByteArray());
    }

    void exportWritesWhatTheEmulatorPrints()
    {
        useStandIn();
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        const QStringList line{QStringLiteral("export"), QStringLiteral("15"), QStringLiteral("-o"),
                               path(QStringLiteral("out"))};
        Outcome outcome = tessera(line);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("File save was completed.\n"));
        QCOMPARE(read(QStringLiteral("out")), QByteArray("[-verifyroms]\n"));

        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("both"));
        QCOMPARE(tessera(line).status, 0);
        QCOMPARE(read(QStringLiteral("out")), QByteArray("out\nerr\n"));

        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("exit3"));
        outcome = tessera(line);
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.contains('3') && outcome.err.count('\n') == 1);
        QCOMPARE(read(QStringLiteral("out")), QByteArray("leaving\n"));

        outcome = tessera({QStringLiteral("export"), QStringLiteral("0"), QStringLiteral("-o"),
                           path(QStringLiteral("no such folder/out"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.out.isEmpty() && outcome.err.contains("no such folder"));
    }

    void scriptsLeaveOutWhatTheEmulatorDoesNotKnowAndKeepTheQuotes()
    {
        write(QStringLiteral("usage.txt"),
              "-video               video output method\n-effect              name of the effect\n"
              "-rompath             path to ROM sets\n");
        m_environment.insert(QStringLiteral("FAKE_USAGE"), path(QStringLiteral("usage.txt")));
        useStandIn();
        UserDefaults settings(settingsPath());
        settings.setValue(keys::Effect.name, true);
        QVERIFY(settings.synchronize());
        const QString folder = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).path();
        const QString name = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).fileName();
        const auto made = [&](const QString& more) {
            const QString line = QStringLiteral("script pong -o %1 ").arg(path(QStringLiteral("out"))) + more;
            const Outcome outcome = tessera(line.split(QLatin1Char(' ')));
            return outcome.status == 0 && outcome.out == "Saved a Script file.\n"
                ? QString::fromUtf8(read(QStringLiteral("out")))
                : QString::fromUtf8(outcome.err);
        };
        const QString start = QStringLiteral("cd %1\n./%2 pong").arg(folder, name);
        QCOMPARE(made(QStringLiteral("--format tool")),
                 start + QStringLiteral(" -video opengl -effect \"none\""));
        QVERIFY(QFileInfo(path(QStringLiteral("out"))).isExecutable());
        QCOMPARE(made(QStringLiteral("--format tool --no-options")), start);
        QVERIFY(made(QStringLiteral("--format scpt"))
                    .endsWith(QStringLiteral(" -video opengl -effect \\\"none\\\"\"")));
        QVERIFY(made(QStringLiteral("--format sh --emulator 1")).contains(QStringLiteral("No emulator")));
    }

    void launchNotesAnArchiveAmongTheRecentFiles()
    {
        useStandIn();
        write(QStringLiteral("print.zip"), "");
        tessera({QStringLiteral("launch"), path(QStringLiteral("print.zip"))});
        tessera({QStringLiteral("launch"), QStringLiteral("print")});
        UserDefaults settings(settingsPath());
        QCOMPARE(RecentDocuments(settings).paths(), QStringList{path(QStringLiteral("print.zip"))});
    }

    void buildSaysWhatItIsBuiltWithout()
    {
        write(QStringLiteral("list.xml"), oneMachine);
        m_environment.insert(QStringLiteral("FAKE_LISTXML"), path(QStringLiteral("list.xml")));
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("build")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err, QByteArray());

        UserDefaults settings(settingsPath());
        settings.setValue(keys::localizePath.name, path(QStringLiteral("gone.lst")));
        QVERIFY(settings.synchronize());
        outcome = tessera({QStringLiteral("build")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("The conversion work is finished.  ( 1 games )\n"));
        QVERIFY2(outcome.err.startsWith("tessera: ")
                     && outcome.err.contains(path(QStringLiteral("gone.lst")).toUtf8())
                     && outcome.err.contains("No such file"),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }

    void buildSaysWhenTheSettingsCannotBeWritten()
    {
        write(QStringLiteral("list.xml"), oneMachine);
        m_environment.insert(QStringLiteral("FAKE_LISTXML"), path(QStringLiteral("list.xml")));
        QVERIFY(QDir().mkpath(settingsPath()));
        const Outcome outcome = tessera(
            {QStringLiteral("build"), QStringLiteral("--emulator"), QStringLiteral(TESSERA_FAKEEMULATOR)});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(settingsPath().toUtf8()),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }

    void launchSaysWhatCouldNotBeStarted()
    {
        UserDefaults settings(settingsPath());
        settings.setValue(keys::ExecutionPath.name, QStringLiteral("/nowhere/mame"));
        QVERIFY(settings.synchronize());
        const Outcome outcome = tessera({QStringLiteral("launch"), QStringLiteral("pong")});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.contains("/nowhere/mame"));
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString settingsPath() const { return path(QStringLiteral("XDG_CONFIG_HOME/Tessera/Tessera.ini")); }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    // Where the program itself looks for one.
    void writeCatalogue() const
    {
        const QString folder = path(QStringLiteral("XDG_DATA_HOME/Tessera"));
        QVERIFY(QDir().mkpath(folder));
        writeStoreOf(QStringLiteral("XDG_DATA_HOME/Tessera/Tessera.xml"), {"pong", "qix"});
    }

    void writeStoreOf(const QString& name, const std::vector<std::string>& sets) const
    {
        std::vector<GameRecord> games;
        std::vector<std::string> titles;
        for (const std::string& set : sets)
            titles.push_back("Title of " + set);
        for (std::size_t i = 0; i < sets.size(); ++i) {
            GameRecord game;
            game.values.fill("a");
            game[Field::Name] = sets[i];
            game[Field::Title] = titles[i];
            games.push_back(game);
        }
        QVERIFY(writeStore(path(name), games));
    }

    void writeOldFavourites(const QByteArrayList& names) const
    {
        QByteArray list = "<plist version=\"1.0\"><array>";
        for (const QByteArray& name : names)
            list += "<dict><key>romid</key><string>" + name + "</string></dict>";
        write(QStringLiteral("old.xml"), list + "</array></plist>");
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    // One sentence, and nothing done.
    void expectRefusal(const QStringList& arguments, const char* sentence) const
    {
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QByteArray());
        QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(sentence),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }

    void useStandIn() const
    {
        UserDefaults settings(settingsPath());
        settings.setValue(keys::ExecutionPath.name, QStringLiteral(TESSERA_FAKEEMULATOR));
        QVERIFY(settings.synchronize());
    }

    QByteArray listed(const QString& format = QStringLiteral("tsv")) const
    {
        return tessera({QStringLiteral("list"), QStringLiteral("--format"), format,
                        QStringLiteral("--catalogue"), path(QStringLiteral("store.xml"))})
            .out;
    }

    Outcome tessera(const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(TESSERA_PROGRAM), arguments);
        if (!process.waitForFinished())
            return {};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
};

TESSERA_TEST(VerbsTest);
#include "verbstest.moc"
