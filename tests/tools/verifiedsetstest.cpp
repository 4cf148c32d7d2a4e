#include "tools/verifiedsets.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

using Problem = WrongFile::Problem;
using Verdict = VerifiedSet::Verdict;

constexpr std::array<const char*, VerifiedSet::verdictCount> verdictNames{"good", "best", "bad", "notfound",
                                                                          "none"};
constexpr std::array problemNames{"missing", "optional", "nowhere", "length", "content", "redump", "nogood"};

// "pacman [puckman] bad; a.1 4096 missing in pacman.zip; ..."
QString words(const VerifiedSet& set)
{
    QString line = QString::fromStdString(set.name);
    if (!set.parent.empty())
        line += QStringLiteral(" [%1]").arg(QString::fromStdString(set.parent));
    line += QLatin1Char(' ') + QLatin1String(verdictNames[static_cast<std::size_t>(set.verdict)]);
    for (const WrongFile& file : set.files) {
        line += QStringLiteral("; ") + QString::fromStdString(file.name);
        if (file.bytes)
            line += QStringLiteral(" %1").arg(*file.bytes);
        line += QLatin1Char(' ') + QLatin1String(problemNames[static_cast<std::size_t>(file.problem)]);
        if (file.foundBytes)
            line += QStringLiteral(" %1").arg(*file.foundBytes);
        line += QStringLiteral(" in ") + QString::fromStdString(archiveOf(set, file));
    }
    return line;
}

} // namespace

class VerifiedSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesOfOldAndNewReleasesAreKnown_data()
    {
        QTest::addColumn<QByteArray>("printed");
        QTest::addColumn<QStringList>("sets");
        const auto row = [](const char* name, const char* printed, const QStringList& sets) {
            QTest::newRow(name) << QByteArray(printed) << sets;
        };
        row("nothing", "", {});
        row("good", "romset pong is good\n", {"pong good"});
        row("a clone", "romset pacman [puckman] is bad\n", {"pacman [puckman] bad"});
        row("best available", "romset 1292apvs is best available\n", {"1292apvs best"});
        row("without the last line feed", "romset pong is good", {"pong good"});
        row("lines of another system", "romset pong is good\r\nromset qix is bad\r\n",
            {"pong good", "qix bad"});
        row("the oldest words",
            "romset pong correct\nromset qix [pong] incorrect\n"
            "romset tetris best available\n",
            {"pong good", "qix [pong] bad", "tetris best"});
        row("not there", "romset \"pong\" not found!\n", {"pong notfound"});
        row("a missing file", "1942        : srb-05.m5 (16384 bytes) - NOT FOUND\nromset 1942 is bad\n",
            {"1942 bad; srb-05.m5 16384 missing in 1942.zip"});
        row("shared with another set",
            "digdug      : 51xx.bin (1024 bytes) - NOT FOUND (namco51)\nromset digdug is bad\n",
            {"digdug bad; 51xx.bin 1024 missing in namco51.zip"});
        row("shared with the parent, as older releases say it",
            "pacman      : pacman.6e (4096 bytes) - NOT FOUND (shared with parent)\n"
            "romset pacman [puckman] is bad\n",
            {"pacman [puckman] bad; pacman.6e 4096 missing in puckman.zip"});
        row("another length",
            "1942        : srb-07.m7 (16384 bytes) - INCORRECT LENGTH: 8192 bytes\nromset 1942 is bad\n",
            {"1942 bad; srb-07.m7 16384 length 8192 in 1942.zip"});
        row("another content, with its checksums",
            "1942        : srb-03.m3 (16384 bytes) - INCORRECT CHECKSUM:\n"
            "EXPECTED: CRC(d9dafcc3) SHA1(a089a9bc55fb7d6d0ac53f91b258396d5d62677a)\n"
            "   FOUND: CRC(ab54d286)\nromset 1942 is bad\n",
            {"1942 bad; srb-03.m3 16384 content in 1942.zip"});
        row("missing everywhere",
            "4d30        : ip14prom.bin (524288 bytes) - NOT FOUND - NO GOOD DUMP KNOWN\n"
            "romset 4d30 is best available\n",
            {"4d30 best; ip14prom.bin 524288 nowhere in 4d30.zip"});
        row("missing but optional",
            "kc_d004     : d004v20.bin (8192 bytes) - NOT FOUND BUT OPTIONAL\nromset kc_d004 is good\n",
            {"kc_d004 good; d004v20.bin 8192 optional in kc_d004.zip"});
        row("no good dump",
            "bublbobl    : pal16r4.bin (1 bytes) - NO GOOD DUMP KNOWN\n"
            "romset bublbobl is best available\n",
            {"bublbobl best; pal16r4.bin 1 nogood in bublbobl.zip"});
        row("needs a redump", "x1          : ank.fnt (8192 bytes) - NEEDS REDUMP\nromset x1 is bad\n",
            {"x1 bad; ank.fnt 8192 redump in x1.zip"});
        row("blanks in a file's name",
            "pc9801_118  : 118 e316.1e (131072 bytes) - NOT FOUND\nromset pc9801_118 is bad\n",
            {"pc9801_118 bad; 118 e316.1e 131072 missing in pc9801_118.zip"});
        row("a name longer than its column",
            "averylongsetname: a.1 (4 bytes) - NOT FOUND\nromset averylongsetname is bad\n",
            {"averylongsetname bad; a.1 4 missing in averylongsetname.zip"});
        row("a disk, which has no size", "kinst       : kinst - NOT FOUND\nromset kinst is bad\n",
            {"kinst bad; kinst missing in kinst.zip"});
        row("as old releases lay it out",
            "galaga  : 51xx.bin      1024 bytes c2f57ef8 NOT FOUND\nromset galaga is bad\n",
            {"galaga bad; 51xx.bin 1024 missing in galaga.zip"});
        row("files before another set's verdict",
            "a           : x (1 bytes) - NOT FOUND\n"
            "b           : y (2 bytes) - NOT FOUND\n"
            "romset b is bad\nromset a is bad\n",
            {"b bad; y 2 missing in b.zip", "a bad; x 1 missing in a.zip"});
        row("cut off before the verdict", "romset b is good\na           : x (1 bytes) - NOT FOUND\n",
            {"b good", "a none; x 1 missing in a.zip"});
        row("what concerns no set", "252 romsets found, 200 were OK.\nWarning: something\n", {});
    }

    void linesOfOldAndNewReleasesAreKnown()
    {
        QFETCH(QByteArray, printed);
        QFETCH(QStringList, sets);
        QStringList read;
        for (const VerifiedSet& set : verifiedSets(printed.toStdString()))
            read << words(set);
        QCOMPARE(read, sets);
    }

    void verdictsAreCounted()
    {
        QCOMPARE(verdictLines("romset a is good\na : x (1 bytes) - NOT FOUND\nromset b is bad\nromset c"),
                 std::size_t(2));
    }

    void everyProblemHasASentence_data()
    {
        QTest::addColumn<int>("problem");
        QTest::addColumn<QString>("sentence");
        const std::array<const char*, problemNames.size()> sentences{
            "wrong_missing", "wrong_optional", "wrong_nowhere", "wrong_length",
            "wrong_content", "wrong_redump",   "wrong_nogood"};
        for (std::size_t i = 0; i < sentences.size(); ++i)
            QTest::newRow(problemNames[i]) << static_cast<int>(i) << QString(sentences[i]);
    }

    void everyProblemHasASentence()
    {
        QFETCH(int, problem);
        QFETCH(QString, sentence);
        WrongFile file;
        file.problem = static_cast<Problem>(problem);
        QCOMPARE(sentenceOf({}, file), sentence);
    }

    void theStateCountsWhatIsMissingAndWhatIsWrong()
    {
        VerifiedSet set;
        set.verdict = Verdict::Good;
        QCOMPARE(stateOf(set), "state_good");
        set.verdict = Verdict::Bad;
        set.files = {{"a", 1, Problem::Missing, {}, {}}, {"b", 1, Problem::OtherContent, {}, {}}};
        QCOMPARE(stateOf(set), "state_bad · state_missing · state_wrong");
    }
};

TESSERA_TEST(VerifiedSetsTest);
#include "verifiedsetstest.moc"
