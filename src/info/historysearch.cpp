#include "info/historysearch.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tessera {

namespace {

constexpr auto npos = std::string_view::npos;
constexpr std::string_view infoTag = "$info=";
constexpr std::string_view endTag = "$end";
constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view lineEnds = "\r\n";
constexpr std::array<std::string_view, 2> entryTags{"$bio", "$mame"};

std::string_view tagOf(EntryKind kind)
{
    return entryTags[static_cast<std::size_t>(kind)];
}

std::string joined(std::initializer_list<std::string_view> pieces)
{
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

// Where the first `words` at or behind `from` end, or npos. std::string_view::find() is slower: it stops at
// every "$", and texts hold prices.
std::size_t behind(std::string_view file, std::string_view words, std::size_t from = 0)
{
    // An empty view may be null, which memmem() may not be given.
    if (from >= file.size())
        return npos;
    const void* hit = ::memmem(file.data() + from, file.size() - from, words.data(), words.size());
    if (hit == nullptr)
        return npos;
    return static_cast<std::size_t>(static_cast<const char*>(hit) - file.data()) + words.size();
}

// Deliberately over whatever stands before the end tag, other entries as well. Where none follows at all,
// there is no rule to keep: the entry is taken to end where the next one begins.
std::string_view entryFrom(std::string_view file, std::size_t start)
{
    const std::size_t end = behind(file, endTag, start);
    if (end != npos)
        return file.substr(start, end - endTag.size() - start);
    return file.substr(start, file.substr(start).find(infoTag));
}

// Takes the first line off the text, with its line end; gives it without.
std::string_view takeLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find_first_of(lineEnds));
    text.remove_prefix(line.size());
    text.remove_prefix(text.starts_with(lineEnd) ? lineEnd.size() : text.empty() ? 0 : 1);
    return line;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == npos ? std::string_view() : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// The first of a comma-separated line's names, where the wanted one is among them.
std::optional<std::string_view> firstBeside(std::string_view names, std::string_view wanted)
{
    std::optional<std::string_view> first;
    for (bool found = false; !names.empty();) {
        const std::string_view name = trimmed(names.substr(0, names.find(',')));
        if (!first && !name.empty())
            first = name;
        found = found || name == wanted;
        if (found)
            return first;
        names.remove_prefix(std::min(names.find(','), names.size() - 1) + 1);
    }
    return std::nullopt;
}

// What follows the entry's tag; between its "$info=" line and the tag other lines of tags may stand.
std::optional<std::string_view> textBehindTag(std::string_view rest, EntryKind kind)
{
    while (rest.starts_with('$')) {
        const std::string_view line = trimmed(takeLine(rest));
        if (line == tagOf(kind))
            return entryFrom(rest, 0);
        if (line.starts_with(endTag))
            break;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string_view> exactEntry(std::string_view file, std::string_view name, EntryKind kind)
{
    std::size_t start = behind(file, joined({infoTag, name, lineEnd, tagOf(kind), lineEnd}));
    if (start == npos && kind == EntryKind::Bio) {
        const std::size_t named = behind(file, joined({infoTag, name, ","}));
        if (named != npos)
            start = behind(file, joined({tagOf(kind), lineEnd, lineEnd}), named);
    }
    if (start == npos)
        return std::nullopt;
    return entryFrom(file, start);
}

std::optional<FiledEntry> filedEntry(std::string_view file, std::string_view name, EntryKind kind)
{
    if (name.empty())
        return std::nullopt;
    for (std::size_t at = behind(file, infoTag); at != npos; at = behind(file, infoTag, at)) {
        std::string_view rest = file.substr(at);
        const auto first = firstBeside(takeLine(rest), name);
        if (!first)
            continue;
        if (const auto text = textBehindTag(rest, kind))
            return FiledEntry{std::string(*first), *text};
    }
    return std::nullopt;
}

std::string makeParsedString(std::string_view text)
{
    std::string parsed;
    parsed.reserve(text.size());
    while (!text.empty()) {
        const std::string_view whole = text;
        const std::string_view line = takeLine(text);
        const std::string_view withEnd = whole.substr(0, whole.size() - text.size());
        parsed += !line.empty() && withEnd.ends_with(lineEnd) ? line : withEnd;
    }
    return parsed;
}

} // namespace tessera
