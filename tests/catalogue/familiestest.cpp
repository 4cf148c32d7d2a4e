#include "catalogue/families.h"

#include "samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

namespace {

using Numbers = std::vector<std::uint32_t>;
using Sets = std::vector<std::pair<const char*, const char*>>;

// Sets by name and parent.
SampleRecords related(const Sets& sets)
{
    SampleRecords sample;
    for (const auto& [name, parent] : sets)
        sample.add({"game", name, parent, "", "", "", "", "", ""});
    return sample;
}

RecordSet setOf(std::size_t size, const Numbers& records)
{
    RecordSet set(size);
    for (const std::uint32_t record : records)
        set.insert(record);
    return set;
}

} // namespace

Q_DECLARE_METATYPE(Sets)

class FamiliesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headsAreFound_data()
    {
        QTest::addColumn<Sets>("sets");
        QTest::addColumn<Numbers>("heads");
        const auto row = [](const char* name, const Sets& sets, const Numbers& heads) {
            QTest::newRow(name) << sets << heads;
        };
        row("nothing", {}, {});
        row("parents name themselves", {{"a", "a"}, {"b", "b"}}, {0, 1});
        row("clones before and behind", {{"a1", "a"}, {"a", "a"}, {"a2", "a"}}, {1, 1, 1});
        row("a parent that is not there", {{"a1", "a"}, {"a2", "a"}}, {0, 1});
        row("absent and empty parents", {{"a", absent}, {"b", ""}}, {0, 1});
        row("a clone of a clone", {{"c", "b"}, {"b", "a"}, {"a", "a"}, {"d", "c"}}, {2, 2, 2, 2});
        row("a ring", {{"x", "b"}, {"b", "c"}, {"c", "d"}, {"d", "b"}}, {1, 1, 1, 1});
        row("a ring entered late", {{"z", "z"}, {"y", "c"}, {"d", "c"}, {"c", "d"}}, {0, 2, 2, 2});
        row("two of one name", {{"a", "a"}, {"a1", "a"}, {"a", "a"}}, {0, 0, 2});
        row("nobody's clone", {{absent, "a"}, {"a", "a"}, {absent, absent}}, {1, 1, 2});
    }

    void headsAreFound()
    {
        QFETCH(Sets, sets);
        QTEST(familyHeads(related(sets).store.records), "heads");
    }

    void clonesFoldBeneathTheirParents_data()
    {
        QTest::addColumn<Numbers>("rows");
        QTest::addColumn<Numbers>("open");
        QTest::addColumn<Numbers>("folded");
        QTest::addColumn<Numbers>("clones");
        // Families: 0 with 1, 2 and 3; 4 alone; 5 with 6.
        const auto row
            = [](const char* name, const Numbers& rows, const Numbers& open, const Numbers& folded,
                 const Numbers& clones) { QTest::newRow(name) << rows << open << folded << clones; };
        row("nothing", {}, {}, {}, {});
        row("all", {0, 1, 2, 3, 4, 5, 6}, {}, {0, 4, 5}, {3, 0, 1});
        row("the parent keeps its place", {6, 3, 4, 1, 0, 5, 2}, {}, {4, 0, 5}, {0, 3, 1});
        row("one is open", {6, 3, 4, 1, 0, 5, 2}, {0}, {4, 0, 3, 1, 2, 5}, {0, 3, 0, 0, 0, 1});
        row("all are open", {6, 3, 4, 1, 0, 5, 2}, {0, 4, 5}, {4, 0, 3, 1, 2, 5, 6}, {0, 3, 0, 0, 0, 1, 0});
        row("a clone stands for a hidden parent", {6, 3, 4, 1}, {}, {6, 3, 4}, {0, 1, 0});
        row("and is opened by the parent's name", {6, 3, 4, 1}, {0}, {6, 3, 1, 4}, {0, 1, 0, 0});
        row("an open family that is hidden", {4}, {0}, {4}, {0});
    }

    void clonesFoldBeneathTheirParents()
    {
        QFETCH(Numbers, rows);
        QFETCH(Numbers, open);
        const Numbers heads{0, 0, 0, 0, 4, 5, 5};
        const FamilyRows folded = foldFamilies(rows, heads, setOf(heads.size(), open));
        QTEST(folded.rows, "folded");
        QTEST(folded.clones, "clones");
    }

    void openingAllLosesNobody()
    {
        RandomTexts random;
        for (int round = 0; round < 200; ++round) {
            const int size = 1 + random.number(60);
            Numbers heads;
            for (int i = 0; i < size; ++i)
                heads.push_back(std::uint32_t(random.number(i + 1)));
            for (std::uint32_t& head : heads)
                head = heads[heads[head]] == heads[head] ? heads[head] : head;
            Numbers rows;
            for (int i = 0; i < size; ++i) {
                if (random.number(3) != 0)
                    rows.push_back(std::uint32_t(i));
            }
            Numbers all = foldFamilies(rows, heads, RecordSet::all(heads.size())).rows;
            const FamilyRows closed = foldFamilies(rows, heads, RecordSet(heads.size()));
            std::ranges::sort(all);
            QCOMPARE(all, rows);
            std::size_t counted = closed.rows.size();
            for (const std::uint32_t clones : closed.clones)
                counted += clones;
            QCOMPARE(counted, rows.size());
        }
    }
};

TESSERA_TEST(FamiliesTest);
#include "familiestest.moc"
