#include "catalogue/search/wordclass.h"

#include <unicode/uchar.h>

namespace tessera {

namespace {

WordClass classOf(UChar32 c)
{
    constexpr UChar32 ideographsAgain = 0x3005; // 々
    if ((c >= 0x3041 && c <= 0x309F) || (c >= 0x30A1 && c <= 0x30FA))
        return WordClass::Kana;
    if (c == ideographsAgain || u_hasBinaryProperty(c, UCHAR_IDEOGRAPHIC) != 0)
        return WordClass::Ideographs;
    return u_isalnum(c) != 0 ? WordClass::Letters : WordClass::None;
}

// The character that stands alone in `bytes`, or begins them. They are well-formed.
UChar32 decoded(std::string_view bytes)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const auto trail = [&](std::size_t i) { return byte(i) & 0x3FU; };
    unsigned c = byte(0);
    if (c >= 0xF0)
        c = (c & 0x07U) << 18 | trail(1) << 12 | trail(2) << 6 | trail(3);
    else if (c >= 0xE0)
        c = (c & 0x0FU) << 12 | trail(1) << 6 | trail(2);
    else
        c = (c & 0x1FU) << 6 | trail(1);
    return static_cast<UChar32>(c);
}

constexpr bool isAsciiByte(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

constexpr bool isTrail(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

} // namespace

WordClass firstClass(std::string_view text)
{
    if (text.empty())
        return WordClass::None;
    return isAsciiByte(text.front()) ? asciiClass(text.front()) : classOf(decoded(text));
}

WordClass lastClass(std::string_view text)
{
    if (text.empty())
        return WordClass::None;
    std::size_t lead = text.size() - 1;
    while (lead > 0 && isTrail(text[lead]))
        --lead;
    return firstClass(text.substr(lead));
}

} // namespace tessera
