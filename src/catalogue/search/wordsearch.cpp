#include "catalogue/search/wordsearch.h"

#include "catalogue/search/romaji.h"

#include <algorithm>

namespace tessera {

namespace {

// A joint rank: the worst word's in the upper bits, the sum in the lower ones.
constexpr unsigned sumBits = 5;
constexpr unsigned largestSum = (1U << sumBits) - 1;

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

void JointRanks::add(const std::vector<Rank>& ranks)
{
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto rank = static_cast<std::uint8_t>(ranks[i]);
        m_worst[i] = std::max(m_worst[i], rank);
        m_sum[i] = static_cast<std::uint8_t>(std::min<unsigned>(m_sum[i] + rank, largestSum));
    }
}

void JointRanks::addPhrase(const std::vector<Rank>& ranks)
{
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto rank = static_cast<std::uint8_t>(ranks[i]);
        if (ranks[i] <= Rank::TitleProper && rank <= m_worst[i]) {
            m_worst[i] = rank;
            m_sum[i] = 0;
        }
    }
}

std::vector<std::uint8_t> JointRanks::bytes() const
{
    std::vector<std::uint8_t> bytes(m_worst.size());
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>((m_worst[i] << sumBits) | m_sum[i]);
    return bytes;
}

} // namespace tessera
