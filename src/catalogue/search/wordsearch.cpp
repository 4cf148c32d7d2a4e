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
// Letters that may be the initials of a title.
constexpr std::size_t leastInName = 3;

void findLiterally(const SearchBuffer& buffer, const SearchedWords& words, FieldSet fields,
                   std::vector<Score>& best)
{
    const WordMatcher matcher(words);
    const std::string_view bytes = buffer.bytes();
    // What is shorter is inside of half of all names; which field it lies in costs more than it tells.
    const bool looksIntoNames = words.text.size() >= leastInName;
    const auto take = [&](std::uint32_t record, std::size_t offset) {
        Rank rank = matcher.rank(bytes, offset);
        if (rank == Rank::Inside && looksIntoNames && fieldAt(bytes, offset) == NameMark)
            rank = Rank::InsideName;
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
        const bool isRomanised = field == RomanisedMark || field == MakerMark;
        if (!isRomanised || (isJapanese && rank != Rank::Inside))
            best[record]
                = std::min(best[record], score(rank, isRomanised ? WordForm::Romanised : WordForm::Reading));
    });
}

// "daraiasu" of "daraiasu2".
std::string_view withoutNumber(std::string_view word)
{
    while (!word.empty() && isAsciiDigit(word.back()))
        word.remove_suffix(1);
    return word;
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
    const std::string_view letters = withoutNumber(word);
    if (isRomaji(letters)) {
        std::string reading
            = isRomanNumeral(letters) ? std::string() : withoutBlanks(shortRomajiSpelling(letters));
        return reading.empty() ? reading : reading.append(word.substr(letters.size()));
    }
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
    return !isAscii(word) || readsLikeJapanese(withoutNumber(word));
}

std::vector<Score> wordScores(const SearchTexts& texts, std::size_t records, const SearchedWords& words,
                              const WordRules& rules)
{
    std::vector<Score> best(records, noScore);
    const bool isQuoted = words.ends != WordEnds::Anywhere;
    const std::string loose = isQuoted || rules.literally ? std::string() : looseWord(words.text);
    // Left out where it stands as a word: every second set name and date holds a 2.
    const bool onlyAsWord = rules.negated && (isNumeral(loose) || loose.size() == 1);
    if (!onlyAsWord)
        findLiterally(texts.texts(), words, rules.fields, best);
    if (rules.literally)
        return best;
    // A single letter is found as it stands.
    if (onlyAsWord || isNumeral(loose) || (!rules.negated && loose.size() > 1))
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
