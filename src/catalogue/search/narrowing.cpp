#include "catalogue/search/narrowing.h"

#include "catalogue/search/jointranks.h"
#include "catalogue/search/nearest.h"

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

} // namespace

std::vector<std::uint32_t> recordsNamed(const SearchTexts& texts, std::size_t records,
                                        const std::string& name)
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
    for (const std::uint32_t record : recordsNamed(m_texts, m_facts.size(), term.words.text)) {
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
    // Few have all that was typed for a name.
    const std::span parents(m_facts.parents());
    joint.forEachAtLeast(Rank::PartProper, [&](std::size_t i, Rank rank) {
        if (rank == Rank::FirstPart)
            ranks[i] += ContentFacts::firstPartTie << formBits;
        // Under a name that its parent has not it is the first of its family.
        if ((ties[i] & ContentFacts::cloneTie) != 0 && joint.rank(parents[i]) > Rank::PartProper)
            ranks[i] -= ContentFacts::cloneTie << formBits;
    });
    return ranks;
}

} // namespace tessera
