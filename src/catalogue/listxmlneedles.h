#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace tessera {

/// The texts that are looked for inside an element: first the values, of which the first place counts, then
/// the marks, each of which is there or not.
enum class Needle : std::uint8_t {
    Description,
    Year,
    Manufacturer,
    Driver,
    Device,
    Cloneof,
    IsBios,
    IsMechanical,
    IsDevice,
    GameStart,
    GameEnd,
    MachineEnd,
};

/// How a needle is noticed: by the first, second and fourth byte of a fragment of it that hardly anything
/// else in such a text has. Needles of one bucket share what they are noticed by.
struct NeedleRow {
    Needle needle;
    std::string_view text;
    std::string_view fragment;
    std::uint8_t bucket;
    bool anyCase = false;
    std::size_t anchor = text.find(fragment); ///< the noticed byte's place in the text
};

inline constexpr std::size_t bucketCount = 8;
inline constexpr int needlesInBucket = 2;

// The fragments and buckets were chosen by trial over a whole list of MAME: hardly a false alarm remains.
// clang-format off
inline constexpr std::array needleRows{
    NeedleRow{Needle::Description,  "<description>",        "<des",  4},
    NeedleRow{Needle::Year,         "<year>",               "<yea",  7},
    NeedleRow{Needle::Manufacturer, "<manufacturer>",       "<man",  2},
    NeedleRow{Needle::Driver,       "<driver status=\"",    "<dri",  4},
    NeedleRow{Needle::Device,       "<device type=\"",      "ice ",  3},
    NeedleRow{Needle::Cloneof,      "cloneof=\"",           "clon",  6},
    NeedleRow{Needle::IsBios,       "isbios=\"yes\"",       "s=\"y", 1},
    NeedleRow{Needle::IsMechanical, "ismechanical=\"yes\"", "mech",  5, true},
    NeedleRow{Needle::IsDevice,     "isdevice=\"yes\"",     "ice=",  3},
    NeedleRow{Needle::GameStart,    "<game ",               "<gam",  7},
    NeedleRow{Needle::GameEnd,      "</game>",              "ame>",  2},
    NeedleRow{Needle::MachineEnd,   "</machine>",           "ine>",  0},
};
// clang-format on

constexpr std::string_view needleText(Needle needle)
{
    return needleRows[static_cast<std::size_t>(needle)].text;
}

/// No needle reaches further than this from the byte that it is noticed by.
inline constexpr std::size_t needleReach = 32;

static_assert([] {
    for (std::size_t i = 0; i < needleRows.size(); ++i) {
        const NeedleRow& row = needleRows[i];
        if (row.needle != static_cast<Needle>(i) || row.fragment.size() != 4 || row.bucket >= bucketCount
            || row.anchor == std::string_view::npos || row.text.size() > needleReach
            || std::ranges::count(needleRows, row.bucket, &NeedleRow::bucket) > needlesInBucket)
            return false;
    }
    return true;
}());

} // namespace tessera
