#include "catalogue/search/wordsearch.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/kanareading.h"
#include "catalogue/search/romaji.h"
#include "core/encodings.h"

#include <algorithm>

namespace tessera {

namespace {

// Letters that are read as kana inside of words; fewer would be found in half of all readings.
constexpr std::size_t leastInside = 4;

void findLiterally(const SearchBuffer& buffer, const SearchedWords& words, FieldSet fields,
                   std::vector<Score>& best)
{
    const WordMatcher matcher(words);
    const std::string_view bytes = buffer.bytes();
    const auto take = [&](std::uint32_t record, std::size_t offset) {
        const Rank rank = matcher.rank(bytes, offset);
        if (rank != Rank::None)
            best[record] = std::min(best[record], score(rank, WordForm::Plain));
    };
    if (fields != everyField) {
        buffer.forEachHit(words.text, [&](std::uint32_t record, std::size_t offset) {
            if ((fields & setOf(fieldAt(bytes, offset))) != 0)
                take(record, offset);
        });
    } else {
        buffer.forEachHit(words.text, take);
    }
}

void findLoosely(const LooseBuffer& buffer, std::string_view word, const LooseRules& rules,
                 std::vector<Score>& best)
{
    if (word.empty())
        return;
    buffer.forEachRank(word, rules, [&](std::uint32_t record, Rank rank, FieldMark field) {
        const WordForm form = field == AlternativeMark ? WordForm::Alternative : WordForm::Plain;
        best[record] = std::min(best[record], score(rank, form));
    });
}

// What reads like Japanese is found as well where an English title writes it in Latin letters.
void findReading(const LooseBuffer& buffer, std::string_view reading, bool isJapanese,
                 const LooseRules& rules, std::vector<Score>& best)
{
    if (reading.empty())
        return;
    buffer.forEachRank(reading, rules, [&](std::uint32_t record, Rank rank, FieldMark field) {
        const bool isRomanised = field == RomanisedMark;
        if (!isRomanised || (isJapanese && rank != Rank::Inside))
            best[record]
                = std::min(best[record], score(rank, isRomanised ? WordForm::Romanised : WordForm::Reading));
    });
}

bool isRomanNumeral(std::string_view word)
{
    return !isNumeral(word) && isNumeral(looseWord(word));
}

} // namespace

Spelling::Spelling(const SearchedWords& word)
    : loose(looseWord(word.text))
    , reading(readingOf(word.text))
    , isJapanese(!reading.empty() && mayBeJapanese(word.text))
{
    if (reading.empty())
        reading = loose;
}

void Spelling::append(const Spelling& next)
{
    loose += next.loose;
    reading += next.reading;
    isJapanese = isJapanese || next.isJapanese;
}

std::string readingOf(std::string_view word)
{
    if (isRomaji(word))
        return isRomanNumeral(word) ? std::string() : withoutBlanks(shortRomajiSpelling(word));
    const std::vector<std::string> readings = romajiReadings(word);
    if (readings.empty() || readings.front().contains(unreadSign))
        return {};
    return withoutBlanks(readings.front());
}

bool mayStandInside(std::string_view word, std::string_view reading)
{
    return reading.size() >= leastInside && isRomaji(word);
}

bool mayBeJapanese(std::string_view word)
{
    return !isAscii(word) || readsLikeJapanese(word);
}

std::vector<Score> wordScores(const SearchTexts& texts, std::size_t records, const SearchedWords& words,
                              const WordRules& rules)
{
    std::vector<Score> best(records, noScore);
    findLiterally(texts.texts(), words, rules.fields, best);
    if (rules.literally)
        return best;
    const bool isQuoted = words.ends != WordEnds::Anywhere;
    const std::string loose = isQuoted ? std::string() : looseWord(words.text);
    // A single letter is found as it stands.
    if (isNumeral(loose) || (!rules.negated && loose.size() > 1))
        findLoosely(texts.loose(), loose,
                    {.wholeOnly = rules.negated, .asInitials = mayBeInitials(loose), .fields = rules.fields},
                    best);
    const std::string reading = readingOf(words.text);
    const bool isLong = reading.size() >= leastInside;
    const LooseRules asReading{.wholeOnly = words.ends == WordEnds::Whole,
                               .atBeginning = rules.negated || !isLong,
                               .inside = !isQuoted && isLong && isRomaji(words.text),
                               .fields = rules.fields};
    findReading(texts.romaji(), reading, mayBeJapanese(words.text) && !rules.negated, asReading, best);
    return best;
}

std::vector<Score> phraseScores(const SearchTexts& texts, std::size_t records,
                                std::span<const SearchedWords* const> words)
{
    std::vector<Score> best(records, noScore);
    Spelling all;
    for (const SearchedWords* word : words)
        all.append(Spelling(*word));
    findLoosely(texts.loose(), all.loose, {.asInitials = mayBeInitials(all.loose)}, best);
    findReading(texts.romaji(), all.reading, all.isJapanese, {}, best);
    return best;
}

bool holdsWords(std::string_view folded, const SearchedWords& words)
{
    SearchBuffer one;
    one.begin(0);
    one.add(NameMark, folded);
    one.end();
    std::vector<Score> best(1, noScore);
    findLiterally(one, words, everyField, best);
    return best.front() != noScore;
}

} // namespace tessera
