#include "info/historyxml.h"

#include <pugixml.hpp>

#include <algorithm>

namespace tessera {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view whiteSpace = " \t\r\n";

std::string_view withoutBlankLines(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
}

// An element's text may be in several pieces, plain and CDATA.
std::string textOf(const pugi::xml_node& element)
{
    std::string text;
    for (const pugi::xml_node& piece : element.children())
        text += piece.value();
    return text;
}

} // namespace

bool isHistoryXml(std::string_view text)
{
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
    return text.starts_with("<?xml") || text.starts_with("<history");
}

std::expected<HistoryXml, Failure> HistoryXml::parse(std::string text, const QString& path)
{
    // Qt's reader takes seven times as long (1.7 s for 42 MB), and a search waits for it.
    pugi::xml_document document;
    // The text is UTF-8 by now, whatever it declares.
    const pugi::xml_parse_result parsed
        = document.load_buffer_inplace(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    const pugi::xml_node history = document.child("history");
    if (!parsed || !history) {
        const char* why = parsed ? "no <history>" : parsed.description();
        return std::unexpected(Failure{"info_bad_xml", {path, QString::fromLatin1(why)}});
    }
    HistoryXml file;
    for (const pugi::xml_node& entry : history.children("entry")) {
        const pugi::xml_node systems = entry.child("systems");
        if (!systems)
            continue;
        const std::string whole = textOf(entry.child("text"));
        const std::string_view body = withoutBlankLines(whole);
        const Place place{file.m_texts.size(), body.size() + 1};
        file.m_texts += body;
        file.m_texts += '\n';
        for (const pugi::xml_node& system : systems.children("system"))
            file.m_places.try_emplace(system.attribute("name").value(), place);
    }
    return file;
}

std::optional<std::string_view> HistoryXml::entry(std::string_view name) const
{
    const auto found = m_places.find(name);
    if (found == m_places.end())
        return std::nullopt;
    return std::string_view(m_texts).substr(found->second.start, found->second.size);
}

} // namespace tessera
