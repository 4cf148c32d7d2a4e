#include "catalogue/search/searchbuffer.h"

#include "catalogue/search/folding.h"

#include <algorithm>

namespace tessera {

namespace {

// Of so many records one has its bytes counted: enough to know which bytes are rare.
constexpr std::size_t sampled = 16;

// No field mark and no byte of a searched word.
constexpr char blankByte = '\x0F';

} // namespace

void SearchBuffer::reserve(std::size_t bytes, std::size_t records)
{
    m_bytes.reserve(bytes);
    m_ends.reserve(records);
    m_records.reserve(records);
}

void SearchBuffer::begin(std::uint32_t record)
{
    m_records.push_back(record);
}

void SearchBuffer::add(FieldMark mark, std::string_view folded)
{
    m_bytes += static_cast<char>(mark);
    m_bytes += folded;
}

void SearchBuffer::addFoldingAscii(FieldMark mark, std::string_view text)
{
    m_bytes += static_cast<char>(mark);
    appendFoldedAscii(m_bytes, text);
}

void SearchBuffer::end()
{
    if (m_bytes.size() == begins(m_ends.size())) {
        m_records.pop_back();
        return;
    }
    m_bytes += static_cast<char>(EndMark);
    m_ends.push_back(static_cast<std::uint32_t>(m_bytes.size()));
    if (m_ends.size() % sampled == 1)
        sample(m_ends.size() - 1);
}

void SearchBuffer::removeLast()
{
    m_ends.pop_back();
    m_records.pop_back();
    m_bytes.resize(begins(m_ends.size()));
}

void SearchBuffer::lowerAsciiLetters()
{
    tessera::lowerAsciiLetters(m_bytes);
    m_counts = {};
    for (std::size_t place = 0; place < records(); place += sampled)
        sample(place);
}

void SearchBuffer::sample(std::size_t place)
{
    for (const char c : texts(place))
        ++m_counts[static_cast<unsigned char>(c)];
}

std::string_view SearchBuffer::texts(std::size_t place) const
{
    return bytes().substr(begins(place), m_ends[place] - begins(place));
}

SearchBuffer SearchBuffer::part(std::size_t begin, std::size_t end) const
{
    SearchBuffer part;
    part.m_bytes = m_bytes.substr(begins(begin), begins(end) - begins(begin));
    for (std::size_t place = begin; place < end; ++place) {
        part.m_records.push_back(m_records[place]);
        part.m_ends.push_back(m_ends[place] - static_cast<std::uint32_t>(begins(begin)));
    }
    part.m_counts = m_counts;
    return part;
}

void SearchBuffer::cut(std::size_t begin, std::size_t end)
{
    const std::size_t bytesBegin = begins(begin);
    const std::size_t bytesEnd = begins(end);
    m_bytes.erase(bytesBegin, bytesEnd - bytesBegin);
    const auto at
        = [](auto& values, std::size_t i) { return values.begin() + static_cast<std::ptrdiff_t>(i); };
    m_ends.erase(at(m_ends, begin), at(m_ends, end));
    m_records.erase(at(m_records, begin), at(m_records, end));
    for (std::size_t place = begin; place < m_ends.size(); ++place)
        m_ends[place] -= static_cast<std::uint32_t>(bytesEnd - bytesBegin);
}

void SearchBuffer::append(const SearchBuffer& other)
{
    const auto shift = static_cast<std::uint32_t>(m_bytes.size());
    m_bytes += other.m_bytes;
    m_records.insert(m_records.end(), other.m_records.begin(), other.m_records.end());
    for (const std::uint32_t end : other.m_ends)
        m_ends.push_back(end + shift);
    for (std::size_t i = 0; i < m_counts.size(); ++i)
        m_counts[i] += other.m_counts[i];
}

void SearchBuffer::blank(std::uint32_t record)
{
    for (std::size_t place = 0; place < records(); ++place) {
        if (m_records[place] == record)
            std::fill(m_bytes.begin() + static_cast<std::ptrdiff_t>(begins(place)),
                      m_bytes.begin() + m_ends[place] - 1, blankByte);
    }
}

void SearchBuffer::remove(std::uint32_t record)
{
    blank(record);
    for (std::uint32_t& each : m_records)
        each -= each > record ? 1 : 0;
}

void SearchBuffer::makeRoom(std::uint32_t record)
{
    for (std::uint32_t& each : m_records)
        each += each >= record ? 1 : 0;
}

// Steps that double find the place behind a gap of any length soon.
std::size_t SearchBuffer::placeOf(std::size_t offset, std::size_t place) const
{
    std::size_t step = 1;
    while (place + step < m_ends.size() && m_ends[place + step] <= offset) {
        place += step;
        step *= 2;
    }
    const auto at = [&](std::size_t i) { return m_ends.begin() + static_cast<std::ptrdiff_t>(i); };
    const auto behind = std::upper_bound(at(place), at(std::min(place + step, m_ends.size())), offset);
    return static_cast<std::size_t>(behind - m_ends.begin());
}

} // namespace tessera
