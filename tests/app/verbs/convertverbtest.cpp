#include "verbs/stagedverbs.h"

using namespace tessera;

namespace {

constexpr char oneGame[] = "<game name=\"pong\" sourcefile=\"pong.c\">\n<description>Pong</description>\n"
                           "<year>1972</year>\n<manufacturer>Atari</manufacturer>\n"
                           "<driver status=\"good\" emulation=\"good\"/>\n</game>\n";

} // namespace

class ConvertVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
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

    // The file holds what came before, but nothing takes that for success.
    void aListThatIsCutOffIsConvertedUpToThere()
    {
        write(QStringLiteral("list.xml"), oneGame + QByteArray("<game name=\"qix\" ><descr"));
        write(QStringLiteral("titles.lst"), "");
        const Outcome outcome = tessera({QStringLiteral("convert"), path(QStringLiteral("list.xml")),
                                         path(QStringLiteral("titles.lst")), QStringLiteral("-o"),
                                         path(QStringLiteral("store.xml"))});
        QVERIFY2(outcome.err.contains("within “qix”"), outcome.err.constData());
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QByteArray("The conversion work is finished.  ( 1 games )\n"));
        QCOMPARE(listed(), QByteArray("game\tpong\tpong\tPong\tPong\t1972\tAtari\tgood\t\n"));
    }
};

TESSERA_TEST(ConvertVerbTest);
#include "convertverbtest.moc"
