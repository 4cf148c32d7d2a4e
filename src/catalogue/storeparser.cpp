#include "catalogue/storeparser.h"

#include "catalogue/storelayout.h"
#include "catalogue/xmltext.h"
#include "core/xmlaswritten.h"
#include "core/xmlencoding.h"

#include <algorithm>

namespace tessera {

namespace {

GameRecord readRecord(XmlAsWritten& xml, TextArena& arena)
{
    GameRecord record;
    while (xml.readElement("attribute")) {
        const auto field = fieldNamed(xml.attribute("name"));
        const std::string text = xml.readText();
        if (field)
            record[*field] = arena.add(text);
    }
    return record;
}

// Whether there are any objects, of whatever type.
bool readObjects(XmlAsWritten& xml, StoredCatalogue& store)
{
    bool hasObjects = false;
    while (xml.readElement("object")) {
        hasObjects = true;
        if (xml.attribute("type") == storelayout::entity)
            store.records.push_back(readRecord(xml, store.arena));
        else
            xml.skip();
    }
    return hasObjects;
}

// The reader compares each attribute of a tag with all others: so many only a hostile file has, and they
// would take it minutes. The text up to such a tag. No value holds a "<", and each begins with a quote.
std::size_t lengthWithoutEndlessTag(std::string_view text)
{
    constexpr int most = 1000;
    std::size_t tag = 0;
    int values = 0;
    char before = ' '; // the last that was no blank
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '<') {
            tag = at;
            values = 0;
        } else if ((c == '"' || c == '\'') && before == '=' && ++values > most) {
            return tag;
        }
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            before = c;
    }
    return text.size();
}

} // namespace

std::expected<StoredCatalogue, Failure> parseStore(std::string bytes, const QString& path)
{
    if (bytes.empty())
        return std::unexpected(Failure{"failure_store_empty", {path}});
    auto text = xmlToUtf8(std::move(bytes));
    if (!text)
        return std::unexpected(
            Failure{"failure_store_encoding", {path, QString::fromStdString(text.error())}});
    if (text->find('\0') != std::string::npos)
        return std::unexpected(Failure{"failure_store_binary", {path}});

    // The reader would take control characters in names.
    const std::size_t allowed = std::min(xmlTextLength(*text), lengthWithoutEndlessTag(*text));
    const bool isAllowed = allowed == text->size();
    text->resize(allowed);

    XmlAsWritten xml(*std::move(text));
    xml.readElement();
    const QString root = xml.qualifiedName().toString();
    const bool isStore = xml.isAt(storelayout::rootElement);
    StoredCatalogue store;
    const bool hasObjects = isStore && readObjects(xml, store);
    xml.readToEnd();
    if (xml.endsTooEarly() && isAllowed)
        return std::unexpected(Failure{"failure_store_truncated", {path}});
    if (xml.hasError() || !isAllowed)
        return std::unexpected(Failure{"failure_store_malformed", {path, QString::number(xml.lineNumber())}});
    if (!isStore)
        return std::unexpected(Failure{"failure_store_foreign", {path, root}});
    if (hasObjects && store.records.empty())
        return std::unexpected(Failure{"failure_store_model", {path}});
    return store;
}

} // namespace tessera
