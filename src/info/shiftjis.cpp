#include "info/shiftjis.h"

#include <algorithm>
#include <array>
#include <memory>

#include <unicode/ucnv.h>

namespace tessera {

namespace {

using Byte = unsigned char;

constexpr bool isLead(Byte byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

constexpr bool isHalfWidth(Byte byte)
{
    return byte >= 0xA1 && byte <= 0xDF;
}

/// The character of each pair of bytes, or 0. All of them are in the first plane, and none is ASCII.
class PairTable
{
public:
    PairTable()
    {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open("windows-31j", &status),
                                                                           &ucnv_close);
        if (U_SUCCESS(status))
            ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
        for (unsigned pair = 0x8140; U_SUCCESS(status) && pair <= 0xFCFC; ++pair) {
            if (isLead(static_cast<Byte>(pair >> 8)) && (pair & 0xFF) >= 0x40)
                m_characters[pair] = characterOf(converter.get(), pair);
        }
    }

    char16_t operator[](unsigned pair) const { return m_characters[pair]; }

private:
    static char16_t characterOf(UConverter* converter, unsigned pair)
    {
        const std::array bytes{static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
        std::array<UChar, 4> units{};
        UErrorCode status = U_ZERO_ERROR;
        const char* source = bytes.data();
        UChar* target = units.data();
        ucnv_reset(converter);
        ucnv_toUnicode(converter, &target, units.data() + units.size(), &source, bytes.data() + bytes.size(),
                       nullptr, true, &status);
        return U_SUCCESS(status) && target == units.data() + 1 ? units[0] : u'\0';
    }

    std::array<char16_t, 0x10000> m_characters{};
};

// Three bytes, or two below U+0800; returns what is behind them.
char* put(char* to, char16_t character)
{
    if (character < 0x800) {
        *to++ = static_cast<char>(0xC0 | (character >> 6));
    } else {
        *to++ = static_cast<char>(0xE0 | (character >> 12));
        *to++ = static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    }
    *to++ = static_cast<char>(0x80 | (character & 0x3F));
    return to;
}

// Decodes from the front until there is no more, or no room in [to, end) for another character; the text's
// end, or null.
char* decode(const PairTable& pairs, std::string_view& bytes, char* to, const char* end)
{
    std::size_t i = 0;
    for (; i < bytes.size() && end - to >= 3; ++i) {
        const auto byte = static_cast<Byte>(bytes[i]);
        if (byte < 0x80) {
            *to++ = static_cast<char>(byte);
        } else if (isHalfWidth(byte)) {
            to = put(to, static_cast<char16_t>(0xFF61 + (byte - 0xA1)));
        } else {
            const unsigned trail = ++i < bytes.size() ? static_cast<Byte>(bytes[i]) : 0;
            const char16_t character = pairs[static_cast<unsigned>(byte) << 8 | trail];
            if (character == u'\0')
                return nullptr;
            to = put(to, character);
        }
    }
    bytes.remove_prefix(i);
    return to;
}

} // namespace

std::optional<std::string> strictShiftJis(std::string_view bytes)
{
    static const PairTable pairs;
    std::string text;
    std::array<char, std::size_t{32} * 1024> piece;
    while (!bytes.empty()) {
        char* const end = decode(pairs, bytes, piece.data(), piece.data() + piece.size());
        if (end == nullptr)
            return std::nullopt;
        if (text.empty())
            text.reserve(bytes.size() + bytes.size() / 2 + piece.size());
        text.append(piece.data(), end);
    }
    return text;
}

} // namespace tessera
