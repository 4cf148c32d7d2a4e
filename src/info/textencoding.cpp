#include "info/textencoding.h"

#include "core/encodings.h"
#include "info/shiftjis.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <memory>

namespace tessera {

namespace {

constexpr EncodingTrial escapedTrial{TextEncoding::Iso2022Jp, "ISO-2022-JP", false};
constexpr char escape = 27;
// No byte of the encodings that ICU decodes here becomes more bytes of UTF-8.
constexpr std::size_t bytesPerByte = 3;

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
    if (!converter)
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    text.resize_and_overwrite(bytes.size() * bytesPerByte, [&](char* to, std::size_t room) {
        const int32_t size = ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), to, static_cast<int32_t>(room),
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
