#include "info/textencoding.h"

#include "core/encodings.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <span>

namespace tessera {

namespace {

constexpr EncodingTrial escapedTrial{TextEncoding::Iso2022Jp, "ISO-2022-JP", false};
constexpr char escape = 27;
// No byte of the encodings that ICU decodes here becomes more bytes of UTF-8.
constexpr std::size_t bytesPerByte = 3;

using Converter = icu::LocalUConverterPointer;

Converter strictConverter(const char* name)
{
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(name, &status));
    if (U_SUCCESS(status))
        ucnv_setToUCallBack(converter.getAlias(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                            &status);
    if (U_FAILURE(status))
        converter.adoptInstead(nullptr);
    return converter;
}

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
        const Converter converter = strictConverter("windows-31j");
        for (unsigned pair = 0x8140; converter.isValid() && pair <= 0xFCFC; ++pair) {
            if (isLead(static_cast<Byte>(pair >> 8)) && (pair & 0xFF) >= 0x40)
                m_characters[pair] = characterOf(converter.getAlias(), pair);
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

// What ICU makes of each character is asked once and kept, which is several times faster than ICU's own
// conversion.
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

// The control characters 80 to 9F are C2 80 to C2 9F.
bool hasHighControls(std::string_view text)
{
    for (std::size_t at = text.find('\xC2'); at != std::string_view::npos; at = text.find('\xC2', at + 1)) {
        if (static_cast<unsigned char>(text[at + 1]) < 0xA0)
            return true;
    }
    return false;
}

std::optional<std::string> converted(const EncodingTrial& trial, std::string_view bytes)
{
    const Converter converter = strictConverter(trial.converter);
    if (converter.isNull())
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    text.resize_and_overwrite(bytes.size() * bytesPerByte, [&](char* to, std::size_t room) {
        const int32_t size
            = ucnv_toAlgorithmic(UCNV_UTF8, converter.getAlias(), to, static_cast<int32_t>(room),
                                 bytes.data(), static_cast<int32_t>(bytes.size()), &status);
        return U_SUCCESS(status) ? static_cast<std::size_t>(size) : 0;
    });
    if (U_FAILURE(status) || (!trial.hasHighControls && hasHighControls(text)))
        return std::nullopt;
    return text;
}

const EncodingTrial& trialOf(TextEncoding encoding)
{
    const auto* trial = std::ranges::find(encodings, encoding, &EncodingTrial::encoding);
    return trial == encodings.end() ? escapedTrial : *trial;
}

bool isEscaped(std::string_view bytes)
{
    return bytes.find(escape) != std::string_view::npos && isAscii(bytes);
}

} // namespace

std::optional<std::string> decodedAs(TextEncoding encoding, std::string_view bytes)
{
    if (encoding == TextEncoding::ShiftJis)
        return strictShiftJis(bytes);
    const EncodingTrial& trial = trialOf(encoding);
    if (trial.converter != nullptr)
        return converted(trial, bytes);
    // As a file is tried, seven-bit bytes are UTF-8 before they could be anything else.
    const bool isValid = encoding == TextEncoding::Utf8 ? isUtf8(bytes) : isAscii(bytes);
    return isValid ? std::optional<std::string>(bytes) : std::nullopt;
}

DecodedText decodedText(std::string bytes)
{
    if (isEscaped(bytes)) {
        if (auto text = decodedAs(escapedTrial.encoding, bytes))
            return {escapedTrial.encoding, std::move(text)};
    }
    // The one that needs no copy.
    static_assert(encodings.front().encoding == TextEncoding::Utf8);
    if (isUtf8(bytes))
        return {TextEncoding::Utf8, std::move(bytes)};
    for (const EncodingTrial& trial : std::span(encodings).subspan(1)) {
        if (auto text = decodedAs(trial.encoding, bytes))
            return {trial.encoding, std::move(text)};
    }
    return {encodings.back().encoding, std::nullopt};
}

TextEncoding detectEncoding(std::string_view bytes)
{
    return decodedText(std::string(bytes)).encoding;
}

} // namespace tessera
