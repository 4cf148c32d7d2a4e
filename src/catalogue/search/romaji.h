#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// The one spelling to which all romanisations come down: "shi" is "si", "tsu" is "tu", "ja" is "zya", "n'"
/// is "n", "shimbun" is "sinbun". What is half typed comes down to a beginning of it: "sh" is "s".
std::string romajiSpelling(std::string_view latin);

/// A spelling with long vowels written once, "toukyou" as "tokyo", and a double n.
std::string withLongVowelsOnce(std::string_view spelling);

/// Both, of what is typed. Searched words come in this
/// form.
std::string shortRomajiSpelling(std::string_view latin);

std::string withoutBlanks(std::string_view text);

/// True for what may stand for kana when it is typed: letters, and the apostrophe and hyphen between them.
bool isRomaji(std::string_view folded);

/// True for a word that reads like Japanese from its first to its last letter: four letters and more.
bool readsLikeJapanese(std::string_view folded);

} // namespace tessera
