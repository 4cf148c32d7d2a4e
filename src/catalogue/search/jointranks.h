#pragma once

#include "catalogue/search/wordsearch.h"

namespace tessera {

/// How well several words fit each record together: the least is the best. The worst of them counts, then
/// their sum; but words that are in sequence a whole title are so in the first place.
class JointRanks
{
public:
    explicit JointRanks(std::size_t records)
        : m_worst(records)
        , m_sum(records)
    {
    }

    void add(std::span<const Score> scores);
    /// Of the words together, where that is better than the worst of them.
    void improve(std::span<const Score> scores);

    /// One a record: rank, sum, so many free bits, form.
    std::vector<std::uint32_t> ranks(unsigned free) const;

private:
    std::vector<Score> m_worst;
    std::vector<std::uint8_t> m_sum;
};

} // namespace tessera
