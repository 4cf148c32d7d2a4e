#pragma once

#include "catalogue/search/searchtexts.h"
#include "catalogue/search/wordmatcher.h"

#include <optional>
#include <span>
#include <vector>

namespace tessera {

/// For each of `records` records how well the words fit it, at best. With `field` they must stand in that
/// field.
std::vector<Rank> wordRanks(const SearchTexts& texts, std::size_t records, const SearchedWords& words,
                            std::optional<FieldMark> field = std::nullopt);

/// Whether the words stand in a text of their own, which is folded.
bool holdsWords(std::string_view folded, const SearchedWords& words);

/// How well several words fit each record together: one byte, the least is the best. The worst of them
/// counts, then their sum; but words that are in sequence a whole title are so in the first place.
class JointRanks
{
public:
    explicit JointRanks(std::size_t records)
        : m_worst(records)
        , m_sum(records)
    {
    }

    void add(std::span<const Rank> ranks);
    /// Of the words in sequence.
    void addPhrase(std::span<const Rank> ranks);

    std::vector<std::uint8_t> bytes() const;

private:
    std::vector<std::uint8_t> m_worst;
    std::vector<std::uint8_t> m_sum;
};

} // namespace tessera
