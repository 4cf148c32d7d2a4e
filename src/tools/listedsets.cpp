#include "tools/listedsets.h"

#include "core/encodings.h"
#include "tools/printedtext.h"

namespace tessera {

namespace {
// As much as there usually is at most: memory that is not used costs nothing.
constexpr std::size_t usualSets = 50'000;
constexpr std::size_t usualText = 10 * usualSets;
} // namespace

ListedSets::ListedSets(std::string_view printed)
{
    for (const std::string_view word : firstWords(printed))
        add(word);
}

std::expected<ListedSets, Failure> ListedSets::read(const QString& listfull)
{
    ListedSets sets;
    sets.m_text.reserve(usualText);
    sets.m_ends.reserve(usualSets);
    const auto read = readFirstWords(listfull, [&](std::span<const std::string_view> words) {
        for (const std::string_view word : words)
            sets.add(word);
    });
    if (!read)
        return std::unexpected(read.error());
    return sets;
}

void ListedSets::add(std::string_view word)
{
    if (isAscii(word)) {
        m_text.insert(m_text.end(), word.begin(), word.end());
    } else {
        const std::string text = printedText(std::string(word));
        m_text.insert(m_text.end(), text.begin(), text.end());
    }
    m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
}

} // namespace tessera
