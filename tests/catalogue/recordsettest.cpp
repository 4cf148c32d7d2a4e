#include "catalogue/recordset.h"

#include "support/testmain.h"

using namespace tessera;

class RecordSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatWasPutIn_data()
    {
        QTest::addColumn<std::size_t>("size");
        for (const std::size_t size : {0, 1, 63, 64, 65, 200})
            QTest::addRow("%zu", size) << size;
    }

    void holdsWhatWasPutIn()
    {
        QFETCH(std::size_t, size);
        RecordSet set(size);
        std::vector<std::uint8_t> bytes(size);
        std::vector<std::uint32_t> expected;
        for (std::uint32_t record = 0; record < size; record += 1 + record % 7) {
            set.insert(record);
            bytes[record] = 1;
            expected.push_back(record);
        }
        QCOMPARE(set.size(), size);
        QCOMPARE(set.count(), expected.size());
        QCOMPARE(set.records(), expected);
        QVERIFY(set == RecordSet::of(bytes));
        for (const std::uint32_t record : expected) {
            QVERIFY(set.contains(record));
            set.remove(record);
            QVERIFY(!set.contains(record));
        }
        QVERIFY(set == RecordSet(size));
    }

    void allIsAll_data() { holdsWhatWasPutIn_data(); }

    void allIsAll()
    {
        QFETCH(std::size_t, size);
        const RecordSet all = RecordSet::all(size);
        QCOMPARE(all.count(), size);
        QVERIFY(all == RecordSet::of(std::vector<std::uint8_t>(size, 1)));
    }

    void whatIsOutsideIsNotIn_data() { holdsWhatWasPutIn_data(); }

    void whatIsOutsideIsNotIn()
    {
        QFETCH(std::size_t, size);
        for (const std::size_t record : {size, size + 1, size + 64})
            QVERIFY(!RecordSet::all(size).contains(static_cast<std::uint32_t>(record)));
    }
};

TESSERA_TEST(RecordSetTest);
#include "recordsettest.moc"
