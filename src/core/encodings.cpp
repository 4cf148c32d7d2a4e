#include "core/encodings.h"

#include <QUtf8StringView>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <memory>

namespace tessera {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

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
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

void appendUtf8(std::string& text, std::string_view bytes)
{
    if (isAscii(bytes)) {
        text += bytes;
        return;
    }
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t start = at;
        text += nextCharacter(bytes, at) == U'\uFFFD' ? replacement : bytes.substr(start, at - start);
    }
}

char32_t nextCharacter(std::string_view bytes, std::size_t& at)
{
    UChar32 character = 0;
    // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions): the macro counts so
    U8_NEXT_OR_FFFD(bytes.data(), at, bytes.size(), character);
    return static_cast<char32_t>(character);
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
