#include "catalogue/search/makernames.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/search/folding.h"

#include <algorithm>
#include <unordered_map>

namespace tessera {

namespace {

// "Bally" is a word of "Konami (Bally/Midway license)".
bool partsWords(char c)
{
    constexpr std::string_view signs = " ()[]/,&+-.'\"";
    return signs.find(c) != std::string_view::npos;
}

bool hasWordFrom(std::string_view maker, std::string_view begun)
{
    for (auto at = maker.find(begun); at != std::string_view::npos; at = maker.find(begun, at + 1)) {
        if (at == 0 || partsWords(maker[at - 1]))
            return true;
    }
    return false;
}

} // namespace

MakerNames::MakerNames(std::span<const GameRecord> records)
{
    std::unordered_map<std::string_view, std::size_t> counts;
    for (const GameRecord& record : records)
        ++counts[record[Field::Maker]];
    counts.erase(std::string_view());
    std::vector<std::pair<std::string_view, std::size_t>> byCount(counts.begin(), counts.end());
    std::ranges::sort(byCount, [](const auto& a, const auto& b) {
        return a.second != b.second ? a.second > b.second : a.first < b.first;
    });
    m_makers.reserve(byCount.size());
    for (const auto& [name, count] : byCount)
        m_makers.push_back({fieldText(name), folded(name)});
}

QStringList MakerNames::beginningWith(const QString& begun, qsizetype most) const
{
    std::string asked = folded(begun.toStdString());
    asked.erase(0, asked.find_first_not_of(' '));
    QStringList names;
    for (const Maker& maker : m_makers) {
        if (names.size() == most)
            break;
        if (hasWordFrom(maker.folded, asked))
            names << maker.name;
    }
    return names;
}

} // namespace tessera
