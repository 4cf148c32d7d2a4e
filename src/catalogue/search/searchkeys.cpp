#include "catalogue/search/searchkeys.h"

#include "catalogue/search/editdistance.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::size_t shortestKey = 3;
constexpr std::size_t shortKey = 4;
constexpr std::size_t longestKey = 8; // with what may be too much

} // namespace

const SearchKey* nearestKey(std::string_view folded)
{
    if (folded.size() < shortestKey || folded.size() > longestKey)
        return nullptr;
    const unsigned most = folded.size() > shortKey ? 2 : 1;
    const auto distance = [&](const SearchKey& key) { return editDistance(folded, key.name, most).whole; };
    const auto* const nearest = std::ranges::min_element(searchKeys, {}, distance);
    return distance(*nearest) > most ? nullptr : nearest;
}

} // namespace tessera
