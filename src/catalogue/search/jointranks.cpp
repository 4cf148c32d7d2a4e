#include "catalogue/search/jointranks.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr unsigned sumBits = 5;
constexpr unsigned forms = (1U << formBits) - 1;
constexpr std::uint8_t largestSum = (1U << sumBits) - 1;

// What a rank adds to a sum. The first part of a title is as good as all of it, and a name that begins like a
// word tells no more than a title.
constexpr std::uint8_t weight(std::uint8_t rank)
{
    constexpr std::uint8_t most = 15; // of one word, also where it is nowhere
    constexpr auto firstPart = static_cast<std::uint8_t>(Rank::FirstPart);
    constexpr auto nameBeginning = static_cast<std::uint8_t>(Rank::NameBeginning);
    const auto least = std::min(rank, most);
    return static_cast<std::uint8_t>(least + std::uint8_t{least == nameBeginning}
                                     - std::uint8_t{least == firstPart});
}

} // namespace

// All in single bytes, through spans of their own: so the compiler makes vector instructions of it.
void JointRanks::add(std::span<const Score> scores)
{
    const std::span worst(m_worst);
    const std::span sums(m_sum);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const auto sum
            = static_cast<std::uint8_t>(sums[i] + weight(static_cast<std::uint8_t>(scores[i] >> formBits)));
        worst[i] = std::max(worst[i], scores[i]);
        sums[i] = std::min(sum, largestSum);
    }
}

void JointRanks::improve(std::span<const Score> scores, Sum sum)
{
    const std::span worst(m_worst);
    const std::span sums(m_sum);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const bool better = scores[i] <= worst[i];
        worst[i] = better ? scores[i] : worst[i];
        sums[i] = better && sum == Sum::Forgotten ? std::uint8_t{0} : sums[i];
    }
}

Score JointRanks::lowered(Score score)
{
    constexpr unsigned steps
        = static_cast<unsigned>(Rank::InsideName) - static_cast<unsigned>(Rank::TitleProper);
    return static_cast<Score>(score + (steps << formBits));
}

std::vector<std::uint32_t> JointRanks::ranks(unsigned free) const
{
    std::vector<std::uint32_t> ranks(m_worst.size());
    std::ranges::transform(m_worst, m_sum, ranks.begin(), [free](std::uint32_t worst, std::uint32_t sum) {
        const std::uint32_t rank = worst >> formBits;
        const bool isFirstPart = rank == static_cast<std::uint32_t>(Rank::FirstPart);
        return ((isFirstPart ? rank - 1 : rank) << sumBits | sum) << (free + formBits) | (worst & forms);
    });
    return ranks;
}

} // namespace tessera
