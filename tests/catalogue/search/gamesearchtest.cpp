#include "catalogue/search/gamesearch.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/samplerecords.h"
#include "catalogue/search/hiddenset.h"
#include "plainsearch.h"
#include "support/testmain.h"

#include <future>

using namespace tessera;
using namespace tessera::test;

namespace {

// clang-format off
SampleRecords sampleGames()
{
    SampleRecords sample;
    sample.add({"game", "pacman",   "puckman",  "Pac-Man (Midway)",          "パックマン (Midway)",     "1980", "Namco (Midway license)", "good",        ""});
    sample.add({"game", "puckman",  "puckman",  "Puck Man (Japan set 1)",    "パックマン (日本版 set 1)", "1980", "Namco",                  "good",        ""});
    sample.add({"game", "mspacman", "mspacman", "Ms. Pac-Man",               "ミズ・パックマン",        "1981", "Midway / General Computer", "good",     ""});
    sample.add({"game", "gradius",  "nemesis",  "Gradius (Japan)",           "グラディウス",            "1985", "Konami",                 "good",        ""});
    sample.add({"game", "nemesis",  "nemesis",  "Nemesis (ROM version)",     "Nemesis (ROM version)",   "1985", "Konami",                 "imperfect",   ""});
    sample.add({"game", "gradius3", "gradius3", "Gradius III (World)",       "グラディウスIII -伝説から神話へ", "1989?", "Konami",       "preliminary", ""});
    sample.add({"bios", "neogeo",   "neogeo",   "Neo-Geo MV-6F",             "Neo-Geo MV-6F",           "1990", "SNK",                    "good",        "memcard"});
    sample.add({"mechanical", "jp", "jp",       "Jackpot (£5, Prológica)",   "Jackpot (£5, Prológica)", "198?", "Prológica",              "preliminary", ""});
    sample.add({"device", "cdr",    "cdr",      "CD-ROM Drive",              "CD-ROM Drive",            "????", "????",                   "????",        "cdrom"});
    sample.add({"game", "pacmanb",  "puckman",  "Pac-Man (bootleg)",         "Pac-Man (bootleg)",       "1981", "bootleg",                "good",        ""});
    sample.add({"game", "robo",     "robo",     "Robo Wres 2001",            "ロボ",                    "198?", "Sega",                   "good",        "floppydisk"});
    sample.add({"game", "roadfu",   "roadfu",   "Road Fighter",              "ロードファイター",        "1984", "Konami",                 "good",        ""});
    return sample;
}

// Worse fits for "pong" and "ポン" stand before better ones.
SampleRecords samplePongs()
{
    SampleRecords sample;
    const auto add = [&](const char* name, const char* title, const char* titlejp, const char* maker) {
        sample.add({"game", name, name, title, titlejp, "1972", maker, "good", ""});
    };
    add("inside", "Spongy",             "スポンジ",       "Atari");
    add("maker",  "Tennis",             "Tennis",         "Pong Inc");
    add("begins", "Super Pong (set 1)", "スーパー ポン",  "Atari");
    add("proper", "Pong (rev E)",       "ポン (改)",      "Atari");
    add("whole",  "PONG",               "ポン",           "Atari");
    add("pong",   "Arcade Classic",     "Arcade Classic", "Atari");
    return sample;
}

SampleRecords sampleSupers()
{
    SampleRecords sample;
    const auto add = [&](const char* name, const char* title, const char* titlejp) {
        sample.add({"game", name, name, title, titlejp, "1972", "Atari", "good", ""});
    };
    add("spong",  "Super Tennis",       "スーパーテニスポン"); // one of the words begins none
    add("after",  "Pong Super",         "ポン スーパー");
    add("longer", "Super Pongo",        "スーパー ポンゴ");
    add("super",  "Big Pong",           "Big Pong"); // one of the words is the set name
    add("proper", "Super Pong (set 2)", "スーパー ポン (改)");
    add("whole",  "Super Pong",         "スーパー ポン");
    return sample;
}

// clang-format on

GameSearch prepared(const SampleRecords& sample)
{
    GameSearch search(sample.store.records);
    search.take(SearchTexts::fold(search.unfolded()));
    return search;
}

QString names(const SampleRecords& sample, const std::vector<std::uint32_t>& records)
{
    QStringList list;
    for (const std::uint32_t record : records) {
        const std::string_view name = sample.store.records[record][Field::Name];
        list << QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    }
    return list.join(u' ');
}

QString found(const SampleRecords& sample, const GameSearch& search, const QString& query)
{
    return names(sample, search.find(Query(query)).records.records());
}

// In the order of their ranks, ties in the order of the content.
QString ranked(const SampleRecords& sample, const GameSearch& search, const QString& query)
{
    const Found found = search.find(Query(query));
    std::vector<std::uint32_t> records = found.records.records();
    if (!found.ranks.empty())
        std::ranges::sort(records, {},
                          [&](std::uint32_t record) { return std::pair(found.ranks[record], record); });
    return names(sample, records);
}

} // namespace

class GameSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void termsFindRecords_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("names");
        const auto row = [](const char* query, const char* found) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(found);
        };
        row("gradius", "gradius gradius3");
        row("RADIUS", "gradius gradius3");
        row("world gradius", "gradius3");
        row("konami 1985", "gradius nemesis");
        row("nowhere", "");
        row("グラディウス", "gradius gradius3");
        row("ｸﾞﾗﾃﾞｨｳｽ", "gradius gradius3");
        row("ぐらでぃうす 神話", "gradius3");
        row("guradi", "gradius gradius3");
        row("guradi world", "gradius3");
        row("pakkuman", "pacman puckman mspacman");
        row("roodofaitaa", "roadfu");
        row("ロドファイタ", "roadfu");
        row("ミズパックマン", "mspacman");
        row("ミズ・パックマン", "mspacman");
        row("prologica", "jp");
        row("PROLÓGICA", "jp");
        row("pac -bootleg", "pacman mspacman");
        row("pac -midway", "pacmanb");
        row("-konami -pac type:game", "puckman robo");
        row("maker:namco", "pacman puckman");
        row("maker:midway", "pacman mspacman");
        row("-maker:konami type:game status:good year:1980-1984", "pacman puckman mspacman pacmanb");
        row("maker:\"general computer\"", "mspacman");
        row("maker:\"general comp\"", "");
        row("maker:\"general comp", "mspacman");
        row("maker:gradius", "");
        row("title:gradius", "gradius gradius3");
        row("title:グラディウス", "gradius gradius3");
        row("title:guradi", "gradius gradius3");
        row("title:\"road fighter\"", "roadfu");
        row("title:\"road fight\"", "");
        row("title:roadfighter", "roadfu");
        row("title:3", "gradius3");
        row("title:konami", "");
        row("title:puckman", "puckman");
        row("-title:pac maker:midway", "");
        row("-title:gradius konami", "nemesis roadfu");
        row("name:gradius", "gradius gradius3");
        row("name:RADIUS", "gradius gradius3");
        row("name:fu", "roadfu");
        row("name:fighter", "");
        row("name:puck", "puckman");
        row("-name:pac title:pac", "");
        row("name:\"gradius\"", "gradius");
        row("parent:puckman", "pacman puckman pacmanb");
        row("parent:PuckMan", "pacman puckman pacmanb");
        row("parent:\"puckman\"", "pacman puckman pacmanb");
        row("parent:pacman", "pacman");
        row("parent:nemesis", "gradius nemesis");
        row("parent:puck", "");
        row("-parent:puckman namco", "");
        row("-parent:nemesis konami", "gradius3 roadfu");
        row("year:1985", "gradius nemesis");
        row("year:85", "gradius nemesis");
        row("year:80s -pac", "puckman gradius nemesis gradius3 jp robo roadfu");
        row("year:1985-1989", "gradius nemesis gradius3");
        row("year:1989-", "gradius3 neogeo");
        row("year:-1980", "pacman puckman");
        row("year:1980-1989", "pacman puckman mspacman gradius nemesis gradius3 jp pacmanb robo roadfu");
        row("year:198?", "pacman puckman mspacman gradius nemesis gradius3 jp pacmanb robo roadfu");
        row("year:1985-1995", "gradius nemesis gradius3 neogeo");
        row("-year:1000-", "cdr");
        row("status:good", "pacman puckman mspacman gradius neogeo pacmanb robo roadfu");
        row("status:imperfect", "nemesis");
        row("status:working konami", "gradius nemesis roadfu");
        row("-status:working", "gradius3 jp cdr");
        row("status:preliminary", "gradius3 jp");
        row("type:bios", "neogeo");
        row("type:device", "cdr");
        row("type:mechanical", "jp");
        row("clone:yes", "pacman gradius pacmanb");
        row("clone:no konami", "nemesis gradius3 roadfu");
        row("-clone:no konami", "gradius");
        row("device:cdrom", "cdr");
        row("device:disk", "robo");
        row("device:\"disk\"", "");
        row("-device:cdrom type:device", "");
        row("\"road fighter\"", "roadfu");
        row("\"road fight\"", "");
        row("\"road fight", "roadfu");
        row("\"oad fighter\"", "");
        row("\"fighter road\"", "");
        row("\"man\"", "pacman puckman mspacman pacmanb");
        row("-\"man\" namco", "");
        row("\"グラディウス\"", "gradius gradius3");
        row("\"グラディ\"", "");
        row("\"神話\"", "gradius3");
        row("\"guradiusu\"", "gradius gradius3");
        row("\"guradi\"", "");
        // What is wrong takes nothing from the rest.
        row("gradius foo:bar", "gradius gradius3");
        row("gradius status:bad", "gradius gradius3");
        row("gradius maker:", "gradius gradius3");
        row("memcard", "");
    }

    void termsFindRecords()
    {
        QFETCH(QString, query);
        const SampleRecords sample = sampleGames();
        const GameSearch search = prepared(sample);
        QTEST(found(sample, search, query), "names");
    }

    // Titles are written with it, with a blank, and as one.
    void aDotBetweenWordsPartsOrJoinsThem_data()
    {
        QTest::addColumn<QString>("query");
        for (const char* query : {"ディグ・ダグ", "ディグ･ダグ", "ディグダグ", "ディグ ダグ", "ﾃﾞｨｸﾞ･ﾀﾞｸﾞ",
                                  "でぃぐ・だぐ", "title:ディグ・ダグ"})
            QTest::newRow(query) << QString::fromUtf8(query);
    }

    void aDotBetweenWordsPartsOrJoinsThem()
    {
        QFETCH(QString, query);
        SampleRecords sample;
        const auto add = [&](const char* name, const char* titlejp) {
            sample.add({"game", name, name, "Excavator", titlejp, "1982", "Namco", "good", ""});
        };
        add("dotted", "ディグ・ダグ");
        add("joined", "ディグダグ");
        add("parted", "ディグ ダグ");
        add("longer", "スーパーディグ・ダグ");
        add("other", "ディグ");
        QCOMPARE(found(sample, prepared(sample), query), QStringLiteral("dotted joined parted longer"));
        QVERIFY(ranked(sample, prepared(sample), query).endsWith(QStringLiteral("longer")));
    }

    void aParentThatIsMissingStillHasItsClones()
    {
        SampleRecords sample;
        sample.add({"game", "orphan", "gone", "Orphan", "Orphan", "1985", "Atari", "good", ""});
        sample.add({"game", "gone2", "gone2", "Gone", "Gone", "1985", "Atari", "good", ""});
        QCOMPARE(found(sample, prepared(sample), QStringLiteral("parent:gone")), QStringLiteral("orphan"));
    }

    void aSetNameThatIsTypedAndHiddenIsNamed_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("hidden"); // the set, and the term that hides it
        const auto row = [](const char* query, const char* hidden) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(hidden);
        };
        row("gradius -japan", "gradius -japan");
        row("-japan GRADIUS", "gradius -japan");
        row("pac man -midway", "pacman -midway");
        row("gradius -world -maker:konami", "gradius -maker:konami");
        row("gradius -\"gradius japan\" -status:good", "gradius -status:good");
        row("gradius maker:konami -japan", "gradius -japan");
        // It is not typed, not there, or not hidden.
        row("gradiu -japan", "");
        row("-japan", "");
        row("gradius", "");
        row("gradius -world", "");
        row("gradius -", "");
        row("\"pac man\" -midway", "");
        // Without the term it would not be found either.
        row("gradius maker:sega -japan", "");
        row("gradius status:bad -japan", "gradius -japan");
    }

    void aSetNameThatIsTypedAndHiddenIsNamed()
    {
        QFETCH(QString, query);
        SampleRecords sample;
        sample.add(
            {"game", "gradius", "nemesis", "Gradius (Japan)", "グラディウス", "1985", "Konami", "good", ""});
        sample.add({"game", "gradius3", "gradius3", "Gradius III (World)", "", "1989", "Konami", "good", ""});
        sample.add(
            {"game", "pacman", "puckman", "Pac-Man (Midway)", "パックマン", "1980", "Midway", "good", ""});
        GameSearch search(sample.store.records);
        search.take(SearchTexts::fold(search.unfolded()));
        const Query asked(query);
        const std::optional<HiddenSet> found = hiddenSet(search, asked);
        QString hidden;
        if (found)
            hidden = fieldText(sample.store.records[found->record][Field::Name]) + u' '
                + query.sliced(found->by->begin, found->by->size);
        QTEST(hidden, "hidden");
    }

    void anEmptyQueryFindsEverything()
    {
        const SampleRecords sample = sampleGames();
        const Found found = prepared(sample).find(Query());
        QCOMPARE(found.records.count(), sample.store.records.size());
        QVERIFY(found.ranks.empty());
    }

    // What is pasted is no search, but shall not stand in its way.
    void aPageOfTheSameWordIsSearchedOnce()
    {
        const SampleRecords sample = samplePongs();
        const GameSearch search = prepared(sample);
        const QString page = QStringLiteral("pong ").repeated(200);
        QCOMPARE(search.find(Query(page)).records.records(), search.find(Query(u"pong")).records.records());
        QCOMPARE(search.find(Query(QString(page + u"-pong"))).records.count(), std::size_t(0));
    }

    void theBestFitComesFirst_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("names");
        const auto row = [](const char* query, const char* found) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(found);
        };
        row("pong", "pong proper whole begins maker inside");
        row("PONG", "pong proper whole begins maker inside");
        row("\"pong\"", "pong proper whole begins maker");
        row("ong", "inside begins proper whole maker pong");
        row("ポン", "proper whole begins inside");
        row("ﾎﾟﾝ", "proper whole begins inside");
        row("ぽん", "proper whole begins inside");
        row("\"ポン\"", "proper whole begins");
        // The reading of a title is a title too.
        row("pon", "proper whole pong begins maker inside");
        row("atari", "inside begins proper whole pong");
        // Only words rank.
        row("year:1972 -tennis", "inside begins proper whole pong");
        row("year:1972 -tennis pong", "pong proper whole begins inside");
        // A text of one field ranks like a word.
        row("title:pong", "proper whole begins inside");
        row("title:ポン", "proper whole begins inside");
        row("name:pong", "pong");
        row("name:in", "inside begins");
        row("title:pong super", "begins");
        row("title:pong atari", "proper whole begins inside");
    }

    void theBestFitComesFirst()
    {
        QFETCH(QString, query);
        const SampleRecords sample = samplePongs();
        QTEST(ranked(sample, prepared(sample), query), "names");
    }

    void theWorstOfSeveralWordsCounts_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("names");
        const auto row = [](const char* query, const char* found) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(found);
        };
        row("super pong", "proper whole after longer super spong");
        row("pong super", "after proper whole super longer spong");
        row("\"super pong\"", "proper whole");
        row("スーパー ポン", "proper whole after longer spong");
        row("ポン スーパー", "after proper whole longer spong");
        row("suupaa pon", "proper whole longer after spong");
        row("super ポン", "longer after proper whole spong");
    }

    void theWorstOfSeveralWordsCounts()
    {
        QFETCH(QString, query);
        const SampleRecords sample = sampleSupers();
        QTEST(ranked(sample, prepared(sample), query), "names");
    }

    void englishIsFoundBeforeTheSecondStep()
    {
        const SampleRecords sample = sampleGames();
        GameSearch search(sample.store.records);
        QCOMPARE(ranked(sample, search, QStringLiteral("gradius")), QStringLiteral("gradius gradius3"));
        QCOMPARE(found(sample, search, QStringLiteral("jackpot")), QStringLiteral("jp"));
        QCOMPARE(found(sample, search, QStringLiteral("guradi")), QString());
        auto folded = std::async(std::launch::async,
                                 [unfolded = search.unfolded()] { return SearchTexts::fold(unfolded); });
        search.take(folded.get());
        QCOMPARE(ranked(sample, search, QStringLiteral("gradius")), QStringLiteral("gradius gradius3"));
        QCOMPARE(found(sample, search, QStringLiteral("guradi")), QStringLiteral("gradius gradius3"));
        QCOMPARE(found(sample, search, QStringLiteral("prologica")), QStringLiteral("jp"));
    }

    void anEditIsFoundBeforeAndAfterTheSecondStep_data()
    {
        QTest::addColumn<int>("stepsBefore");
        QTest::newRow("before it is asked for") << 0;
        QTest::newRow("while it works") << 1;
        QTest::newRow("afterwards") << 2;
    }

    void anEditIsFoundBeforeAndAfterTheSecondStep()
    {
        QFETCH(int, stepsBefore);
        const SampleRecords sample = sampleGames();
        GameSearch search(sample.store.records);
        UnfoldedTexts unfolded;
        for (int step = 0; step < 3; ++step) {
            if (step == stepsBefore) {
                GameRecord edited = sample.store.records[3];
                edited[Field::Titlejp] = "ドゥーム";
                edited[Field::Maker] = "Atari";
                edited[Field::Type] = "bios";
                search.replace(3, edited);
                edited[Field::Title] = "Saturn";
                search.replace(3, edited);
            }
            if (step == 0)
                unfolded = search.unfolded();
            if (step == 1)
                search.take(SearchTexts::fold(unfolded));
        }
        const auto finds = [&](const char* query) { return found(sample, search, QString::fromUtf8(query)); };
        QCOMPARE(finds("saturn"), QStringLiteral("gradius"));
        QCOMPARE(finds("ドーゥム"), QStringLiteral("gradius"));
        QCOMPARE(finds("dumu"), QStringLiteral("gradius"));
        QCOMPARE(finds("maker:atari"), QStringLiteral("gradius"));
        QCOMPARE(finds("type:bios"), QStringLiteral("gradius neogeo"));
        QCOMPARE(finds("guradi"), QStringLiteral("gradius3"));
        QCOMPARE(finds("グラディウス"), QStringLiteral("gradius3"));
        QCOMPARE(finds("gradius japan"), QString());
        QCOMPARE(finds("prologica"), QStringLiteral("jp"));
    }

    // A search that was edited finds what one made anew finds, whenever the second step came.
    void editsAreLikeStartingAnew()
    {
        const SampleRecords sample = randomGames();
        RandomTexts random;
        for (int round = 0; round < 30; ++round) {
            std::vector<GameRecord> records(sample.store.records.begin(), sample.store.records.begin() + 40);
            GameSearch search(records);
            const int asked = random.number(30);
            const int taken = asked + random.number(10);
            UnfoldedTexts unfolded;
            for (int edit = 0; edit < 50; ++edit) {
                if (edit == asked)
                    unfolded = search.unfolded();
                if (edit == taken)
                    search.take(SearchTexts::fold(unfolded));
                const auto at = static_cast<std::uint32_t>(random.number(static_cast<int>(records.size())));
                const GameRecord& other = sample.store.records[static_cast<std::size_t>(random.number(300))];
                switch (random.number(3)) {
                case 0:
                    records[at] = other;
                    search.replace(at, other);
                    break;
                case 1:
                    records.erase(records.begin() + at);
                    search.remove(at);
                    break;
                default:
                    records.insert(records.begin() + at, other);
                    search.insert(at, other);
                }
            }
            GameSearch anew(records);
            anew.take(SearchTexts::fold(anew.unfolded()));
            for (int i = 0; i < 40; ++i) {
                const Query query(randomQuery(random));
                QVERIFY(search.find(query).records == anew.find(query).records);
                QVERIFY(search.find(query).ranks == anew.find(query).ranks);
            }
            QCOMPARE(search.chipCounts(), anew.chipCounts());
        }
    }

    void haveAsksTheRomFolders()
    {
        const SampleRecords sample = sampleGames();
        GameSearch search = prepared(sample);
        QCOMPARE(found(sample, search, QStringLiteral("have:yes")), QString());
        QCOMPARE(found(sample, search, QStringLiteral("gradius have:no")),
                 QStringLiteral("gradius gradius3"));
        std::vector<Have> haves(sample.store.records.size(), Have::Missing);
        haves[3] = Have::InParent;
        haves[4] = Have::Here;
        search.setHaves(haves);
        QCOMPARE(found(sample, search, QStringLiteral("have:yes")), QStringLiteral("gradius nemesis"));
        QCOMPARE(found(sample, search, QStringLiteral("have:own")), QStringLiteral("nemesis"));
        QCOMPARE(found(sample, search, QStringLiteral("have:parent")), QStringLiteral("gradius"));
        QCOMPARE(found(sample, search, QStringLiteral("konami have:no")), QStringLiteral("gradius3 roadfu"));
        QCOMPARE(found(sample, search, QStringLiteral("konami -have:yes")),
                 QStringLiteral("gradius3 roadfu"));
    }

    void chipsFilterAndCount()
    {
        const SampleRecords sample = sampleGames();
        GameSearch search = prepared(sample);
        std::vector<Have> haves(sample.store.records.size(), Have::Missing);
        haves[3] = Have::InParent;
        haves[8] = Have::Here;
        search.setHaves(haves);
        const auto shown = [&](Chip chip) { return names(sample, search.find({}, chip).records.records()); };
        QCOMPARE(shown(Chip::HaveRom), QStringLiteral("gradius cdr"));
        QCOMPARE(shown(Chip::Games),
                 QStringLiteral("pacman puckman mspacman gradius nemesis gradius3 pacmanb robo roadfu"));
        QCOMPARE(shown(Chip::Working),
                 QStringLiteral("pacman puckman mspacman gradius neogeo pacmanb robo roadfu"));
        QCOMPARE(shown(Chip::Playable),
                 QStringLiteral("pacman puckman mspacman gradius nemesis neogeo pacmanb robo roadfu"));
        QCOMPARE(shown(Chip::Parents),
                 QStringLiteral("puckman mspacman nemesis gradius3 neogeo jp cdr robo roadfu"));
        QCOMPARE(shown(Chip::Bios), QStringLiteral("neogeo"));

        const ChipCounts counts = search.chipCounts();
        for (std::size_t i = 0; i < chips.size(); ++i)
            QCOMPARE(counts[i], search.find({}, chips[i].chip).records.count());
        const RecordSet konami = search.find(Query(u"maker:konami")).records;
        QCOMPARE(search.chipCounts(&konami), (ChipCounts{4, 4, 1, 2, 3, 3, 0, 0}));
    }

    void theFavouritesChipFollowsTheirNames()
    {
        const SampleRecords sample = sampleGames();
        GameSearch search = prepared(sample);
        const auto shown = [&] { return names(sample, search.find({}, Chip::Favorites).records.records()); };
        QCOMPARE(shown(), QString());
        search.setFavourites({"robo", "cdr", "notthere", ""}, sample.store.records);
        QCOMPARE(shown(), QStringLiteral("cdr robo"));
        QCOMPARE(search.chipCounts().back(), std::size_t(2));
        GameRecord renamed = sample.store.records[8];
        renamed[Field::Name] = "other";
        search.replace(8, renamed);
        QCOMPARE(shown(), QStringLiteral("robo"));
        search.replace(8, sample.store.records[8]);
        QCOMPARE(shown(), QStringLiteral("cdr robo"));
        search.setFavourites({}, sample.store.records);
        QCOMPARE(shown(), QString());
    }

    void chipAndQueryAndFilterAllCount()
    {
        const SampleRecords sample = sampleGames();
        const GameSearch search = prepared(sample);
        RecordSet within(sample.store.records.size());
        for (const std::uint32_t record : {0U, 3U, 5U, 9U})
            within.insert(record);
        QCOMPARE(names(sample, search.find(Query(u"gradius"), Chip::Parents, &within).records.records()),
                 QStringLiteral("gradius3"));
        QCOMPARE(names(sample, search.find(Query(), Chip::Working, &within).records.records()),
                 QStringLiteral("pacman gradius pacmanb"));
    }

    void recordsWithoutValuesDoNoHarm()
    {
        SampleRecords sample;
        sample.add({absent, absent, absent, absent, absent, absent, absent, absent, absent});
        sample.add({"", "", "", "", "", "", "", "", ""});
        sample.add({"game", "a", "a", "\x01\x02", "\x03ポン\x05", "1980\n", "\t", "good", "\x01"});
        const GameSearch search = prepared(sample);
        QCOMPARE(search.find(Query(u"ポン")).records.records(), std::vector<std::uint32_t>{2});
        QCOMPARE(search.find(Query(u"-a")).records.records(), (std::vector<std::uint32_t>{0, 1}));
        QCOMPARE(search.find(Query(u"clone:no")).records.count(), std::size_t(3));
        QCOMPARE(GameSearch().find(Query(u"x")).records.count(), std::size_t(0));
    }

    // Against the rules told plainly, over records and queries of all kinds.
    void everySearchIsWhatTheRulesSay()
    {
        const SampleRecords sample = randomGames();
        const std::vector<GameRecord>& records = sample.store.records;
        GameSearch search = prepared(sample);
        RandomTexts random;
        std::vector<Have> haves;
        haves.reserve(records.size());
        for (std::size_t i = 0; i < records.size(); ++i)
            haves.push_back(Have(random.number(3)));
        search.setHaves(haves);
        std::vector<PlainSearch> plain(records.begin(), records.end());

        std::size_t hits = 0;
        for (int i = 0; i < 1500; ++i) {
            const QString text = randomQuery(random);
            const Query query(text);
            const Found found = search.find(query);
            std::vector<std::pair<Order, std::uint32_t>> ranks;
            for (std::uint32_t record = 0; record < records.size(); ++record) {
                QVERIFY2(found.records.contains(record) == plain[record].finds(query, haves[record]),
                         qPrintable(text + u" | " + line(records[record])));
                if (found.records.contains(record) && query.ranks())
                    ranks.emplace_back(order(plain[record].rank(query), plain[record].tie(query, records)),
                                       found.ranks[record]);
            }
            hits += ranks.size();
            std::ranges::sort(ranks);
            for (std::size_t j = 1; j < ranks.size(); ++j)
                QVERIFY2(ranks[j - 1].first == ranks[j].first ? ranks[j - 1].second == ranks[j].second
                                                              : ranks[j - 1].second < ranks[j].second,
                         qPrintable(text));
        }
        QVERIFY(hits > 1000);
    }

private:
    /// Rank and sum, what decides between equal ones, and the form.
    using Order = std::tuple<int, int, std::array<int, 7>, int>;
    static Order order(const std::array<int, 3>& rank, const std::array<int, 7>& tie)
    {
        return {rank[0], rank[1], tie, rank[2]};
    }

    static SampleRecords randomGames()
    {
        static constexpr std::array pieces{
            "Pac",          "pacman", " ",  " ", "(",  "man", "マン", "パック", "ー", "ヴ", "しゃ", "shi",
            "日本",         "版",     "・", "É", "II", "-",   "'",    "ん",     "\t", "£",  "1985", "か",
            "\xE3\x82\x99", "ﾊﾟ",     "〜", "a", "aa", "う",  "hack", ": "};
        static constexpr std::array years{"1985", "198?", "????", "", "1990?"};
        RandomTexts random;
        const auto text = [&](int most) {
            std::string made;
            for (int i = random.number(most); i > 0; --i)
                made += pieces[static_cast<std::size_t>(random.number(pieces.size()))];
            return made;
        };
        SampleRecords sample;
        for (int i = 0; i < 300; ++i) {
            const std::string name = text(3);
            const std::string title = text(6);
            const std::string titlejp = random.number(2) == 0 ? title : text(6);
            const std::string maker = text(4);
            const std::string device = text(3);
            sample.add({random.number(2) == 0 ? "game" : "bios", name.c_str(),
                        random.number(2) == 0 ? name.c_str() : "other", title.c_str(), titlejp.c_str(),
                        years[static_cast<std::size_t>(random.number(years.size()))], maker.c_str(),
                        random.number(2) == 0 ? "good" : "????", device.c_str()});
        }
        return sample;
    }

    static QString randomQuery(RandomTexts& random)
    {
        static constexpr std::array pieces{"pac",
                                           "man",
                                           "マン",
                                           "ぱ",
                                           "ﾊﾟｯｸ",
                                           "sha",
                                           "shi",
                                           "a",
                                           "う",
                                           "日",
                                           "版",
                                           "e",
                                           "i",
                                           "(",
                                           "'",
                                           "ー",
                                           "paku",
                                           "ou",
                                           "é",
                                           "year:198?",
                                           "year:1985-",
                                           "maker:a",
                                           "maker:\"マン\"",
                                           "clone:yes",
                                           "have:yes",
                                           "have:own",
                                           "type:game",
                                           "status:good",
                                           "status:working",
                                           "title:pac",
                                           "title:マン",
                                           "title:\"pac man\"",
                                           "title:aa",
                                           "name:man",
                                           "name:a",
                                           "parent:pac",
                                           "parent:other",
                                           "year:80s",
                                           "device:man",
                                           "\"pac",
                                           "\"man\"",
                                           "\"日本\"",
                                           "pacman",
                                           "\"pac man\"",
                                           "foo:x",
                                           "II",
                                           "1985"};
        QString query;
        for (int i = 1 + random.number(3); i > 0; --i) {
            query += random.number(5) == 0 ? u"-" : u"";
            query += QString::fromUtf8(pieces[static_cast<std::size_t>(random.number(pieces.size()))]);
            query += random.number(4) == 0 ? u"" : u" ";
        }
        return query;
    }
};

TESSERA_TEST(GameSearchTest);
#include "gamesearchtest.moc"
