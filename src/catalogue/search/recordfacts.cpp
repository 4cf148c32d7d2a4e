#include "catalogue/search/recordfacts.h"

#include "catalogue/search/folding.h"

#include <algorithm>
#include <bit>

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

/// The sets of one parent, with it.
struct Family {
    std::uint32_t size = 0;
    std::uint16_t year = unknownYear.first; ///< of the parent
};

std::unordered_map<std::size_t, Family> familiesOf(std::span<const RecordFacts> records)
{
    std::unordered_map<std::size_t, Family> families;
    families.reserve(records.size());
    for (const RecordFacts& facts : records) {
        Family& family = families[facts.family];
        ++family.size;
        if (facts.parent)
            family.year = facts.years.first;
    }
    return families;
}

// From the bits that count most to those that count least.
std::uint32_t tie(const RecordFacts& facts, const Family& family)
{
    constexpr std::uint32_t mostFamily = 7;
    constexpr int firstYear = 1970;
    constexpr int lastAge = 31;
    const auto type = std::min(static_cast<std::uint32_t>(facts.type), std::uint32_t{3});
    const auto size = std::min(static_cast<std::uint32_t>(std::bit_width(family.size)), mostFamily);
    const auto age = static_cast<std::uint32_t>(std::clamp((family.year - firstYear) / 2, 0, lastAge));
    return type << 10 | (facts.parent ? 0U : 1U) << 9 | (facts.works() ? 0U : 1U) << 8
        | (mostFamily - size) << 5 | age;
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
        .family = familyOf(record[isParent(record) ? Field::Name : Field::Cloneof]),
        .favorite = m_favourites.contains(record[Field::Name]),
    };
}

const std::vector<std::uint32_t>& ContentFacts::ties() const
{
    if (!m_ties.empty())
        return m_ties;
    const std::unordered_map<std::size_t, Family> families = familiesOf(m_facts);
    m_ties.reserve(m_facts.size());
    for (const RecordFacts& facts : m_facts)
        m_ties.push_back(tie(facts, families.find(facts.family)->second));
    return m_ties;
}

void ContentFacts::replace(std::uint32_t record, const GameRecord& now)
{
    m_facts[record] = facts(now);
    m_ties.clear();
}

void ContentFacts::remove(std::uint32_t record)
{
    m_facts.erase(m_facts.begin() + record);
    m_ties.clear();
}

void ContentFacts::insert(std::uint32_t record, const GameRecord& added)
{
    m_facts.insert(m_facts.begin() + record, facts(added));
    m_ties.clear();
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
