#include "catalogue/search/gamesearch.h"

#include "catalogue/search/wordsearch.h"

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

/// One search: a byte for each record that stays non-zero while everything lets it through.
class Finding
{
public:
    Finding(const SearchTexts& texts, const ContentFacts& facts, std::span<const Have> haves)
        : m_texts(texts)
        , m_facts(facts)
        , m_haves(haves)
        , m_kept(facts.size(), 1)
    {
    }

    void keepWithin(const RecordSet& records);
    void keepChip(Chip chip);
    void keepTerm(const Term& term);
    Found found(const Query& query);

private:
    Have have(std::size_t record) const { return m_haves.empty() ? Have::Missing : m_haves[record]; }
    void keepWords(const Term& term);
    void keepDevices(const Term& term);

    template <class Test>
    void keepWhere(bool negated, Test test)
    {
        for (std::size_t i = 0; i < m_kept.size(); ++i)
            m_kept[i] &= static_cast<std::uint8_t>(test(i) != negated);
    }

    const SearchTexts& m_texts;
    const ContentFacts& m_facts;
    std::span<const Have> m_haves;
    std::vector<std::uint8_t> m_kept;
    std::optional<JointRanks> m_ranks;
    int m_words = 0;
};

void Finding::keepWithin(const RecordSet& records)
{
    keepWhere(false, [&](std::size_t i) { return records.contains(static_cast<std::uint32_t>(i)); });
}

void Finding::keepChip(Chip chip)
{
    if (chip != Chip::All)
        keepWhere(false, [&](std::size_t i) { return letsThrough(chip, m_facts[i], have(i)); });
}

void Finding::keepTerm(const Term& term)
{
    const bool no = term.negated;
    switch (term.kind) {
    case TermKind::Words:
        return keepWords(term);
    case TermKind::Maker: {
        const std::vector<Rank> ranks = wordRanks(m_texts, m_facts.size(), term.words, MakerMark);
        return keepWhere(no, [&](std::size_t i) { return ranks[i] != Rank::None; });
    }
    case TermKind::Device:
        return keepDevices(term);
    case TermKind::Year:
        return keepWhere(no, [&](std::size_t i) { return term.years.holds(m_facts[i].years); });
    case TermKind::Status:
        return keepWhere(no, [&](std::size_t i) { return m_facts[i].status == GameStatus{term.value}; });
    case TermKind::Type:
        return keepWhere(no, [&](std::size_t i) { return m_facts[i].type == GameType{term.value}; });
    case TermKind::Clone:
        return keepWhere(
            no, [&](std::size_t i) { return m_facts[i].parent == (YesNo{term.value} == YesNo::No); });
    case TermKind::Have:
        return keepWhere(no, [&](std::size_t i) { return hasAsked(have(i), HaveValue{term.value}); });
    }
}

void Finding::keepWords(const Term& term)
{
    const std::vector<Rank> ranks = wordRanks(m_texts, m_facts.size(), term.words);
    keepWhere(term.negated, [&](std::size_t i) { return ranks[i] != Rank::None; });
    if (term.negated)
        return;
    if (!m_ranks)
        m_ranks.emplace(m_facts.size());
    m_ranks->add(ranks);
    ++m_words;
}

// Few values differ: each is looked at once.
void Finding::keepDevices(const Term& term)
{
    std::vector<std::uint8_t> fits;
    for (const std::string& device : m_facts.devices())
        fits.push_back(holdsWords(device, term.words) ? 1 : 0);
    keepWhere(term.negated, [&](std::size_t i) { return fits[m_facts[i].device] != 0; });
}

Found Finding::found(const Query& query)
{
    if (m_words > 1)
        m_ranks->addPhrase(wordRanks(m_texts, m_facts.size(), {query.phrase()}));
    return {RecordSet::of(m_kept), m_ranks ? m_ranks->bytes() : std::vector<std::uint8_t>()};
}

} // namespace

Found GameSearch::find(const Query& query, Chip chip, const RecordSet* within) const
{
    Finding finding(m_texts, m_facts, m_haves);
    finding.keepChip(chip);
    if (within != nullptr)
        finding.keepWithin(*within);
    for (const Term& term : query.terms()) {
        if (term.applies)
            finding.keepTerm(term);
    }
    return finding.found(query);
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
