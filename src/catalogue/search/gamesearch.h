#pragma once

#include "catalogue/have.h"
#include "catalogue/recordset.h"
#include "catalogue/search/chips.h"
#include "catalogue/search/query.h"
#include "catalogue/search/recordfacts.h"
#include "catalogue/search/searchtexts.h"

#include <span>
#include <vector>

namespace tessera {

/// What a search found.
struct Found {
    RecordSet records;
    /// For each found record how well the words fit it, the least first. Empty where there are no words.
    std::vector<std::uint8_t> ranks;
};

/// Finds records by words and terms. It keeps what it needs of them: the records themselves are only read
/// while it is made and when one of them is replaced, so that it may be made on any thread.
class GameSearch
{
public:
    GameSearch() = default;
    explicit GameSearch(std::span<const GameRecord> content)
        : m_texts(content)
        , m_facts(content)
    {
    }

    /// The second step of preparing the texts, as SearchTexts tells it.
    SearchBuffer unfolded() const { return m_texts.unfolded(); }
    void take(const FoldedTexts& folded) { m_texts.take(folded); }

    /// A record of the content has been edited.
    void replace(std::uint32_t record, const GameRecord& now);
    /// One a record, or none while nothing is known of the ROM folders: then nobody has anything.
    void setHaves(std::vector<Have> haves) { m_haves = std::move(haves); }

    /// What the chip and all terms let through, and `within` holds.
    Found find(const Query& query, Chip chip = Chip::All, const RecordSet* within = nullptr) const;
    ChipCounts chipCounts(const RecordSet* within = nullptr) const
    {
        return countChips(m_facts, m_haves, within);
    }

private:
    SearchTexts m_texts;
    ContentFacts m_facts;
    std::vector<Have> m_haves;
};

} // namespace tessera
