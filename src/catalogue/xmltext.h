#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// A character that may stand in an XML text, written out or as a number.
constexpr bool isXmlCharacter(std::uint32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD)
        || (c >= 0x10000 && c <= 0x10FFFF);
}

/// The character that a numeric reference, or one to a predefined entity, stands for. `name` is what stands
/// between
/// "&" and ";". Nothing for any other name, nor for a number that is no character of XML.
std::optional<std::uint32_t> referencedCharacter(std::string_view name);

void appendCharacter(std::string& text, std::uint32_t c);

/// The offset of the first byte that is not part of a UTF-8 character which XML allows; the size when all
/// are.
std::size_t xmlTextLength(std::string_view bytes);

/// Appends a text for the inside of an element. What XML has no way to write becomes U+FFFD.
void appendEscaped(std::string& xml, std::string_view text);

} // namespace tessera
