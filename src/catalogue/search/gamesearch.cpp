#include "catalogue/search/gamesearch.h"

#include "catalogue/search/narrowing.h"

#include <algorithm>

namespace tessera {

namespace {

// Of a page that was pasted a word is looked for once; what is typed is not so long.
constexpr std::size_t mostTyped = 32;

bool isOneOf(const Term& term, std::span<const Term> before)
{
    return term.kind == TermKind::Words && std::ranges::any_of(before, [&](const Term& each) {
               return each.kind == term.kind && each.negated == term.negated && each.words == term.words;
           });
}

} // namespace

Found GameSearch::find(const Query& query, Chip chip, const RecordSet* within) const
{
    Narrowing narrowing(m_texts, m_facts, m_haves);
    narrowing.keepChip(chip);
    if (within != nullptr)
        narrowing.keepWithin(*within);
    narrowing.lookForPhrase(query);
    const std::span<const Term> terms = query.terms();
    for (std::size_t i = 0; i < terms.size(); ++i) {
        if (!terms[i].applies || (i >= mostTyped && isOneOf(terms[i], terms.first(i))))
            continue;
        narrowing.keepTerm(terms[i]);
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

Found GameSearch::findOrNearest(const Query& query) const
{
    Found found = find(query);
    if (found.records.count() > 0)
        return found;
    return findNearest(query).value_or(std::move(found));
}

std::vector<std::uint32_t> GameSearch::named(const std::string& name) const
{
    return recordsNamed(m_texts, m_facts.size(), name);
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
