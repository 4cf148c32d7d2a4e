#include "catalogue/search/gamesearch.h"

#include "catalogue/samplerecords.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

namespace {

/// One machine, as far as a search ranks it.
struct Machine {
    const char* name;
    const char* title;
    const char* titlejp = nullptr; ///< the title, where none is given
    const char* cloneof = nullptr; ///< itself
    const char* type = "game";
    const char* status = "good";
    const char* year = "1985";
    const char* maker = "Maker";
};

using Machines = std::vector<Machine>;

// What a query finds in a catalogue, the best first, equal ones as they stand there.
QString ranked(const Machines& machines, const QString& query)
{
    SampleRecords sample;
    for (const Machine& each : machines)
        sample.add({each.type, each.name, each.cloneof ? each.cloneof : each.name, each.title,
                    each.titlejp ? each.titlejp : each.title, each.year, each.maker, each.status, ""});
    GameSearch search(sample.store.records);
    search.take(SearchTexts::fold(search.unfolded()));
    const Found found = search.find(Query(query));
    std::vector<std::uint32_t> records = found.records.records();
    std::ranges::sort(records, {}, [&](std::uint32_t each) {
        return std::pair(found.ranks.empty() ? 0U : found.ranks[each], each);
    });
    QStringList names;
    for (const std::uint32_t record : records)
        names << QString::fromLatin1(machines[record].name);
    return names.join(u' ');
}

} // namespace

/// What stands first among what a search finds.
class RankingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatFitsEquallyWellIsOrdered_data()
    {
        QTest::addColumn<Machine>("later");
        QTest::addColumn<Machine>("sooner");
        const Machine plain{"plain", "Zoom (Japan)"};
        const auto row = [&](const char* name, const Machine& later, const Machine& sooner) {
            QTest::newRow(name) << later << sooner;
        };
        row("a game before a BIOS", {.name = "other", .title = "Zoom (World)", .type = "bios"}, plain);
        row("a BIOS before a mechanical one",
            {.name = "other", .title = "Zoom (World)", .type = "mechanical"},
            {.name = "plain", .title = "Zoom (Japan)", .type = "bios"});
        row("a mechanical one before a device", {.name = "other", .title = "Zoom (World)", .type = "device"},
            {.name = "plain", .title = "Zoom (Japan)", .type = "mechanical"});
        row("a game that does not work before a BIOS that does",
            {.name = "other", .title = "Zoom (World)", .type = "bios"},
            {.name = "plain", .title = "Zoom (Japan)", .status = "preliminary"});
        row("a parent before a clone", {.name = "other", .title = "Zoom (World)", .cloneof = "parent"},
            plain);
        row("a parent that does not work before a clone that does",
            {.name = "other", .title = "Zoom (World)", .cloneof = "parent"},
            {.name = "plain", .title = "Zoom (Japan)", .status = "preliminary"});
        row("what works before what does not",
            {.name = "other", .title = "Zoom (World)", .status = "preliminary"}, plain);
        row("what works imperfectly works",
            {.name = "other", .title = "Zoom (World)", .status = "preliminary"},
            {.name = "plain", .title = "Zoom (Japan)", .status = "imperfect"});
        row("the older one", {.name = "other", .title = "Zoom (World)", .year = "1999"}, plain);
        row("a year that is not known to the last digit is late",
            {.name = "other", .title = "Zoom (World)", .year = "198?"}, plain);
        row("a bootleg behind the maker's own",
            {.name = "other", .title = "Zoom (World, bootleg)", .year = "1970"}, plain);
        row("a bootleg behind a clone", {.name = "other", .title = "Zoom (World)", .maker = "bootleg (Some)"},
            {.name = "plain", .title = "Zoom (Japan)", .cloneof = "parent"});
        row("a changed version behind the maker's own",
            {.name = "other", .title = "Zoom (hack, set 2)", .year = "1970"}, plain);
        row("a title that Japan has of its own",
            {.name = "other", .title = "Zoom (Handheld)", .year = "1970"},
            {.name = "plain", .title = "Zoom (Japan)", .titlejp = "ズーム"});
        row("all of a title before its first part",
            {.name = "other", .title = "Zoom: Monsters (World)", .year = "1970"}, plain);
        row("a title of its own before one of two", {.name = "other", .title = "Zoom / Dash (World)"}, plain);
    }
    void whatFitsEquallyWellIsOrdered()
    {
        QFETCH(Machine, later);
        QFETCH(Machine, sooner);
        QCOMPARE(ranked({later, sooner}, QStringLiteral("zoom")), QStringLiteral("plain other"));
    }

    void whatHasMoreClonesIsMeant()
    {
        const Machines machines{{"alone", "Zoom (Handheld)"},
                                {"clone", "Dash (Japan)", nullptr, "known"},
                                {"clone2", "Dash (Europe)", nullptr, "known"},
                                {"clone3", "Dash (US)", nullptr, "known"},
                                {"known", "Zoom (World)"}};
        QCOMPARE(ranked(machines, QStringLiteral("zoom")), QStringLiteral("known alone"));
    }

    void aCloneUnderItsOwnNameIsTheFirstOfItsFamily()
    {
        const Machine port{.name = "port", .title = "Zoom (Console port)", .status = "preliminary"};
        const Machine clone{.name = "clone", .title = "Zoom (US)", .cloneof = "parent"};
        const Machine copy{.name = "copy", .title = "Zoom (bootleg)", .cloneof = "parent"};
        const Machine parent{"parent", "Dash (Japan)"};
        QCOMPARE(ranked({port, copy, clone, parent}, QStringLiteral("zoom")),
                 QStringLiteral("clone port copy"));
        // Where the parent has the name as well it comes first.
        QCOMPARE(ranked({clone, {"parent", "Dash / Zoom (Japan)"}}, QStringLiteral("zoom")),
                 QStringLiteral("parent clone"));
    }

    void aPartOfManyClonesIsMeantRatherThanALonelyWhole()
    {
        const Machines machines{{"alone", "Zoom (Toy)"},
                                {"known", "Zoom: The Videogame (World)"},
                                {"known2", "Zoom: The Videogame (US)", nullptr, "known"},
                                {"known3", "Zoom: The Videogame (Japan)", nullptr, "known"},
                                {"known4", "Zoom: The Videogame (Asia)", nullptr, "known"}};
        QVERIFY(ranked(machines, QStringLiteral("zoom")).startsWith(u"known alone"));
    }

    // What is equal in all that counts stands as the column has it.
    void theColumnDecidesLast()
    {
        QCOMPARE(ranked({{"one", "Zoom (Japan)"}, {"two", "Zoom (World)"}}, QStringLiteral("zoom")),
                 QStringLiteral("one two"));
    }

    void aDeviceIsMeantOnlyWhereItIsNamedInFull()
    {
        const Machine device{.name = "card", .title = "Zoom Card", .type = "device"};
        QCOMPARE(ranked({device, {"game", "Vegas (Zoom Edition)"}}, QStringLiteral("zoom")),
                 QStringLiteral("game card"));
        QCOMPARE(ranked({device, {"zcard", "The Oom (Zoom Card)"}}, QStringLiteral("zoom card")),
                 QStringLiteral("card zcard"));
        const Machine slot{.name = "slot", .title = "Zoom Station / Card Slot", .type = "device"};
        const Machine half{.name = "half", .title = "Zoom Station/Card: Slot", .type = "device"};
        QCOMPARE(ranked({half, {"zs", "The Oom (Zoom Station)"}}, QStringLiteral("zoom station")),
                 QStringLiteral("zs half"));
        QCOMPARE(ranked({slot, {"zs", "The Oom (Zoom Station)"}}, QStringLiteral("zoom station")),
                 QStringLiteral("slot zs"));
        QCOMPARE(ranked({device, {"cardz", "Cardinal"}}, QStringLiteral("card")),
                 QStringLiteral("card cardz"));
        // Among themselves as all others.
        QCOMPARE(
            ranked({{.name = "in", .title = "Razoomer", .type = "device"}, device}, QStringLiteral("zoom")),
            QStringLiteral("card in"));
    }

    void aQueryFindsFirst_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<Machine>("meant");
        QTest::addColumn<Machine>("other");
        const auto row = [](const char* query, const Machine& meant, const Machine& other) {
            QTest::newRow(query) << QString::fromUtf8(query) << meant << other;
        };
        // Titles proper: between slashes, up to a colon or a dash, behind a "The" and behind the maker.
        row("spirits", {"samurai", "Samurai / Spirits (set 1)"}, {"spirited", "Spirits Away (set 1)"});
        row("blade", {"last", "The Blade: Next Generation"}, {"bladed", "Blade Runner"});
        row("slug", {"first", "Slug - Vehicle-001"}, {"fourth", "Slug 4 Plus"});
        row("warrior", {"sf", "Fighter II: The Warrior (World)"}, {"wof", "Fate (Warrior 921031)"});
        row("station", {.name = "console", .title = "Sony Station", .maker = "Sony"},
            {.name = "card", .title = "Station 2 Memory Card"});
        // The set name among the words.
        row("slug 1985", {.name = "slug", .title = "Slug (World)", .cloneof = "other"},
            {"kslug", "Slug (handheld)"});
        // Punctuation.
        row("ms pacman", {"mspac", "Ms. Pac-Man"}, {"pac", "Pac-Man (Ms edition)"});
        row("r type", {"rtype", "R-Type (World)"}, {"typer", "R. Type Writer"});
        row("spiderman", {"spid", "Spider-Man (World)"}, {"pin", "Spidermans Web"});
        row("solomons key", {"solomon", "Solomon's Key (US)"}, {"keys", "Key of Solomons (US)"});
        row("kikikaikai", {"kiki", "KiKi KaiKai"}, {"other", "KikiKaiKai Gaiden"});
        row("dungeons and dragons", {"ddtod", "Dungeons & Dragons (Euro)"}, {"lair", "Dragons and Dungeons"});
        row("q-bert", {"qbert", "Q*bert (US set 1)"}, {"qub", "Q*bert's Qubes"});
        row("marvel vs capcom", {"mvsc", "Marvel Vs. Capcom: Clash"}, {"msh", "Capcom vs Marvel"});
        // Numerals.
        row("fighter 2", {"sf2", "Fighter II (World)"}, {"sf3", "Fighter (set 2)"});
        row("tekken iii", {"tekken3", "Tekken 3 (World)"}, {"iiitek", "Tekken Tag (iii)"});
        row("グラディウスⅡ", {"g2", "Gradius 2", "グラディウス2"},
            {"g3", "Gradius II", "グラディウスIIの本"});
        // Blanks in kana and romaji.
        row("ハイパー オリンピック", {"olympic", "Track", "ハイパーオリンピック"},
            {"other", "Other", "オリンピック ハイパー"});
        row("pakku man", {"puckman", "Puck Man", "パックマン"}, {"other", "Other", "パック アンド マン"});
        row("wandaa booi", {"wboy", "Boy", "ワンダーボーイ"}, {"wb3", "Boy III", "ワンダーボーイIII"});
        // Kana that sound alike.
        row("バンパイア", {"vamp", "Vampire", "ヴァンパイア"}, {"hunter", "Hunter", "ヴァンパイアハンター"});
        row("ギガウイング", {"giga", "Wing", "ギガウィング"}, {"giga2", "Wing 2", "ギガウィング2"});
        row("マージャンヴィタミン", {"vita", "Vitamin", "マージャンビタミン"},
            {"vita2", "V2", "マージャンビタミン2"});
        row("カーヂ", {"kaji", "K", "カージ"}, {"kaji2", "K2", "カージツー"});
        row("佐佐木", {"sasaki", "S", "佐々木"}, {"sasaki2", "S2", "佐々木二"});
        // Japanese in Latin letters.
        row("ryuko no ken", {"aof", "Art / Ryuuko no Ken (set 1)"}, {"aof2", "Art 2 / Ryuuko no Ken 2"});
        row("kyuukyoku tiger", {"ktiger", "Kyukyoku Tiger (Japan)"}, {"ktiger2", "Kyukyoku Tiger II"});
        row("らいでん", {"raiden", "Raiden (set 1)"}, {"raiden2", "Raiden Fighters"});
        row("どどんぱち", {"ddp", "DoDonPachi (World)"}, {"ddp2", "DoDonPachi Two"});
        // In another order, and with the maker.
        row("axe golden", {"goldnaxe", "Golden Axe (set 6)"}, {"ga2", "Golden Axe Returns (World)"});
        row("taito bubble bobble", {.name = "bublbobl", .title = "Bubble Bobble (Japan)", .maker = "Taito"},
            {.name = "bubblem", .title = "Bubble Memories - Bubble Bobble III", .maker = "Taito"});
        row("double dragon acme", {.name = "ddragon", .title = "Double Dragon (set 1)", .maker = "Acme"},
            {.name = "doubledr", .title = "Double Dragon (Neo)", .year = "1995", .maker = "Acme"});
        // With numbers.
        row("daraiasu2", {"darius2", "Darius II", "ダライアスⅡ"}, {"darius", "Darius", "ダライアス"});
        row("mootaru konbatto 3", {"mk3", "Kombat 3", "モータルコンバット3"},
            {"mk", "Kombat (rev 3.0)", "モータルコンバット"});
        row("だらいあす2", {"darius2", "Darius II", "ダライアスⅡ"}, {"darius", "Darius", "ダライアス"});
        // Makers in kana.
        row("コナミ グラディウス",
            {.name = "gradius", .title = "Gradius", .titlejp = "グラディウス", .maker = "Konami"},
            {.name = "other", .title = "Gradius", .titlejp = "グラディウス", .maker = "Acme"});
        row("majan gakuen", {"mjgakuen", "Mahjong Gakuen"}, {"other", "Gakuen Toshi"});
        // Initials come last, but for letters within a set name.
        row("avp", {"avsp", "Alien vs. Predator (Euro)"}, {"sabavpl2", "Videoplay 2"});
        row("mvc", {"slot", "MVC Slots"}, {"mvsc", "Marvel Vs. Capcom"});
        row("motw", {"garou", "Garou - Mark of the Wolves (set 1)"}, {"none", "Nothing"});
        row("mvc2", {"mvsc2", "Marvel Vs. Capcom 2 New Age"}, {"mvsc", "Marvel Vs. Capcom"});
    }
    void aQueryFindsFirst()
    {
        QFETCH(QString, query);
        QFETCH(Machine, meant);
        QFETCH(Machine, other);
        const QString found = ranked({other, meant}, query);
        QCOMPARE(found.section(u' ', 0, 0), QString::fromLatin1(meant.name));
    }

    void onlyTheseAreFound_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("names");
        QTest::newRow("roman numerals are no romaji")
            << QStringLiteral("darius -ii") << QStringLiteral("darius");
        QTest::newRow("a numeral is every numeral")
            << QStringLiteral("darius -2") << QStringLiteral("darius");
        QTest::newRow("a numeral that is left out is a word")
            << QStringLiteral("darius -6") << QStringLiteral("darius2 darius");
        QTest::newRow("but of a year all counts")
            << QStringLiteral("darius -1986") << QStringLiteral("darius2");
        QTest::newRow("a letter that is left out is a word")
            << QStringLiteral("darius -h -r") << QStringLiteral("darius2");
        QTest::newRow("what is left out is certain")
            << QStringLiteral("darius -ra") << QStringLiteral("darius2 darius");
        QTest::newRow("quotes are literal") << QStringLiteral("\"darius 2\"") << QString();
        QTest::newRow("quotes are literal beside another word") << QStringLiteral("\"dari\" us") << QString();
        QTest::newRow("few letters do not cross words") << QStringLiteral("iusi") << QString();
        QTest::newRow("a reading of three letters begins one")
            << QStringLiteral("ius") << QStringLiteral("darius2 darius");
        QTest::newRow("nor its middle") << QStringLiteral("asu") << QString();
        QTest::newRow("but longer ones do") << QStringLiteral("raiasu") << QStringLiteral("darius2 darius");
    }
    // What was made of a title is used for the next record that has it.
    void theSameTitleOfAnotherMakerHasPartsOfItsOwn()
    {
        const Machines machines{{.name = "other", .title = "Sony Station (v1)", .maker = "Acme"},
                                {.name = "console", .title = "Sony Station (v2)", .maker = "Sony"},
                                {.name = "third", .title = "Sony Station (v3)", .maker = "Acme"}};
        QCOMPARE(ranked(machines, QStringLiteral("station")), QStringLiteral("console other third"));
    }

    void initialsHaveThreeLettersOrANumber()
    {
        const Machines machines{
            {"hero", "Dark Hero"}, {"hero2", "Dark Hero II"}, {"rises", "Dark Hero Rises"}};
        QCOMPARE(ranked(machines, QStringLiteral("dh")), QString());
        QCOMPARE(ranked(machines, QStringLiteral("dh2")), QStringLiteral("hero2"));
        QCOMPARE(ranked(machines, QStringLiteral("dhr")), QStringLiteral("rises"));
        QCOMPARE(ranked(machines, QStringLiteral("-dhr")), QStringLiteral("hero hero2 rises"));
    }

    void onlyTheseAreFound()
    {
        QFETCH(QString, query);
        const Machines machines{
            {"darius2", "Darius II (Hard)", "ダライアスII"},
            {.name = "darius", .title = "Darius R (World, 6 Oct)", .titlejp = "ダライアス", .year = "1986"}};
        QString found = ranked(machines, query);
        if (found == QStringLiteral("darius darius2"))
            found = QStringLiteral("darius2 darius");
        QTEST(found, "names");
    }
};

TESSERA_TEST(RankingTest);
#include "rankingtest.moc"
