#include "catalogue/lookup.h"

#include "samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

namespace {

QStringList names(const LookupResult& result)
{
    QStringList all;
    for (const RecordDictionary& record : result.found)
        all << record.value(QStringLiteral("name"));
    return all;
}

} // namespace

class LookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreFoundInTheirOrder_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<QStringList>("notFound");
        const auto row = [](const char* name, const char* values, const char* found, const char* notFound) {
            const auto list
                = [](const char* text) { return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts); };
            QTest::newRow(name) << list(values) << list(found) << list(notFound);
        };
        row("nothing asked", "", "", "");
        row("one", "pong", "pong", "");
        row("in the order of the question", "puckman pong 005", "puckman pong 005", "");
        row("twice", "pong 005 pong", "pong 005 pong", "");
        row("missing", "pong none 005 other none", "pong 005", "none other none");
        row("case counts", "Pong PONG pong", "pong", "Pong PONG");
        row("whole values only", "pon pongs", "", "pon pongs");
        row("many", "a 005 b pong c puckman d none pong e", "005 pong puckman pong", "a b c d none e");
    }
    void valuesAreFoundInTheirOrder()
    {
        QFETCH(QStringList, values);
        QFETCH(QStringList, found);
        QFETCH(QStringList, notFound);
        SampleRecords sample;
        for (const char* name : {"puckman", "005", "pong"})
            sample.addNamed(name);
        ArrangedList list;
        list.setContent(sample.store.records);
        const LookupResult result = lookUp(list, Field::Name, values);
        QCOMPARE(names(result), found);
        QCOMPARE(result.notFound, notFound);
    }

    void hiddenRecordsAreNotFound()
    {
        SampleRecords sample;
        sample.addNamed("pong");
        sample.addNamed("puckman");
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setPredicate([](const GameRecord& record) { return record[Field::Name] != "pong"; });
        const LookupResult result
            = lookUp(list, Field::Name, {QStringLiteral("pong"), QStringLiteral("puckman")});
        QCOMPARE(names(result), QStringList(QStringLiteral("puckman")));
        QCOMPARE(result.notFound, QStringList(QStringLiteral("pong")));
    }

    void firstOfEqualValuesIsTheTablesFirst_data()
    {
        QTest::addColumn<int>("questions"); // few are looked for one by one, many through an index
        QTest::newRow("few") << 1;
        QTest::newRow("many") << 100;
    }
    void firstOfEqualValuesIsTheTablesFirst()
    {
        QFETCH(int, questions);
        SampleRecords sample;
        sample.add({"game", "a", "p", "", "", "1980", "", "", ""});
        sample.add({"game", "c", "p", "", "", "1980", "", "", ""});
        sample.add({"game", "b", "p", "", "", "1980", "", "", ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        list.setSort(Field::Name, false);
        const LookupResult result = lookUp(list, Field::Year, QStringList(questions, QStringLiteral("1980")));
        QCOMPARE(names(result), QStringList(questions, QStringLiteral("c")));
    }

    void absentValuesAreNotFoundAsEmptyOnes_data() { firstOfEqualValuesIsTheTablesFirst_data(); }
    void absentValuesAreNotFoundAsEmptyOnes()
    {
        QFETCH(int, questions);
        SampleRecords sample;
        sample.add({"game", "a", absent, "", "", "", "", "", ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        const QStringList empty(questions, QString());
        QCOMPARE(lookUp(list, Field::Cloneof, empty).notFound, empty);
        QCOMPARE(lookUp(list, Field::Device, empty).found.size(), questions);
    }

    void valuesOutsideAsciiAreFound()
    {
        SampleRecords sample;
        sample.add({"game", "pong", "pong", "Pong", "ポン", "", "", "", ""});
        ArrangedList list;
        list.setContent(sample.store.records);
        QCOMPARE(names(lookUp(list, Field::Titlejp, {QStringLiteral("ポン")})),
                 QStringList(QStringLiteral("pong")));
    }

    void answerHoldsAllNineKeys()
    {
        SampleRecords sample;
        sample.addNamed("pong");
        ArrangedList list;
        list.setContent(sample.store.records);
        QCOMPARE(lookUp(list, Field::Name, {QStringLiteral("pong")}).found.first().size(), 9);
    }
};

TESSERA_TEST(LookupTest);
#include "lookuptest.moc"
