#pragma once

#include <cstdint>

namespace tessera {

/// How well a word fits a record, best first.
enum class Rank : std::uint8_t {
    SetName, ///< it is the set name
    WholeTitle,
    TitleProper, ///< the title up to its first bracket, which in most titles tells only of the version
    NameBeginning, ///< of the set name
    TitleBeginning,
    WordBeginning,
    Inside,
    None = 0xFF, ///< it is nowhere in the record
};

} // namespace tessera
