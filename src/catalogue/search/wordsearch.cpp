#include "catalogue/search/wordsearch.h"

#include "catalogue/search/romaji.h"

#include <algorithm>

namespace tessera {

namespace {

// A joint rank: the worst word's in the upper bits, the sum in the lower ones.
constexpr unsigned sumBits = 5;
constexpr std::uint8_t largestSum = (1U << sumBits) - 1;

void findIn(const SearchBuffer& buffer, const SearchedWords& words, std::optional<FieldMark> field,
            std::vector<Rank>& best)
{
    const WordMatcher matcher(words);
    const std::string_view bytes = buffer.bytes();
    if (field) {
        buffer.forEachHit(words.text, [&](std::uint32_t record, std::size_t offset) {
            if (fieldAt(bytes, offset) == *field)
                best[record] = std::min(best[record], matcher.rank(bytes, offset));
        });
    } else {
        buffer.forEachHit(words.text, [&](std::uint32_t record, std::size_t offset) {
            best[record] = std::min(best[record], matcher.rank(bytes, offset));
        });
    }
}

} // namespace

std::vector<Rank> wordRanks(const SearchTexts& texts, std::size_t records, const SearchedWords& words,
                            std::optional<FieldMark> field)
{
    std::vector<Rank> best(records, Rank::None);
    findIn(texts.texts(), words, field, best);
    if (isRomaji(words.text)) {
        const SearchedWords reading{shortRomajiSpelling(words.text), words.ends};
        findIn(texts.readings(), reading, field, best);
    }
    return best;
}

bool holdsWords(std::string_view folded, const SearchedWords& words)
{
    SearchBuffer one;
    one.begin(0);
    one.add(NameMark, folded);
    one.end();
    std::vector<Rank> best(1, Rank::None);
    findIn(one, words, std::nullopt, best);
    return best.front() != Rank::None;
}

// All in single bytes, through spans of their own: so the compiler makes vector instructions of it.
void JointRanks::add(std::span<const Rank> ranks)
{
    constexpr std::uint8_t most = 1 << 3; // of one word, also where it is nowhere
    const std::span worst(m_worst);
    const std::span sums(m_sum);
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto rank = static_cast<std::uint8_t>(ranks[i]);
        const auto sum = static_cast<std::uint8_t>(sums[i] + std::min(rank, most));
        worst[i] = std::max(worst[i], rank);
        sums[i] = std::min(sum, largestSum);
    }
}

void JointRanks::addPhrase(std::span<const Rank> ranks)
{
    const std::span worst(m_worst);
    const std::span sums(m_sum);
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto rank = static_cast<std::uint8_t>(ranks[i]);
        const bool better = (int{ranks[i] <= Rank::TitleBeginning} & int{rank <= worst[i]}) != 0;
        worst[i] = better ? rank : worst[i];
        sums[i] = better ? std::uint8_t{0} : sums[i];
    }
}

std::vector<std::uint8_t> JointRanks::bytes() const
{
    std::vector<std::uint8_t> bytes(m_worst.size());
    std::ranges::transform(m_worst, m_sum, bytes.begin(), [](std::uint8_t worst, std::uint8_t sum) {
        return static_cast<std::uint8_t>((worst << sumBits) | sum);
    });
    return bytes;
}

} // namespace tessera
