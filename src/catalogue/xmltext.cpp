#include "catalogue/xmltext.h"

#include "core/encodings.h"

#include <array>
#include <charconv>
#include <utility>

namespace tessera {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 5> predefined{
    {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};

constexpr std::string_view replacement = "\xEF\xBF\xBD";

// What stands for a byte in an escaped text; empty where the byte stands for itself.
constexpr std::string_view escapeOf(char c)
{
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&apos;";
    case '\r':
        return "&#13;"; // a bare one is read back as a line feed
    case '\t':
    case '\n':
        return {};
    default:
        return static_cast<unsigned char>(c) < 0x20 ? replacement : std::string_view();
    }
}

// U+FFFE and U+FFFF are the only characters of well-formed UTF-8 outside ASCII that XML forbids.
bool isNonCharacter(std::string_view text, std::size_t at)
{
    const std::string_view c = text.substr(at, 3);
    return c == "\xEF\xBF\xBE" || c == "\xEF\xBF\xBF";
}

// `text` is well-formed UTF-8.
void appendWellFormed(std::string& xml, std::string_view text)
{
    std::size_t copied = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::string_view escape = escapeOf(text[i]);
        std::size_t length = 1;
        if (text[i] == '\xEF' && isNonCharacter(text, i)) {
            escape = replacement;
            length = 3;
        }
        if (escape.empty())
            continue;
        xml += text.substr(copied, i - copied);
        xml += escape;
        copied = i + length;
        i += length - 1;
    }
    xml += text.substr(copied);
}

} // namespace

std::optional<std::uint32_t> referencedCharacter(std::string_view name)
{
    if (!name.starts_with('#')) {
        for (const auto& [entity, c] : predefined) {
            if (entity == name)
                return static_cast<unsigned char>(c);
        }
        return std::nullopt;
    }
    const bool hexadecimal = name.starts_with("#x");
    name.remove_prefix(hexadecimal ? 2 : 1);
    std::uint32_t c = 0;
    const auto [end, error]
        = std::from_chars(name.data(), name.data() + name.size(), c, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != name.data() + name.size() || !isXmlCharacter(c))
        return std::nullopt;
    return c;
}

void appendCharacter(std::string& text, std::uint32_t c)
{
    const auto put = [&](std::uint32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (c < 0x80) {
        put(c);
        return;
    }
    if (c < 0x800) {
        put(0xC0 | (c >> 6));
    } else if (c < 0x10000) {
        put(0xE0 | (c >> 12));
        put(0x80 | ((c >> 6) & 0x3F));
    } else {
        put(0xF0 | (c >> 18));
        put(0x80 | ((c >> 12) & 0x3F));
        put(0x80 | ((c >> 6) & 0x3F));
    }
    put(0x80 | (c & 0x3F));
}

std::size_t xmlTextLength(std::string_view bytes)
{
    std::size_t at = 0;
    while (at < bytes.size()) {
        const auto lead = static_cast<unsigned char>(bytes[at]);
        if (lead < 0x80) {
            if (!isXmlCharacter(lead))
                return at;
            ++at;
            continue;
        }
        const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        if (!isUtf8(bytes.substr(at, length)) || isNonCharacter(bytes, at))
            return at;
        at += length;
    }
    return at;
}

void appendEscaped(std::string& xml, std::string_view text)
{
    if (isUtf8(text)) {
        appendWellFormed(xml, text);
        return;
    }
    std::string wellFormed;
    appendUtf8(wellFormed, text);
    appendWellFormed(xml, wellFormed);
}

} // namespace tessera
