#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessera {

/// Folded texts stand one behind the other, each behind the mark of its field; folding leaves no such byte in
/// a text. A record has several titles: the English and the Japanese one, and their readings. A romanised one
/// is Japanese that the English title writes in Latin letters, in the spelling that all come down to.
enum FieldMark : char {
    NameMark = 1,
    TitleMark,
    AlternativeMark, ///< of several titles
    RomanisedMark,
    InitialsMark,
    MakerMark,
    YearMark,
    EndMark
};

/// Some of the fields, one bit each.
using FieldSet = std::uint16_t;
inline constexpr FieldSet everyField = 0xFFFF;

constexpr FieldSet setOf(FieldMark mark)
{
    return static_cast<FieldSet>(1U << static_cast<unsigned>(mark));
}

/// All that is made of the titles.
inline constexpr FieldSet titleFields
    = setOf(TitleMark) | setOf(AlternativeMark) | setOf(RomanisedMark) | setOf(InitialsMark);

constexpr bool isFieldMark(char c)
{
    return static_cast<unsigned char>(c - NameMark) <= EndMark - NameMark;
}

/// The mark of the field in which a place lies.
inline FieldMark fieldAt(std::string_view bytes, std::size_t offset)
{
    while (!isFieldMark(bytes[offset - 1]))
        --offset;
    return static_cast<FieldMark>(bytes[offset - 1]);
}

} // namespace tessera
