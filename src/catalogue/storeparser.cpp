#include "catalogue/storeparser.h"

#include "catalogue/storelayout.h"
#include "catalogue/wellformedness.h"
#include "core/xmlencoding.h"
#include "catalogue/xmltext.h"

#include <pugixml.hpp>

#include <algorithm>

namespace tessera {

namespace {

// Blanks are part of a value, also where they are all of it.
constexpr unsigned parseOptions = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol
    | pugi::parse_wconv_attribute | pugi::parse_ws_pcdata | pugi::parse_embed_pcdata;

QString lineOf(std::string_view text, std::size_t offset)
{
    return QString::number(1 + std::ranges::count(text.substr(0, offset), '\n'));
}

std::expected<void, Failure> checkText(std::string_view text, const QString& path)
{
    if (text.find('\0') != std::string_view::npos)
        return std::unexpected(Failure{"failure_store_binary", {path}});
    const std::size_t allowed = xmlTextLength(text);
    const auto illFormed = illFormedAt(text.substr(0, allowed));
    if (allowed == text.size() && !illFormed)
        return {};
    const std::size_t offset = illFormed.value_or(allowed);
    if (offset == text.size())
        return std::unexpected(Failure{"failure_store_truncated", {path}});
    return std::unexpected(Failure{"failure_store_malformed", {path, lineOf(text, offset)}});
}

// A text may be in several pieces, with comments between them.
void readText(pugi::xml_node element, std::string& text)
{
    text = element.value();
    for (const pugi::xml_node piece : element) {
        if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata)
            text += piece.value();
    }
}

GameRecord readRecord(pugi::xml_node object, TextArena& arena)
{
    GameRecord record;
    std::string text;
    for (const pugi::xml_node attribute : object.children("attribute")) {
        const auto field = fieldNamed(attribute.attribute("name").value());
        if (!field)
            continue;
        readText(attribute, text);
        record[*field] = arena.add(text);
    }
    return record;
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
    if (const auto checked = checkText(*text, path); !checked)
        return std::unexpected(checked.error());

    pugi::xml_document document;
    const auto parsed
        = document.load_buffer_inplace(text->data(), text->size(), parseOptions, pugi::encoding_utf8);
    if (!parsed) {
        const QString reason = QString::fromLatin1(parsed.description());
        return std::unexpected(Failure{"failure_store_library", {path, reason}});
    }
    const pugi::xml_node root = document.document_element();
    if (root.name() != storelayout::rootElement)
        return std::unexpected(Failure{"failure_store_foreign", {path, QString::fromUtf8(root.name())}});

    StoredCatalogue store;
    bool hasObjects = false;
    for (const pugi::xml_node object : root.children("object")) {
        hasObjects = true;
        if (object.attribute("type").value() == storelayout::entity)
            store.records.push_back(readRecord(object, store.arena));
    }
    if (hasObjects && store.records.empty())
        return std::unexpected(Failure{"failure_store_model", {path}});
    return store;
}

} // namespace tessera
