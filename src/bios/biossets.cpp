#include "bios/biossets.h"

#include "catalogue/xmltext.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr auto npos = std::string_view::npos;
// Bytes; no machine's description is nearly as long, and what is none must not be kept for ever.
constexpr std::size_t longestMachine = 64'000'000;
// Today's element and the one before it.
constexpr std::array<std::string_view, 2> machineEnds{"</machine>", "</game>"};
constexpr std::array<std::string_view, 2> machineStarts{"<machine ", "<game "};

QString decoded(std::string_view text)
{
    std::string out;
    while (!text.empty()) {
        const std::size_t end = text.starts_with('&') ? text.find(';') : npos;
        const auto character = end == npos ? std::nullopt : referencedCharacter(text.substr(1, end - 1));
        if (character) {
            appendCharacter(out, *character);
            text.remove_prefix(end + 1);
        } else {
            out += text.front();
            text.remove_prefix(1);
        }
    }
    return QString::fromStdString(out);
}

// The attribute's value in a start tag, or nothing.
QString attribute(std::string_view tag, std::string_view name)
{
    const std::string opening = ' ' + std::string(name) + "=\"";
    const std::size_t start = tag.find(opening);
    if (start == npos)
        return {};
    const std::string_view rest = tag.substr(start + opening.size());
    return decoded(rest.substr(0, rest.find('"')));
}

std::string_view tagAt(std::string_view text, std::size_t at)
{
    return at == npos ? std::string_view() : text.substr(at, text.find('>', at) - at);
}

// Where the first machine's end is behind, or npos.
std::size_t firstEnd(std::string_view text)
{
    std::size_t first = npos;
    for (const std::string_view end : machineEnds) {
        if (const std::size_t at = text.substr(0, first).find(end); at != npos)
            first = at + end.size();
    }
    return first;
}

QString description(std::string_view machine)
{
    constexpr std::string_view opening = "<description>";
    const std::size_t start = machine.find(opening);
    if (start == npos)
        return {};
    const std::string_view rest = machine.substr(start + opening.size());
    return decoded(rest.substr(0, rest.find('<')));
}

} // namespace

void BiosSets::take(std::string_view printed)
{
    // An end may lie across two pieces, so the search begins a little before the new one.
    const std::size_t searched = m_rest.size() - std::min<std::size_t>(m_rest.size(), 16);
    m_rest += printed;
    std::string_view rest = m_rest;
    for (std::size_t from = searched;;) {
        const std::size_t end = firstEnd(rest.substr(std::min(from, rest.size())));
        if (end == npos)
            break;
        takeMachine(rest.substr(0, from + end));
        rest.remove_prefix(from + end);
        from = 0;
    }
    if (rest.size() > longestMachine)
        rest = {};
    m_rest.erase(0, m_rest.size() - rest.size());
}

void BiosSets::takeMachine(std::string_view machine)
{
    constexpr std::string_view biosTag = "<biosset ";
    std::size_t at = machine.find(biosTag);
    if (at == npos)
        return;
    std::size_t start = npos;
    for (const std::string_view opening : machineStarts)
        start = std::min(start, machine.find(opening));
    const std::string_view tag = tagAt(machine, start);
    if (m_which == Machines::BiosOnly && attribute(tag, "isbios") != QStringLiteral("yes"))
        return;
    BiosEntry set{QString(), attribute(tag, "name"), description(machine), {}};
    for (; at != npos; at = machine.find(biosTag, at + 1)) {
        const std::string_view bios = tagAt(machine, at);
        const QString name = attribute(bios, "name");
        if (set.bios.isEmpty() || attribute(bios, "default") == QStringLiteral("yes"))
            set.bios = name;
        set.children.push_back({name, set.rom, attribute(bios, "description"), {}});
    }
    if (!set.rom.isEmpty() && !set.bios.isEmpty())
        m_entries.push_back(std::move(set));
}

} // namespace tessera
