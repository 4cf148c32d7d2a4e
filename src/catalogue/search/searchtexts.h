#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/search/searchbuffer.h"

#include <span>

namespace tessera {

/// The texts of records that hold more than ASCII, folded, and the readings of their kana.
struct FoldedTexts {
    SearchBuffer texts;
    SearchBuffer readings;
};

/// What a search looks through: set name, both titles, maker and year of every record, folded, in two steps.
///
/// The first takes milliseconds and is complete for ASCII; other texts have their ASCII folded only. The
/// second asks ICU for those, on any thread, and is handed over when it is done:
///
///     SearchTexts texts(records);
///     auto folded = std::async([unfolded = texts.unfolded()] { return SearchTexts::fold(unfolded); });
///     ...
///     texts.take(folded.get());
class SearchTexts
{
public:
    SearchTexts() = default;
    explicit SearchTexts(std::span<const GameRecord> content);

    /// A copy of what the first step left, good on any thread and after the records are gone.
    SearchBuffer unfolded() const { return m_texts.part(m_asciiRecords, m_foldedEnd); }
    static FoldedTexts fold(const SearchBuffer& unfolded);
    /// Records that were replaced meanwhile stay as they are.
    void take(const FoldedTexts& folded);

    /// A record of the content has been edited.
    void replace(std::uint32_t record, const GameRecord& now);

    const SearchBuffer& texts() const { return m_texts; }
    const SearchBuffer& readings() const { return m_readings; }

private:
    SearchBuffer m_texts; // what is ASCII, what is unfolded or was folded, what was replaced
    SearchBuffer m_readings;
    std::size_t m_asciiRecords = 0;
    std::size_t m_foldedEnd = 0;
    std::vector<std::uint32_t> m_replaced;
};

} // namespace tessera
