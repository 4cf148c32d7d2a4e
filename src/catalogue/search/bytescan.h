#pragma once

#include "catalogue/eightbytes.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tessera {

/// How often each byte stands in a text, or in a fair part of it.
using ByteCounts = std::array<std::uint32_t, 256>;

/// The places of a word's two rarest bytes (the same one twice where it has but one).
struct RareBytes {
    RareBytes(std::string_view word, const ByteCounts& counts)
    {
        const auto count = [&](std::size_t i) { return counts[static_cast<unsigned char>(word[i])]; };
        for (std::size_t i = 1; i < word.size(); ++i) {
            if (count(i) < count(first))
                first = i;
        }
        second = first == 0 ? word.size() - 1 : 0;
        for (std::size_t i = 0; i < word.size(); ++i) {
            if (i != first && count(i) < count(second))
                second = i;
        }
    }

    std::size_t first = 0;
    std::size_t second = 0;
};

/// Calls `hit(offset)` for each place of the word in the text, in ascending order, overlapping ones too. The
/// word is not empty.
///
/// Looks at blocks of 64 places at once for the word's two rarest bytes: plain loops, which every compiler
/// turns into vector instructions. memmem() has to begin anew behind each hit and is slow for short words.
template <class Hit>
void forEachPlace(std::string_view text, std::string_view word, const ByteCounts& counts, Hit&& hit)
{
    if (word.size() > text.size())
        return;
    constexpr std::size_t block = 64;
    const RareBytes rare(word, counts);
    const char first = word[rare.first];
    const char second = word[rare.second];
    const bool isShort = word.size() <= 2;
    const std::size_t end = text.size() - word.size() + 1;
    const auto standsAt
        = [&](std::size_t place) { return std::memcmp(text.data() + place, word.data(), word.size()) == 0; };

    std::size_t begin = 0;
    for (; begin + block <= end; begin += block) {
        const char* const firsts = text.data() + begin + rare.first;
        const char* const seconds = text.data() + begin + rare.second;
        alignas(block) std::array<char, block> found;
        for (std::size_t i = 0; i < block; ++i)
            found[i] = static_cast<char>((firsts[i] == first) & (seconds[i] == second));
        std::uint64_t any = 0;
        for (std::size_t i = 0; i < block; i += 8)
            any |= loadWord(&found[i]);
        if (any == 0)
            continue;
        std::uint64_t places = 0;
        for (std::size_t i = 0; i < block; i += 8)
            places |= bitOfEachByte(loadWord(&found[i])) << i;
        for (; places != 0; places &= places - 1) {
            const std::size_t place = begin + static_cast<std::size_t>(std::countr_zero(places));
            if (isShort || standsAt(place))
                hit(place);
        }
    }
    for (; begin < end; ++begin) {
        if (standsAt(begin))
            hit(begin);
    }
}

} // namespace tessera
