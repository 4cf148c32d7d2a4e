#include "tools/titletable.h"

#include "core/encodings.h"

#include <algorithm>
#include <bit>
#include <functional>

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

std::uint32_t hashOf(std::string_view name)
{
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(name));
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
    index();
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

void TitleTable::index()
{
    m_slots.resize(std::bit_ceil(m_entries.size() * 2 + 1));
    for (std::uint32_t i = 0; i < m_entries.size(); ++i) {
        const std::uint32_t hash = hashOf(m_entries[i]);
        Slot& slot = m_slots[slotOf(m_entries[i], hash)];
        if (slot.entry == 0)
            slot = {hash, i + 1};
    }
}

// Where the name is, or would be put.
std::size_t TitleTable::slotOf(std::string_view name, std::uint32_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].entry != 0 && !(m_slots[at].hash == hash && m_entries[m_slots[at].entry - 1] == name))
        at = (at + 1) & mask;
    return at;
}

void TitleTable::expect(std::string_view name) const
{
    if (!m_slots.empty())
        __builtin_prefetch(&m_slots[hashOf(name) & (m_slots.size() - 1)]);
}

std::optional<std::string_view> TitleTable::titleOf(std::string_view name) const
{
    if (m_slots.empty())
        return std::nullopt;
    // The entry's own place counted from 1 is that of its title counted from 0.
    const std::size_t title = m_slots[slotOf(name, hashOf(name))].entry;
    if (title == 0 || title == m_entries.size())
        return std::nullopt;
    return m_entries[title];
}

} // namespace tessera
