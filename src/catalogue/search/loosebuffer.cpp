#include "catalogue/search/loosebuffer.h"

#include "catalogue/search/wordmatcher.h"

#include <algorithm>

namespace tessera {

namespace {

// So long a beginning of two words that are written as one may be half typed; what is shorter would be found
// across the words of half the catalogue.
constexpr std::size_t longEnough = 6;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

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
    LooseForm form;
    form.append(letters, Edge::Part);
    add(mark, form);
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
        && (rules.wholeOnly || (isDigit(all[end - 1]) && isDigit(all[end]))
            || (size < longEnough && crossesBlank(offset, end))))
        return Rank::None;
    switch (field) {
    case InitialsMark:
        return rules.asInitials && beginsField && (endsField || isDigit(all[end - 1])) ? Rank::Initials
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
        return endsPart ? Rank::TitleProper : Rank::TitleBeginning;
    if (before == Edge::Part)
        return endsPart ? Rank::PartProper : Rank::PartBeginning;
    return Rank::WordBeginning;
}

// Part by part: the words stand one behind the other from its beginning to its end.
bool LooseBuffer::isCovered(std::size_t begin, std::size_t end, std::span<const std::string> words) const
{
    const std::string_view all = bytes();
    // A blanked record holds no mark but the last one.
    if (!isFieldMark(all[begin]))
        return false;
    std::vector<bool> used(words.size());
    const auto takeWord = [&](std::size_t at) {
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (!used[i] && all.substr(at).starts_with(words[i])
                && m_edges[at + words[i].size()] != Edge::None) {
                used[i] = true;
                return words[i].size();
            }
        }
        return std::size_t{0};
    };
    const auto isElsewhere = [&](std::string_view word) {
        for (std::size_t at = begin; (at = all.substr(0, end).find(word, at)) != std::string_view::npos;
             ++at) {
            const FieldMark field = fieldAt(all, at);
            if ((field == MakerMark || field == YearMark) && m_edges[at] != Edge::None)
                return true;
        }
        return false;
    };
    for (std::size_t at = begin; at < end; ++at) {
        if (m_edges[at] != Edge::Part || isFieldMark(all[at])
            || (fieldAt(all, at) != TitleMark && fieldAt(all, at) != AlternativeMark))
            continue;
        used.assign(words.size(), false);
        std::size_t place = at;
        std::size_t size = 0;
        do {
            size = takeWord(place);
            place += size;
        } while (size != 0 && m_edges[place] != Edge::Part);
        if (size == 0)
            continue;
        bool isComplete = true;
        for (std::size_t i = 0; i < words.size() && isComplete; ++i)
            isComplete = used[i] || isElsewhere(words[i]);
        if (isComplete)
            return true;
    }
    return false;
}

} // namespace tessera
