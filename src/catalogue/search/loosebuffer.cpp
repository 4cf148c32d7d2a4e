#include "catalogue/search/loosebuffer.h"

#include "catalogue/search/wordmatcher.h"

#include <algorithm>

namespace tessera {

namespace {

// So long a beginning of two words that are written as one may be half typed; what is shorter would be found
// across the words of half the catalogue.
constexpr std::size_t longEnough = 6;

} // namespace

void LooseBuffer::reserve(std::size_t bytes, std::size_t records)
{
    m_forms.reserve(bytes, records);
    m_edges.reserve(bytes);
}

void LooseBuffer::begin(std::uint32_t record)
{
    m_forms.begin(record);
}

void LooseBuffer::add(FieldMark mark, const LooseForm& form)
{
    if (form.text.empty())
        return;
    m_forms.add(mark, form.text);
    m_edges.push_back(Edge::Part); // of the mark: what stands before it ends there
    m_edges.insert(m_edges.end(), form.edges.begin(), form.edges.end());
}

void LooseBuffer::add(FieldMark mark, std::string_view letters)
{
    m_forms.add(mark, letters);
    m_edges.insert(m_edges.end(), 2, Edge::Part); // of the mark and of the first letter
    m_edges.resize(m_forms.bytes().size(), Edge::None);
}

void LooseBuffer::repeat(Range forms)
{
    m_forms.repeat(forms.begin, forms.end);
    const std::size_t size = m_edges.size();
    m_edges.resize(size + forms.end - forms.begin);
    std::copy_n(m_edges.begin() + static_cast<std::ptrdiff_t>(forms.begin), forms.end - forms.begin,
                m_edges.begin() + static_cast<std::ptrdiff_t>(size));
}

void LooseBuffer::end()
{
    m_forms.end();
    m_edges.resize(m_forms.bytes().size(), Edge::Part);
}

void LooseBuffer::append(const LooseBuffer& other)
{
    m_forms.append(other.m_forms);
    m_edges.insert(m_edges.end(), other.m_edges.begin(), other.m_edges.end());
}

bool LooseBuffer::crossesBlank(std::size_t begin, std::size_t end) const
{
    return std::any_of(m_edges.begin() + static_cast<std::ptrdiff_t>(begin) + 1,
                       m_edges.begin() + static_cast<std::ptrdiff_t>(end),
                       [](Edge edge) { return edge >= Edge::Word; });
}

Rank LooseBuffer::rankAt(std::size_t offset, std::size_t size, FieldMark field, const LooseRules& rules) const
{
    const std::string_view all = bytes();
    const std::size_t end = offset + size;
    const bool beginsField = isFieldMark(all[offset - 1]);
    const bool endsField = isFieldMark(all[end]);
    const Edge before = m_edges[offset];
    const Edge behind = m_edges[end];
    const bool endsWord = behind != Edge::None;
    if (before == Edge::None)
        return crossesBlank(offset, end) ? Rank::None : Rank::Inside;
    if (!endsWord
        && (rules.wholeOnly || (isAsciiDigit(all[end - 1]) && isAsciiDigit(all[end]))
            || (size < longEnough && crossesBlank(offset, end))))
        return Rank::None;
    switch (field) {
    case InitialsMark:
        return rules.asInitials && beginsField && (endsField || isAsciiDigit(all[end - 1])) ? Rank::Initials
                                                                                            : Rank::None;
    case NameMark:
        return !beginsField ? Rank::WordBeginning : endsField ? Rank::SetName : Rank::NameBeginning;
    case MakerMark:
    case YearMark:
        return Rank::WordBeginning;
    default:
        break;
    }
    const bool endsPart = behind == Edge::Part;
    if (beginsField)
        return endsField ? Rank::TitleProper : endsPart ? Rank::FirstPart : Rank::TitleBeginning;
    if (before == Edge::Part)
        return endsPart ? Rank::PartProper : Rank::PartBeginning;
    return Rank::WordBeginning;
}

bool LooseBuffer::isCovered(std::size_t begin, std::size_t end, std::span<const std::string> words) const
{
    // A blanked record holds no mark but the last one.
    if (!isFieldMark(bytes()[begin]))
        return false;
    for (std::size_t place = begin; place < end; ++place) {
        if (m_edges[place] == Edge::Part && isOfTitle(place) && isCoveredFrom(place, begin, end, words))
            return true;
    }
    return false;
}

bool LooseBuffer::isOfTitle(std::size_t place) const
{
    const std::string_view all = bytes();
    return !isFieldMark(all[place])
        && (fieldAt(all, place) == TitleMark || fieldAt(all, place) == AlternativeMark);
}

// The words stand one behind the other from a part's beginning to its end; what is left of them stands in the
// record's maker or year.
bool LooseBuffer::isCoveredFrom(std::size_t place, std::size_t begin, std::size_t end,
                                std::span<const std::string> words) const
{
    std::vector<std::string_view> left(words.begin(), words.end());
    do {
        const auto here = std::ranges::find_if(left, [&](std::string_view word) {
            return bytes().substr(place).starts_with(word) && m_edges[place + word.size()] != Edge::None;
        });
        if (here == left.end())
            return false;
        place += here->size();
        left.erase(here);
    } while (m_edges[place] != Edge::Part);
    return std::ranges::all_of(left,
                               [&](std::string_view word) { return isOfMakerOrYear(word, begin, end); });
}

bool LooseBuffer::isOfMakerOrYear(std::string_view word, std::size_t begin, std::size_t end) const
{
    const std::string_view all = bytes().substr(0, end);
    for (std::size_t at = all.find(word, begin); at != std::string_view::npos; at = all.find(word, at + 1)) {
        const FieldMark field = fieldAt(all, at);
        if ((field == MakerMark || field == YearMark) && m_edges[at] != Edge::None)
            return true;
    }
    return false;
}

} // namespace tessera
