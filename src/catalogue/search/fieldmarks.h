#pragma once

namespace tessera {

/// Folded texts stand one behind the other, each behind the mark of its field; folding leaves no such byte in
/// a text. A record has several titles: the English and the Japanese one, and their readings.
enum FieldMark : char { NameMark = 1, TitleMark, MakerMark, YearMark, EndMark };

constexpr bool isFieldMark(char c)
{
    return static_cast<unsigned char>(c - NameMark) <= EndMark - NameMark;
}

} // namespace tessera
