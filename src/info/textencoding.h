#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

enum class TextEncoding {
    Iso2022Jp,
    Utf8,
    NonLossyAscii,
    ShiftJis,
    EucJp,
    MacOsRoman,
    Windows1251,
    Windows1252,
    Windows1253,
    Windows1254,
    Windows1250,
    Iso8859_1,
    Utf16,
};

/// An encoding that a file is tried in.
struct EncodingTrial {
    TextEncoding encoding;
    const char* converter; ///< what ICU calls it; none where it is decoded here
    /// Whether it has the control characters 80 to 9F. Where it has none, ICU gives them all the same, for
    /// bytes that stand for nothing.
    bool hasHighControls;
};

/// In the order of the trials. ISO-2022-JP is tried before them, where a file holds an ESC byte. Shift JIS is
/// its code page 932 form. Mac OS Roman takes every byte, so what stands behind it is never reached.
// clang-format off
inline constexpr std::array<EncodingTrial, 12> encodings{{
    {TextEncoding::Utf8,          nullptr,        true},
    {TextEncoding::NonLossyAscii, nullptr,        false},
    {TextEncoding::ShiftJis,      nullptr,        false},
    {TextEncoding::EucJp,         "EUC-JP",       false},
    {TextEncoding::MacOsRoman,    "macintosh",    false},
    {TextEncoding::Windows1251,   "windows-1251", false},
    {TextEncoding::Windows1252,   "windows-1252", false},
    {TextEncoding::Windows1253,   "windows-1253", false},
    {TextEncoding::Windows1254,   "windows-1254", false},
    {TextEncoding::Windows1250,   "windows-1250", false},
    {TextEncoding::Iso8859_1,     "ISO-8859-1",   true},
    {TextEncoding::Utf16,         "UTF-16",       true},
}};
// clang-format on

/// The bytes as UTF-8; nothing where a single one is not valid in the encoding.
std::optional<std::string> decodedAs(TextEncoding encoding, std::string_view bytes);

/// A file's text as UTF-8; absent where no encoding takes every byte.
struct DecodedText {
    TextEncoding encoding;
    std::optional<std::string> text;
};

/// Tries one encoding after another, each over the whole file. Where none takes it, the last one is named.
DecodedText decodedText(std::string bytes);

/// The encoding alone.
TextEncoding detectEncoding(std::string_view bytes);

} // namespace tessera
