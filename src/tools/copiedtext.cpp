#include "tools/copiedtext.h"

#include "catalogue/xmltext.h"
#include "core/encodings.h"

namespace tessera {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

} // namespace

std::string_view copiedText(std::string_view bytes, std::string& room)
{
    if (xmlTextLength(bytes) == bytes.size())
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
