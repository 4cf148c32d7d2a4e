#include "tools/titletable.h"

#include "core/encodings.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

std::string decoded(std::string_view file)
{
    if (isAscii(file) || !isUtf8(file))
        return fromShiftJis(file);
    if (file.starts_with(byteOrderMark))
        file.remove_prefix(byteOrderMark.size());
    return std::string(file);
}

// Takes the text before the first of the stops off the front.
template <class... Stop>
std::string_view takeUntil(std::string_view& text, Stop... stops)
{
    std::size_t size = 0;
    while (size < text.size() && (... && (text[size] != stops)))
        ++size;
    const std::string_view taken = text.substr(0, size);
    text.remove_prefix(size);
    return taken;
}

void skip(std::string_view& text, std::string_view characters)
{
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

} // namespace

TitleTable::TitleTable(std::string_view file)
    : m_text(std::make_unique<const std::string>(decoded(file)))
{
    std::string_view rest = *m_text;
    while (!rest.empty()) {
        addLine(takeUntil(rest, '\r', '\n'));
        skip(rest, "\r\n");
    }
    // Of equal entries the first one counts.
    for (std::size_t i = 1; i < m_entries.size(); ++i) {
        if (m_names.insert(m_entries[i - 1]).second)
            m_titles.push_back(m_entries[i]);
    }
}

void TitleTable::addLine(std::string_view line)
{
    for (int field = 0; field < 2; ++field) {
        skip(line, blanks);
        const std::string_view text = takeUntil(line, '\t');
        if (text.empty())
            return;
        m_entries.push_back(text);
    }
}

std::optional<std::string_view> TitleTable::titleOf(std::string_view name) const
{
    const auto place = m_names.find(name);
    return place ? std::optional(m_titles[*place]) : std::nullopt;
}

} // namespace tessera
