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
            family.year = facts.years.last;
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
    return type << 13 | (facts.isCopied ? 1U : 0U) << 12 | (facts.parent ? 0U : ContentFacts::cloneTie)
        | (facts.works() ? 0U : 1U) << 10 | (facts.hasTitlejp ? 0U : 1U) << 9 | (mostFamily - size) << 5
        | age;
}

bool isCopied(const GameRecord& record)
{
    constexpr std::array<std::string_view, 2> signs{"bootleg", "hack"};
    const auto tells = [&](std::string_view text) {
        return std::ranges::any_of(signs, [text](std::string_view sign) { return text.contains(sign); });
    };
    const std::string_view title = record[Field::Title];
    const std::size_t bracket = title.find('(');
    return tells(record[Field::Maker]) || (bracket != std::string_view::npos && tells(title.substr(bracket)));
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
        .isCopied = isCopied(record),
        .hasTitlejp = !record[Field::Titlejp].empty() && record[Field::Titlejp] != record[Field::Title],
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

const std::vector<std::uint32_t>& ContentFacts::parents() const
{
    if (!m_parents.empty())
        return m_parents;
    std::unordered_map<std::size_t, std::uint32_t> parentOf;
    for (std::uint32_t i = 0; i < m_facts.size(); ++i) {
        if (m_facts[i].parent)
            parentOf.emplace(m_facts[i].family, i);
    }
    m_parents.reserve(m_facts.size());
    for (std::uint32_t i = 0; i < m_facts.size(); ++i) {
        const auto parent = parentOf.find(m_facts[i].family);
        m_parents.push_back(parent != parentOf.end() ? parent->second : i);
    }
    return m_parents;
}

void ContentFacts::forget()
{
    m_ties.clear();
    m_parents.clear();
}

void ContentFacts::replace(std::uint32_t record, const GameRecord& now)
{
    m_facts[record] = facts(now);
    forget();
}

void ContentFacts::remove(std::uint32_t record)
{
    m_facts.erase(m_facts.begin() + record);
    forget();
}

void ContentFacts::insert(std::uint32_t record, const GameRecord& added)
{
    m_facts.insert(m_facts.begin() + record, facts(added));
    forget();
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
