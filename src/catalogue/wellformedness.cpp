#include "catalogue/wellformedness.h"

#include "catalogue/xmlcursor.h"
#include "core/xmldeclaration.h"

#include <algorithm>
#include <vector>

namespace tessera {

namespace {

/// Takes the document construct by construct.
class DocumentCheck : private XmlCursor
{
public:
    using XmlCursor::offset;
    using XmlCursor::XmlCursor;

    bool document();

private:
    bool markup();
    bool text();
    bool comment();
    bool instruction();
    bool cdata();
    bool doctype();
    bool subset();
    bool declaration();
    bool startTag();
    bool attributes();
    bool attribute();
    bool endTag();

    std::vector<std::string_view> m_open;
    std::vector<std::string_view> m_attributes;
    bool m_doctypeSeen = false;
    bool m_rootSeen = false;
};

bool DocumentCheck::document()
{
    if (const auto declaration = xmlDeclaration(m_text))
        m_at = declaration->length;
    for (;;) {
        if (!text())
            return false;
        if (atEnd())
            return m_rootSeen && m_open.empty();
        if (!markup())
            return false;
    }
}

bool DocumentCheck::markup()
{
    if (skip("<!--"))
        return comment();
    if (skip("<?"))
        return instruction();
    if (looking("<![CDATA["))
        return cdata();
    if (looking("<!DOCTYPE"))
        return doctype();
    if (skip("</"))
        return endTag();
    return startTag();
}

bool DocumentCheck::text()
{
    if (m_open.empty()) {
        skipBlanks();
        return atEnd() || peek() == '<';
    }
    for (;; ++m_at) {
        while (!atEnd() && peek() != '<' && peek() != '&' && peek() != '>')
            ++m_at;
        if (atEnd() || peek() == '<')
            return true;
        if (peek() == '&' && !reference())
            return false;
        if (peek() == '>' && m_text.substr(0, m_at).ends_with("]]"))
            return false;
    }
}

bool DocumentCheck::comment()
{
    return skipPast("--") && skip(">");
}

bool DocumentCheck::instruction()
{
    std::string_view target;
    if (!name(target))
        return false;
    const bool reserved = target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm'
        && (target[2] | 0x20) == 'l';
    return !reserved && (looking("?>") || skipBlanks()) && skipPast("?>");
}

bool DocumentCheck::cdata()
{
    return !m_open.empty() && skipPast("]]>");
}

bool DocumentCheck::doctype()
{
    std::string_view root;
    if (m_doctypeSeen || m_rootSeen)
        return false;
    m_doctypeSeen = true;
    if (!skip("<!DOCTYPE") || !skipBlanks() || !name(root))
        return false;
    for (;;) {
        skipBlanks();
        std::string_view word;
        if (skip(">"))
            return true;
        const bool taken = peek() == '['      ? subset()
            : peek() == '"' || peek() == '\'' ? quoted()
                                              : name(word) && (word == "SYSTEM" || word == "PUBLIC");
        if (!taken)
            return false;
    }
}

bool DocumentCheck::subset()
{
    ++m_at;
    for (;;) {
        skipBlanks();
        if (skip("]"))
            return true;
        std::string_view entity;
        bool taken = false;
        if (skip("%"))
            taken = name(entity) && skip(";");
        else if (skip("<!--"))
            taken = comment();
        else if (skip("<?"))
            taken = instruction();
        else
            taken = skip("<!") && declaration();
        if (!taken)
            return false;
    }
}

bool DocumentCheck::declaration()
{
    for (;;) {
        m_at = std::min(m_text.find_first_of("<>\"'", m_at), m_text.size());
        if (skip(">"))
            return true;
        if ((peek() != '"' && peek() != '\'') || !quoted())
            return false;
    }
}

bool DocumentCheck::startTag()
{
    std::string_view element;
    if (m_rootSeen && m_open.empty())
        return false;
    m_rootSeen = true;
    if (!skip("<") || !name(element) || !attributes())
        return false;
    if (skip("/>"))
        return true;
    m_open.push_back(element);
    return skip(">");
}

bool DocumentCheck::attributes()
{
    m_attributes.clear();
    for (;;) {
        const bool blank = skipBlanks();
        if (atEnd() || peek() == '>' || peek() == '/') {
            std::ranges::sort(m_attributes);
            return std::ranges::adjacent_find(m_attributes) == m_attributes.end();
        }
        if (!blank || !attribute())
            return false;
    }
}

bool DocumentCheck::attribute()
{
    std::string_view key;
    if (!name(key))
        return false;
    m_attributes.push_back(key);
    skipBlanks();
    if (!skip("="))
        return false;
    skipBlanks();
    const char quote = peek();
    if (quote != '"' && quote != '\'')
        return false;
    for (++m_at; peek() != quote; ++m_at) {
        if (atEnd() || peek() == '<' || (peek() == '&' && !reference()))
            return false;
    }
    ++m_at;
    return true;
}

bool DocumentCheck::endTag()
{
    std::string_view element;
    const std::size_t start = m_at;
    if (!name(element))
        return false;
    skipBlanks();
    if (atEnd())
        return false;
    if (m_open.empty() || m_open.back() != element) {
        m_at = start;
        return false;
    }
    m_open.pop_back();
    return skip(">");
}

} // namespace

std::optional<std::size_t> illFormedAt(std::string_view text)
{
    DocumentCheck check(text);
    if (check.document())
        return std::nullopt;
    return check.offset();
}

} // namespace tessera
