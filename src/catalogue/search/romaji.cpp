#include "catalogue/search/romaji.h"

#include "core/encodings.h"

#include <unicode/translit.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <memory>

namespace tessera {

namespace {

using icu::UnicodeString;

// At `sight`, the first so many letters are written as `text`. The first row that fits counts.
struct Spelling {
    std::string_view sight;
    std::size_t letters;
    std::string_view text;
};

// clang-format off
constexpr std::array spellings{
    Spelling{"cch", 1, "t"},
    Spelling{"chi", 2, "t"}, Spelling{"cha", 2, "ty"}, Spelling{"chu", 2, "ty"}, Spelling{"che", 2, "ty"}, Spelling{"cho", 2, "ty"},
    Spelling{"ch", 2, "t"},
    Spelling{"shi", 2, "s"}, Spelling{"sha", 2, "sy"}, Spelling{"shu", 2, "sy"}, Spelling{"she", 2, "sy"}, Spelling{"sho", 2, "sy"},
    Spelling{"sh", 2, "s"},
    Spelling{"ts", 2, "t"},
    Spelling{"thi", 2, "t"}, Spelling{"dhi", 2, "d"},
    Spelling{"dj", 1, ""}, Spelling{"dz", 1, ""},
    Spelling{"jj", 1, "z"}, Spelling{"ji", 1, "z"}, Spelling{"jy", 1, "z"},
    Spelling{"ja", 1, "zy"}, Spelling{"ju", 1, "zy"}, Spelling{"je", 1, "zy"}, Spelling{"jo", 1, "zy"},
    Spelling{"j", 1, "z"},
    Spelling{"ff", 1, "h"}, Spelling{"fu", 1, "h"}, Spelling{"f", 1, "hu"},
    Spelling{"v", 1, "b"},
    Spelling{"wo", 1, ""},
    Spelling{"mb", 1, "n"}, Spelling{"mp", 1, "n"}, Spelling{"mm", 1, "n"},
    Spelling{"'", 1, ""}, Spelling{"-", 1, ""},
};

// How ICU writes small kana behind others, and what people write.
constexpr std::array smallKana{
    Spelling{"vu~a", 4, "va"}, Spelling{"vu~i", 4, "vi"}, Spelling{"vu~e", 4, "ve"}, Spelling{"vu~o", 4, "vo"},
    Spelling{"tsu~", 4, "ts"}, Spelling{"~tsu", 4, ""},
    Spelling{"to~u", 4, "tu"}, Spelling{"do~u", 4, "du"},
    Spelling{"de~yu", 5, "dyu"}, Spelling{"te~yu", 5, "tyu"}, Spelling{"fu~yu", 5, "fyu"},
    Spelling{"su~i", 4, "si"}, Spelling{"zu~i", 4, "zi"}, Spelling{"ku~", 3, "ku"}, Spelling{"gu~", 3, "gu"},
    Spelling{"u~i", 3, "wi"}, Spelling{"u~e", 3, "we"}, Spelling{"u~o", 3, "wo"}, Spelling{"i~e", 3, "ye"},
};
// clang-format on

// ICU tells ぢ and づ from じ and ず; some people do so too, when they type "di" and "du".
constexpr std::array plainDi{Spelling{"dj", 2, "d"}, Spelling{"dz", 2, "d"}};

// Which signs begin a row: most do not.
template <std::size_t N>
constexpr std::array<bool, 256> beginningsOf(const std::array<Spelling, N>& table)
{
    std::array<bool, 256> begins{};
    for (const Spelling& spelling : table)
        begins[static_cast<unsigned char>(spelling.sight.front())] = true;
    return begins;
}

template <const auto& table>
std::string respelled(std::string_view latin)
{
    static constexpr std::array<bool, 256> begins = beginningsOf(table);
    std::string out;
    out.reserve(latin.size() + 4);
    while (!latin.empty()) {
        if (!begins[static_cast<unsigned char>(latin.front())]) {
            out += latin.front();
            latin.remove_prefix(1);
            continue;
        }
        const auto row = std::ranges::find_if(
            table, [&](const Spelling& spelling) { return latin.starts_with(spelling.sight); });
        out += row != table.end() ? row->text : latin.substr(0, 1);
        latin.remove_prefix(row != table.end() ? row->letters : 1);
    }
    return out;
}

// Of what the text begins with: a vowel with a consonant before it or none, an n, or the first half of a
// doubled consonant; 0 for anything else.
std::size_t syllableSize(std::string_view text)
{
    constexpr std::array<std::string_view, 4> pairs{"sh", "ch", "ts", "dz"};
    const auto isVowelAt
        = [text](std::size_t i) { return i < text.size() && std::string_view("aiueo").contains(text[i]); };
    const char first = text.front();
    const char second = text.size() > 1 ? text[1] : '\0';
    const bool isNasal = (first == 'n' && !isVowelAt(1) && second != 'y')
        || (first == 'm' && (second == 'b' || second == 'p'));
    if (isVowelAt(0) || isNasal || first == second || text.starts_with("tch"))
        return 1;
    if (!std::string_view("kgsztdnhbpmyrwjfc").contains(first))
        return 0;
    std::size_t size = std::ranges::find(pairs, text.substr(0, 2)) != pairs.end() ? 2 : 1;
    size += size < text.size() && text[size] == 'y' ? 1 : 0;
    return isVowelAt(size) ? size + 1 : 0;
}

std::string withLongVowelsOnce(std::string_view latin)
{
    std::string out;
    for (const char c : latin) {
        const char before = out.empty() ? '\0' : out.back();
        const bool twice = c == before && std::string_view("aiueon").contains(c);
        if (!twice && !(before == 'o' && c == 'u'))
            out += c;
    }
    return out;
}

bool isHiragana(UChar32 c)
{
    return (c >= 0x3041 && c <= 0x3096) || c == 0x309F;
}

// What stands for a character in the text that is transliterated: no letter of the text itself may pass for a
// reading.
UChar32 unread(UChar32 c, UChar32 before)
{
    if (u_isalnum(c) != 0)
        return UChar32{unreadSign};
    return c == u':' || (before == u' ' && (c == u'-' || c == u'~')) ? UChar32{partSign} : UChar32{' '};
}

UnicodeString kanaOnly(const UnicodeString& text, bool& holdsKana)
{
    UnicodeString out;
    UChar32 before = 0;
    for (int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        const UChar32 c = text.char32At(i);
        holdsKana = holdsKana || isHiragana(c);
        if (!isHiragana(c))
            out.append(unread(c, std::exchange(before, c)));
        else // ICU does not know the small ka and ke
            out.append(c == 0x3095 ? UChar32{0x304B} : c == 0x3096 ? UChar32{0x3051} : c);
    }
    return out;
}

// Making it takes some 20 ms, using it a few microseconds. It never changes.
const icu::Transliterator* hiraganaToLatin()
{
    static const std::unique_ptr<const icu::Transliterator> made = [] {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<const icu::Transliterator>(
            icu::Transliterator::createInstance("Hiragana-Latin", UTRANS_FORWARD, status));
    }();
    return made.get();
}

// What ICU leaves as it is (an iteration mark, say) counts as unread.
std::string latinOnly(const UnicodeString& text)
{
    std::string out;
    for (int32_t i = 0; i < text.length(); ++i) {
        const char16_t c = text[i];
        const bool isLatin = (c >= u'a' && c <= u'z') || std::u16string_view(u"~' /").contains(c);
        out += isLatin ? static_cast<char>(c) : unreadSign;
    }
    return out;
}

} // namespace

std::string romajiSpelling(std::string_view latin)
{
    return respelled<spellings>(latin);
}

std::string shortRomajiSpelling(std::string_view latin)
{
    return withLongVowelsOnce(romajiSpelling(latin));
}

std::string withoutBlanks(std::string_view text)
{
    std::string out(text);
    std::erase(out, ' ');
    return out;
}

bool isRomaji(std::string_view folded)
{
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    return std::ranges::any_of(folded, isLetter) && std::ranges::all_of(folded, [&](char c) {
               return isLetter(c) || c == '\'' || c == '-' || c == ' ';
           });
}

bool readsLikeJapanese(std::string_view folded)
{
    constexpr std::size_t least = 4;
    if (folded.size() < least)
        return false;
    while (!folded.empty()) {
        const std::size_t size = syllableSize(folded);
        if (size == 0)
            return false;
        folded.remove_prefix(size);
    }
    return true;
}

std::vector<std::string> romajiReadings(std::string_view folded)
{
    if (isAscii(folded) || hiraganaToLatin() == nullptr)
        return {};
    bool holdsKana = false;
    UnicodeString units
        = kanaOnly(UnicodeString::fromUTF8({folded.data(), static_cast<int32_t>(folded.size())}), holdsKana);
    if (!holdsKana)
        return {};
    hiraganaToLatin()->transliterate(units);
    std::string latin = respelled<smallKana>(latinOnly(units));
    std::erase(latin, '~');

    std::vector<std::string> readings;
    for (const std::string& variant : {latin, respelled<plainDi>(latin)}) {
        const std::string spelling = romajiSpelling(variant);
        for (const std::string& reading : {withLongVowelsOnce(spelling), spelling}) {
            if (std::ranges::find(readings, reading) == readings.end())
                readings.push_back(reading);
        }
    }
    return readings;
}

} // namespace tessera
