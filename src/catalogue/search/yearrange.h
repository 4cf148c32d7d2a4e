#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessera {

/// The years that something may be of, both ends included. "198?" is 1980 to 1989.
struct YearRange {
    std::uint16_t first = 0;
    std::uint16_t last = 9999;

    bool holds(YearRange other) const { return first <= other.first && other.last <= last; }
    bool operator==(const YearRange&) const = default;
};

/// No range that a person gives holds it.
inline constexpr YearRange unknownYear{0, 0xFFFF};

/// Four digits, of which the last ones may be question marks. Nothing where no digit is known.
std::optional<YearRange> yearRange(std::string_view fourDigits);

/// As people write it: "1985", "198?", "85", and the ten years "80s" or "1980s". Two digits from 70 on are of
/// the last century.
std::optional<YearRange> askedYear(std::string_view value);

/// A record's year: whatever stands behind the four digits is left alone, as in "1995?".
std::optional<YearRange> recordedYear(std::string_view value);

} // namespace tessera
