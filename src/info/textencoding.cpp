#include "info/textencoding.h"

#include "core/encodings.h"
#include "info/shiftjis.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <memory>
#include <span>

namespace tessera {

namespace {

constexpr EncodingTrial escapedTrial{TextEncoding::Iso2022Jp, "ISO-2022-JP", false};
constexpr char escape = 27;
// UTF-16 units that are decoded before they become UTF-8; few enough to stay close to the processor.
constexpr std::size_t pieceUnits = 8192;
// No UTF-16 unit becomes more bytes of UTF-8.
constexpr std::size_t bytesPerUnit = 3;

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter strictConverter(const char* name)
{
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(name, &status), &ucnv_close);
    if (U_SUCCESS(status))
        ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    if (U_FAILURE(status))
        converter.reset();
    return converter;
}

// False for a lone surrogate.
bool appendUnits(std::string& text, std::span<const UChar> units)
{
    std::array<char, pieceUnits * bytesPerUnit> bytes;
    UErrorCode status = U_ZERO_ERROR;
    int32_t size = 0;
    u_strToUTF8(bytes.data(), static_cast<int32_t>(bytes.size()), &size, units.data(),
                static_cast<int32_t>(units.size()), &status);
    if (U_FAILURE(status))
        return false;
    text.append(bytes.data(), static_cast<std::size_t>(size));
    return true;
}

bool isHighControl(UChar unit)
{
    return unit >= 0x80 && unit < 0xA0;
}

std::optional<std::string> converted(const EncodingTrial& trial, std::string_view bytes)
{
    const Converter converter = strictConverter(trial.converter);
    if (!converter)
        return std::nullopt;
    std::string text;
    std::array<UChar, pieceUnits> units;
    std::size_t kept = 0; // half of a surrogate pair that the piece before ended with
    const char* source = bytes.data();
    const char* const end = source + bytes.size();
    for (UErrorCode status = U_BUFFER_OVERFLOW_ERROR; status == U_BUFFER_OVERFLOW_ERROR;) {
        UChar* target = units.data() + kept;
        status = U_ZERO_ERROR;
        ucnv_toUnicode(converter.get(), &target, units.data() + units.size(), &source, end, nullptr, true,
                       &status);
        if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR)
            return std::nullopt;
        const auto count = static_cast<std::size_t>(target - units.data());
        kept = status == U_BUFFER_OVERFLOW_ERROR && count > 0 && U16_IS_LEAD(units[count - 1]) ? 1 : 0;
        if (!trial.hasHighControls && std::ranges::any_of(std::span(units).first(count), isHighControl))
            return std::nullopt;
        if (text.empty())
            text.reserve(bytes.size() + bytes.size() / 2);
        if (!appendUnits(text, std::span(units).first(count - kept)))
            return std::nullopt;
        if (kept == 1)
            units[0] = units[count - 1];
    }
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
    for (const EncodingTrial& trial : encodings) {
        // The one that needs no copy.
        if (trial.encoding == TextEncoding::Utf8 && isUtf8(bytes))
            return {trial.encoding, std::move(bytes)};
        if (auto text
            = trial.encoding == TextEncoding::Utf8 ? std::nullopt : decodedAs(trial.encoding, bytes))
            return {trial.encoding, std::move(text)};
    }
    return {encodings.back().encoding, std::nullopt};
}

TextEncoding detectEncoding(std::string_view bytes)
{
    return decodedText(std::string(bytes)).encoding;
}

} // namespace tessera
