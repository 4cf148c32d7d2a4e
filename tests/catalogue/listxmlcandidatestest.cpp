#include "catalogue/listxmlcandidates.h"

#include "tools/randomlist.h"
#include "support/testmain.h"
#include "catalogue/listxmlneedles.h"

using namespace tessera;

class ListxmlCandidatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allSearchesAgree()
    {
        test::RandomList random(7);
        for (int round = 0; round < 300; ++round) {
            std::string text = random.text(60);
            if (random.below(3) == 0 && !text.empty())
                text[random.below(text.size())] = '\0';
            const std::size_t size = text.size();
            text.append(8, '<');
            const char* at[] = {text.data(), text.data()};
            bool nul[] = {false, false};
            CandidateBlock block[2]{};
            while (static_cast<std::size_t>(text.data() + size - at[0]) >= candidateBlock) {
                at[0] = candidateSearch()(at[0], text.data() + size, block[0], nul[0]);
                at[1] = findCandidatesPlainly(at[1], text.data() + size, block[1], nul[1]);
                QCOMPARE(at[0], at[1]);
                QCOMPARE(nul[0], nul[1]);
                if (static_cast<std::size_t>(text.data() + size - at[0]) < candidateBlock)
                    break;
                QVERIFY(block[0].places == block[1].places);
                QVERIFY(block[0].buckets == block[1].buckets);
                at[1] = at[0] += candidateBlock;
            }
        }
    }

    void noNeedleIsMissed_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("upper");
        for (std::size_t i = 0; i < needleRows.size(); ++i) {
            QTest::newRow(std::string(needleRows[i].text).c_str()) << static_cast<int>(i) << false;
            if (needleRows[i].anyCase)
                QTest::newRow((std::string(needleRows[i].text) + ", capitals").c_str())
                    << static_cast<int>(i) << true;
        }
    }

    void noNeedleIsMissed()
    {
        QFETCH(int, row);
        QFETCH(bool, upper);
        const NeedleRow& needle = needleRows[static_cast<std::size_t>(row)];
        QByteArray spelled(needle.text.data(), static_cast<qsizetype>(needle.text.size()));
        if (upper)
            spelled = spelled.toUpper();
        for (std::size_t place = 0; place + needle.text.size() <= candidateBlock; ++place) {
            std::string text(candidateBlock + 8, '\n');
            text.replace(place, needle.text.size(), spelled.toStdString());
            CandidateBlock block{};
            bool nul = false;
            const char* const found
                = candidateSearch()(text.data(), text.data() + candidateBlock, block, nul);
            QCOMPARE(found, text.data());
            const std::size_t noticed = place + needle.anchor;
            QVERIFY(block.buckets[noticed] & (1U << needle.bucket));
            QVERIFY(block.places[noticed / 64] & (std::uint64_t{1} << (noticed % 64)));
            QVERIFY(!nul);
        }
    }
};

TESSERA_TEST(ListxmlCandidatesTest);
#include "listxmlcandidatestest.moc"
