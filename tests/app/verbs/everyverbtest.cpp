#include "app/verbs/names.h"
#include "verbs/stagedverbs.h"

#include <QProcess>

using namespace tessera;

/// What holds for all verbs alike.
class EveryVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
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
};

TESSERA_TEST(EveryVerbTest);
#include "everyverbtest.moc"
