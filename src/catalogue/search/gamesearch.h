#pragma once

#include "catalogue/found.h"
#include "catalogue/have.h"
#include "catalogue/search/chips.h"
#include "catalogue/search/query.h"
#include "catalogue/search/recordfacts.h"
#include "catalogue/search/searchtexts.h"

#include <span>
#include <string>
#include <vector>

namespace tessera {

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
    UnfoldedTexts unfolded() { return m_texts.unfolded(); }
    void take(FoldedTexts folded) { m_texts.take(std::move(folded)); }

    // A record of the content has been edited, or taken out of it, or put into it at this place.
    void replace(std::uint32_t record, const GameRecord& now);
    void remove(std::uint32_t record);
    void insert(std::uint32_t record, const GameRecord& added, Have have = Have::Missing);
    /// One a record, or none while nothing is known of the ROM folders: then nobody has anything.
    void setHaves(std::vector<Have> haves) { m_haves = std::move(haves); }

    /// `content` is the one that is searched.
    void setFavourites(NameSet favorites, std::span<const GameRecord> content)
    {
        m_facts.setFavourites(std::move(favorites), content);
    }

    /// What the chip and all terms let through, and `within` holds.
    Found find(const Query& query, Chip chip = Chip::All, const RecordSet* within = nullptr) const;
    /// Where no record has the query's words: those whose titles are nearest to them, of what the other terms
    /// let through. Nothing where these alone hide all that has the words.
    std::optional<Found> findNearest(const Query& query) const;
    /// What is found, or else the nearest.
    Found findOrNearest(const Query& query) const;
    /// Those with exactly this set name, which is folded.
    std::vector<std::uint32_t> named(const std::string& name) const;
    /// Takes out what a chip does not let through.
    void keep(Chip chip, RecordSet& records) const;
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
