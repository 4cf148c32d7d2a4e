#include "tools/cataloguecomparison.h"

#include "catalogue/recorddictionary.h"
#include "support/testmain.h"

using namespace tessera;

namespace {

using Kind = MachineChange::Kind;

GameRecord machine(std::string_view name, std::string_view title, std::string_view status = "good",
                   std::string_view maker = "Namco", std::string_view year = "1980")
{
    return GameRecord{{"game", name, name, title, title, year, maker, status, ""}};
}

// "added pacman", "renamed puckman pacman", "status pong good imperfect"; a favourite has a star.
QStringList words(const CatalogueComparison& comparison)
{
    constexpr std::array<const char*, MachineChange::kindCount> kinds{"added", "gone", "renamed", "status"};
    QStringList lines;
    for (const MachineChange& change : comparison.changes) {
        QStringList line{QLatin1String(kinds[static_cast<std::size_t>(change.kind)])};
        if (change.kind == Kind::Renamed)
            line << fieldText(change.before);
        line << fieldText(change.name);
        if (change.kind == Kind::Status)
            line << fieldText(change.before) << fieldText(change.after);
        lines << line.join(QLatin1Char(' ')) + (change.isFavourite ? QStringLiteral(" *") : QString());
    }
    return lines;
}

} // namespace

class CatalogueComparisonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatDiffers_data()
    {
        QTest::addColumn<std::vector<GameRecord>>("before");
        QTest::addColumn<std::vector<GameRecord>>("after");
        QTest::addColumn<QStringList>("changes");
        using Machines = std::vector<GameRecord>;
        const GameRecord pong = machine("pong", "Pong");
        const GameRecord qix = machine("qix", "Qix");
        const auto row
            = [](const char* name, const Machines& before, const Machines& after,
                 const QStringList& changes) { QTest::newRow(name) << before << after << changes; };
        row("nothing at all", {}, {}, {});
        row("the same", {pong, qix}, {pong, qix}, {});
        row("another order", {pong, qix}, {qix, pong}, {});
        row("added, by set name", {}, {qix, pong}, {"added pong", "added qix"});
        row("gone", {pong, qix}, {qix}, {"gone pong"});
        row("renamed", {machine("puckman", "Pac-Man")}, {machine("pacman", "Pac-Man")},
            {"renamed puckman pacman"});
        row("renamed, with another status", {machine("puckman", "Pac-Man", "preliminary")},
            {machine("pacman", "Pac-Man", "good")},
            {"renamed puckman pacman", "status pacman preliminary good"});
        row("another maker is another machine", {machine("a", "Pac-Man", "good", "Namco")},
            {machine("b", "Pac-Man", "good", "Midway")}, {"added b", "gone a"});
        row("another year is another machine", {machine("a", "Pac-Man", "good", "Namco", "1980")},
            {machine("b", "Pac-Man", "good", "Namco", "1981")}, {"added b", "gone a"});
        row("no title is no likeness", {machine("a", "????")}, {machine("b", "????")}, {"added b", "gone a"});
        row("an empty title is no likeness", {machine("a", "")}, {machine("b", "")}, {"added b", "gone a"});
        row("a copy of what stays is no new name", {pong}, {pong, machine("pong2", "Pong")}, {"added pong2"});
        row("two alike become two, the third is new", {machine("a1", "A"), machine("a2", "A")},
            {machine("b2", "A"), machine("b1", "A"), machine("b3", "A")},
            {"added b3", "renamed a1 b1", "renamed a2 b2"});
        row("another status", {machine("pong", "Pong", "good")}, {machine("pong", "Pong", "imperfect")},
            {"status pong good imperfect"});
        row("another title is not told", {machine("pong", "Pong")}, {machine("pong", "Pong!")}, {});
        row("of one name the first counts", {machine("a", "A", "good"), machine("a", "A", "imperfect")},
            {machine("a", "A", "good"), machine("a", "A", "preliminary")}, {});
    }

    void findsWhatDiffers()
    {
        QFETCH(std::vector<GameRecord>, before);
        QFETCH(std::vector<GameRecord>, after);
        QFETCH(QStringList, changes);
        const CatalogueComparison comparison = compareCatalogues(before, after);
        QCOMPARE(words(comparison), changes);
        std::array<std::size_t, MachineChange::kindCount> counted{};
        for (const MachineChange& change : comparison.changes)
            ++counted[static_cast<std::size_t>(change.kind)];
        QCOMPARE(comparison.counts, counted);
        QCOMPARE(comparison.favourites, std::size_t(0));
    }

    void favouritesAreFoundByTheirOldOrNewName()
    {
        const std::vector before{machine("puckman", "Pac-Man"), machine("qix", "Qix"),
                                 machine("pong", "Pong", "good")};
        const std::vector after{machine("pacman", "Pac-Man"), machine("pong", "Pong", "imperfect"),
                                machine("galaga", "Galaga")};
        const auto comparison
            = compareCatalogues(before, after, {"puckman", "qix", "pong", "nowhere", "pong"});
        QCOMPARE(words(comparison),
                 QStringList({"added galaga", "gone qix *", "renamed puckman pacman *",
                              "status pong good imperfect *"}));
        QCOMPARE(comparison.favourites, std::size_t(3));
    }

    void theTextHasASectionForEachKindThatThereIs()
    {
        const std::vector before{machine("qix", "Qix"), machine("pong", "Pong", "good")};
        const std::vector after{machine("pong", "Pong", "imperfect")};
        QCOMPARE(
            comparisonText(compareCatalogues(before, after)),
            QStringLiteral("changes_gone\n  qix  Qix\n\nchanges_status\n  pong: good → imperfect  Pong\n"));
        QCOMPARE(comparisonText(compareCatalogues(before, after, {"qix"})),
                 QStringLiteral("changes_favourites\n  qix  Qix\n\nchanges_gone\n  qix  Qix\n\n"
                                "changes_status\n  pong: good → imperfect  Pong\n"));
        QCOMPARE(comparisonText(compareCatalogues(before, before)), QString());
        QCOMPARE(comparisonSummary(compareCatalogues(before, before)), "changes_none");
    }

    void absentValuesAreNotTakenForText()
    {
        GameRecord old = machine("pong", "Pong");
        old[Field::Status] = {};
        const auto comparison = compareCatalogues(std::array{old}, std::array{machine("pong", "Pong")});
        QCOMPARE(comparisonText(comparison), QStringLiteral("changes_status\n  pong: – → good  Pong\n"));
    }
};

TESSERA_TEST(CatalogueComparisonTest);
#include "cataloguecomparisontest.moc"
