#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Where a reading leaves out kanji, digits, letters: no searched word holds this sign.
inline constexpr char unreadSign = '\x0E';
/// Where a part of a title begins behind it, in a reading.
inline constexpr char partSign = '/';

/// A folded text's kana in romaji, in each spelling that shortRomajiSpelling() of a typed reading may meet.
/// Nothing where the text holds no kana. Any thread may read.
std::vector<std::string> romajiReadings(std::string_view folded);

/// A reading with long vowels written once, and of which bytes of the folded text each letter is read.
struct PlacedReading {
    struct Place {
        std::size_t begin;
        std::size_t end;
    };

    std::string latin;
    std::vector<Place> places; // one a letter
};
/// Empty where the text holds no kana.
PlacedReading placedReading(std::string_view folded);

} // namespace tessera
