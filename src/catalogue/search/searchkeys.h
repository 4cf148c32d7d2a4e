#pragma once

#include "catalogue/search/recordfacts.h"
#include "core/message.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace tessera {

enum class TermKind : std::uint8_t {
    Words,
    Title,
    Name,
    Maker,
    Year,
    Status,
    Type,
    Parent,
    Clone,
    Have,
    Device
};

/// A record's own, and what is good or imperfect.
enum class AskedStatus : std::uint8_t { Good, Imperfect, Preliminary, Working };
inline constexpr std::array<std::string_view, 4> askedStatuses{"good", "imperfect", "preliminary", "working"};

enum class YesNo : std::uint8_t { No, Yes };
inline constexpr std::array<std::string_view, 2> yesNoValues{"no", "yes"};

enum class HaveValue : std::uint8_t { No, Parent, Own, Yes };
inline constexpr std::array<std::string_view, 4> haveValues{"no", "parent", "own", "yes"};

/// What stands before the colon of a term.
struct SearchKey {
    std::string_view name;
    TermKind kind;
    std::span<const std::string_view> values; ///< the only ones; empty where any text may follow
    const char* help; ///< key of a short text
};

// clang-format off
inline constexpr std::array searchKeys{
    SearchKey{"title",  TermKind::Title,  {},            textKey("search_help_title")},
    SearchKey{"name",   TermKind::Name,   {},            textKey("search_help_name")},
    SearchKey{"maker",  TermKind::Maker,  {},            textKey("search_help_maker")},
    SearchKey{"year",   TermKind::Year,   {},            textKey("search_help_year")},
    SearchKey{"status", TermKind::Status, askedStatuses, textKey("search_help_status")},
    SearchKey{"type",   TermKind::Type,   typeValues,    textKey("search_help_type")},
    SearchKey{"parent", TermKind::Parent, {},            textKey("search_help_parent")},
    SearchKey{"clone",  TermKind::Clone,  yesNoValues,   textKey("search_help_clone")},
    SearchKey{"have",   TermKind::Have,   haveValues,    textKey("search_help_have")},
    SearchKey{"device", TermKind::Device, {},            textKey("search_help_device")},
};
// clang-format on

/// The key that is meant by one that does not exist, or nothing: but for a letter, or two of a long one, or
/// two neighbours in the wrong order, they are the same.
const SearchKey* nearestKey(std::string_view folded);

} // namespace tessera
