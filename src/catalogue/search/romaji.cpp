#include "catalogue/search/romaji.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

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
    Spelling{"mahjong", 7, "mazyan"},
    Spelling{"mb", 1, "n"}, Spelling{"mp", 1, "n"}, Spelling{"mm", 1, "n"},
    Spelling{"'", 1, ""}, Spelling{"-", 1, ""},
};
// clang-format on

// Which signs begin a row: most do not.
constexpr std::array<bool, 256> beginsRow = [] {
    std::array<bool, 256> begins{};
    for (const Spelling& spelling : spellings)
        begins[static_cast<unsigned char>(spelling.sight.front())] = true;
    return begins;
}();

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

} // namespace

std::string romajiSpelling(std::string_view latin)
{
    std::string out;
    out.reserve(latin.size() + 4);
    while (!latin.empty()) {
        if (!beginsRow[static_cast<unsigned char>(latin.front())]) {
            out += latin.front();
            latin.remove_prefix(1);
            continue;
        }
        const auto* const row = std::ranges::find_if(
            spellings, [&](const Spelling& spelling) { return latin.starts_with(spelling.sight); });
        out += row != spellings.end() ? row->text : latin.substr(0, 1);
        latin.remove_prefix(row != spellings.end() ? row->letters : 1);
    }
    return out;
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

} // namespace tessera
