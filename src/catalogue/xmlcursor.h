#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tessera {

/// A place in an XML text, and the small constructs that can be taken there. Each says whether it was there
/// and well-formed; after a failure the place is the offending byte, or the end.
class XmlCursor
{
public:
    explicit XmlCursor(std::string_view text)
        : m_text(text)
    {
    }

    std::size_t offset() const { return std::min(m_at, m_text.size()); }

protected:
    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_at]; }
    bool looking(std::string_view token) const { return m_text.substr(offset()).starts_with(token); }

    bool skip(std::string_view token);
    bool skipPast(std::string_view token);
    bool skipBlanks();
    bool name(std::string_view& name);
    /// A literal, from its quotation mark to the next such one.
    bool quoted();
    /// From the ampersand up to the semicolon, which is not taken.
    bool reference();

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace tessera
