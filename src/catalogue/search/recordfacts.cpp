#include "catalogue/search/recordfacts.h"

#include "catalogue/search/folding.h"

#include <algorithm>

namespace tessera {

namespace {

template <class Kind, std::size_t N>
Kind kindOf(std::string_view value, const std::array<std::string_view, N>& values)
{
    return static_cast<Kind>(std::ranges::find(values, value) - values.begin());
}

// The catalogue names itself as a parent's parent; other stores leave the value out.
bool isParent(const GameRecord& record)
{
    return record[Field::Cloneof].empty() || record[Field::Cloneof] == record[Field::Name];
}

} // namespace

ContentFacts::ContentFacts(std::span<const GameRecord> content)
{
    m_facts.reserve(content.size());
    for (const GameRecord& record : content)
        m_facts.push_back(facts(record));
}

RecordFacts ContentFacts::facts(const GameRecord& record)
{
    return {
        .years = recordedYear(record[Field::Year]).value_or(unknownYear),
        .device = device(record[Field::Device]),
        .type = kindOf<GameType>(record[Field::Type], typeValues),
        .status = kindOf<GameStatus>(record[Field::Status], statusValues),
        .parent = isParent(record),
        .favorite = m_favourites.contains(record[Field::Name]),
    };
}

void ContentFacts::setFavourites(NameSet favorites, std::span<const GameRecord> content)
{
    m_favourites = std::move(favorites);
    for (std::size_t i = 0; i < m_facts.size(); ++i)
        m_facts[i].favorite = m_favourites.contains(content[i][Field::Name]);
}

// Few records have a device, and few values differ.
std::uint32_t ContentFacts::device(std::string_view value)
{
    if (m_devices.empty())
        m_devices.emplace_back();
    if (value.empty())
        return 0;
    const std::string form = folded(value);
    const auto [found, isNew]
        = m_deviceNumbers.try_emplace(form, static_cast<std::uint32_t>(m_devices.size()));
    if (isNew)
        m_devices.push_back(form);
    return found->second;
}

} // namespace tessera
