#include "catalogue/search/nearest.h"

#include "catalogue/search/editdistance.h"
#include "catalogue/search/wordsearch.h"
#include "core/encodings.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <ranges>
#include <string>
#include <utility>

namespace tessera {

namespace {

/// What is to be done to a word: two for each slip, and one where it goes on. So what is typed whole comes
/// before what is half typed.
using Cost = std::uint8_t;
constexpr Cost notFound = 0xFF;
constexpr bool isWhole(Cost cost)
{
    return cost % 2 == 0;
}

unsigned slipsOf(std::string_view word)
{
    constexpr std::size_t leastForOne = 4;
    constexpr std::size_t leastForTwo = 7;
    return word.size() >= leastForTwo ? 2 : word.size() >= leastForOne ? 1 : 0;
}

// A bit for each letter that occurs.
std::uint64_t lettersOf(std::string_view word)
{
    std::uint64_t letters = 0;
    for (const char c : word)
        letters |= std::uint64_t{1} << (static_cast<unsigned char>(c) & 63U);
    return letters;
}

/// A word that is looked for among others.
class SoughtWord
{
public:
    explicit SoughtWord(std::string text)
        : m_text(std::move(text))
        , m_slips(slipsOf(m_text))
        , m_letters(lettersOf(m_text))
        , m_isNumeral(isNumeral(m_text))
    {
    }

    Cost cost(std::string_view word) const
    {
        if (m_isNumeral || m_text.size() < 2)
            return m_text == word ? 0 : notFound;
        // Each slip loses one letter at most. Most words go by this.
        if (word.size() + m_slips < m_text.size()
            || static_cast<unsigned>(std::popcount(m_letters & ~lettersOf(word))) > m_slips)
            return notFound;
        const EditDistance distance = editDistance(m_text, word, m_slips);
        // Two slips in what is half typed would be anything.
        const unsigned begun
            = distance.beginning <= std::min(m_slips, 1U) ? 2 * distance.beginning + 1 : notFound;
        const unsigned whole = distance.whole <= m_slips ? 2 * distance.whole : notFound;
        const unsigned cost = std::min(whole, begun);
        return cost != notFound && hasDigitsOf(word) ? static_cast<Cost>(cost) : notFound;
    }

private:
    // A slip makes no digit: another one is another game.
    bool hasDigitsOf(std::string_view word) const
    {
        auto digits = word | std::views::filter(isAsciiDigit);
        return digits.empty() || std::ranges::equal(m_text | std::views::filter(isAsciiDigit), digits);
    }

    std::string m_text;
    unsigned m_slips;
    std::uint64_t m_letters;
    bool m_isNumeral;
};

/// Several words, and all of them written as one.
struct SoughtWords {
    explicit SoughtWords(std::span<const std::string> texts)
        : words(texts.begin(), texts.end())
        , joined(std::accumulate(texts.begin(), texts.end(), std::string()))
    {
    }

    std::vector<SoughtWord> words;
    SoughtWord joined;
};

/// What each word costs in each record, at best, of several forms of its texts.
class Measuring
{
public:
    Measuring(std::size_t records, std::size_t words)
        : m_words(words)
        , m_costs(records * words, notFound)
        , m_joined(records, notFound)
        , m_spare(records, notFound)
        , m_name(records, notFound)
    {
    }

    void measure(const LooseBuffer& buffer, const SoughtWords& sought);
    Distance distance(std::size_t record) const;

private:
    void measureField(std::uint32_t record, const LooseBuffer& buffer, std::size_t begin, std::size_t end,
                      const SoughtWords& sought);
    void measurePart(std::uint32_t record, std::string_view part, std::uint32_t found, unsigned spare,
                     const SoughtWords& sought);
    std::uint32_t measureWord(std::uint32_t record, std::string_view word, const SoughtWords& sought);

    std::size_t m_words;
    std::vector<Cost> m_costs; // of the first record's words, then of the second one's
    std::vector<Cost> m_joined;
    std::vector<std::uint8_t> m_spare; // words that nobody asked for, in the title's part that has the fewest
    std::vector<Cost> m_name; // of all words together in the set name
};

std::size_t wordEnd(const LooseBuffer& buffer, std::size_t begin, std::size_t end)
{
    std::size_t next = begin + 1;
    while (next < end && buffer.edgeAt(next) < Edge::Word)
        ++next;
    return next;
}

void Measuring::measure(const LooseBuffer& buffer, const SoughtWords& sought)
{
    const SearchBuffer& forms = buffer.forms();
    const std::string_view bytes = forms.bytes();
    for (std::size_t place = 0; place < forms.records(); ++place) {
        // One that was taken out may have kept its number behind the last one.
        const std::uint32_t record = forms.record(place);
        if (record >= m_joined.size())
            continue;
        const std::size_t last = forms.ends(place) - 1;
        for (std::size_t begin = forms.begins(place); begin < last && isFieldMark(bytes[begin]);) {
            std::size_t end = begin + 1;
            while (!isFieldMark(bytes[end]))
                ++end;
            measureField(record, buffer, begin, end, sought);
            begin = end;
        }
    }
}

void Measuring::measureField(std::uint32_t record, const LooseBuffer& buffer, std::size_t begin,
                             std::size_t end, const SoughtWords& sought)
{
    const std::string_view bytes = buffer.bytes();
    const auto mark = static_cast<FieldMark>(bytes[begin]);
    ++begin;
    if (mark == NameMark)
        m_name[record] = sought.joined.cost(bytes.substr(begin, end - begin));
    if (mark == NameMark || mark == InitialsMark)
        return;
    const bool isTitle = mark != MakerMark && mark != YearMark;
    for (std::size_t part = begin; part < end;) {
        std::size_t next = part;
        std::uint32_t found = 0;
        unsigned spare = 0;
        do {
            const std::size_t at = std::exchange(next, wordEnd(buffer, next, end));
            const std::uint32_t here = measureWord(record, bytes.substr(at, next - at), sought);
            found |= here;
            spare += here == 0 ? 1 : 0;
        } while (next < end && buffer.edgeAt(next) != Edge::Part);
        if (isTitle)
            measurePart(record, bytes.substr(part, next - part), found, spare, sought);
        part = next;
    }
}

// Sought words that are elsewhere count like words that nobody asked for.
void Measuring::measurePart(std::uint32_t record, std::string_view part, std::uint32_t found, unsigned spare,
                            const SoughtWords& sought)
{
    if (found != 0)
        spare += static_cast<unsigned>(m_words) - static_cast<unsigned>(std::popcount(found));
    const Cost joined = sought.joined.cost(part);
    m_joined[record] = std::min(m_joined[record], joined);
    constexpr Cost oneSlip = 2;
    if (isWhole(joined) && joined <= oneSlip)
        spare = 0;
    if (found != 0 || joined != notFound)
        m_spare[record] = static_cast<std::uint8_t>(std::min<unsigned>(m_spare[record], spare));
}

// One bit for each sought word that it may be.
std::uint32_t Measuring::measureWord(std::uint32_t record, std::string_view word, const SoughtWords& sought)
{
    std::uint32_t found = 0;
    for (std::size_t i = 0; i < m_words; ++i) {
        const Cost cost = sought.words[i].cost(word);
        Cost& best = m_costs[record * m_words + i];
        best = std::min(best, cost);
        found |= cost != notFound ? std::uint32_t{1} << i : 0U;
    }
    return found;
}

Distance Measuring::distance(std::size_t record) const
{
    constexpr unsigned mostCost = (1U << costBits) - 1;
    constexpr unsigned mostSpare = (1U << spareBits) - 1;
    const auto costs = std::span(m_costs).subspan(record * m_words, m_words);
    unsigned cost = m_joined[record];
    if (std::ranges::find(costs, notFound) == costs.end())
        cost = std::min(cost, std::accumulate(costs.begin(), costs.end(), 0U));
    // Without a word of a title it would be anything by the same maker.
    if (cost == notFound || m_spare[record] == notFound)
        return tooFar;
    // A name that looks alike tells less than a title does; both together tell most.
    const bool isName = isWhole(m_name[record]) && m_name[record] <= cost;
    const unsigned spare = !isName ? m_spare[record] + 1U : m_spare[record] == 0 ? 0U : 1U;
    return static_cast<Distance>(std::min(cost, mostCost) << spareBits | std::min(spare, mostSpare));
}

} // namespace

std::vector<Distance> distances(const SearchTexts& texts, std::size_t records,
                                std::span<const SearchedWords* const> words)
{
    // A page that was pasted is no slip.
    constexpr std::size_t mostWords = 8;
    std::vector<Distance> distances(records, tooFar);
    if (words.empty() || words.size() > mostWords)
        return distances;
    std::vector<std::string> loose;
    std::vector<std::string> readings;
    bool isJapanese = false;
    for (const SearchedWords* word : words) {
        if (word->ends != WordEnds::Anywhere)
            return distances;
        Spelling spelling(*word);
        // Nothing but punctuation.
        if (spelling.reading.empty())
            continue;
        isJapanese = isJapanese || spelling.isJapanese;
        readings.push_back(std::move(spelling.reading));
        // Of kanji a slip cannot be told from another word.
        loose.push_back(isAscii(spelling.loose) ? std::move(spelling.loose) : std::string());
    }
    if (loose.empty())
        return distances;
    Measuring measuring(records, loose.size());
    measuring.measure(texts.loose(), SoughtWords(loose));
    if (isJapanese)
        measuring.measure(texts.romaji(), SoughtWords(readings));
    for (std::size_t record = 0; record < records; ++record)
        distances[record] = measuring.distance(record);
    return distances;
}

} // namespace tessera
