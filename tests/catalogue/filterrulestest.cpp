#include "catalogue/filterrules.h"
#include "samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using test::SampleRecords;

namespace {

SampleRecords sample()
{
    SampleRecords sample;
    sample.add(
        {"game", "gradius", "nemesis", "Gradius (Japan)", "グラディウス", "1985", "Konami", "good", ""});
    sample.add({"game", "pacman", "puckman", "Pac-Man (Midway)", "パックマン", "1980", "Namco", "good", ""});
    sample.add({"mechanical", "jp", "jp", "Jackpot", "Jackpot", "1980", "Prológica", "preliminary", ""});
    sample.add({"device", "cdr", "cdr", "CD-ROM", test::absent, "", test::absent, "", "cdrom"});
    return sample;
}

QString shown(const SampleRecords& sample, const Predicate& predicate)
{
    QStringList names;
    for (const GameRecord& record : sample.store.records) {
        if (predicate(record))
            names << QString::fromUtf8(record[Field::Name].data(), qsizetype(record[Field::Name].size()));
    }
    return names.join(u' ');
}

} // namespace

/// The filter panel's rows as a predicate, and the maker filter.
class FilterRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachComparisonHolds_data()
    {
        QTest::addColumn<Field>("field");
        QTest::addColumn<Comparison>("comparison");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("names");
        const auto row
            = [](const char* name, Field field, Comparison comparison, const char* value, const char* names) {
                  QTest::newRow(name)
                      << field << comparison << QString::fromUtf8(value) << QString::fromUtf8(names);
              };
        row("is", Field::Year, Comparison::Is, "1980", "pacman jp");
        row("is, whatever its case", Field::Maker, Comparison::Is, "KONAMI", "gradius");
        row("is not all of it", Field::Title, Comparison::Is, "Gradius", "");
        row("is not", Field::Year, Comparison::IsNot, "1980", "gradius cdr");
        row("contains", Field::Title, Comparison::Contains, "ac", "pacman jp");
        row("contains, without accents", Field::Maker, Comparison::Contains, "prologica", "jp");
        row("contains, half width", Field::Titlejp, Comparison::Contains, "ｸﾞﾗﾃﾞｨ", "gradius");
        row("contains, hiragana", Field::Titlejp, Comparison::Contains, "ぱっくまん", "pacman");
        row("does not contain", Field::Title, Comparison::ContainsNot, "(", "jp cdr");
        row("begins", Field::Cloneof, Comparison::BeginsWith, "pu", "pacman");
        row("ends", Field::Title, Comparison::EndsWith, "Midway)", "pacman");
        row("an absent value is nothing", Field::Maker, Comparison::IsNot, "Konami", "pacman jp cdr");
        row("type", Field::Type, Comparison::Is, "device", "cdr");
        row("device", Field::Device, Comparison::Contains, "rom", "cdr");
        row("status", Field::Status, Comparison::BeginsWith, "prelim", "jp");
        row("set name", Field::Name, Comparison::EndsWith, "man", "pacman");
    }

    void eachComparisonHolds()
    {
        QFETCH(Field, field);
        QFETCH(Comparison, comparison);
        QFETCH(QString, value);
        QTEST(shown(sample(), predicateOf({true, {{field, comparison, value}}})), "names");
    }

    void severalRowsHoldAllOrAny()
    {
        const std::vector<FilterRule> rules{{Field::Year, Comparison::Is, QStringLiteral("1980")},
                                            {Field::Maker, Comparison::Is, QStringLiteral("Namco")}};
        QCOMPARE(shown(sample(), predicateOf({true, rules})), QStringLiteral("pacman"));
        QCOMPARE(shown(sample(), predicateOf({false, rules})), QStringLiteral("pacman jp"));
    }

    void noRowsAreNoPredicate()
    {
        QVERIFY(!predicateOf({true, {}}));
        QVERIFY(!predicateOf({false, {}}));
    }

    void theMakerIsComparedExactly_data()
    {
        QTest::addColumn<QString>("maker");
        QTest::addColumn<QString>("names");
        QTest::newRow("exactly") << QStringLiteral("Konami") << QStringLiteral("gradius");
        QTest::newRow("another case") << QStringLiteral("konami") << QString();
        QTest::newRow("a part") << QStringLiteral("Kon") << QString();
        QTest::newRow("an accent") << QStringLiteral("Prológica") << QStringLiteral("jp");
        QTest::newRow("without it") << QStringLiteral("Prologica") << QString();
        QTest::newRow("empty is not absent") << QStringLiteral("") << QString();
    }

    void theMakerIsComparedExactly()
    {
        QFETCH(QString, maker);
        QTEST(shown(sample(), makerIs(maker)), "names");
    }

    void anEmptyMakerIsAMaker()
    {
        SampleRecords records = sample();
        records.add({"game", "nobody", "nobody", "Nobody", "", "", "", "", ""});
        QCOMPARE(shown(records, makerIs(QString())), QStringLiteral("nobody"));
    }
};

TESSERA_TEST(FilterRulesTest);
#include "filterrulestest.moc"
