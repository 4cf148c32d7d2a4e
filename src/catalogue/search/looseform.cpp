#include "catalogue/search/looseform.h"

#include "catalogue/search/wordclass.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

struct Substitute {
    std::string_view sight;
    std::string_view text;
};

// Up to fifteen; a single letter is more often one of a name.
constexpr std::array numerals{
    Substitute{"ii", "2"},   Substitute{"iii", "3"},   Substitute{"iv", "4"},   Substitute{"vi", "6"},
    Substitute{"vii", "7"},  Substitute{"viii", "8"},  Substitute{"ix", "9"},   Substitute{"xi", "11"},
    Substitute{"xii", "12"}, Substitute{"xiii", "13"}, Substitute{"xiv", "14"}, Substitute{"xv", "15"},
    Substitute{"二", "2"},   Substitute{"三", "3"},    Substitute{"四", "4"},   Substitute{"五", "5"},
    Substitute{"六", "6"},   Substitute{"七", "7"},    Substitute{"八", "8"},   Substitute{"九", "9"},
};

// What sounds alike in the Japanese of today, or is written for the same foreign sound. The first row that
// fits counts.
constexpr std::array kanaSpellings{
    Substitute{"ゔぁ", "ば"}, Substitute{"ゔぃ", "び"}, Substitute{"ゔぇ", "べ"}, Substitute{"ゔぉ", "ぼ"},
    Substitute{"ゔ", "ぶ"},   Substitute{"てぃ", "ち"}, Substitute{"でぃ", "じ"}, Substitute{"とぅ", "つ"},
    Substitute{"どぅ", "ず"}, Substitute{"ぢ", "じ"},   Substitute{"づ", "ず"},   Substitute{"ぁ", "あ"},
    Substitute{"ぃ", "い"},   Substitute{"ぅ", "う"},   Substitute{"ぇ", "え"},   Substitute{"ぉ", "お"},
    Substitute{"ゎ", "わ"},   Substitute{"ゐ", "い"},   Substitute{"ゑ", "え"},   Substitute{"を", "お"},
};

constexpr std::string_view again = "々";

std::size_t characterSize(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return std::min(size, text.size());
}

bool isAsciiByte(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

WordClass classAt(std::string_view text, std::size_t at)
{
    return isAsciiByte(text[at]) ? asciiClass(text[at]) : firstClass(text.substr(at));
}

// The characters of one class that the text begins with.
std::string_view firstRun(std::string_view text, WordClass wordClass)
{
    std::size_t end = 0;
    while (end < text.size() && classAt(text, end) == wordClass)
        end += isAsciiByte(text[end]) ? 1 : characterSize(text.substr(end));
    return text.substr(0, end);
}

// Of a kana of three bytes, what its last two tell.
constexpr std::size_t kanaNumber(std::string_view kana)
{
    return (static_cast<unsigned char>(kana[1]) & 0x3FU) << 6U
        | (static_cast<unsigned char>(kana[2]) & 0x3FU);
}

// Most kana begin no row.
constexpr std::array<bool, 1U << 12U> beginsSpelling = [] {
    std::array<bool, 1U << 12U> begins{};
    for (const Substitute& row : kanaSpellings)
        begins[kanaNumber(row.sight)] = true;
    return begins;
}();

void appendKana(std::string& out, std::string_view run)
{
    while (!run.empty()) {
        std::size_t size = characterSize(run);
        std::string_view text = run.substr(0, size);
        if (size == 3 && beginsSpelling[kanaNumber(run)]) {
            const auto* const row = std::ranges::find_if(
                kanaSpellings, [&](const Substitute& each) { return run.starts_with(each.sight); });
            size = row != kanaSpellings.end() ? row->sight.size() : size;
            text = row != kanaSpellings.end() ? row->text : text;
        }
        out += text;
        run.remove_prefix(size);
    }
}

void appendIdeographs(std::string& out, std::string_view run)
{
    std::string_view before;
    while (!run.empty()) {
        const std::string_view sign = run.substr(0, characterSize(run));
        if (sign != again)
            before = sign;
        out += before;
        run.remove_prefix(sign.size());
    }
}

// Most runs are words of letters, and no numerals.
bool isSpeltAsItIs(std::string_view run, WordClass wordClass)
{
    constexpr std::size_t longestNumeral = 4;
    return wordClass == WordClass::Letters
        && (run.size() > longestNumeral || !std::string_view("ivx").contains(run.front()));
}

std::string spelt(std::string_view run, WordClass wordClass)
{
    std::string out;
    const auto* const numeral = std::ranges::find(numerals, run, &Substitute::sight);
    if (numeral != numerals.end())
        out += numeral->text;
    else if (wordClass == WordClass::Kana)
        appendKana(out, run);
    else if (wordClass == WordClass::Ideographs)
        appendIdeographs(out, run);
    else
        out += run;
    return out;
}

// What punctuation makes of the place behind it.
Edge edgeBehind(char sign, bool afterBlank)
{
    if (sign == ' ' || sign == '&')
        return Edge::Word;
    if (sign == ':' || (afterBlank && (sign == '-' || sign == '~' || sign == '/')))
        return Edge::Part;
    return sign == '/' ? Edge::Word : Edge::Piece;
}

// Calls `visit(source, word, wordClass, before)` for each word, which most often is its source.
template <class Visit>
void forEachWord(std::string_view folded, Visit&& visit)
{
    Edge next = Edge::Part;
    bool afterBlank = false;
    const auto take = [&](std::string_view source, std::string_view word, WordClass wordClass) {
        const bool isThe = next == Edge::Part && word == "the";
        visit(source, word, wordClass, next == Edge::None ? Edge::Word : next);
        next = isThe ? Edge::Part : Edge::None;
    };
    while (!folded.empty()) {
        const WordClass wordClass = classAt(folded, 0);
        const std::string_view run = wordClass == WordClass::None ? folded.substr(0, characterSize(folded))
                                                                  : firstRun(folded, wordClass);
        if (wordClass == WordClass::None)
            next = std::max(next, edgeBehind(run.front(), afterBlank));
        else
            take(run, run, wordClass);
        if (run == "&")
            take(run, "and", WordClass::Letters);
        afterBlank = run == " ";
        folded.remove_prefix(run.size());
    }
}

} // namespace

void LooseForm::set(std::string_view folded)
{
    text.clear();
    edges.clear();
    text.reserve(folded.size());
    edges.reserve(folded.size());
    forEachWord(folded, [this](std::string_view, std::string_view word, WordClass wordClass, Edge before) {
        if (isSpeltAsItIs(word, wordClass))
            append(word, before);
        else
            append(spelt(word, wordClass), before);
    });
}

std::vector<LooseWord> looseWords(std::string_view folded)
{
    std::vector<LooseWord> words;
    forEachWord(folded,
                [&](std::string_view source, std::string_view word, WordClass wordClass, Edge before) {
                    words.push_back({source, spelt(word, wordClass), before});
                });
    return words;
}

void LooseForm::append(std::string_view word, Edge before)
{
    const std::size_t begin = text.size();
    text += word;
    edges.resize(text.size(), Edge::None);
    if (begin < text.size())
        edges[begin] = before;
}

void LooseForm::beginPartBehind(const LooseForm& words)
{
    const std::size_t size = words.text.size();
    if (size > 0 && size < text.size() && text.starts_with(words.text) && edges[size] != Edge::None)
        edges[size] = Edge::Part;
}

std::size_t LooseForm::wordEnd(std::size_t place) const
{
    const auto end = std::find_if(edges.begin() + static_cast<std::ptrdiff_t>(place) + 1, edges.end(),
                                  [](Edge edge) { return edge != Edge::None; });
    return static_cast<std::size_t>(end - edges.begin());
}

std::string looseWord(std::string_view folded)
{
    return LooseForm(folded).text;
}

bool isNumeral(std::string_view loose)
{
    return !loose.empty() && std::ranges::all_of(loose, isAsciiDigit);
}

std::string_view withoutVersion(std::string_view folded)
{
    return folded.substr(0, folded.find('(', 1));
}

std::vector<std::string_view> titlesProper(std::string_view folded)
{
    constexpr std::string_view between = " / ";
    std::vector<std::string_view> titles;
    folded = withoutVersion(folded);
    while (true) {
        const auto end = folded.find(between);
        titles.push_back(folded.substr(0, end));
        if (end == std::string_view::npos)
            return titles;
        folded.remove_prefix(end + between.size());
    }
}

std::vector<std::string> initials(const LooseForm& title)
{
    std::vector<std::string> found;
    std::string all;
    std::string part;
    const auto take = [&](std::string& letters) {
        if (letters.size() >= 2 && std::ranges::find(found, letters) == found.end())
            found.push_back(letters);
        letters.clear();
    };
    forEachInitial(title.text, title.edges, [&](std::size_t place, bool beginsPart) {
        if (beginsPart)
            take(part);
        part += title.text[place];
        all += title.text[place];
    });
    take(part);
    take(all);
    return found;
}

bool mayBeInitials(std::string_view loose)
{
    const auto letters
        = static_cast<std::size_t>(std::ranges::find_if_not(loose, isAsciiLetter) - loose.begin());
    const std::string_view number = loose.substr(letters);
    return std::ranges::all_of(number, isAsciiDigit) && letters + (number.empty() ? 0 : 1) >= 3
        && letters <= 6;
}

} // namespace tessera
