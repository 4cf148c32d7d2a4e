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

/// A record's year: whatever stands behind the four digits is left alone, as in "1995?".
std::optional<YearRange> recordedYear(std::string_view value);

} // namespace tessera
