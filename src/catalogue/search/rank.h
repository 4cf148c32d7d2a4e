#pragma once

#include <cstdint>

namespace tessera {

/// How well a word fits a record, best first.
enum class Rank : std::uint8_t {
    SetName, ///< it is the set name
    TitleProper, ///< the title up to its first bracket, which in most titles tells only of the version
    FirstPart, ///< the title up to its first dash or colon; as good, but for what decides between equal ones
    PartProper, ///< another part
    Covered, ///< the words make up a part, in any order
    NameBeginning, ///< of the set name
    TitleBeginning,
    PartBeginning,
    WordBeginning,
    Inside,
    Initials, ///< of the words of a title
    InsideName, ///< of the set name, where nobody reads words
    None = 0xFF, ///< it is nowhere in the record
};

} // namespace tessera
