#include "catalogue/search/searchkeys.h"

#include "catalogue/search/editdistance.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::size_t shortestKey = 3;
constexpr std::size_t shortKey = 4;
constexpr std::size_t longestKey = 8; // with what may be too much

/// What others call a key.
struct OtherName {
    std::string_view other;
    std::string_view name;
};

constexpr std::array otherNames{
    OtherName{"manufacturer", "maker"}, OtherName{"company", "maker"},  OtherName{"publisher", "maker"},
    OtherName{"set", "name"},           OtherName{"rom", "name"},       OtherName{"romset", "name"},
    OtherName{"driver", "status"},      OtherName{"working", "status"}, OtherName{"cloneof", "parent"},
    OtherName{"date", "year"},
};

} // namespace

const SearchKey* nearestKey(std::string_view folded)
{
    if (const auto* const other = std::ranges::find(otherNames, folded, &OtherName::other);
        other != otherNames.end())
        return &*std::ranges::find(searchKeys, other->name, &SearchKey::name);
    if (folded.size() < shortestKey || folded.size() > longestKey)
        return nullptr;
    const unsigned most = folded.size() > shortKey ? 2 : 1;
    const auto distance = [&](const SearchKey& key) { return editDistance(folded, key.name, most).whole; };
    const auto* const nearest = std::ranges::min_element(searchKeys, {}, distance);
    return distance(*nearest) > most ? nullptr : nearest;
}

} // namespace tessera
