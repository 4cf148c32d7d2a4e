#include "tools/cataloguecomparison.h"

#include "catalogue/recorddictionary.h"
#include "core/message.h"
#include "core/texts.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <unordered_set>

namespace tessera {

namespace {

using Kind = MachineChange::Kind;
using Machines = std::vector<const GameRecord*>;

// What the list of machines says for a value that it does not know.
constexpr std::string_view unknown = "????";
constexpr QStringView arrow = u" → ";
constexpr QStringView nothing = u"–";

// In the order of the kinds.
constexpr std::array<const char*, MachineChange::kindCount> headings{
    textKey("changes_added"), textKey("changes_gone"), textKey("changes_renamed"), textKey("changes_status")};

/// The machines of a catalogue by set name; of several with the same one the first counts.
class MachinesByName
{
public:
    explicit MachinesByName(std::span<const GameRecord> records)
    {
        m_machines.reserve(records.size());
        for (const GameRecord& record : records)
            m_machines.try_emplace(record[Field::Name], &record);
    }

    const GameRecord* find(std::string_view name) const
    {
        const auto found = m_machines.find(name);
        return found == m_machines.end() ? nullptr : found->second;
    }

    /// By set name.
    Machines without(const MachinesByName& others) const
    {
        Machines machines;
        for (const auto& [name, record] : m_machines) {
            if (others.find(name) == nullptr)
                machines.push_back(record);
        }
        std::ranges::sort(machines, {}, [](const GameRecord* record) { return (*record)[Field::Name]; });
        return machines;
    }

private:
    std::unordered_map<std::string_view, const GameRecord*> m_machines;
};

auto looks(const GameRecord* record)
{
    return std::tuple((*record)[Field::Title], (*record)[Field::Maker], (*record)[Field::Year]);
}

bool hasTitle(const GameRecord* record)
{
    return !(*record)[Field::Title].empty() && (*record)[Field::Title] != unknown;
}

/// Puts the changes together.
class Comparison
{
public:
    explicit Comparison(const QStringList& favourites)
    {
        for (const QString& name : favourites)
            m_favourites.insert(name.toStdString());
    }

    void add(Kind kind, const GameRecord& record, std::string_view before = {}, std::string_view after = {})
    {
        MachineChange change{kind, std::string(record[Field::Name]), std::string(record[Field::Title]),
                             std::string(before), std::string(after)};
        change.isFavourite = m_favourites.contains(change.name)
            || (kind == Kind::Renamed && m_favourites.contains(change.before));
        m_comparison.favourites += change.isFavourite ? 1 : 0;
        ++m_comparison.counts[static_cast<std::size_t>(kind)];
        m_comparison.changes.push_back(std::move(change));
    }

    void addStatus(const GameRecord& before, const GameRecord& after)
    {
        if (before[Field::Status] != after[Field::Status])
            add(Kind::Status, after, before[Field::Status], after[Field::Status]);
    }

    CatalogueComparison finish()
    {
        std::ranges::sort(m_comparison.changes, {}, [](const MachineChange& change) {
            return std::tuple(change.kind, std::string_view(change.name));
        });
        return std::move(m_comparison);
    }

private:
    std::unordered_set<std::string> m_favourites;
    CatalogueComparison m_comparison;
};

// Takes the renamed machines out of both lists; of several that look alike the first becomes the first.
std::vector<std::pair<const GameRecord*, const GameRecord*>> takeRenamed(Machines& gone, Machines& added)
{
    std::vector<std::pair<const GameRecord*, const GameRecord*>> renamed;
    Machines candidates = added;
    std::erase_if(candidates, [](const GameRecord* record) { return !hasTitle(record); });
    const auto order = [](const GameRecord* a, const GameRecord* b) {
        return std::tuple(looks(a), (*a)[Field::Name]) < std::tuple(looks(b), (*b)[Field::Name]);
    };
    std::ranges::sort(candidates, order);
    std::unordered_set<const GameRecord*> taken;
    for (const GameRecord* old : gone) {
        auto found = std::ranges::lower_bound(candidates, looks(old), {}, &looks);
        while (found != candidates.end() && looks(*found) == looks(old) && taken.contains(*found))
            ++found;
        if (found == candidates.end() || looks(*found) != looks(old))
            continue;
        taken.insert({old, *found});
        renamed.emplace_back(old, *found);
    }
    for (Machines* machines : {&gone, &added})
        std::erase_if(*machines, [&](const GameRecord* record) { return taken.contains(record); });
    return renamed;
}

QString shown(const std::string& value)
{
    return value.empty() ? nothing.toString() : fieldText(value);
}

QString lineOf(const MachineChange& change)
{
    QString line = QStringLiteral("  ");
    if (change.kind == Kind::Renamed)
        line += shown(change.before) + arrow;
    line += shown(change.name);
    if (change.kind == Kind::Status)
        line += QStringLiteral(": ") + shown(change.before) + arrow + shown(change.after);
    return line + QStringLiteral("  ") + shown(change.title) + QLatin1Char('\n');
}

QString heading(const char* key, std::size_t count)
{
    return qtTrId(key).arg(numberText(count)) + QLatin1Char('\n');
}

} // namespace

CatalogueComparison compareCatalogues(std::span<const GameRecord> before, std::span<const GameRecord> after,
                                      const QStringList& favourites)
{
    const MachinesByName old(before);
    const MachinesByName present(after);
    Machines gone = old.without(present);
    Machines added = present.without(old);
    Comparison comparison(favourites);
    for (const auto& [from, to] : takeRenamed(gone, added)) {
        comparison.add(Kind::Renamed, *to, (*from)[Field::Name]);
        comparison.addStatus(*from, *to);
    }
    for (const GameRecord* record : added)
        comparison.add(Kind::Added, *record);
    for (const GameRecord* record : gone)
        comparison.add(Kind::Gone, *record);
    for (const GameRecord& record : after) {
        const GameRecord* earlier = old.find(record[Field::Name]);
        if (earlier != nullptr && present.find(record[Field::Name]) == &record)
            comparison.addStatus(*earlier, record);
    }
    return comparison.finish();
}

QString comparisonSummary(const CatalogueComparison& comparison)
{
    if (comparison.changes.empty())
        return qtTrId("changes_none");
    const auto number = [&](Kind kind) { return numberText(comparison.count(kind)); };
    QString summary
        = qtTrId("changes_summary")
              .arg(number(Kind::Added), number(Kind::Gone), number(Kind::Renamed), number(Kind::Status));
    if (comparison.favourites > 0)
        summary += qtTrId("changes_summary_favourites").arg(numberText(comparison.favourites));
    return summary;
}

QString changeText(const MachineChange& change, bool withKind)
{
    QStringList words;
    switch (change.kind) {
    case Kind::Added:
        if (withKind)
            words << qtTrId("changes_is_new");
        break;
    case Kind::Gone:
        if (withKind)
            words << qtTrId("changes_is_gone");
        break;
    case Kind::Renamed:
        words << qtTrId("changes_was").arg(shown(change.before));
        break;
    case Kind::Status:
        words << shown(change.before) + arrow + shown(change.after);
        break;
    }
    words << shown(change.title);
    return words.join(QStringLiteral(" · "));
}

QString comparisonText(const CatalogueComparison& comparison)
{
    QStringList sections;
    const auto add = [&](const char* key, std::size_t count, auto isOfIt) {
        if (count == 0)
            return;
        QString section = heading(key, count);
        for (const MachineChange& change : comparison.changes)
            section += isOfIt(change) ? lineOf(change) : QString();
        sections << section;
    };
    add(textKey("changes_favourites"), comparison.favourites,
        [](const MachineChange& change) { return change.isFavourite; });
    for (const Kind kind : {Kind::Added, Kind::Gone, Kind::Renamed, Kind::Status}) {
        add(headings[static_cast<std::size_t>(kind)], comparison.count(kind),
            [kind](const MachineChange& change) { return change.kind == kind; });
    }
    return sections.join(QLatin1Char('\n'));
}

} // namespace tessera
