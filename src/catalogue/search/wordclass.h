#pragma once

#include <cstdint>
#include <string_view>

namespace tessera {

/// What a character of a folded text is a piece of. A word begins and ends where the class changes, since
/// Japanese puts no blanks between words.
enum class WordClass : std::uint8_t { None, Letters, Kana, Ideographs };

constexpr WordClass asciiClass(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    const bool letter = (byte | 0x20U) - unsigned{'a'} < 26 || byte - unsigned{'0'} < 10;
    return letter ? WordClass::Letters : WordClass::None;
}

/// Of the first and of the last character of a text of well-formed UTF-8; None for an empty one.
WordClass firstClass(std::string_view text);
WordClass lastClass(std::string_view text);

} // namespace tessera
