#include "catalogue/search/kanareading.h"

#include "catalogue/search/looseform.h"
#include "catalogue/search/romaji.h"
#include "core/encodings.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr char32_t firstKana = U'ぁ';
constexpr char32_t smallTsu = U'っ';

// From the first kana on, as romajiSpelling() spells. A transliterator of a library reads the same, but takes
// twenty milliseconds to be made and six times as long to read; what is made of ten thousand titles is waited
// for.
// clang-format off
constexpr std::array<std::string_view, 86> kana{
    "a", "a", "i", "i", "u", "u", "e", "e", "o", "o",
    "ka", "ga", "ki", "gi", "ku", "gu", "ke", "ge", "ko", "go",
    "sa", "za", "si", "zi", "su", "zu", "se", "ze", "so", "zo",
    "ta", "da", "ti", "zi", "", "tu", "zu", "te", "de", "to", "do",
    "na", "ni", "nu", "ne", "no",
    "ha", "ba", "pa", "hi", "bi", "pi", "hu", "bu", "pu", "he", "be", "pe", "ho", "bo", "po",
    "ma", "mi", "mu", "me", "mo",
    "ya", "ya", "yu", "yu", "yo", "yo",
    "ra", "ri", "ru", "re", "ro",
    "wa", "wa", "wi", "we", "o", "n", "bu", "ka", "ke",
};

/// Two kana that are read otherwise than one behind the other.
struct Pair {
    std::u32string_view kana;
    std::string_view reading;
};

constexpr std::array pairs{
    Pair{U"いぇ", "ye"},  Pair{U"うぃ", "wi"},  Pair{U"うぇ", "we"},  Pair{U"うぉ", "o"},
    Pair{U"すぃ", "si"},  Pair{U"ずぃ", "zi"},
    Pair{U"つぁ", "ta"},  Pair{U"つぃ", "ti"},  Pair{U"つぇ", "te"},  Pair{U"つぉ", "to"},
    Pair{U"てぃ", "ti"},  Pair{U"てゅ", "tyu"}, Pair{U"でぃ", "di"},  Pair{U"でゅ", "dyu"},
    Pair{U"とぅ", "tu"},  Pair{U"どぅ", "du"},
    Pair{U"ゔぁ", "ba"},  Pair{U"ゔぃ", "bi"},  Pair{U"ゔぇ", "be"},  Pair{U"ゔぉ", "bo"},
};
// clang-format on

bool isKana(char32_t c)
{
    return c - firstKana < kana.size();
}

// ぢ and づ are じ and ず; some people tell them apart when they type.
std::string_view readingOf(char32_t c, bool tellsDi)
{
    if (tellsDi && (c == U'ぢ' || c == U'づ'))
        return c == U'ぢ' ? "di" : "du";
    return kana[c - firstKana];
}

bool isSmallY(char32_t c)
{
    return c == U'ゃ' || c == U'ゅ' || c == U'ょ';
}

bool isSmallVowel(char32_t c)
{
    return c <= U'ぉ' && c % 2 == U'ぁ' % 2;
}

/// Reads a text's kana from its first to its last one.
class Reading
{
public:
    explicit Reading(bool tellsDi)
        : m_tellsDi(tellsDi)
    {
    }

    void add(char32_t c)
    {
        if (c == smallTsu)
            m_doubles = true;
        else if (!endsPair(c))
            append(readingOf(c, m_tellsDi));
        m_before = c;
    }

    void addUnread(char sign)
    {
        m_latin += sign;
        m_before = 0;
        m_doubles = false;
    }

    const std::string& latin() const { return m_latin; }
    std::string take() { return std::move(m_latin); }

private:
    // Where this kana and the one before it are read as one, its end is written anew.
    bool endsPair(char32_t c)
    {
        if (!isSmallY(c) && !isSmallVowel(c))
            return false;
        const std::array both{m_before, c};
        const auto* const pair
            = std::ranges::find(pairs, std::u32string_view(both.data(), both.size()), &Pair::kana);
        if (pair != pairs.end()) {
            m_latin.resize(m_begin);
            append(pair->reading);
            return true;
        }
        const bool follows = isKana(m_before) && m_latin.size() - m_begin > 1 && m_latin.back() == 'i';
        if (!follows || !(isSmallY(c) || c == U'ぇ'))
            return false; // read on its own
        m_latin.pop_back();
        m_latin += c == U'ぇ' ? "ye" : readingOf(c, m_tellsDi);
        return true;
    }

    // A doubled m is written as it is before b and p.
    void append(std::string_view reading)
    {
        constexpr std::string_view vowels = "aiueo";
        if (m_doubles && !reading.empty() && !vowels.contains(reading.front()))
            m_latin += reading.front() == 'm' ? 'n' : reading.front();
        m_doubles = false;
        m_begin = m_latin.size();
        m_latin += reading;
    }

    std::string m_latin;
    std::size_t m_begin = 0; // of the last kana's reading
    char32_t m_before = 0;
    bool m_doubles = false; // a small tsu stands before
    bool m_tellsDi;
};

// What stands for a character that is no kana: no letter of the text itself may pass for a reading.
char unread(char32_t c, char32_t before)
{
    if (u_isalnum(static_cast<UChar32>(c)) != 0)
        return unreadSign;
    return c == ':' || (before == ' ' && (c == '-' || c == '~')) ? partSign : ' ';
}

bool isAsciiWord(char c)
{
    return isAsciiLetter(c) || isAsciiDigit(c);
}

// The digits, or the Roman numeral that is a word, which stand there; they are read as digits.
std::string_view numeralAt(std::string_view folded, std::size_t at)
{
    if (!isAsciiWord(folded[at]) || (at > 0 && isAsciiWord(folded[at - 1])))
        return {};
    const std::string_view rest = folded.substr(at);
    const std::string_view word = rest.substr(
        0, static_cast<std::size_t>(std::ranges::find_if_not(rest, isAsciiWord) - rest.begin()));
    return isNumeral(looseWord(word)) ? word : std::string_view();
}

// Calls `read(begin, end)` behind each character, with its bytes.
template <class Read>
void readAll(Reading& reading, std::string_view folded, Read&& read)
{
    char32_t before = 0;
    for (std::size_t end = 0; end < folded.size();) {
        const std::size_t begin = end;
        const std::string_view numeral = numeralAt(folded, begin);
        const char32_t c = nextCharacter(folded, end);
        if (isKana(c)) {
            reading.add(c);
        } else if (!numeral.empty()) {
            end = begin + numeral.size();
            for (const char digit : looseWord(numeral))
                reading.addUnread(digit);
        } else {
            reading.addUnread(unread(c, before));
        }
        before = c;
        read(begin, end);
    }
}

std::string read(std::string_view folded, bool tellsDi)
{
    Reading reading(tellsDi);
    readAll(reading, folded, [](std::size_t, std::size_t) { });
    return reading.take();
}

bool holdsKana(std::string_view folded)
{
    for (std::size_t at = 0; at < folded.size();) {
        if (isKana(nextCharacter(folded, at)))
            return true;
    }
    return false;
}

void addSpellings(std::vector<std::string>& readings, const std::string& latin)
{
    for (std::string spelling : {withLongVowelsOnce(latin), latin}) {
        if (std::ranges::find(readings, spelling) == readings.end())
            readings.push_back(std::move(spelling));
    }
}

} // namespace

// A kana may change what was read before it, but for the first letters of that.
PlacedReading placedReading(std::string_view folded)
{
    PlacedReading out;
    if (isAscii(folded) || !holdsKana(folded))
        return out;
    Reading reading(false);
    std::string before;
    std::vector<PlacedReading::Place> places;
    readAll(reading, folded, [&](std::size_t begin, std::size_t end) {
        const std::string& latin = reading.latin();
        const auto same = static_cast<std::size_t>(std::ranges::mismatch(before, latin).in1 - before.begin());
        places.resize(same);
        places.resize(latin.size(), {begin, end});
        before = latin;
    });
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::string longer = out.latin + before[i];
        if (withLongVowelsOnce(longer) == out.latin) {
            out.places.back().end = places[i].end;
            continue;
        }
        out.latin = longer;
        out.places.push_back(places[i]);
    }
    return out;
}

std::vector<std::string> romajiReadings(std::string_view folded)
{
    if (isAscii(folded) || !holdsKana(folded))
        return {};
    std::vector<std::string> readings;
    addSpellings(readings, read(folded, false));
    if (folded.contains("ぢ") || folded.contains("づ"))
        addSpellings(readings, read(folded, true));
    return readings;
}

} // namespace tessera
