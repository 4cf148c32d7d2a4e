#include "tools/verification.h"

#include "support/testmain.h"
#include "tools/plainverification.h"

#include <QRegularExpression>

#include <random>

using namespace tessera;

namespace {

// What releases from 0.60 to today print, a line each.
constexpr char manyReleases[] = "romset pacman is good\n"
                                "romset puckmana [puckman] is good\n"
                                "romset cd32 is best available\n"
                                "romset foo correct\n"
                                "romset bar incorrect\n"
                                "pacman      : pacman.6e (4096 bytes) - INCORRECT LENGTH: 2048 bytes\n"
                                "pacman      : pacman.6f (4096 bytes) - INCORRECT CHECKSUM:\n"
                                "EXPECTED: CRC(1a6fb2d4) SHA1(674d3a7f00d8be5e38b1fdc208ebef5a92d38329)\n"
                                "   FOUND: CRC(ab54d286)\n"
                                "x1          : ank.fnt (8192 bytes) - NEEDS REDUMP\n"
                                "h63484      : h63484.bin (256 bytes) - NO GOOD DUMP KNOWN\n"
                                "romset mvsca [mvsc] is bad\n"
                                "mvsca       : mvca.03a (524288 bytes) - NOT FOUND\n"
                                "mvsca       : mvc.10 (524288 bytes) - NOT FOUND (shared with parent)\n"
                                "mvsca       : mvc.11 (524288 bytes) - NOT FOUND (mvsc)\n"
                                "x1          : 80c48 (4096 bytes) - NOT FOUND - NO GOOD DUMP KNOWN\n"
                                "neogeo      : uni-bios_2_3.rom (131072 bytes) - NOT FOUND BUT OPTIONAL\n"
                                "romset odd Other\n"
                                "57 romsets found, 7 were OK.\n"
                                "romset \"pacmna\" not found!\n";

ChosenVerdicts chosen(const QStringList& endings)
{
    ChosenVerdicts boxes;
    for (const QString& ending : endings)
        boxes.set(verdictNamed(ending).value());
    return boxes;
}

QString report(const QByteArray& text, const QStringList& endings)
{
    return QString::fromStdString(
        verificationReport({text.constData(), static_cast<std::size_t>(text.size())}, chosen(endings)));
}

QStringList allEndings()
{
    QStringList endings;
    for (const Verdict& verdict : verdicts)
        endings << QString(verdict.ending());
    return endings;
}

} // namespace

class VerificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachVerdictTakesItsLines_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* ending, const char* expected) {
            QTest::newRow(ending) << QString(ending) << QString(expected);
        };
        row("isgood", "romset pacman is good\nromset puckmana [puckman] is good\n\n(is good: 2)\n\n");
        row("isbesta", "romset cd32 is best available\n\n(is best available: 1)\n\n");
        row("iclength",
            "pacman      : pacman.6e (4096 bytes) - INCORRECT LENGTH: 2048 bytes\n\n(INCORRECT LENGTH: "
            "1)\n\n");
        row("iccsum",
            "pacman      : pacman.6f (4096 bytes) - INCORRECT CHECKSUM:\n\n(INCORRECT CHECKSUM: 1)\n\n");
        row("nredump", "x1          : ank.fnt (8192 bytes) - NEEDS REDUMP\n\n(NEEDS REDUMP: 1)\n\n");
        row("ngdk",
            "h63484      : h63484.bin (256 bytes) - NO GOOD DUMP KNOWN\n"
            "x1          : 80c48 (4096 bytes) - NOT FOUND - NO GOOD DUMP KNOWN\n\n(NO GOOD DUMP KNOWN: "
            "2)\n\n");
        row("isbad", "romset mvsca [mvsc] is bad\n\n(is bad: 1)\n\n");
        row("notfound", "mvsca       : mvca.03a (524288 bytes) - NOT FOUND\n\n(NOT FOUND: 1)\n\n");
        row("nfsparent",
            "mvsca       : mvc.10 (524288 bytes) - NOT FOUND (shared with parent)\n\n"
            "(NOT FOUND (shared with parent): 1)\n\n");
        row("nfngd",
            "x1          : 80c48 (4096 bytes) - NOT FOUND - NO GOOD DUMP KNOWN\n\n"
            "(NOT FOUND - NO GOOD DUMP KNOWN: 1)\n\n");
        row("nfbo",
            "neogeo      : uni-bios_2_3.rom (131072 bytes) - NOT FOUND BUT OPTIONAL\n\n"
            "(NOT FOUND BUT OPTIONAL: 1)\n\n");
        row("other", "romset odd Other\n\n(Other: 1)\n\n");
    }

    void eachVerdictTakesItsLines()
    {
        QFETCH(QString, ending);
        QFETCH(QString, expected);
        QCOMPARE(report(manyReleases, {ending}), expected);
        QCOMPARE(report("nothing of that kind\n", {ending}),
                 expected.mid(expected.indexOf("\n(")).replace(QRegularExpression("\\d"), "0"));
    }

    void theVerdictsComeInTheirOrder()
    {
        QCOMPARE(allEndings(),
                 QStringList({"isgood", "isbesta", "iclength", "iccsum", "nredump", "ngdk", "isbad",
                              "notfound", "nfsparent", "nfngd", "nfbo", "other"}));
        QCOMPARE(report("", {"other", "isbad", "isgood"}),
                 "\n(is good: 0)\n\n\n(is bad: 0)\n\n\n(Other: 0)\n\n");
    }

    void nothingChosenGivesNothing() { QCOMPARE(report(manyReleases, {}), QString()); }

    void badSetsAloneMayGiveTheCountAlone()
    {
        QCOMPARE(report("romset pong is good\n", {"isbad"}), "\n(is bad: 0)\n\n");
    }

    void lines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QString>("listed");
        const auto row = [](const char* name, const char* text, const char* ending, const char* listed) {
            QTest::newRow(name) << QByteArray(text) << QString(ending) << QString(listed);
        };
        row("the words must end the line", "a - NOT FOUND (b)\nc - NOT FOUND\n", "notfound",
            "c - NOT FOUND\n");
        row("shared with the parent is another verdict", "a - NOT FOUND (shared with parent)\n", "notfound",
            "");
        row("a blank behind them", "a - NOT FOUND \n", "notfound", "");
        row("a carriage return behind them", "a - NOT FOUND\r\nb - NOT FOUND\r\n", "notfound", "");
        row("which does not matter elsewhere", "a is bad\r\n", "isbad", "a is bad\r\n");
        row("nothing but the words", "NOT FOUND\n", "notfound", "NOT FOUND\n");
        row("twice in a line", "NOT FOUND NOT FOUND\n", "notfound", "NOT FOUND NOT FOUND\n");
        row("the last line without a line feed", "a is bad\nb is bad", "isbad", "a is bad\nb is bad\n");
        row("also at its end", "a - NOT FOUND\nb - NOT FOUND", "notfound", "a - NOT FOUND\nb - NOT FOUND\n");
        row("a last line that is another's", "a - NOT FOUND\nb - NOT FOUND (c)", "notfound",
            "a - NOT FOUND\n");
        row("cut off", "a - NOT FOUN", "notfound", "");
        row("blank lines", "\n\n  \n\ta is bad\n\n\n", "isbad", "a is bad\n");
        row("white space before a line", "  \t a is bad \n", "isbad", "a is bad \n");
        row("a carriage return is no blank", "\r  a is bad\n", "isbad", "\r  a is bad\n");
        row("nor are other spaces", "\v\f a is bad\n \ra is bad\n", "isbad", "\v\f a is bad\n\ra is bad\n");
        row("capitals matter", "a Is Bad\nb IS BAD\n", "isbad", "");
        row("anywhere in a word", "this badly is badly\n", "isbad", "this badly is badly\n");
        row("not over two lines", "a is\nbad\n", "isbad", "");
        row("a line counts once", "is bad is bad is bad\n", "isbad", "is bad is bad is bad\n");
    }

    void lines()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, ending);
        QFETCH(QString, listed);
        const QString made = report(text, {ending});
        QCOMPARE(made.left(made.lastIndexOf("\n(")), listed);
        QCOMPARE(made, test::plainVerification(QString::fromUtf8(text), {ending}));
    }

    void aLineIsListedUnderEachOfItsVerdicts()
    {
        const char* line = "x1 : 80c48 - NOT FOUND - NO GOOD DUMP KNOWN\n";
        QCOMPARE(report(line, {"ngdk", "nfngd", "notfound"}),
                 QString(line) + "\n(NO GOOD DUMP KNOWN: 1)\n\n" + "\n(NOT FOUND: 0)\n\n" + line
                     + "\n(NOT FOUND - NO GOOD DUMP KNOWN: 1)\n\n");
    }

    void agreesWithAPlainReportByteForByte()
    {
        std::mt19937 random(12);
        const QList<QByteArray> pieces{"is good",
                                       "is bad",
                                       "is best available",
                                       "INCORRECT LENGTH",
                                       "INCORRECT CHECKSUM",
                                       "NEEDS REDUMP",
                                       "NO GOOD DUMP KNOWN",
                                       "NOT FOUND",
                                       " (shared with parent)",
                                       " - ",
                                       "NOT FOUND BUT OPTIONAL",
                                       "Other",
                                       "\n",
                                       "\n",
                                       "\n",
                                       " ",
                                       "\t",
                                       "\r",
                                       "romset a "};
        for (int round = 0; round < 200; ++round) {
            QByteArray text;
            for (unsigned i = random() % 120; i > 0; --i)
                text += pieces[static_cast<int>(random() % static_cast<unsigned>(pieces.size()))];
            QStringList boxes;
            for (const QString& ending : allEndings()) {
                if (random() % 2 == 0)
                    boxes << ending;
            }
            QCOMPARE(report(text, boxes),
                     test::plainVerification(QString::fromLatin1(text), {boxes.begin(), boxes.end()}));
        }
        const QStringList all = allEndings();
        QCOMPARE(report(manyReleases, all), test::plainVerification(manyReleases, {all.begin(), all.end()}));
    }

    void bytesThatAreNoTextAreReplaced()
    {
        QCOMPARE(report("caf\xE9 is bad\n\xE3\x83\x9D is bad\xE3", {"isbad"}),
                 QString::fromUtf8("caf\uFFFD is bad\nポ is bad\uFFFD\n\n(is bad: 2)\n\n"));
    }

    void endingsNameTheirVerdicts()
    {
        for (std::size_t i = 0; i < verdicts.size(); ++i)
            QCOMPARE(verdictNamed(verdicts[i].ending()), std::optional(i));
        QVERIFY(!verdictNamed("isBad") && !verdictNamed("") && !verdictNamed("verifyromsButton_isbad"));
    }

    void onlyBadSetsAreChosenAtFirst()
    {
        for (const Verdict& verdict : verdicts)
            QCOMPARE(verdict.key->initial, verdict.ending() == QLatin1String("isbad"));
    }
};

TESSERA_TEST(VerificationTest);
#include "verificationtest.moc"
