#pragma once

#include "catalogue/found.h"
#include "catalogue/have.h"
#include "catalogue/search/chips.h"
#include "catalogue/search/query.h"
#include "catalogue/search/recordfacts.h"
#include "catalogue/search/searchtexts.h"
#include "catalogue/search/wordsearch.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace tessera {

/// The records with exactly this set name, in whatever case.
std::vector<std::uint32_t> recordsNamed(const SearchTexts& texts, std::size_t records,
                                        const std::string& name);

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

} // namespace tessera
