#include "catalogue/search/wordmatcher.h"

#include <algorithm>

namespace tessera {

namespace {

// No character has more bytes.
constexpr std::size_t longestCharacter = 4;

} // namespace

WordMatcher::WordMatcher(const SearchedWords& words)
    : m_size(words.text.size())
    , m_ends(words.ends)
    , m_first(firstClass(words.text))
    , m_last(lastClass(words.text))
{
    m_before.fill(Before::Unknown);
    for (unsigned char byte = 0; byte < 0x80; ++byte) {
        const WordClass before = asciiClass(static_cast<char>(byte));
        m_before[byte]
            = before == m_first && before != WordClass::None ? Before::WordGoesOn : Before::WordBegins;
    }
    m_before[NameMark] = Before::NameBegins;
    m_before[TitleMark] = Before::TitleBegins;
}

WordMatcher::Before WordMatcher::beforeByCharacter(std::string_view bytes, std::size_t offset) const
{
    const std::size_t begin = offset - std::min(offset, longestCharacter);
    const WordClass before = lastClass(bytes.substr(begin, offset - begin));
    return before == m_first && before != WordClass::None ? Before::WordGoesOn : Before::WordBegins;
}

bool WordMatcher::isWholeEnough(Before before, Behind behind, std::string_view bytes, std::size_t end) const
{
    if (before == Before::WordGoesOn)
        return false;
    if (m_ends == WordEnds::Begun || behind != Behind::Else)
        return true;
    const WordClass next = firstClass(bytes.substr(end, longestCharacter));
    return next == WordClass::None || next != m_last;
}

} // namespace tessera
