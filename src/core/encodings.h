#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// True where `bytes` is well-formed UTF-8 (RFC 3629: no surrogates, nothing above U+10FFFF, no overlong
/// form).
bool isUtf8(std::string_view bytes);

/// True where every byte is below 0x80.
bool isAscii(std::string_view bytes);

/// Appends `bytes` to `text` as UTF-8; each maximal ill-formed sequence becomes one U+FFFD.
void appendUtf8(std::string& text, std::string_view bytes);

/// The character of UTF-8 that begins at byte `at`, which goes on to the next one; U+FFFD where it is
/// ill-formed.
char32_t nextCharacter(std::string_view bytes, std::size_t& at);

/// UTF-8 of `bytes` read as Shift JIS in its code page 932 form; broken bytes become U+FFFD.
std::string fromShiftJis(std::string_view bytes);

} // namespace tessera
