#include "catalogue/listxmlscanner.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace tessera {

namespace {

constexpr std::string_view gameStart = needleText(Needle::GameStart);
constexpr std::string_view machineStart = "<machine ";

// After the end of the text, so that its last bytes can be looked at in whole blocks. No needle has a line
// feed.
constexpr std::size_t padding = candidateBlock + needleReach;
constexpr char pad = '\n';

// For each bucket the rows of the needles in it.
constexpr auto rowsByBucket = [] {
    std::array<std::array<const NeedleRow*, needlesInBucket>, bucketCount> rows{};
    for (const NeedleRow& row : needleRows) {
        auto& bucket = rows[row.bucket];
        bucket[bucket[0] == nullptr ? 0 : 1] = &row;
    }
    return rows;
}();

bool equalsInAnyCase(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

// Four bytes are compared faster than a whole text; most false alarms end here.
bool startsEqual(std::string_view here, const NeedleRow& row)
{
    return std::memcmp(here.data(), row.text.data(), 4) == 0;
}

} // namespace

std::size_t ListxmlElement::find(Needle needle, std::size_t from) const
{
    const auto& all = places[static_cast<std::size_t>(needle)];
    const auto place = std::lower_bound(all.begin(), all.end(), from);
    return place == all.end() ? std::string_view::npos : *place;
}

ListxmlScanner::ListxmlScanner(ElementName name, CandidateSearch search)
    : m_search(search)
    , m_name(name)
{
}

void ListxmlScanner::end()
{
    m_hasEnded = true;
    std::memset(m_window.room(padding).data(), pad, padding);
    m_window.extend(padding);
}

std::size_t ListxmlScanner::textEnd() const
{
    return m_window.text().size() - (m_hasEnded ? padding : 0);
}

// How far needles may begin such that the whole of them has come.
std::size_t ListxmlScanner::scannable() const
{
    const std::size_t size = m_window.text().size();
    return size > needleReach ? size - needleReach : 0;
}

const ListxmlElement* ListxmlScanner::next()
{
    if (m_afterElement > 0) {
        m_window.drop(m_afterElement);
        m_scanned = 0;
        m_afterElement = 0;
    }
    if (!m_isInElement && !enterElement())
        return nullptr;
    return finishElement() ? &m_element : nullptr;
}

void ListxmlScanner::passOver()
{
    const std::string_view text = m_window.text();
    noteNul(text);
    m_sawGame |= m_name == ElementName::Machine && text.find(gameStart) != std::string_view::npos;
    // A tag may begin here and end in the next piece.
    m_window.drop(text.size() - std::min(text.size(), gameStart.size() - 1));
}

// Outside of elements there is little text: no need for haste.
bool ListxmlScanner::enterElement()
{
    const std::string_view text = m_window.text();
    const std::size_t start = findStart(text);
    noteNul(text.substr(0, start));
    if (start == scannable()) {
        m_window.drop(start);
        return false;
    }
    m_window.drop(start + (m_name == ElementName::Game ? gameStart : machineStart).size());
    m_isInElement = true;
    m_scanned = 0;
    for (auto& places : m_element.places)
        places.clear();
    m_element.isBios = m_element.isMechanical = m_element.isDevice = false;
    return true;
}

// Where the next element's start tag begins, or scannable().
std::size_t ListxmlScanner::findStart(std::string_view text)
{
    const std::size_t end = scannable();
    for (std::size_t at = text.find('<'); at < end; at = text.find('<', at + 1)) {
        const std::string_view tag = text.substr(at);
        const bool isGame = tag.starts_with(gameStart);
        if (!isGame && (m_name == ElementName::Game || !tag.starts_with(machineStart)))
            continue;
        if (m_name == ElementName::Undecided)
            m_name = isGame ? ElementName::Game : ElementName::Machine;
        if (isGame == (m_name == ElementName::Game))
            return at;
        m_sawGame = true;
    }
    return end;
}

void ListxmlScanner::noteNul(std::string_view passed)
{
    m_sawNul |= passed.find('\0') != std::string_view::npos;
}

bool ListxmlScanner::finishElement()
{
    const char* const text = m_window.text().data();
    const std::size_t end = scannable();
    while (m_scanned + candidateBlock <= end) {
        m_scanned
            = static_cast<std::size_t>(m_search(text + m_scanned, text + end, m_block, m_sawNul) - text);
        if (m_scanned + candidateBlock > end)
            break;
        if (takeCandidates())
            return true;
        m_scanned += candidateBlock;
    }
    return false;
}

// True when the element's end was among them.
bool ListxmlScanner::takeCandidates()
{
    for (std::size_t word = 0; word < m_block.places.size(); ++word) {
        for (std::uint64_t places = m_block.places[word]; places != 0; places &= places - 1) {
            const std::size_t at = word * 64 + static_cast<std::size_t>(std::countr_zero(places));
            if (takeCandidate(m_scanned + at, m_block.buckets[at]))
                return true;
        }
    }
    return false;
}

bool ListxmlScanner::takeCandidate(std::size_t place, unsigned buckets)
{
    for (; buckets != 0; buckets &= buckets - 1) {
        for (const NeedleRow* row : rowsByBucket[static_cast<std::size_t>(std::countr_zero(buckets))]) {
            if (row && place >= row->anchor && take(*row, place - row->anchor))
                return true;
        }
    }
    return false;
}

// True when it is the element's end.
bool ListxmlScanner::take(const NeedleRow& row, std::size_t place)
{
    const std::string_view here = m_window.text().substr(place, row.text.size());
    if (row.anyCase ? !equalsInAnyCase(here, row.text) : !startsEqual(here, row) || here != row.text)
        return false;
    switch (row.needle) {
    case Needle::IsBios:
        m_element.isBios = true;
        break;
    case Needle::IsMechanical:
        m_element.isMechanical = true;
        break;
    case Needle::IsDevice:
        m_element.isDevice = true;
        break;
    case Needle::GameStart:
        m_sawGame |= m_name == ElementName::Machine;
        break;
    case Needle::GameEnd:
    case Needle::MachineEnd:
        if ((row.needle == Needle::GameEnd) != (m_name == ElementName::Game))
            break;
        m_element.text = m_window.text().substr(0, place);
        m_afterElement = place + row.text.size();
        m_isInElement = false;
        return true;
    default:
        m_element.places[static_cast<std::size_t>(row.needle)].push_back(place);
    }
    return false;
}

} // namespace tessera
