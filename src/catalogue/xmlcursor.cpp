#include "catalogue/xmlcursor.h"

#include "catalogue/xmltext.h"

#include <algorithm>

namespace tessera {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool startsName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':'
        || static_cast<unsigned char>(c) >= 0x80;
}

bool continuesName(char c)
{
    return startsName(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

} // namespace

bool XmlCursor::skip(std::string_view token)
{
    if (!looking(token))
        return false;
    m_at += token.size();
    return true;
}

bool XmlCursor::skipPast(std::string_view token)
{
    const std::size_t found = m_text.find(token, m_at);
    m_at = found == std::string_view::npos ? m_text.size() : found + token.size();
    return found != std::string_view::npos;
}

bool XmlCursor::skipBlanks()
{
    const std::size_t start = m_at;
    while (isBlank(peek()))
        ++m_at;
    return m_at != start;
}

bool XmlCursor::name(std::string_view& name)
{
    const std::size_t start = m_at;
    if (!startsName(peek()))
        return false;
    while (continuesName(peek()))
        ++m_at;
    name = m_text.substr(start, m_at - start);
    return true;
}

bool XmlCursor::quoted()
{
    const char quote = peek();
    ++m_at;
    return skipPast(std::string_view(&quote, 1));
}

bool XmlCursor::reference()
{
    ++m_at;
    if (peek() == '#') {
        const std::size_t end = std::min(m_text.find(';', m_at), m_text.size());
        if (end == m_text.size() || !referencedCharacter(m_text.substr(m_at, end - m_at)))
            return false;
        m_at = end;
        return true;
    }
    std::string_view entity;
    return name(entity) && peek() == ';';
}

} // namespace tessera
