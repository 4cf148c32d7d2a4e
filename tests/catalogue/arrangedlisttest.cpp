#include "catalogue/arrangedlist.h"

#include "samplerecords.h"
#include "support/testmain.h"

#include <QSignalSpy>

#include <algorithm>

using namespace tessera;
using namespace tessera::test;

namespace {

// Records whose titles are the given values; their names are their numbers.
SampleRecords titled(const std::vector<const char*>& titles)
{
    SampleRecords sample;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const std::string number = std::to_string(i);
        sample.add({"game", number.c_str(), number.c_str(), titles[i], "", "", "", "", ""});
    }
    return sample;
}

QString rows(const ArrangedList& list)
{
    QStringList numbers;
    for (const std::uint32_t record : list.rows())
        numbers << QString::number(record);
    return numbers.join(u' ');
}

RecordSet chosen(std::size_t size, std::initializer_list<std::uint32_t> records)
{
    RecordSet set(size);
    for (const std::uint32_t record : records)
        set.insert(record);
    return set;
}

// The same order, found the plain way.
std::vector<std::uint32_t> plainlySorted(const std::vector<GameRecord>& records, Field field, bool ascending)
{
    std::vector<std::uint32_t> order(records.size());
    for (std::uint32_t i = 0; i < order.size(); ++i)
        order[i] = i;
    const auto key = [&](std::uint32_t i) { return std::pair(records[i].has(field), records[i][field]); };
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        if (key(a) == key(b))
            return a < b;
        return ascending ? key(a) < key(b) : key(b) < key(a);
    });
    return order;
}

} // namespace

class ArrangedListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreSorted_data()
    {
        using Titles = std::vector<const char*>;
        QTest::addColumn<Titles>("titles");
        QTest::addColumn<QString>("ascending");
        QTest::addColumn<QString>("descending");
        const auto row = [](const char* name, const Titles& titles, const char* up, const char* down) {
            QTest::newRow(name) << titles << QString::fromLatin1(up) << QString::fromLatin1(down);
        };
        row("none", {}, "", "");
        row("one", {"a"}, "0", "0");
        row("two", {"b", "a"}, "1 0", "0 1");
        row("sorted already", {"a", "b", "c"}, "0 1 2", "2 1 0");
        row("capitals first", {"a", "B", "b", "A"}, "3 1 0 2", "2 0 1 3");
        row("digits as text", {"10", "9", "1"}, "2 0 1", "1 0 2");
        row("equal keep their order", {"a", "b", "a", "b", "a"}, "0 2 4 1 3", "1 3 0 2 4");
        row("absent, empty, text", {"a", "", absent, "b", absent, ""}, "2 4 1 5 0 3", "3 0 1 5 2 4");
        row("absent only", {absent, absent}, "0 1", "0 1");
        row("beginning goes first", {"pacman2", "pac", "pacman", "p"}, "3 1 2 0", "0 2 1 3");
        row("eight bytes", {"12345678", "123456789", "1234567"}, "2 0 1", "1 0 2");
        row("differ behind eight bytes", {"12345678b", "12345678a", "12345678"}, "2 1 0", "0 1 2");
        row("differ behind sixteen", {"1234567812345678b", "1234567812345678", "1234567812345678a"}, "1 2 0",
            "0 2 1");
        row("equal behind sixteen", {"1234567812345678b", "a", "1234567812345678b"}, "0 2 1", "1 0 2");
        row("by code point", {"é", "z", "ア", "😀", "ﾊ"}, "1 0 2 4 3", "3 4 2 0 1");
    }
    void valuesAreSorted()
    {
        QFETCH(std::vector<const char*>, titles);
        QFETCH(QString, ascending);
        QFETCH(QString, descending);
        const SampleRecords sample = titled(titles);
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, true);
        QCOMPARE(rows(list), ascending);
        list.setSort(Field::Title, false);
        QCOMPARE(rows(list), descending);
    }

    void everyFieldCanBeSortedBy()
    {
        for (std::size_t i = 0; i < fieldCount; ++i) {
            SampleRecords sample;
            for (const char* value : {"b", "c", "a"}) {
                GameRecord record;
                record.values[i] = sample.store.arena.add(value);
                sample.store.records.push_back(record);
            }
            ArrangedList list;
            list.setContent(sample.store.records);
            list.setSort(static_cast<Field>(i), true);
            QCOMPARE(rows(list), QStringLiteral("2 0 1"));
        }
    }

    void anyListIsSortedAsPlainly_data()
    {
        QTest::addColumn<bool>("ascending");
        QTest::newRow("ascending") << true;
        QTest::newRow("descending") << false;
    }
    void anyListIsSortedAsPlainly()
    {
        QFETCH(bool, ascending);
        SampleRecords sample;
        RandomTexts random;
        for (int i = 0; i < 3000; ++i) {
            GameRecord record;
            const int kind = random.number(8);
            // Few different letters and lengths round the eight bytes of a step, so that ties are many.
            std::string text(static_cast<std::size_t>(random.number(3)) * 8, 'x');
            for (int length = random.number(4); length > 0; --length)
                text += static_cast<char>('a' + random.number(2));
            if (kind > 0)
                record[Field::Title] = sample.store.arena.add(text);
            sample.store.records.push_back(record);
        }
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, ascending);
        const auto order = plainlySorted(sample.store.records, Field::Title, ascending);
        QVERIFY(std::ranges::equal(list.rows(), order));
    }

    void longEqualBeginningsAreSorted()
    {
        const std::string common(100'000, 'x');
        SampleRecords sample;
        for (const char* end : {"b", "a", "", "c", "a"})
            sample.add({"game", "n", "n", (common + end).c_str(), "", "", "", "", ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, true);
        QCOMPARE(rows(list), QStringLiteral("2 1 4 0 3"));
    }

    void predicateLetsRecordsThrough()
    {
        const SampleRecords sample = titled({"c", "x", "b", "x", "a"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        list.setPredicate([](const GameRecord& record) { return record[Field::Title] != "x"; });
        QCOMPARE(rows(list), QStringLiteral("4 2 0"));
        QCOMPARE(list.size(), std::size_t(3));
        QCOMPARE(list[1][Field::Title], std::string_view("b"));
        list.setPredicate({});
        QCOMPARE(rows(list), QStringLiteral("4 2 0 1 3"));
    }

    void recordsAreFoundByTheirRow()
    {
        const SampleRecords sample = titled({"c", "x", "b"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setPredicate([](const GameRecord& record) { return record[Field::Title] != "x"; });
        list.setContent(sample.store.records);
        QCOMPARE(list.rowOf(0), std::optional<std::size_t>(1));
        QCOMPARE(list.rowOf(1), std::optional<std::size_t>());
        QCOMPARE(list.rowOf(2), std::optional<std::size_t>(0));
        QCOMPARE(list.rowOf(3), std::optional<std::size_t>());
    }

    void firstRowWithAValueIsFound()
    {
        const SampleRecords sample = titled({"b", "a", "b", absent, ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, false);
        QCOMPARE(rows(list), QStringLiteral("0 2 1 4 3"));
        QCOMPARE(list.find(Field::Title, "b"), std::optional<std::size_t>(0));
        QCOMPARE(list.find(Field::Title, "a"), std::optional<std::size_t>(2));
        QCOMPARE(list.find(Field::Title, "A"), std::optional<std::size_t>());
        QCOMPARE(list.find(Field::Name, "3"), std::optional<std::size_t>(4));
    }

    void absentValueIsNotFoundAsAnEmptyOne()
    {
        const SampleRecords sample = titled({absent, ""});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        QCOMPARE(list.find(Field::Title, ""), std::optional<std::size_t>(1));
    }

    void everyChangeIsAnnouncedBeforeAndAfter()
    {
        const SampleRecords sample = titled({"b", "a"});
        ArrangedList list;
        QSignalSpy before(&list, &ArrangedList::aboutToArrange);
        QSignalSpy after(&list, &ArrangedList::arranged);
        std::size_t sizeBefore = 99;
        connect(&list, &ArrangedList::aboutToArrange, this, [&] { sizeBefore = list.size(); });
        list.setContent(sample.store.records);
        QCOMPARE(sizeBefore, std::size_t(0));
        list.setPredicate([](const GameRecord&) { return false; });
        QCOMPARE(sizeBefore, std::size_t(2));
        list.setSort(Field::Year, false);
        // The same rows are no news: there are none.
        QCOMPARE(before.size(), 2);
        QCOMPARE(after.size(), 2);
        list.setPredicate({});
        QCOMPARE(after.size(), 3);
        QCOMPARE(list.sortField(), Field::Year);
        QVERIFY(!list.ascending());
    }

    void onlyWhatWasFoundIsShown()
    {
        const SampleRecords sample = titled({"c", "x", "b", "x", "a"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        list.setFound(Found{chosen(5, {0, 1, 2}), {}});
        QCOMPARE(rows(list), QStringLiteral("2 0 1"));
        QCOMPARE(list.rowOf(4), std::optional<std::size_t>());
        QCOMPARE(list.find(Field::Title, "a"), std::optional<std::size_t>());
        list.setPredicate([](const GameRecord& record) { return record[Field::Title] != "x"; });
        QCOMPARE(rows(list), QStringLiteral("2 0"));
        list.setFound(std::nullopt);
        QCOMPARE(rows(list), QStringLiteral("4 2 0"));
        list.setFound(Found{chosen(5, {}), {}});
        QCOMPARE(list.size(), std::size_t(0));
        // Indexes into another content mean nothing.
        list.setContent(sample.store.records);
        QCOMPARE(rows(list), QStringLiteral("4 2 0"));
    }

    void theBestRankedComeFirst()
    {
        const SampleRecords sample = titled({"c", "x", "b", "x", "a"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        list.setFound(Found{chosen(5, {0, 1, 2, 3}), {7, 0, 7, 3, 0}});
        QVERIFY(list.isRanked());
        QCOMPARE(rows(list), QStringLiteral("1 3 2 0"));
        QCOMPARE(list.rowOf(3), std::optional<std::size_t>(1));
    }

    void aSortWinsOverRank_data()
    {
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QString>("order");
        QTest::newRow("the order that was there") << true << QStringLiteral("2 0 1");
        QTest::newRow("another order") << false << QStringLiteral("1 0 2");
    }

    void aSortWinsOverRank()
    {
        QFETCH(bool, ascending);
        const SampleRecords sample = titled({"c", "x", "b"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        list.setFound(Found{chosen(3, {0, 1, 2}), {1, 0, 2}});
        QCOMPARE(rows(list), QStringLiteral("1 0 2"));
        list.setSort(Field::Title, ascending);
        QVERIFY(!list.isRanked());
        QTEST(rows(list), "order");
        list.setFound(Found{chosen(3, {0, 1, 2}), {1, 0, 2}});
        QVERIFY(list.isRanked());
    }

    void anEditCountsInTheNextSortByItsField()
    {
        SampleRecords sample = titled({"c", "a", "b"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        QCOMPARE(rows(list), QStringLiteral("1 2 0"));
        sample.store.records[1][Field::Title] = "z";
        list.forgetOrder(Field::Title);
        QCOMPARE(rows(list), QStringLiteral("1 2 0"));
        list.setSort(Field::Title, false);
        QCOMPARE(rows(list), QStringLiteral("1 0 2"));
    }

    void aListIsSortedByWhatStandsInNoField()
    {
        const SampleRecords sample = titled({"c", "a", "b", "d"});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, true);
        list.setSort(SortedRecords(std::array<std::uint64_t, 4>{7, 5, 7, 0}), true);
        QCOMPARE(rows(list), QStringLiteral("3 1 2 0"));
        list.setSort(SortedRecords(std::array<std::uint64_t, 4>{7, 5, 7, 0}), false);
        QCOMPARE(rows(list), QStringLiteral("2 0 1 3"));
        // Equal numbers: as they are shown.
        list.setSort(SortedRecords(std::array<std::uint64_t, 4>{}), true);
        QCOMPARE(rows(list), QStringLiteral("2 0 1 3"));
        list.setPredicate([](const GameRecord& record) { return record[Field::Title] > "a"; });
        QCOMPARE(rows(list), QStringLiteral("2 0 3"));
        list.setPredicate({});
        // The field that was there before counts again, asked for or with another content.
        list.setSort(Field::Title, true);
        QCOMPARE(rows(list), QStringLiteral("1 2 0 3"));
        list.setSort(SortedRecords(std::array<std::uint64_t, 4>{}), true);
        list.setContent(sample.store.records);
        QCOMPARE(rows(list), QStringLiteral("1 2 0 3"));
    }

    void equalOnesKeepTheOrderThatWasShown()
    {
        SampleRecords sample;
        //          type    name parent title title year    maker     status  device
        sample.add({"game", "a", "", "", "", "1990", "Taito", "good", ""});
        sample.add({"game", "b", "", "", "", "1986", "Konami", "good", ""});
        sample.add({"game", "c", "", "", "", "1986", "Taito", "bad", ""});
        sample.add({"game", "d", "", "", "", "1990", "Konami", "good", ""});
        sample.add({"game", "e", "", "", "", "1984", "Taito", "bad", ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Name, false);
        QCOMPARE(rows(list), QStringLiteral("4 3 2 1 0"));
        list.setSort(Field::Year, true);
        QCOMPARE(rows(list), QStringLiteral("4 2 1 3 0"));
        list.setSort(Field::Maker, true);
        QCOMPARE(rows(list), QStringLiteral("1 3 4 2 0"));
        list.setSort(Field::Maker, false);
        QCOMPARE(rows(list), QStringLiteral("4 2 0 1 3"));
        list.setSort(Field::Status, true);
        QCOMPARE(rows(list), QStringLiteral("4 2 0 1 3"));
        // What comes and goes by a filter finds its place again.
        list.setPredicate([](const GameRecord& record) { return record[Field::Year] != "1986"; });
        QCOMPARE(rows(list), QStringLiteral("4 0 3"));
        list.setSort(Field::Status, false);
        QCOMPARE(rows(list), QStringLiteral("0 3 4"));
        list.setPredicate({});
        QCOMPARE(rows(list), QStringLiteral("0 1 3 4 2"));
        // So does the same sorting of another content: here, of one with a record less.
        sample.store.records.erase(sample.store.records.begin() + 1);
        list.setContent(sample.store.records);
        QCOMPARE(rows(list), QStringLiteral("0 2 3 1"));
    }

    void equalOnesKeepTheOrderOfTheirRanks()
    {
        const SampleRecords sample = titled({"x", "x", "a", "x", "x", "b"});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setFound(Found{chosen(6, {0, 2, 3, 5}), {9, 0, 5, 2, 0, 1}});
        QCOMPARE(rows(list), QStringLiteral("5 3 2 0"));
        list.setSort(Field::Title, false);
        QCOMPARE(rows(list), QStringLiteral("3 0 5 2"));
        // The others keep their places.
        list.setFound(std::nullopt);
        QCOMPARE(rows(list), QStringLiteral("1 3 4 0 5 2"));
    }

    void equalOnesKeepTheOrderThatAnEditLeft()
    {
        SampleRecords sample = titled({"c", "a", "b"});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Title, true);
        QCOMPARE(rows(list), QStringLiteral("1 2 0"));
        sample.store.records[1][Field::Title] = "z";
        list.forgetOrder(Field::Title);
        list.setSort(Field::Year, true);
        QCOMPARE(rows(list), QStringLiteral("1 2 0"));
    }

    void manySortsAreAsStableAsPlainInsertion()
    {
        SampleRecords sample;
        RandomTexts random;
        constexpr std::array fields{Field::Year, Field::Maker, Field::Status};
        for (int i = 0; i < 500; ++i) {
            GameRecord record;
            record[Field::Name] = sample.store.arena.add(std::to_string(i));
            for (const Field field : fields) {
                if (random.number(6) > 0)
                    record[field] = sample.store.arena.add(std::to_string(random.number(5)));
            }
            sample.store.records.push_back(record);
        }
        ArrangedList list;
        list.setContent(sample.store.records);
        std::vector<std::uint32_t> plain(list.rows().begin(), list.rows().end());
        for (int i = 0; i < 40; ++i) {
            const Field field = fields[static_cast<std::size_t>(random.number(3))];
            const bool ascending = random.number(2) > 0;
            list.setSort(field, ascending);
            const auto isBefore = [&](std::uint32_t a, std::uint32_t b) {
                const auto key = [&](std::uint32_t each) {
                    const GameRecord& record = sample.store.records[each];
                    return std::pair(record.has(field), record[field]);
                };
                return ascending ? key(a) < key(b) : key(b) < key(a);
            };
            // Each is put behind whatever it equals.
            std::vector<std::uint32_t> sorted;
            for (const std::uint32_t each : plain)
                sorted.insert(std::ranges::upper_bound(sorted, each, isBefore), each);
            plain = std::move(sorted);
            QVERIFY(std::ranges::equal(list.rows(), plain));
        }
    }

    void familiesAreFoldedAndOpened()
    {
        const SampleRecords sample = titled({"c", "x", "b", "x", "a"});
        ArrangedList list;
        list.setSort(Field::Title, true);
        list.setContent(sample.store.records);
        const std::vector<std::uint32_t> heads{0, 0, 2, 0, 4};
        list.setFamilies(ArrangedList::Families{heads, RecordSet(5)});
        QCOMPARE(rows(list), QStringLiteral("4 2 0"));
        QCOMPARE(list.clones(2), 2U);
        QCOMPARE(list.clones(0), 0U);
        // Lookups see what is arranged.
        QCOMPARE(list.find(Field::Title, "x"), std::optional<std::size_t>());
        QCOMPARE(list.rowOf(1), std::optional<std::size_t>());
        list.setFamilies(ArrangedList::Families{heads, chosen(5, {0})});
        QCOMPARE(rows(list), QStringLiteral("4 2 0 1 3"));
        list.setSort(Field::Title, false);
        QCOMPARE(rows(list), QStringLiteral("0 1 3 2 4"));
        list.setFound(Found{chosen(5, {0, 3}), {5, 5, 5, 1, 5}});
        QCOMPARE(rows(list), QStringLiteral("3 0"));
        QCOMPARE(list.clones(0), 0U);
        list.setFound(std::nullopt);
        list.setFamilies(std::nullopt);
        QCOMPARE(list.size(), std::size_t(5));
    }

    void emptyContentEmptiesTheList()
    {
        const SampleRecords sample = titled({"b", "a"});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setContent({});
        QCOMPARE(list.size(), std::size_t(0));
        QCOMPARE(list.rowOf(0), std::optional<std::size_t>());
    }
};

TESSERA_TEST(ArrangedListTest);
#include "arrangedlisttest.moc"
