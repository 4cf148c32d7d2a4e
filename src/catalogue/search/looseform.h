#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// What begins at a byte of a loose form, or behind its last one.
enum class Edge : std::uint8_t {
    None,
    Piece, ///< behind punctuation within a word
    Word, ///< behind a blank, or where kana, ideographs and letters meet
    Part, ///< of a title: behind ": " or " - ", or behind a "The" that begins one
};

/// A text in the form in which punctuation, blanks and spellings that people confuse make no difference:
/// "R-Type II", "r type 2" and "RType 2" are all "rtype2". Ampersands are "and", Roman numerals and the
/// Japanese ones are digits; kana that sound alike are one.
struct LooseForm {
    std::string text;
    std::vector<Edge> edges; ///< one a byte of the text

    LooseForm() = default;
    /// `folded` is a folded text.
    explicit LooseForm(std::string_view folded) { set(folded); }
    void set(std::string_view folded);

    void append(std::string_view word, Edge before);
    /// Makes a part of what stands behind these words, where the text begins with them.
    void beginPartBehind(const LooseForm& words);
    /// Where the word that stands at a place ends.
    std::size_t wordEnd(std::size_t place) const;
};

/// A word of a loose form, and what it is made of in the folded text.
struct LooseWord {
    std::string_view source;
    std::string text;
    Edge before;
};
std::vector<LooseWord> looseWords(std::string_view folded);

/// What is searched for a word in loose forms; empty where it holds nothing but punctuation.
std::string looseWord(std::string_view folded);

/// True for a word that is a numeral, in loose form only digits.
bool isNumeral(std::string_view loose);

/// A title up to its first bracket, which in most titles tells only of the version.
std::string_view withoutVersion(std::string_view folded);

/// A title's alternatives, as " / " parts them, without version.
std::vector<std::string_view> titlesProper(std::string_view folded);

constexpr bool isAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isAsciiLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

/// Calls `visit(place, beginsPart)` for each letter that the initials of a title in loose form are made of,
/// and for each digit of its numbers; `beginsPart` holds for the first one of a part.
template <class Visit>
void forEachInitial(std::string_view text, const std::vector<Edge>& edges, Visit&& visit)
{
    bool beginsPart = false;
    bool inNumber = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const Edge edge = edges[place];
        const char c = text[place];
        beginsPart = beginsPart || edge == Edge::Part;
        inNumber = isAsciiDigit(c) && (inNumber || edge != Edge::None);
        if (inNumber || (edge != Edge::None && isAsciiLetter(c))) {
            visit(place, beginsPart);
            beginsPart = false;
        }
    }
}

/// The first letters of the words of each part of a title, and of all of it, with its numbers: "mvc2". Those
/// that have fewer than two are left out.
std::vector<std::string> initials(const LooseForm& title);

/// True for what may be typed for initials: three letters and more, or two and a number.
bool mayBeInitials(std::string_view loose);

} // namespace tessera
