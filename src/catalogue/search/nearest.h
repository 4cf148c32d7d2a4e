#pragma once

#include "catalogue/search/searchtexts.h"
#include "catalogue/search/wordmatcher.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// How far a record's titles are from searched words: what must be changed in the words counts most, then the
/// words of the title that nobody asked for. The least is the nearest.
using Distance = std::uint16_t;
inline constexpr unsigned costBits = 6;
inline constexpr unsigned spareBits = 6;
inline constexpr Distance tooFar = 0xFFFF;

/// What must be changed in the words, as far as a distance tells.
constexpr unsigned costOf(Distance distance)
{
    return distance >> spareBits;
}

/// For each of `records` records its distance from words of which one or more are misspelt. A word of four
/// letters may have one slip, one of seven may have two; words of the maker's and the year may stand among
/// them.
std::vector<Distance> distances(const SearchTexts& texts, std::size_t records,
                                std::span<const SearchedWords* const> words);

} // namespace tessera
