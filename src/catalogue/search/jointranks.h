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
    /// Of the words together, where that is better than the worst of them; their sum may tell some apart that
    /// are equal as a whole.
    enum class Sum : std::uint8_t { Forgotten, Kept };
    void improve(std::span<const Score> scores, Sum sum = Sum::Forgotten);

    /// What is not meant unless it is named in full comes behind all others: a cartridge whose title begins
    /// with the name of its system.
    template <class Test>
    void lower(Test test)
    {
        for (std::size_t i = 0; i < m_worst.size(); ++i) {
            const Rank rank = rankOf(m_worst[i]);
            if (rank > Rank::TitleProper && rank != Rank::None && test(i))
                m_worst[i] = lowered(m_worst[i]);
        }
    }

    /// Calls `visit(record, rank)` for each that fits so well or better.
    template <class Visit>
    void forEachAtLeast(Rank rank, Visit&& visit) const
    {
        const Score end = score(static_cast<Rank>(static_cast<unsigned>(rank) + 1), WordForm::Plain);
        for (std::size_t i = 0; i < m_worst.size(); ++i) {
            if (m_worst[i] < end)
                visit(i, rankOf(m_worst[i]));
        }
    }

    /// Of all words together.
    Rank rank(std::size_t record) const { return rankOf(m_worst[record]); }
    /// One a record: rank, sum, so many free bits, form.
    std::vector<std::uint32_t> ranks(unsigned free) const;

private:
    static Score lowered(Score score);

    std::vector<Score> m_worst;
    std::vector<std::uint8_t> m_sum;
};

} // namespace tessera
