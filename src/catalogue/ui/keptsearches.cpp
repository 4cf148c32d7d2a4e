#include "catalogue/ui/keptsearches.h"

#include "platform/defaultscontroller.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr QLatin1StringView nameKey("name");
constexpr QLatin1StringView queryKey("query");

QString textOf(const QVariantMap& item, QLatin1StringView key)
{
    const QVariant value = item.value(key);
    return value.typeId() == QMetaType::QString ? value.toString().simplified() : QString();
}

} // namespace

KeptSearches::KeptSearches(DefaultsController& defaults)
    : m_defaults(defaults)
{
}

// Anybody may have written there.
std::vector<KeptSearch> KeptSearches::all() const
{
    std::vector<KeptSearch> searches;
    const QVariant stored = m_defaults.stored().value(keys::KeptSearches.name).value_or(QVariant());
    if (stored.typeId() != QMetaType::QVariantList)
        return searches;
    for (const QVariant& item : stored.toList()) {
        if (item.typeId() != QMetaType::QVariantMap)
            continue;
        const QVariantMap map = item.toMap();
        const KeptSearch search{textOf(map, nameKey), textOf(map, queryKey)};
        const bool isKnown = std::ranges::find(searches, search.name, &KeptSearch::name) != searches.end();
        if (!search.name.isEmpty() && !search.query.isEmpty() && !isKnown)
            searches.push_back(search);
    }
    return searches;
}

std::optional<std::size_t> KeptSearches::placeOf(const QString& name) const
{
    const std::vector<KeptSearch> searches = all();
    const auto found = std::ranges::find(searches, name, &KeptSearch::name);
    return found == searches.end() ? std::nullopt
                                   : std::optional(static_cast<std::size_t>(found - searches.begin()));
}

void KeptSearches::keep(const KeptSearch& search)
{
    std::vector<KeptSearch> searches = all();
    const auto same = std::ranges::find(searches, search.name, &KeptSearch::name);
    if (same == searches.end())
        searches.push_back(search);
    else
        *same = search;
    store(searches);
}

void KeptSearches::rename(std::size_t place, const QString& name)
{
    std::vector<KeptSearch> searches = all();
    searches.at(place).name = name;
    store(searches);
}

void KeptSearches::remove(std::size_t place)
{
    std::vector<KeptSearch> searches = all();
    searches.erase(searches.begin() + static_cast<std::ptrdiff_t>(place));
    store(searches);
}

void KeptSearches::move(std::size_t from, std::size_t to)
{
    std::vector<KeptSearch> searches = all();
    const KeptSearch moved = searches.at(from);
    searches.erase(searches.begin() + static_cast<std::ptrdiff_t>(from));
    searches.insert(searches.begin() + static_cast<std::ptrdiff_t>(to), moved);
    store(searches);
}

void KeptSearches::store(const std::vector<KeptSearch>& searches)
{
    QVariantList list;
    for (const KeptSearch& search : searches)
        list << QVariantMap{{nameKey, search.name}, {queryKey, search.query}};
    if (list.isEmpty())
        m_defaults.forget(keys::KeptSearches);
    else
        m_defaults.keep(keys::KeptSearches, list);
}

} // namespace tessera
