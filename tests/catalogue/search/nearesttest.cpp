#include "catalogue/search/gamesearch.h"

#include "catalogue/samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

/// What is shown where nobody has what was typed.
class NearestTest : public QObject
{
    Q_OBJECT

    SampleRecords m_sample;
    std::optional<GameSearch> m_search;

    void add(const char* name, const char* title, const char* titlejp = nullptr, const char* maker = "Maker",
             const char* year = "1985", const char* type = "game", const char* cloneof = nullptr)
    {
        m_sample.add({type, name, cloneof ? cloneof : name, title, titlejp ? titlejp : title, year, maker,
                      "good", ""});
    }

    GameSearch& search()
    {
        if (!m_search) {
            m_search.emplace(m_sample.store.records);
            m_search->take(SearchTexts::fold(m_search->unfolded()));
        }
        return *m_search;
    }

    QString nearest(const QString& query)
    {
        const auto found = search().findNearest(Query(query));
        if (!found)
            return {};
        std::vector<std::uint32_t> records = found->records.records();
        std::ranges::sort(records, {},
                          [&](std::uint32_t each) { return std::pair(found->ranks[each], each); });
        QStringList names;
        for (const std::uint32_t record : records)
            names << fieldTextOf(record);
        return names.join(u' ');
    }

    QString fieldTextOf(std::uint32_t record) const
    {
        return QString::fromStdString(std::string(m_sample.store.records[record][Field::Name]));
    }

private Q_SLOTS:
    void init()
    {
        m_sample = {};
        m_search.reset();
    }

    void aMisspeltTitleIsTheNearest_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("names");
        const auto row = [](const char* query, const char* names) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(names);
        };
        row("zephyrs", "zephyr zephyr2"); // one too many
        row("zephr", "zephyr zephyr2"); // one missing
        row("zefhyr", "zephyr zephyr2"); // another one
        row("zehpyr", "zephyr zephyr2"); // two swapped
        row("crimsn blade", "blade"); // in one of two words
        row("crmson bladee", "blade"); // in both
        row("blaed crimson", "blade"); // in any order
        row("crimsonblaed", "blade"); // written as one
        row("crim sonblaed", "blade"); // parted elsewhere
        row("zephyyr 2", "zephyr2"); // numerals are all alike
        row("zephyyr ii", "zephyr2");
        row("zephyyr orion", "zephyr2"); // beside a word of the maker
        row("zephyyr 1987", "zephyr2"); // and the year
        row("crimsno bla", "blade"); // half typed
        row("crimson - blaed", "blade"); // beside a dash
        row("ゆうざれる", "yuuzame"); // kana
        row("yuzaneru", "yuuzame"); // romaji
        // As many slips as the word may have.
        row("zephyr3x", "zephyr zephyr2");
        row("zepppyyr", "");
        row("orb", ""); // too short for any
        row("crimsonn 7", "");
        row("orino", ""); // of the maker alone
        row("\"crimsno blade\"", ""); // in quotation marks
        row("紅之剣客", "");
        row("one two three four five six seven eight nine zephyyr", "");
    }

    void aMisspeltTitleIsTheNearest()
    {
        QFETCH(QString, query);
        QFETCH(QString, names);
        add("zephyr", "Zephyr (World)");
        add("zephyr2", "Zephyr II (World)", nullptr, "Orion", "1987");
        add("blade", "The Crimson Blade (set 1)", "紅之剣士");
        add("yuuzame", "Dusk Shark", "ゆうざめる");
        add("orc", "Orc");
        QCOMPARE(nearest(query), names);
    }

    void aSlipMakesNoDigit()
    {
        add("zephyr", "Zephyr (World)", nullptr, "Maker", "1985", "game", "other");
        add("zephyr3", "Zephyr III (World)");
        QCOMPARE(nearest(QStringLiteral("zephyrr")), QStringLiteral("zephyr zephyr3"));
    }

    void aNameThatLooksAlikeTellsLessThanATitle()
    {
        add("zephyrx", "Stone Age");
        add("storm", "Zephyrs (World)", nullptr, "Maker", "1990");
        add("zephyrt", "Zephyrs (Tropical)", nullptr, "Maker", "1995");
        QCOMPARE(nearest(QStringLiteral("zephyrw")).section(u' ', 0, 0), QStringLiteral("zephyrt"));
    }

    void fewerSlipsComeFirst()
    {
        add("begun", "Zephyrus");
        add("near", "Zephyr");
        add("far", "Zeppelin");
        QCOMPARE(nearest(QStringLiteral("zephyyr")), QStringLiteral("near begun"));
    }

    void whatNobodyAskedForComesLater()
    {
        add("sequel", "Zephyr Attack Again");
        add("part", "Zephyr Attack - Special Edition");
        QCOMPARE(nearest(QStringLiteral("zephyr atack")), QStringLiteral("part sequel"));
    }

    void theSetNameThatIsMeantComesFirst()
    {
        add("other", "Zephyr (Other Board)");
        add("parent", "Storm", "Storm");
        add("zephyr", "Zephyr (Japan)", nullptr, "Maker", "1985", "game", "parent");
        QCOMPARE(nearest(QStringLiteral("zephyyr")), QStringLiteral("zephyr other"));
    }

    void equallyNearOnesAreOrderedLikeOthers()
    {
        add("gadget", "Zephyr", nullptr, "Maker", "1985", "device");
        add("machine", "Zephyr");
        QCOMPARE(nearest(QStringLiteral("zephyyr")), QStringLiteral("machine gadget"));
    }

    // What the other terms hide is not missing.
    void wordsThatSomeRecordHasAreNotMisspelt()
    {
        add("zephyr", "Zephyr");
        add("zephyrs", "Zephyrs");
        QCOMPARE(nearest(QStringLiteral("zephyrs year:1999")), QString());
        QCOMPARE(nearest(QStringLiteral("zephyrs -zephyrs")), QString());
        QVERIFY(!search().findNearest(Query(QStringLiteral("year:1999"))));
        QVERIFY(!search().findNearest(Query()));
    }

    void otherTermsHold()
    {
        add("one", "Zephyr (World)", nullptr, "Orion", "1985");
        add("two", "Zephyr (Japan)", nullptr, "Vega", "1991");
        QCOMPARE(nearest(QStringLiteral("zephyyr year:1991")), QStringLiteral("two"));
        QCOMPARE(nearest(QStringLiteral("zephyyr maker:orion")), QStringLiteral("one"));
        QCOMPARE(nearest(QStringLiteral("zephyyr -world")), QStringLiteral("two"));
        QCOMPARE(nearest(QStringLiteral("zephyyr year:1970")), QString());
    }

    void editsAreFollowed()
    {
        add("one", "Zephyr");
        add("two", "Tempest");
        QCOMPARE(nearest(QStringLiteral("tempset")), QStringLiteral("two"));
        search().remove(1);
        QCOMPARE(nearest(QStringLiteral("tempset")), QString());
        GameRecord now = m_sample.store.records[0];
        now[Field::Title] = "Tempest";
        search().replace(0, now);
        QCOMPARE(nearest(QStringLiteral("tempset")), QStringLiteral("one"));
    }

    void nothingIsNearBeforeTheTextsArePrepared()
    {
        add("one", "Zephyr");
        const GameSearch unprepared(m_sample.store.records);
        QVERIFY(!unprepared.findNearest(Query(QStringLiteral("zephyyr"))));
    }
};

TESSERA_TEST(NearestTest);
#include "nearesttest.moc"
