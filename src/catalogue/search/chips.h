#pragma once

#include "catalogue/have.h"
#include "catalogue/recordset.h"
#include "catalogue/search/recordfacts.h"
#include "core/message.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace tessera {

/// A filter over the list that one click sets.
enum class Chip : std::uint8_t { All, Games, HaveRom, Working, Playable, Parents, Bios, Favorites };

struct ChipRow {
    Chip chip;
    std::string_view name; ///< under which a choice is remembered
    const char* label; ///< key of its text
};

// clang-format off
inline constexpr std::array chips{
    ChipRow{Chip::All,     "all",     textKey("chip_all")},
    ChipRow{Chip::Games,   "games",   textKey("chip_games")},
    ChipRow{Chip::HaveRom, "haverom", textKey("chip_have_rom")},
    ChipRow{Chip::Working, "working", textKey("chip_working")},
    ChipRow{Chip::Playable, "playable", textKey("chip_playable")},
    ChipRow{Chip::Parents, "parents", textKey("chip_parents")},
    ChipRow{Chip::Bios,    "bios",    textKey("chip_bios")},
    ChipRow{Chip::Favorites, "favorites", textKey("chip_favorites")},
};
// clang-format on

bool letsThrough(Chip chip, const RecordFacts& facts, Have have);

/// How many records each chip lets through, in the order of the table.
using ChipCounts = std::array<std::size_t, chips.size()>;

/// `haves` is empty where nothing is known of the ROM folders: then nobody has anything. With `within` only
/// those records are counted.
ChipCounts countChips(const ContentFacts& facts, std::span<const Have> haves,
                      const RecordSet* within = nullptr);

} // namespace tessera
