#include "catalogue/search/searchtexts.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/variantmaker.h"
#include "core/encodings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {

namespace {

struct SearchedField {
    Field field;
    FieldMark mark;
};

constexpr std::array searchedFields{
    SearchedField{Field::Name, NameMark},     SearchedField{Field::Title, TitleMark},
    SearchedField{Field::Titlejp, TitleMark}, SearchedField{Field::Maker, MakerMark},
    SearchedField{Field::Year, YearMark},
};

// Where no Japanese title is known the English one stands in its place.
bool isOnceMore(const GameRecord& record, Field field)
{
    return field == Field::Titlejp && record[Field::Titlejp] == record[Field::Title];
}

// How many marks the record's texts have got.
unsigned addUnfolded(SearchBuffer& buffer, std::uint32_t index, const GameRecord& record)
{
    unsigned marks = 1; // the one at the end
    buffer.begin(index);
    for (const SearchedField& each : searchedFields) {
        if (!isOnceMore(record, each.field)) {
            buffer.add(each.mark, record[each.field]);
            ++marks;
        }
    }
    buffer.end();
    return marks;
}

// Whether only upper case may part a record's texts from their folded form: ASCII without control characters
// and without double blanks.
bool isPlain(std::string_view texts, unsigned marks)
{
    std::uint8_t odd = 0;
    unsigned controls = 1; // the first mark
    for (std::size_t i = 1; i < texts.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(texts[i]);
        odd |= static_cast<std::uint8_t>((byte >= 0x7F) | ((byte == ' ') & (texts[i - 1] == ' ')));
        controls += byte < 0x20 ? 1 : 0;
    }
    return odd == 0 && controls == marks;
}

void addFoldingAscii(SearchBuffer& buffer, std::uint32_t index, const GameRecord& record)
{
    buffer.begin(index);
    for (const SearchedField& each : searchedFields) {
        if (!isOnceMore(record, each.field))
            buffer.addFoldingAscii(each.mark, record[each.field]);
    }
    buffer.end();
}

std::size_t searchedBytes(std::span<const GameRecord> content)
{
    std::size_t bytes = 0;
    for (const GameRecord& record : content) {
        for (const SearchedField& each : searchedFields)
            bytes += record[each.field].size() + 1;
    }
    return bytes + content.size();
}

// Calls `visit(mark, text)` for each text of a record.
template <class Visit>
void forEachText(std::string_view texts, Visit&& visit)
{
    // A blanked record has no mark but the last one.
    while (isFieldMark(texts.front()) && texts.front() != EndMark) {
        const auto* const end = std::ranges::find_if(texts.substr(1), isFieldMark);
        const auto size = static_cast<std::size_t>(end - texts.begin());
        visit(static_cast<FieldMark>(texts.front()), texts.substr(1, size - 1));
        texts.remove_prefix(size);
    }
}

std::string_view makerOf(std::string_view texts)
{
    const std::size_t mark = texts.find(MakerMark);
    if (mark == std::string_view::npos)
        return {};
    const std::string_view behind = texts.substr(mark + 1);
    const auto* const end = std::ranges::find_if(behind, isFieldMark);
    return behind.substr(0, static_cast<std::size_t>(end - behind.begin()));
}

// With their marks.
void foldTexts(std::string& folded, std::string_view texts)
{
    folded.clear();
    forEachText(texts, [&](FieldMark mark, std::string_view text) {
        folded += static_cast<char>(mark);
        appendFolded(folded, text);
    });
    folded += static_cast<char>(EndMark);
}

// Words of katakana are often parted by a dot, and as often not.
std::string withoutMiddleDots(std::string_view text)
{
    std::string joined(text);
    for (const std::string_view dot : {"・", "･"}) {
        for (auto at = joined.find(dot); at != std::string::npos; at = joined.find(dot, at))
            joined.erase(at, dot.size());
    }
    return joined;
}

void addFolded(SearchBuffer& buffer, std::uint32_t record, std::string_view folded, std::string_view unfolded)
{
    buffer.begin(record);
    forEachText(folded, [&](FieldMark mark, std::string_view text) { buffer.add(mark, text); });
    forEachText(unfolded, [&](FieldMark mark, std::string_view text) {
        if (isAscii(text))
            return;
        if (const std::string joined = withoutMiddleDots(text); joined.size() < text.size())
            buffer.add(mark, tessera::folded(joined));
    });
    buffer.end();
}

} // namespace

SearchTexts::SearchTexts(std::span<const GameRecord> content)
{
    m_texts.reserve(searchedBytes(content), content.size());
    std::vector<std::uint32_t> others;
    for (std::uint32_t i = 0; i < content.size(); ++i) {
        const unsigned marks = addUnfolded(m_texts, i, content[i]);
        if (!isPlain(m_texts.texts(m_texts.records() - 1), marks)) {
            m_texts.removeLast();
            others.push_back(i);
        }
    }
    m_texts.lowerAsciiLetters();
    m_plainRecords = m_texts.records();
    for (const std::uint32_t i : others)
        addFoldingAscii(m_texts, i, content[i]);
    m_foldedEnd = m_texts.records();
}

// What was folded when it is stopped is of no use.
FoldedTexts SearchTexts::fold(const UnfoldedTexts& unfolded, const std::stop_token& stop)
{
    FoldedTexts out;
    out.loose.reserve(unfolded.texts.bytes().size(), unfolded.texts.records());
    VariantMaker variants(out.loose, out.romaji);
    std::string folded;
    for (std::size_t place = 0; place < unfolded.texts.records() && !stop.stop_requested(); ++place) {
        const std::uint32_t record = unfolded.texts.record(place);
        std::string_view texts = unfolded.texts.texts(place);
        if (place >= unfolded.plain) {
            foldTexts(folded, texts);
            addFolded(out.texts, record, folded, texts);
            texts = folded;
        }
        variants.begin(record, makerOf(texts));
        forEachText(texts, [&](FieldMark mark, std::string_view text) { variants.add(mark, text); });
        variants.end();
    }
    return out;
}

UnfoldedTexts SearchTexts::unfolded()
{
    m_edits.clear();
    return {m_texts.part(0, m_foldedEnd), m_plainRecords};
}

void SearchTexts::take(FoldedTexts folded)
{
    for (const auto& [kind, record] : m_edits) {
        apply(kind, record, folded.texts);
        apply(kind, record, folded.loose);
        apply(kind, record, folded.romaji);
    }
    const SearchBuffer edited = m_texts.part(m_foldedEnd, m_texts.records());
    m_texts.cut(m_plainRecords, m_texts.records());
    m_texts.append(folded.texts);
    m_foldedEnd = m_texts.records();
    m_texts.append(edited);
    m_loose.append(folded.loose);
    m_romaji.append(folded.romaji);
    m_edits.clear();
}

void SearchTexts::replace(std::uint32_t record, const GameRecord& now)
{
    edit(Edit::Replaced, record);
    append(record, now);
}

void SearchTexts::remove(std::uint32_t record)
{
    edit(Edit::Removed, record);
}

void SearchTexts::insert(std::uint32_t record, const GameRecord& added)
{
    edit(Edit::Inserted, record);
    append(record, added);
}

void SearchTexts::edit(Edit kind, std::uint32_t record)
{
    apply(kind, record, m_texts);
    apply(kind, record, m_loose);
    apply(kind, record, m_romaji);
    m_edits.emplace_back(kind, record);
}

template <class Buffer>
void SearchTexts::apply(Edit kind, std::uint32_t record, Buffer& buffer)
{
    switch (kind) {
    case Edit::Replaced:
        return buffer.blank(record);
    case Edit::Removed:
        return buffer.remove(record);
    case Edit::Inserted:
        return buffer.makeRoom(record);
    }
}

void SearchTexts::append(std::uint32_t record, const GameRecord& added)
{
    UnfoldedTexts one;
    addFoldingAscii(one.texts, record, added);
    const FoldedTexts folded = fold(one);
    m_texts.append(folded.texts);
    m_loose.append(folded.loose);
    m_romaji.append(folded.romaji);
}

} // namespace tessera
