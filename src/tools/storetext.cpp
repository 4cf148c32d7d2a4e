#include "tools/storetext.h"

#include "catalogue/storelayout.h"
#include "core/atomicfile.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <limits>

namespace tessera {

namespace {

using namespace storelayout;

// What is held in one piece of memory.
constexpr std::size_t blockSize = std::size_t{2} << 20;

// What is handed over at once; as much as stays in the processor's cache.
constexpr std::size_t pieceSize = std::size_t{128} << 10;

constexpr std::uint32_t knownLater = std::numeric_limits<std::uint32_t>::max();
constexpr auto cloneofIndex = static_cast<std::size_t>(Field::Cloneof);

constexpr std::size_t objectMarkup = [] {
    std::size_t size = objectStart.size() + objectStartEnd.size() + objectEnd.size();
    for (const std::string_view start : attributeStarts)
        size += start.size() + attributeEnd.size();
    return size;
}();

// Collects small texts into pieces for a sink.
class PieceWriter
{
public:
    explicit PieceWriter(const ContentSink& sink)
        : m_sink(sink)
        , m_piece(std::make_unique_for_overwrite<char[]>(pieceSize))
    {
    }

    void put(std::string_view text)
    {
        if (text.size() > pieceSize - m_used && !makeRoom(text))
            return;
        std::memcpy(m_piece.get() + m_used, text.data(), text.size());
        m_used += text.size();
    }

    void flush()
    {
        m_isWanted = m_isWanted && m_sink({m_piece.get(), m_used});
        m_used = 0;
    }

    bool isWanted() const { return m_isWanted; }

private:
    // False where the text was too long for a piece and went its own way.
    bool makeRoom(std::string_view text)
    {
        flush();
        if (text.size() <= pieceSize)
            return true;
        m_isWanted = m_isWanted && m_sink(text);
        return false;
    }

    const ContentSink& m_sink;
    std::unique_ptr<char[]> m_piece;
    std::size_t m_used = 0;
    bool m_isWanted = true;
};

void putNumber(PieceWriter& writer, std::size_t number)
{
    std::array<char, 24> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    writer.put({digits.data(), end});
}

} // namespace

char* StoreText::reserve(std::size_t bytes)
{
    if (m_blocks.empty() || m_blocks.back().capacity - m_blocks.back().used < bytes) {
        const std::size_t capacity = std::max(bytes, blockSize);
        m_blocks.push_back({std::make_unique_for_overwrite<char[]>(capacity), 0, capacity});
    }
    Block& block = m_blocks.back();
    block.used += bytes;
    return block.bytes.get() + block.used - bytes;
}

void StoreText::appendObject(const std::array<std::string_view, fieldCount>& values, bool cloneofLater)
{
    Lengths lengths{};
    std::size_t size = 0;
    for (std::size_t field = 0; field < fieldCount; ++field) {
        lengths.bytes[field] = static_cast<std::uint32_t>(values[field].size());
        size += values[field].size();
    }
    if (cloneofLater)
        lengths.bytes[cloneofIndex] = knownLater;
    char* at = reserve(sizeof lengths + size);
    std::memcpy(at, &lengths, sizeof lengths);
    at += sizeof lengths;
    for (const std::string_view value : values)
        at += value.copy(at, value.size());
    m_valueBytes += size;
    ++m_objects;
}

void StoreText::complete(std::string uuid, std::string later, std::vector<std::size_t> laterStarts)
{
    m_uuid = std::move(uuid);
    m_later = std::move(later);
    m_laterStarts = std::move(laterStarts);
}

void StoreText::append(StoreText next)
{
    std::ranges::move(next.m_blocks, std::back_inserter(m_blocks));
    m_objects += next.m_objects;
    m_valueBytes += next.m_valueBytes;
}

std::string StoreText::header() const
{
    std::string header(headerStart);
    header.append(m_uuid).append(headerMiddle);
    header.append(std::to_string(lastObjectId(m_objects))).append(headerEnd);
    return header;
}

std::string_view StoreText::later(std::size_t index) const
{
    return std::string_view(m_later).substr(m_laterStarts[index]);
}

std::size_t StoreText::size() const
{
    std::size_t size = header().size() + m_valueBytes + m_objects * objectMarkup + storeEnd.size();
    for (std::size_t number = firstObjectId; number < firstObjectId + m_objects; ++number)
        size += std::to_string(number).size();
    for (std::size_t i = 0; i < m_laterStarts.size(); ++i)
        size += later(i).size();
    return size;
}

void StoreText::write(const ContentSink& sink) const
{
    PieceWriter writer(sink);
    writer.put(header());
    std::size_t number = firstObjectId;
    std::size_t nextLater = 0;
    for (const Block& block : m_blocks) {
        const char* const end = block.bytes.get() + block.used;
        for (const char* at = block.bytes.get(); at < end && writer.isWanted();) {
            Lengths lengths;
            std::memcpy(&lengths, at, sizeof lengths);
            at += sizeof lengths;
            writer.put(objectStart);
            putNumber(writer, number++);
            writer.put(objectStartEnd);
            for (std::size_t field = 0; field < fieldCount; ++field) {
                const bool isLater = lengths.bytes[field] == knownLater;
                const std::size_t length = isLater ? 0 : lengths.bytes[field];
                writer.put(attributeStarts[field]);
                writer.put(isLater ? later(nextLater++) : std::string_view(at, length));
                writer.put(attributeEnd);
                at += length;
            }
            writer.put(objectEnd);
        }
    }
    writer.put(storeEnd);
    writer.flush();
}

std::expected<void, Failure> StoreText::save(const QString& path) const
{
    AtomicFile file(path);
    write([&](std::string_view piece) { return file.write(piece); });
    return file.commit();
}

std::string StoreText::joined() const
{
    std::string text;
    text.reserve(size());
    write([&](std::string_view piece) {
        text += piece;
        return true;
    });
    return text;
}

} // namespace tessera
