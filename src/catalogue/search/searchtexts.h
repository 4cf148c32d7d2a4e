#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/search/loosebuffer.h"

#include <span>
#include <stop_token>
#include <utility>
#include <vector>

namespace tessera {

/// What the first step left, good on any thread and after the records are gone.
struct UnfoldedTexts {
    SearchBuffer texts;
    std::size_t plain = 0; ///< so many records are only ASCII, which is folded
};

struct FoldedTexts {
    SearchBuffer texts; ///< of the records that hold more than ASCII
    LooseBuffer loose; ///< of all records
    LooseBuffer romaji; ///< the readings of kana, and Japanese in Latin letters
};

/// What a search looks through: set name, both titles, maker and year of every record, in two steps.
///
/// The first takes milliseconds and folds what is ASCII. The second asks ICU for the other texts and makes
/// the loose forms and readings of all, on any thread, and is handed over when it is done:
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

    UnfoldedTexts unfolded();
    static FoldedTexts fold(const UnfoldedTexts& unfolded, const std::stop_token& stop = {});
    /// What was edited since unfolded() stays as it is.
    void take(FoldedTexts folded);

    // A record of the content has been edited, or taken out of it, or put into it at this place.
    void replace(std::uint32_t record, const GameRecord& now);
    void remove(std::uint32_t record);
    void insert(std::uint32_t record, const GameRecord& added);

    const SearchBuffer& texts() const { return m_texts; }
    const LooseBuffer& loose() const { return m_loose; }
    const LooseBuffer& romaji() const { return m_romaji; }

private:
    enum class Edit : std::uint8_t { Replaced, Removed, Inserted };

    void edit(Edit kind, std::uint32_t record);
    template <class Buffer>
    static void apply(Edit kind, std::uint32_t record, Buffer& buffer);
    void append(std::uint32_t record, const GameRecord& added);

    SearchBuffer m_texts; // what is ASCII, what is unfolded or was folded, what was added by edits
    LooseBuffer m_loose;
    LooseBuffer m_romaji;
    std::size_t m_plainRecords = 0;
    std::size_t m_foldedEnd = 0;
    std::vector<std::pair<Edit, std::uint32_t>> m_edits; // since unfolded()
};

} // namespace tessera
