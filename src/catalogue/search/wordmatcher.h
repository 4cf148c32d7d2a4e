#pragma once

#include "catalogue/search/fieldmarks.h"
#include "catalogue/search/rank.h"
#include "catalogue/search/wordclass.h"

#include <array>
#include <string>
#include <string_view>

namespace tessera {

/// What a place must be for the words to count there.
enum class WordEnds : std::uint8_t {
    Anywhere,
    Begun, ///< they begin where a word begins
    Whole, ///< and end where one ends
};

/// Folded words as they are searched: one of them, or several in sequence with single blanks.
struct SearchedWords {
    std::string text;
    WordEnds ends = WordEnds::Anywhere;

    bool operator==(const SearchedWords&) const = default;
};

/// Tells from what stands before and behind a place how well the words fit there.
class WordMatcher
{
public:
    explicit WordMatcher(const SearchedWords& words);

    /// `bytes` has a field mark before the place and one behind it.
    Rank rank(std::string_view bytes, std::size_t offset) const
    {
        const Before before = beforePlace(bytes, offset);
        const Behind behind = behindPlace(bytes, offset + m_size);
        if (m_ends != WordEnds::Anywhere && !isWholeEnough(before, behind, bytes, offset + m_size))
            return Rank::None;
        return ranks[static_cast<std::size_t>(before)][static_cast<std::size_t>(behind)];
    }

private:
    enum class Before : std::uint8_t { NameBegins, TitleBegins, WordBegins, WordGoesOn, Unknown };
    enum class Behind : std::uint8_t { Else, FieldEnds, BracketOpens };

    // clang-format off
    static constexpr Rank ranks[4][3] = {
        //               Else                  FieldEnds            BracketOpens
        /* NameBegins  */ {Rank::NameBeginning,  Rank::SetName,       Rank::NameBeginning},
        /* TitleBegins */ {Rank::TitleBeginning, Rank::TitleProper,   Rank::TitleProper},
        /* WordBegins  */ {Rank::WordBeginning,  Rank::WordBeginning, Rank::WordBeginning},
        /* WordGoesOn  */ {Rank::Inside,         Rank::Inside,        Rank::Inside},
    };
    // clang-format on

    Before beforePlace(std::string_view bytes, std::size_t offset) const
    {
        const Before before = m_before[static_cast<unsigned char>(bytes[offset - 1])];
        return before == Before::Unknown ? beforeByCharacter(bytes, offset) : before;
    }

    // Without a branch: there would be no guessing it. Behind a blank there is always one more byte, behind
    // the last mark of all there is none.
    static Behind behindPlace(std::string_view bytes, std::size_t end)
    {
        const bool blank = bytes[end] == ' ';
        const int bracket = int{blank} & int{bytes[end + std::size_t{blank}] == '('};
        // A blank is no mark: it is one of the three.
        // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange)
        return static_cast<Behind>(int{isFieldMark(bytes[end])} + 2 * bracket);
    }

    Before beforeByCharacter(std::string_view bytes, std::size_t offset) const;
    bool isWholeEnough(Before before, Behind behind, std::string_view bytes, std::size_t end) const;

    std::size_t m_size;
    WordEnds m_ends;
    WordClass m_first;
    WordClass m_last;
    std::array<Before, 256> m_before; // by the byte before the place
};

} // namespace tessera
