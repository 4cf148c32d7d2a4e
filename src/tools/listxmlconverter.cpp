#include "tools/listxmlconverter.h"

#include "catalogue/storelayout.h"
#include "catalogue/xmltext.h"
#include "core/encodings.h"
#include "tools/machinefields.h"
#include "tools/titletable.h"

#include <cstring>
#include <numeric>

namespace tessera {

namespace {

// The end of an element is seen so many bytes later at most.
constexpr std::size_t longestLag = 4096;

constexpr std::string_view unknown = "????";
constexpr std::string_view replacement = "\xEF\xBF\xBD";
constexpr std::size_t lastBytesKept = 256;
constexpr std::size_t longestName = 100; // in a message

Failure tooLarge()
{
    return Failure{"convert_too_large", {}};
}

// As far as it has come.
std::string_view nameIn(std::string_view element)
{
    constexpr std::string_view attribute = "name=\"";
    const std::size_t at = element.find(attribute);
    if (at == std::string_view::npos)
        return unknown;
    const std::string_view rest = element.substr(at + attribute.size(), longestName);
    // Behind the text stands the scanner's padding of line feeds.
    return rest.substr(0, rest.find_first_of("\"\n"));
}

// What is copied into a store as it stands. Deliberate: bytes that are not UTF-8, and characters that XML
// cannot hold, become U+FFFD, or the store could not be read back. Nothing is escaped. Gives `bytes` itself
// where nothing had to be replaced, else a view of `room`.
std::string_view copiedText(std::string_view bytes, std::string& room)
{
    if (xmlTextLength(bytes) == bytes.size())
        return bytes;
    std::string wellFormed;
    appendUtf8(wellFormed, bytes);
    room.clear();
    for (std::string_view rest = wellFormed; !rest.empty();) {
        const std::size_t good = xmlTextLength(rest);
        room += rest.substr(0, good);
        rest.remove_prefix(good);
        if (rest.empty())
            break;
        room += replacement;
        // A control character, or one of U+FFFE and U+FFFF.
        rest.remove_prefix(static_cast<unsigned char>(rest.front()) < 0x80 ? 1 : 3);
    }
    return room;
}

} // namespace

void ConvertedList::append(ConvertedList next)
{
    text.append(std::move(next.text));
    games += next.games;
    isWhole = next.isWhole;
    stopped = std::move(next.stopped);
}

ListxmlConverter::ListxmlConverter(const TitleTable& titles, ConversionOptions options, ElementName name,
                                   CandidateSearch search)
    : m_titles(titles)
    , m_options(options)
    , m_scanner(name, search)
{
}

std::expected<void, Failure> ListxmlConverter::feed(std::string_view piece)
{
    if (piece.empty())
        return {};
    std::memcpy(room(piece.size()).data(), piece.data(), piece.size());
    return extend(piece.size());
}

std::expected<void, Failure> ListxmlConverter::extend(std::size_t count)
{
    m_scanner.extend(count);
    const std::string_view held = m_scanner.held();
    const std::string_view piece = held.substr(held.size() - count);
    m_lastBytes += piece.substr(piece.size() - std::min(piece.size(), lastBytesKept));
    m_lastBytes.erase(0, m_lastBytes.size() - std::min(m_lastBytes.size(), lastBytesKept));
    if (!m_restStarts.empty())
        m_rest += piece;
    if (m_rest.size() > convertedSizeLimit)
        return std::unexpected(tooLarge());
    return convertElements();
}

std::expected<void, Failure> ListxmlConverter::convertElements()
{
    while (const ListxmlElement* element = m_stopped ? nullptr : m_scanner.next()) {
        if (element->text.size() > elementLimit)
            stopAt(element->text, StoppedAt::Why::TooLong);
        else if (isLeftOut(*element))
            continue;
        else if (const auto written = write(readFields(*element)); !written)
            return written;
    }
    if (!m_stopped && m_scanner.isInElement() && m_scanner.held().size() > elementLimit + longestLag)
        stopAt(m_scanner.held(), StoppedAt::Why::TooLong);
    if (m_stopped)
        m_scanner.passOver();
    if (m_scanner.sawNul())
        return std::unexpected(Failure{"convert_has_nul", {}});
    return {};
}

void ListxmlConverter::stopAt(std::string_view element, StoppedAt::Why why)
{
    const std::string_view name = nameIn(element);
    m_stopped = StoppedAt{why, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))};
}

bool ListxmlConverter::isLeftOut(const ListxmlElement& element) const
{
    return (m_options.withoutBios && element.isBios) || (m_options.withoutMechanical && element.isMechanical)
        || (m_options.withoutDevices && element.isDevice);
}

std::expected<void, Failure> ListxmlConverter::write(const MachineFields& fields)
{
    std::array<std::string_view, fieldCount> values;
    const auto put = [&](Field field, std::string_view bytes) {
        const auto at = static_cast<std::size_t>(field);
        values[at] = copiedText(bytes, m_rooms[at]);
        return values[at];
    };
    values[static_cast<std::size_t>(Field::Type)] = fields.type;
    const std::string_view name = put(Field::Name, fields.name.value_or(unknown));
    const bool cloneofLater = !fields.cloneof && !fields.name;
    if (cloneofLater)
        rememberRest();
    else if (fields.cloneof)
        put(Field::Cloneof, *fields.cloneof);
    else
        values[static_cast<std::size_t>(Field::Cloneof)] = name;
    const std::string_view title = put(Field::Title, fields.title.value_or(unknown));
    put(Field::Year, fields.year.value_or(unknown));
    put(Field::Maker, fields.maker.value_or(unknown));
    put(Field::Status, fields.status.value_or(unknown));
    put(Field::Device, fields.device.value_or(std::string_view()));
    values[static_cast<std::size_t>(Field::Titlejp)] = japaneseTitle(name).value_or(title);

    for (const std::string_view value : values)
        m_written += value.size();
    if (m_written > convertedSizeLimit)
        return std::unexpected(tooLarge());
    m_store.appendObject(values, cloneofLater);
    return {};
}

std::optional<std::string_view> ListxmlConverter::japaneseTitle(std::string_view name)
{
    const auto title = m_titles.titleOf(name);
    if (!title)
        return std::nullopt;
    std::string& escaped = m_rooms[static_cast<std::size_t>(Field::Titlejp)];
    escaped.clear();
    appendEscaped(escaped, *title);
    return escaped;
}

// Deliberate: such an element's cloneof is everything from its start to the end of the whole text.
void ListxmlConverter::rememberRest()
{
    const std::string_view rest = m_scanner.textFromElement();
    if (m_restStarts.empty())
        m_rest = rest;
    m_restStarts.push_back(m_rest.size() - rest.size());
}

// `starts` are its places, which replacing moves. A blank stands before each, so none parts a character.
std::string ListxmlConverter::copiedRest(std::vector<std::size_t>& starts) const
{
    std::string text;
    std::string room;
    for (std::size_t i = 0; i < m_restStarts.size(); ++i) {
        const std::size_t end = i + 1 < m_restStarts.size() ? m_restStarts[i + 1] : m_rest.size();
        starts.push_back(text.size());
        text += copiedText(std::string_view(m_rest).substr(m_restStarts[i], end - m_restStarts[i]), room);
    }
    return text;
}

bool ListxmlConverter::endsWithEndTag() const
{
    const std::size_t last = m_lastBytes.find_last_not_of(" \t\r\n");
    const std::size_t tag = m_lastBytes.rfind('<');
    if (last == std::string::npos || m_lastBytes[last] != '>' || tag == std::string::npos)
        return false;
    // An element's own end tag is not yet the list's.
    const std::string_view end = std::string_view(m_lastBytes).substr(tag, last + 1 - tag);
    return end.starts_with("</") && end != "</machine>" && end != "</game>";
}

std::expected<ConvertedList, Failure> ListxmlConverter::finish()
{
    m_scanner.end();
    if (const auto converted = convertElements(); !converted)
        return std::unexpected(converted.error());
    if (!m_stopped && m_scanner.isInElement())
        stopAt(m_scanner.held(), StoppedAt::Why::CutOff);
    std::vector<std::size_t> starts;
    std::string rest = copiedRest(starts);
    m_store.complete(storelayout::newUuid(), std::move(rest), std::move(starts));
    if (m_store.size() > convertedSizeLimit)
        return std::unexpected(tooLarge());
    const std::size_t games = m_store.objects();
    return ConvertedList{std::move(m_store), games, !m_stopped && endsWithEndTag(), m_stopped};
}

} // namespace tessera
