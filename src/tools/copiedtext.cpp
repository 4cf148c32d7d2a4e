#include "tools/copiedtext.h"

#include "catalogue/xmltext.h"
#include "core/encodings.h"

#include <cstdint>
#include <cstring>

namespace tessera {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

// Printable ASCII only, as nearly every value is; eight bytes at once.
bool isPlain(std::string_view bytes)
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t highBits = 0x80 * ones;
    while (!bytes.empty()) {
        std::uint64_t word = 0x20 * ones;
        const std::size_t count = std::min(bytes.size(), sizeof word);
        if (count == sizeof word)
            std::memcpy(&word, bytes.data(), sizeof word);
        else
            std::memcpy(&word, bytes.data(), count);
        if (((word | ((word - 0x20 * ones) & ~word)) & highBits) != 0)
            return false;
        bytes.remove_prefix(count);
    }
    return true;
}

} // namespace

std::string_view copiedText(std::string_view bytes, std::string& room)
{
    if (isPlain(bytes) || xmlTextLength(bytes) == bytes.size())
        return bytes;
    std::string wellFormed;
    appendUtf8(wellFormed, bytes);
    room.clear();
    for (std::string_view rest = wellFormed; !rest.empty();) {
        const std::size_t good = xmlTextLength(rest);
        room += rest.substr(0, good);
        rest.remove_prefix(good);
        if (rest.empty())
            break;
        room += replacement;
        // A control character, or one of U+FFFE and U+FFFF.
        rest.remove_prefix(static_cast<unsigned char>(rest.front()) < 0x80 ? 1 : 3);
    }
    return room;
}

} // namespace tessera
