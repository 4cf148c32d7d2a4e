#include "catalogue/storescanner.h"

#include "catalogue/eightbytes.h"
#include "catalogue/storelayout.h"
#include "catalogue/xmltext.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string>
#include <utility>

namespace tessera {

namespace {

using namespace storelayout;

// The markup between two values, joined while compiling: every comparison is one of a known length.
template <std::size_t next>
struct MarkupBefore {
    static constexpr std::string_view first = next == 0 ? objectStartEnd : attributeEnd;
    static constexpr std::string_view second = next == fieldCount ? objectEnd : attributeStarts[next];
    static constexpr auto joined = [] {
        std::array<char, first.size() + second.size()> text{};
        std::ranges::copy(second, std::ranges::copy(first, text.begin()).out);
        return text;
    }();
    static constexpr std::string_view text{joined.data(), joined.size()};
};

// Zeros behind the window. They match no markup and stop every value, so that nothing has to ask where the
// window ends before it looks at the next few bytes.
constexpr std::size_t padding = 128;
static_assert(MarkupBefore<fieldCount - 1>::text.size() <= padding && headerStart.size() <= 2 * padding);

constexpr std::size_t shortestObject = [] {
    std::size_t size
        = objectStart.size() + objectStartEnd.size() + objectEnd.size() + fieldCount * attributeEnd.size();
    for (const std::string_view start : attributeStarts)
        size += start.size();
    return size;
}();

constexpr std::size_t mostReserved = 1'000'000;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// One pass over a store file.
class StoreScanner
{
public:
    StoreScanner(const ByteSource& source, std::size_t bytes, std::size_t window)
        : m_source(source)
        , m_window(window)
        , m_buffer(std::make_unique_for_overwrite<char[]>(window + 2 * padding))
        , m_at(m_buffer.get())
        , m_end(m_buffer.get())
    {
        // The most that can come; memory that no record needs is never touched.
        m_store.records.reserve(std::min(bytes / shortestObject, mostReserved));
    }

    bool scan();
    StoredCatalogue take()
    {
        m_store.isOurLayout = true;
        return std::move(m_store);
    }

private:
    bool refill();
    bool scanHeader();
    bool scanObject();
    bool scanNumber();
    template <std::size_t... fields>
    bool scanValues(GameRecord& record, std::index_sequence<fields...>);
    bool scanValue(std::string_view& value);
    bool decodeValue(std::string_view& value);
    bool atStoreEnd() const;

    bool skip(std::string_view text)
    {
        if (std::memcmp(m_at, text.data(), text.size()) != 0)
            return false;
        m_at += text.size();
        return true;
    }

    const ByteSource& m_source;
    std::size_t m_window;
    std::unique_ptr<char[]> m_buffer;
    char* m_at;
    char* m_end;
    bool m_sourceEnded = false;
    std::string m_decoded;
    GameRecord m_previous;
    StoredCatalogue m_store;
};

bool StoreScanner::scan()
{
    if (!refill() || !scanHeader())
        return false;
    for (;;) {
        char* const start = m_at;
        if (scanObject())
            continue;
        m_at = start;
        if (atStoreEnd())
            return true;
        // Either the window ends within this object, or it deviates; then it does so again.
        if (!refill())
            return false;
    }
}

// Moves what is not yet read to the window's start and fills the rest. False when nothing more can come.
bool StoreScanner::refill()
{
    char* const begin = m_buffer.get();
    const auto kept = static_cast<std::size_t>(m_end - m_at);
    if (m_sourceEnded || kept == m_window)
        return false;
    std::memmove(begin, m_at, kept);
    m_at = begin;
    m_end = begin + kept;
    while (m_end != begin + m_window) {
        const std::ptrdiff_t count = m_source(m_end, static_cast<std::size_t>(begin + m_window - m_end));
        if (count < 0)
            return false;
        if (count == 0) {
            m_sourceEnded = true;
            break;
        }
        m_end += count;
    }
    std::memset(m_end, 0, 2 * padding);
    return true;
}

bool StoreScanner::scanHeader()
{
    std::string_view uuid;
    return skip(headerStart) && scanValue(uuid) && skip(headerMiddle) && scanNumber() && skip(headerEnd);
}

bool StoreScanner::scanNumber()
{
    if (!isDigit(*m_at))
        return false;
    while (isDigit(*m_at))
        ++m_at;
    return true;
}

bool StoreScanner::scanObject()
{
    GameRecord record;
    if (!skip(objectStart) || !scanNumber() || !scanValues(record, std::make_index_sequence<fieldCount>())
        || !skip(MarkupBefore<fieldCount>::text))
        return false;
    m_store.records.push_back(record);
    m_previous = record;
    return true;
}

template <std::size_t... fields>
bool StoreScanner::scanValues(GameRecord& record, std::index_sequence<fields...>)
{
    const auto scanField = [&]<std::size_t field>(std::integral_constant<std::size_t, field>) {
        std::string_view value;
        if (!skip(MarkupBefore<field>::text) || !scanValue(value))
            return false;
        // A parent set names itself, most titles have no other form, and neighbours share their kind, year
        // and maker.
        constexpr auto key = static_cast<Field>(field);
        std::string_view likely = m_previous[key];
        if constexpr (key == Field::Cloneof)
            likely = record[Field::Name];
        else if constexpr (key == Field::Titlejp)
            likely = record[Field::Title];
        record[key] = likely.data() != nullptr && value == likely ? likely : m_store.arena.add(value);
        return true;
    };
    return (scanField(std::integral_constant<std::size_t, fields>()) && ...);
}

// Up to the next "<". The value is a view of the window, or of m_decoded.
bool StoreScanner::scanValue(std::string_view& value)
{
    char* const start = m_at;
    std::uint64_t seen = 0;
    char* at = m_at;
    for (;;) {
        const std::uint64_t word = loadWord(at);
        const std::uint64_t stop = stoppingBytes(word);
        seen |= word;
        if (stop != 0) {
            at += std::countr_zero(stop) / 8;
            break;
        }
        at += sizeof word;
    }
    m_at = at;
    value = {start, static_cast<std::size_t>(at - start)};
    if (*at != '<') {
        m_at = start;
        return decodeValue(value);
    }
    return (seen & eachByte(0x80)) == 0 || xmlTextLength(value) == value.size();
}

// A value with references, line ends, or ">".
bool StoreScanner::decodeValue(std::string_view& value)
{
    m_decoded.clear();
    for (; *m_at != '<'; ++m_at) {
        const char c = *m_at;
        if (c == '&') {
            const std::string_view ahead(m_at + 1, padding);
            const std::size_t length = ahead.find(';');
            const auto character = length == std::string_view::npos
                ? std::nullopt
                : referencedCharacter(ahead.substr(0, length));
            if (!character)
                return false;
            appendCharacter(m_decoded, *character);
            m_at += length + 1;
            continue;
        }
        // A bare carriage return has to become a line feed, and "]]>" may not stand in a text: no matter for
        // here.
        const bool control = static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t';
        if (control || (c == '>' && m_at[-1] == ']' && m_at[-2] == ']'))
            return false;
        m_decoded += c;
    }
    value = m_decoded;
    return xmlTextLength(value) == value.size();
}

bool StoreScanner::atStoreEnd() const
{
    return m_sourceEnded && std::string_view(m_at, m_end) == storeEnd;
}

} // namespace

std::optional<StoredCatalogue> scanStore(const ByteSource& source, std::size_t bytes, std::size_t window)
{
    StoreScanner scanner(source, bytes, window);
    if (!scanner.scan())
        return std::nullopt;
    return scanner.take();
}

} // namespace tessera
