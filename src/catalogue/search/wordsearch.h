#pragma once

#include "catalogue/search/searchtexts.h"
#include "catalogue/search/wordmatcher.h"

#include <span>
#include <vector>

namespace tessera {

/// In which form words were found. Of two that fit equally well, the first one comes first.
enum class WordForm : std::uint8_t {
    Plain, ///< with or without punctuation
    Alternative, ///< one of several titles
    Reading,
    Romanised,
};

/// How well words fit a record: by rank, then by form; the least is the best.
using Score = std::uint8_t;
inline constexpr unsigned formBits = 2;
inline constexpr Score noScore = 0xFF;

constexpr Score score(Rank rank, WordForm form)
{
    return static_cast<Score>(static_cast<unsigned>(rank) << formBits | static_cast<unsigned>(form));
}

constexpr Rank rankOf(Score score)
{
    return score == noScore ? Rank::None : static_cast<Rank>(score >> formBits);
}

/// Where words are looked for, and in which forms.
struct WordRules {
    FieldSet fields = everyField; ///< only there
    /// The records are to be left out: only what is certain counts, but a numeral is every numeral.
    bool negated = false;
    bool literally = false; ///< in no other form
};

/// For each of `records` records how well the words fit it, at best.
std::vector<Score> wordScores(const SearchTexts& texts, std::size_t records, const SearchedWords& words,
                              const WordRules& rules = {});

/// Several words in sequence, written apart or as one, where they begin a name or a part of a title, or are
/// initials.
std::vector<Score> phraseScores(const SearchTexts& texts, std::size_t records,
                                std::span<const SearchedWords* const> words);

/// A word as it is looked for beside the literal one, or several as if they were one.
struct Spelling {
    std::string loose;
    std::string reading; ///< where there is none, the loose form
    bool isJapanese = false; ///< may be, so that it counts in romanised titles

    Spelling() = default;
    explicit Spelling(const SearchedWords& word);
    void append(const Spelling& next);
};

/// What of Latin letters, or of kana, is searched among readings; empty where there is none.
std::string readingOf(std::string_view word);
/// Whether its reading counts inside of a text's words, too.
bool mayStandInside(std::string_view word, std::string_view reading);
/// Kana, and Latin letters that read like Japanese.
bool mayBeJapanese(std::string_view word);

/// Whether the words stand in a text of their own, which is folded.
bool holdsWords(std::string_view folded, const SearchedWords& words);

} // namespace tessera
