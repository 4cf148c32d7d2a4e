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
    std::string_view name; ///< as people write it
    const char* converter; ///< what ICU calls it; none where it is decoded here
};

/// In the order of the trials. ISO-2022-JP is tried before them, where a file holds an ESC byte. Shift JIS is
/// its code page 932 form. Mac OS Roman takes every byte, so what stands behind it is never reached.
// clang-format off
inline constexpr std::array<EncodingTrial, 12> encodings{{
    {TextEncoding::Utf8,          "UTF-8",           nullptr},
    {TextEncoding::NonLossyAscii, "non-lossy ASCII", nullptr},
    {TextEncoding::ShiftJis,      "Shift JIS",       nullptr},
    {TextEncoding::EucJp,         "EUC-JP",          "EUC-JP"},
    {TextEncoding::MacOsRoman,    "Mac OS Roman",    "macintosh"},
    {TextEncoding::Windows1251,   "Windows-1251",    "windows-1251"},
    {TextEncoding::Windows1252,   "Windows-1252",    "windows-1252"},
    {TextEncoding::Windows1253,   "Windows-1253",    "windows-1253"},
    {TextEncoding::Windows1254,   "Windows-1254",    "windows-1254"},
    {TextEncoding::Windows1250,   "Windows-1250",    "windows-1250"},
    {TextEncoding::Iso8859_1,     "ISO-8859-1",      "ISO-8859-1"},
    {TextEncoding::Utf16,         "UTF-16",          "UTF-16"},
}};
// clang-format on

std::string_view encodingName(TextEncoding encoding);

/// The bytes as UTF-8; nothing where a single one is not valid in the encoding.
std::optional<std::string> decodedAs(TextEncoding encoding, std::string_view bytes);

/// A file's text as UTF-8; absent where no encoding takes every byte.
struct DecodedText {
    TextEncoding encoding;
    std::optional<std::string> text;
};

/// Tries one encoding after another, each over the whole file. Where all are ruled out, the last one is
/// named.
DecodedText decodedText(std::string bytes);

/// The encoding alone.
TextEncoding detectEncoding(std::string_view bytes);

} // namespace tessera
