#include "catalogue/search/searchtexts.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/romaji.h"

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

void addReadings(SearchBuffer& buffer, FieldMark mark, std::string_view text)
{
    for (const std::string& reading : romajiReadings(text))
        buffer.add(mark, reading);
}

void addFolded(FoldedTexts& folded, FieldMark mark, std::string_view text)
{
    const std::string form = tessera::folded(text);
    folded.texts.add(mark, form);
    addReadings(folded.readings, mark, form);
    if (const std::string joined = withoutMiddleDots(text); joined.size() < text.size()) {
        const std::string joinedForm = tessera::folded(joined);
        folded.texts.add(mark, joinedForm);
        addReadings(folded.readings, mark, joinedForm);
    }
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
FoldedTexts SearchTexts::fold(const SearchBuffer& unfolded, const std::stop_token& stop)
{
    FoldedTexts folded;
    for (std::size_t place = 0; place < unfolded.records() && !stop.stop_requested(); ++place) {
        folded.texts.begin(unfolded.record(place));
        folded.readings.begin(unfolded.record(place));
        std::string_view rest = unfolded.texts(place);
        // A blanked record has no mark but the last one.
        while (isFieldMark(rest.front()) && rest.front() != EndMark) {
            const auto* const end = std::ranges::find_if(rest.substr(1), isFieldMark);
            const auto size = static_cast<std::size_t>(end - rest.begin());
            addFolded(folded, static_cast<FieldMark>(rest.front()), rest.substr(1, size - 1));
            rest.remove_prefix(size);
        }
        folded.texts.end();
        folded.readings.end();
    }
    return folded;
}

SearchBuffer SearchTexts::unfolded()
{
    m_edits.clear();
    return m_texts.part(m_plainRecords, m_foldedEnd);
}

void SearchTexts::take(FoldedTexts folded)
{
    for (const auto& [kind, record] : m_edits) {
        apply(kind, record, folded.texts);
        apply(kind, record, folded.readings);
    }
    const SearchBuffer edited = m_texts.part(m_foldedEnd, m_texts.records());
    m_texts.cut(m_plainRecords, m_texts.records());
    m_texts.append(folded.texts);
    m_foldedEnd = m_texts.records();
    m_texts.append(edited);
    m_readings.append(folded.readings);
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
    apply(kind, record, m_readings);
    m_edits.emplace_back(kind, record);
}

void SearchTexts::apply(Edit kind, std::uint32_t record, SearchBuffer& buffer)
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
    SearchBuffer one;
    addFoldingAscii(one, record, added);
    const FoldedTexts folded = fold(one);
    m_texts.append(folded.texts);
    m_readings.append(folded.readings);
}

} // namespace tessera
