#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// One byte of an ASCII text: lower case, and a blank for a control character.
constexpr char foldedAscii(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte - unsigned{'A'} < 26)
        return static_cast<char>(byte | 0x20);
    return byte < 0x20 || byte == 0x7F ? ' ' : c;
}

/// Several blanks become one, from `begin` on.
void squeezeBlanks(std::string& text, std::size_t begin);

/// Appends the form in which texts are compared by a search: without case, accents, full or half width and
/// long vowel marks, with hiragana for katakana and single blanks. It holds no control character. Any thread
/// may fold.
void appendFolded(std::string& out, std::string_view text);
std::string folded(std::string_view text);

} // namespace tessera
