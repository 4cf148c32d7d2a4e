#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tessera {

/// Appends the form in which texts are compared by a search: without case, accents, full or half width and
/// long vowel marks, with hiragana for katakana and single blanks. It holds no control character. Any thread
/// may fold.
void appendFolded(std::string& out, std::string_view text);
std::string folded(std::string_view text);

/// The same as far as it is ASCII: other characters stay as they are.
void appendFoldedAscii(std::string& out, std::string_view text);

/// Folding's part for plain ASCII without control characters and without double blanks.
void lowerAsciiLetters(std::span<char> text);

} // namespace tessera
