#include "core/propertylistcheck.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tessera {

namespace {

// The last bytes of a file say where its parts stand.
constexpr std::size_t trailerSize = 32;
constexpr std::uint64_t weightOfObject = 128;
constexpr std::uint64_t heaviest = std::uint64_t{4} * largestPropertyList;

enum Marker : std::uint8_t { Data = 4, Ascii = 5, Utf16 = 6, Array = 10, Set = 12, Dictionary = 13 };

/// A file's objects, and what each would be when everything that it names were written out within it.
class BinaryShape
{
public:
    explicit BinaryShape(const QByteArray& bytes)
        : m_bytes(reinterpret_cast<const std::uint8_t*>(bytes.constData()))
        , m_size(static_cast<std::size_t>(bytes.size()))
    {
    }

    bool isSound();

private:
    struct Object {
        std::uint64_t weight = 0; // 0 while it is not known
        int depth = 0;
        bool isOpen = false;
    };
    /// An object that is being looked into, up to its next value.
    struct Step {
        std::uint64_t object;
        std::uint64_t next = 0;
    };
    /// What stands where an object begins.
    struct Head {
        std::uint64_t weight = weightOfObject;
        std::size_t references = 0; ///< where they begin
        std::uint64_t count = 0; ///< of them
    };

    std::uint64_t number(std::size_t place, std::size_t width) const;
    bool holdsNul(std::size_t place, std::uint64_t count, std::size_t width) const;
    bool readTrailer();
    std::optional<Head> head(std::uint64_t object) const;
    bool look(std::vector<Step>& path);

    const std::uint8_t* m_bytes;
    std::size_t m_size;
    std::size_t m_offsetWidth = 0;
    std::size_t m_referenceWidth = 0;
    std::size_t m_offsets = 0;
    std::uint64_t m_top = 0;
    std::vector<Object> m_objects;
};

// Of big-endian bytes that are there.
std::uint64_t BinaryShape::number(std::size_t place, std::size_t width) const
{
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i)
        value = value << 8 | m_bytes[place + i];
    return value;
}

bool BinaryShape::holdsNul(std::size_t place, std::uint64_t count, std::size_t width) const
{
    for (std::uint64_t i = 0; i < count; ++i) {
        if (number(place + static_cast<std::size_t>(i) * width, width) == 0)
            return true;
    }
    return false;
}

bool BinaryShape::readTrailer()
{
    if (m_size < 8 + trailerSize)
        return false;
    const std::size_t end = m_size - trailerSize;
    m_offsetWidth = m_bytes[end + 6];
    m_referenceWidth = m_bytes[end + 7];
    const std::uint64_t count = number(end + 8, 8);
    m_top = number(end + 16, 8);
    const std::uint64_t offsets = number(end + 24, 8);
    if (m_offsetWidth < 1 || m_offsetWidth > 8 || m_referenceWidth < 1 || m_referenceWidth > 8
        || offsets > end || count > (end - offsets) / m_offsetWidth || m_top >= count)
        return false;
    m_offsets = static_cast<std::size_t>(offsets);
    m_objects.resize(static_cast<std::size_t>(count));
    return true;
}

std::optional<BinaryShape::Head> BinaryShape::head(std::uint64_t object) const
{
    const std::uint64_t offset
        = number(m_offsets + static_cast<std::size_t>(object) * m_offsetWidth, m_offsetWidth);
    if (offset >= m_offsets)
        return std::nullopt;
    auto place = static_cast<std::size_t>(offset);
    const int kind = m_bytes[place] >> 4;
    std::uint64_t count = m_bytes[place] & 0xF;
    ++place;
    if (kind != Data && kind != Ascii && kind != Utf16 && kind != Array && kind != Set && kind != Dictionary)
        return Head{};
    if (count == 0xF) {
        // A longer count stands behind, as an integer.
        if (place >= m_offsets || m_bytes[place] >> 4 != 1 || (m_bytes[place] & 0xF) > 3)
            return std::nullopt;
        const std::size_t width = std::size_t{1} << (m_bytes[place] & 0xF);
        if (width > m_offsets - place - 1)
            return std::nullopt;
        count = number(place + 1, width);
        place += 1 + width;
    }
    if (kind < Array) {
        // The library takes a text for shorter than it is when a NUL stands in it, and reads past its end.
        const std::size_t width = kind == Utf16 ? 2 : 1;
        if (count > (m_offsets - place) / width || (kind != Data && holdsNul(place, count, width)))
            return std::nullopt;
        return Head{weightOfObject + count * 2};
    }
    const std::uint64_t room = (m_offsets - place) / m_referenceWidth;
    const std::uint64_t references = kind == Dictionary ? count * 2 : count;
    if (count > room || references > room)
        return std::nullopt;
    return Head{weightOfObject, place, references};
}

// One step further: into the last object's next value, or out of it.
bool BinaryShape::look(std::vector<Step>& path)
{
    Step& step = path.back();
    Object& object = m_objects[static_cast<std::size_t>(step.object)];
    const auto head = this->head(step.object);
    if (!head)
        return false;
    if (!object.isOpen) {
        object = {head->weight, 1, true};
    }
    if (step.next == head->count) {
        object.isOpen = false;
        path.pop_back();
        return true;
    }
    const std::uint64_t value
        = number(head->references + static_cast<std::size_t>(step.next) * m_referenceWidth, m_referenceWidth);
    if (value >= m_objects.size())
        return false;
    const Object& named = m_objects[static_cast<std::size_t>(value)];
    if (named.isOpen)
        return false;
    if (named.weight == 0) {
        path.push_back({value});
        return path.size() <= deepestPropertyList;
    }
    object.weight = std::min(heaviest + 1, object.weight + named.weight);
    object.depth = std::max(object.depth, named.depth + 1);
    ++step.next;
    return object.weight <= heaviest && object.depth <= deepestPropertyList;
}

bool BinaryShape::isSound()
{
    if (!readTrailer())
        return false;
    std::vector<Step> path{{m_top}};
    while (!path.empty()) {
        if (!look(path))
            return false;
    }
    return true;
}

} // namespace

std::expected<void, Failure> checkBinaryPropertyList(const QByteArray& bytes, const QString& path)
{
    if (!BinaryShape(bytes).isSound())
        return std::unexpected(Failure{"failure_plist_binary", {path}});
    return {};
}

} // namespace tessera
