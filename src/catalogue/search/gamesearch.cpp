#include "catalogue/search/gamesearch.h"

#include "catalogue/search/jointranks.h"
#include "catalogue/search/nearest.h"

#include <algorithm>

namespace tessera {

namespace {

bool hasAsked(Have have, HaveValue asked)
{
    switch (asked) {
    case HaveValue::No:
        return have == Have::Missing;
    case HaveValue::Parent:
        return have == Have::InParent;
    case HaveValue::Own:
        return have == Have::Here;
    case HaveValue::Yes:
        return have != Have::Missing;
    }
    return false;
}

bool isOfStatus(const RecordFacts& facts, AskedStatus asked)
{
    switch (asked) {
    case AskedStatus::Good:
        return facts.status == GameStatus::Good;
    case AskedStatus::Imperfect:
        return facts.status == GameStatus::Imperfect;
    case AskedStatus::Preliminary:
        return facts.status == GameStatus::Preliminary;
    case AskedStatus::Working:
        return facts.works();
    }
    return false;
}

std::vector<std::uint32_t> named(const SearchTexts& texts, std::size_t records, const std::string& name)
{
    const std::vector<Score> scores
        = wordScores(texts, records, {name}, {.fields = setOf(NameMark), .literally = true});
    std::vector<std::uint32_t> named;
    for (std::uint32_t record = 0; record < records; ++record) {
        if (rankOf(scores[record]) == Rank::SetName)
            named.push_back(record);
    }
    return named;
}

/// One search: a byte for each record that stays non-zero while everything lets it through.
class Narrowing
{
public:
    Narrowing(const SearchTexts& texts, const ContentFacts& facts, std::span<const Have> haves)
        : m_texts(texts)
        , m_facts(facts)
        , m_haves(haves)
        , m_kept(facts.size(), 1)
    {
    }

    /// Of several words, before they are looked for one by one: written as one, they are found as well.
    void lookForPhrase(const Query& query);
    void keepWithin(const RecordSet& records);
    void keepChip(Chip chip);
    void keepTerm(const Term& term);
    /// Of those that are left the nearest ones.
    std::optional<Found> nearest(std::span<const SearchedWords* const> words) const;
    Found found(const Query& query) const;
    bool isEmpty() const { return std::ranges::find(m_kept, std::uint8_t{1}) == m_kept.end(); }

private:
    Have have(std::size_t record) const { return m_haves.empty() ? Have::Missing : m_haves[record]; }
    void keepWords(const Term& term);
    void keepField(const Term& term, FieldSet fields);
    void keepFamily(const Term& term);
    void keepDevices(const Term& term);
    // A test holds what it needs by value: behind a reference it would be looked up again for each record.
    template <class Test>
    void keepWhere(bool negated, Test test)
    {
        const std::span kept(m_kept);
        for (std::size_t i = 0; i < kept.size(); ++i)
            kept[i] &= static_cast<std::uint8_t>(test(i) != negated);
    }

    template <class Test>
    void keepFacts(bool negated, Test test)
    {
        keepWhere(negated, [facts = m_facts.all(), test](std::size_t i) { return test(facts[i]); });
    }

    void keepFound(bool negated, std::span<const Score> scores)
    {
        keepWhere(negated, [scores](std::size_t i) { return scores[i] != noScore; });
    }
    std::vector<std::uint32_t> ranks(const Query& query) const;
    std::vector<Score> scores(const Term& term, FieldSet fields) const
    {
        return wordScores(m_texts, m_facts.size(), term.words, {.fields = fields, .negated = term.negated});
    }
    std::vector<Score> covered(std::span<const SearchedWords* const> words) const;

    const SearchTexts& m_texts;
    const ContentFacts& m_facts;
    std::span<const Have> m_haves;
    std::vector<std::uint8_t> m_kept;
    std::vector<Score> m_phrase;
    std::vector<std::vector<Score>> m_words; // of each word that is not turned round
    std::vector<std::vector<Score>> m_fields; // the same of words of one field
};

void Narrowing::lookForPhrase(const Query& query)
{
    const std::vector<const SearchedWords*> words = query.rankedWords();
    // What stands in quotation marks is found as it is written and in no other way.
    const bool isQuoted = std::ranges::any_of(
        words, [](const SearchedWords* word) { return word->ends != WordEnds::Anywhere; });
    if (words.size() > 1 && !isQuoted)
        m_phrase = phraseScores(m_texts, m_facts.size(), words);
}

void Narrowing::keepWithin(const RecordSet& records)
{
    keepWhere(false, [&](std::size_t i) { return records.contains(static_cast<std::uint32_t>(i)); });
}

void Narrowing::keepChip(Chip chip)
{
    if (chip != Chip::All)
        keepWhere(false, [&](std::size_t i) { return letsThrough(chip, m_facts[i], have(i)); });
}

void Narrowing::keepTerm(const Term& term)
{
    const bool no = term.negated;
    switch (term.kind) {
    case TermKind::Words:
        return keepWords(term);
    case TermKind::Title:
        return keepField(term, titleFields);
    case TermKind::Name:
        return keepField(term, setOf(NameMark));
    case TermKind::Maker:
        return keepFound(no, scores(term, setOf(MakerMark)));
    case TermKind::Device:
        return keepDevices(term);
    case TermKind::Year:
        return keepFacts(no,
                         [years = term.years](const RecordFacts& facts) { return years.holds(facts.years); });
    case TermKind::Status:
        return keepFacts(no, [asked = AskedStatus{term.value}](const RecordFacts& facts) {
            return isOfStatus(facts, asked);
        });
    case TermKind::Type:
        return keepFacts(
            no, [type = GameType{term.value}](const RecordFacts& facts) { return facts.type == type; });
    case TermKind::Parent:
        return keepFamily(term);
    case TermKind::Clone:
        return keepFacts(no, [parent = YesNo{term.value} == YesNo::No](const RecordFacts& facts) {
            return facts.parent == parent;
        });
    case TermKind::Have:
        return keepWhere(no, [&](std::size_t i) { return hasAsked(have(i), HaveValue{term.value}); });
    }
}

void Narrowing::keepWords(const Term& term)
{
    std::vector<Score> words = scores(term, everyField);
    if (term.negated)
        return keepFound(true, words);
    if (!m_phrase.empty())
        keepWhere(false, [phrase = std::span(m_phrase), found = std::span(words)](std::size_t i) {
            return found[i] != noScore || phrase[i] != noScore;
        });
    else
        keepFound(false, words);
    m_words.push_back(std::move(words));
}

// Words of one field rank like those of any.
void Narrowing::keepField(const Term& term, FieldSet fields)
{
    std::vector<Score> words = scores(term, fields);
    keepFound(term.negated, words);
    if (!term.negated)
        m_fields.push_back(std::move(words));
}

// The set of that name, and its clones, also where it is missing itself.
void Narrowing::keepFamily(const Term& term)
{
    std::vector<std::size_t> families{ContentFacts::familyOf(term.words.text)};
    std::vector<std::uint8_t> isNamed(m_facts.size());
    for (const std::uint32_t record : named(m_texts, m_facts.size(), term.words.text)) {
        isNamed[record] = 1;
        if (m_facts[record].parent)
            families.push_back(m_facts[record].family);
    }
    keepWhere(term.negated, [&](std::size_t i) {
        return isNamed[i] != 0 || std::ranges::find(families, m_facts[i].family) != families.end();
    });
}

// Few values differ: each is looked at once.
void Narrowing::keepDevices(const Term& term)
{
    std::vector<std::uint8_t> fits;
    for (const std::string& device : m_facts.devices())
        fits.push_back(holdsWords(device, term.words) ? 1 : 0);
    keepWhere(term.negated, [&](std::size_t i) { return fits[m_facts[i].device] != 0; });
}

Found Narrowing::found(const Query& query) const
{
    return {RecordSet::of(m_kept), ranks(query)};
}

std::optional<Found> Narrowing::nearest(std::span<const SearchedWords* const> words) const
{
    // What costs more than the nearest one and another half typed word is another game.
    constexpr unsigned mostMore = 1;
    std::vector<Distance> distances = tessera::distances(m_texts, m_facts.size(), words);
    unsigned least = costOf(tooFar);
    for (std::size_t i = 0; i < distances.size(); ++i) {
        distances[i] = m_kept[i] != 0 ? distances[i] : tooFar;
        least = std::min(least, costOf(distances[i]));
    }
    if (least == costOf(tooFar))
        return std::nullopt;
    Found found{RecordSet(m_facts.size()), std::vector<std::uint32_t>(m_facts.size())};
    const std::span ties(m_facts.ties());
    for (std::uint32_t i = 0; i < distances.size(); ++i) {
        if (distances[i] == tooFar || costOf(distances[i]) > least + mostMore)
            continue;
        found.records.insert(i);
        found.ranks[i] = std::uint32_t{distances[i]} << ContentFacts::tieBits | ties[i];
    }
    found.isNearest = true;
    return found;
}

// Of the words together, where they make up a part of a title; looked for where they were found. One that was
// taken out may have kept its number behind the last one.
std::vector<Score> Narrowing::covered(std::span<const SearchedWords* const> words) const
{
    std::vector<std::string> loose;
    for (const SearchedWords* word : words)
        loose.push_back(looseWord(word->text));
    std::erase(loose, std::string());
    std::vector<Score> scores(m_facts.size(), noScore);
    m_texts.loose().forEachCovered(
        loose, [&](std::uint32_t record) { return record < m_kept.size() && m_kept[record] != 0; },
        [&](std::uint32_t record) { scores[record] = score(Rank::Covered, WordForm::Plain); });
    return scores;
}

std::vector<std::uint32_t> Narrowing::ranks(const Query& query) const
{
    if (m_words.empty() && m_fields.empty())
        return {};
    JointRanks joint(m_facts.size());
    for (const std::vector<Score>& word : m_words)
        joint.add(word);
    if (m_words.size() > 1) {
        const std::vector<const SearchedWords*> words = query.rankedWords();
        if (!m_phrase.empty())
            joint.improve(m_phrase);
        joint.improve(covered(words), JointRanks::Sum::Kept);
    }
    for (const std::vector<Score>& word : m_fields)
        joint.add(word);
    joint.lower([this](std::size_t i) { return m_facts[i].type == GameType::Device; });
    std::vector<std::uint32_t> ranks = joint.ranks(ContentFacts::tieBits);
    const std::span ties(m_facts.ties());
    for (std::size_t i = 0; i < ranks.size(); ++i)
        ranks[i] |= ties[i] << formBits;
    return ranks;
}

} // namespace

Found GameSearch::find(const Query& query, Chip chip, const RecordSet* within) const
{
    Narrowing narrowing(m_texts, m_facts, m_haves);
    narrowing.keepChip(chip);
    if (within != nullptr)
        narrowing.keepWithin(*within);
    narrowing.lookForPhrase(query);
    for (const Term& term : query.terms()) {
        if (!term.applies)
            continue;
        narrowing.keepTerm(term);
        // A whole page may have been pasted.
        if (narrowing.isEmpty())
            return {RecordSet(m_facts.size()), {}};
    }
    return narrowing.found(query);
}

std::optional<Found> GameSearch::findNearest(const Query& query) const
{
    const std::vector<const SearchedWords*> words = query.rankedWords();
    if (words.empty())
        return std::nullopt;
    Narrowing byWords(m_texts, m_facts, m_haves);
    Narrowing byOthers(m_texts, m_facts, m_haves);
    byWords.lookForPhrase(query);
    for (const Term& term : query.terms()) {
        const bool isWords = term.kind == TermKind::Words && !term.negated;
        if (term.applies)
            (isWords ? byWords : byOthers).keepTerm(term);
    }
    return byWords.isEmpty() ? byOthers.nearest(words) : std::nullopt;
}

std::vector<std::uint32_t> GameSearch::named(const std::string& name) const
{
    return tessera::named(m_texts, m_facts.size(), name);
}

void GameSearch::keep(Chip chip, RecordSet& records) const
{
    if (chip == Chip::All)
        return;
    for (const std::uint32_t record : records.records()) {
        if (!letsThrough(chip, m_facts[record], m_haves.empty() ? Have::Missing : m_haves[record]))
            records.remove(record);
    }
}

void GameSearch::replace(std::uint32_t record, const GameRecord& now)
{
    m_texts.replace(record, now);
    m_facts.replace(record, now);
}

void GameSearch::remove(std::uint32_t record)
{
    m_texts.remove(record);
    m_facts.remove(record);
    if (!m_haves.empty())
        m_haves.erase(m_haves.begin() + record);
}

void GameSearch::insert(std::uint32_t record, const GameRecord& added, Have have)
{
    m_texts.insert(record, added);
    m_facts.insert(record, added);
    if (!m_haves.empty())
        m_haves.insert(m_haves.begin() + record, have);
}

} // namespace tessera
