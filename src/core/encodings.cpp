#include "core/encodings.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/unistr.h>

#include <memory>

namespace tessera {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

// Length of the well-formed UTF-8 sequence at the start of `bytes`, or minus the length of the ill-formed
// one that a single U+FFFD stands for (Unicode 15, table 3-7). `bytes` is not empty.
int sequenceLength(std::string_view bytes)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return 1;
    const int length = lead >= 0xC2 && lead <= 0xDF ? 2
        : (lead & 0xF0) == 0xE0                     ? 3
        : lead >= 0xF0 && lead <= 0xF4              ? 4
                                                    : 0;
    if (length == 0)
        return -1;
    // Only the second byte has bounds of its own; they rule out overlong forms, surrogates and too large
    // values.
    const unsigned char low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    for (int i = 1; i < length; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (at >= bytes.size() || byte(at) < (i == 1 ? low : 0x80) || byte(at) > (i == 1 ? high : 0xBF))
            return -i;
    }
    return length;
}

// ICU's own substitution writes U+001A for a single broken byte.
void writeReplacement(const void*, UConverterToUnicodeArgs* arguments, const char*, int32_t,
                      UConverterCallbackReason reason, UErrorCode* status)
{
    if (reason > UCNV_IRREGULAR)
        return;
    constexpr UChar character = 0xFFFD;
    *status = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(arguments, &character, 1, 0, status);
}

} // namespace

bool isAscii(std::string_view bytes)
{
    unsigned char seen = 0;
    for (const char c : bytes)
        seen |= static_cast<unsigned char>(c);
    return seen < 0x80;
}

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const int length = sequenceLength(bytes);
        if (length < 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
}

void appendUtf8(std::string& text, std::string_view bytes)
{
    if (isAscii(bytes)) {
        text += bytes;
        return;
    }
    while (!bytes.empty()) {
        const int length = sequenceLength(bytes);
        const auto taken = static_cast<std::size_t>(length < 0 ? -length : length);
        text += length < 0 ? replacement : bytes.substr(0, taken);
        bytes.remove_prefix(taken);
    }
}

std::string fromShiftJis(std::string_view bytes)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open("windows-31j", &status),
                                                                       &ucnv_close);
    if (U_SUCCESS(status))
        ucnv_setToUCallBack(converter.get(), &writeReplacement, nullptr, nullptr, nullptr, &status);
    if (U_FAILURE(status))
        return {};
    const icu::UnicodeString units(bytes.data(), static_cast<int32_t>(bytes.size()), converter.get(), status);
    std::string text;
    units.toUTF8String(text);
    return text;
}

} // namespace tessera
