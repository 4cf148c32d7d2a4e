#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/search/searchbuffer.h"

#include <span>
#include <stop_token>
#include <utility>
#include <vector>

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
    SearchBuffer unfolded();
    static FoldedTexts fold(const SearchBuffer& unfolded, const std::stop_token& stop = {});
    /// What was edited since unfolded() stays as it is.
    void take(FoldedTexts folded);

    // A record of the content has been edited, or taken out of it, or put into it at this place.
    void replace(std::uint32_t record, const GameRecord& now);
    void remove(std::uint32_t record);
    void insert(std::uint32_t record, const GameRecord& added);

    const SearchBuffer& texts() const { return m_texts; }
    const SearchBuffer& readings() const { return m_readings; }

private:
    enum class Edit : std::uint8_t { Replaced, Removed, Inserted };

    void edit(Edit kind, std::uint32_t record);
    static void apply(Edit kind, std::uint32_t record, SearchBuffer& buffer);
    void append(std::uint32_t record, const GameRecord& added);

    SearchBuffer m_texts; // what is ASCII, what is unfolded or was folded, what was added by edits
    SearchBuffer m_readings;
    std::size_t m_plainRecords = 0;
    std::size_t m_foldedEnd = 0;
    std::vector<std::pair<Edit, std::uint32_t>> m_edits; // since unfolded()
};

} // namespace tessera
