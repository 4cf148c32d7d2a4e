#include "catalogue/search/searchscore.h"

#include "catalogue/samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

/// Whether what players type finds what they mean, over machines that are easily mistaken for each other.
class SearchScoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsMeantComesFirst()
    {
        SampleRecords sample;
        QFile machines(QStringLiteral(SEARCH_FOLDER "/machines.tsv"));
        QVERIFY(machines.open(QIODevice::ReadOnly));
        for (const QByteArray& line : machines.readAll().split('\n')) {
            const QByteArrayList f = line.split('\t');
            if (f.size() == 8)
                sample.add({f[6], f[0], f[1], f[2], f[3], f[4], f[5], f[7], ""});
        }
        QVERIFY(sample.store.records.size() > 60);
        const std::vector<ScoredQuery> queries = readQueries(QStringLiteral(SEARCH_FOLDER "/queries.tsv"));
        QVERIFY(queries.size() > 60);
        const SearchScore sum = sumOf(ScoredSearch(sample.store.records).score(queries));
        QCOMPARE(sum.queries, static_cast<int>(queries.size()));
        QCOMPARE(sum.first, sum.queries);
    }
};

TESSERA_TEST(SearchScoreTest);
#include "searchscoretest.moc"
