#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The one spelling to which all romanisations come down: "shi" is "si", "tsu" is "tu", "ja" is "zya", "n'"
/// is "n", "shimbun" is "sinbun". What is half typed comes down to a beginning of it: "sh" is "s".
std::string romajiSpelling(std::string_view latin);

/// The same with long vowels written once, "toukyou" as "tokyo", and a double n. Searched words come in this
/// form.
std::string shortRomajiSpelling(std::string_view latin);

std::string withoutBlanks(std::string_view text);

/// True for what may stand for kana when it is typed: letters, and the apostrophe and hyphen between them.
bool isRomaji(std::string_view folded);

/// Where a reading leaves out kanji, digits, letters: no searched word holds this sign.
inline constexpr char unreadSign = '\x0E';
/// Where a part of a title begins behind it, in a reading.
inline constexpr char partSign = '/';

/// True for a word that reads like Japanese from its first to its last letter: four letters and more.
bool readsLikeJapanese(std::string_view folded);

/// A folded text's kana in romaji, in each spelling that shortRomajiSpelling() of a typed reading may meet.
/// Nothing where the text holds no kana. Any thread may read.
std::vector<std::string> romajiReadings(std::string_view folded);

} // namespace tessera
