#include "catalogue/nameset.h"

#include <bit>
#include <functional>
#include <utility>

namespace tessera {

namespace {

std::uint32_t hashOf(std::string_view name)
{
    return static_cast<std::uint32_t>(std::hash<std::string_view>()(name));
}

} // namespace

NameSet::NameSet(std::initializer_list<std::string_view> names)
{
    for (const std::string_view name : names)
        insert(name);
}

std::pair<std::size_t, bool> NameSet::insert(std::string_view name)
{
    const std::uint32_t hash = hashOf(name);
    Slot& slot = m_slots[slotOf(name, hash)];
    if (slot.number != 0)
        return {slot.number - 1, false};
    m_names.add(name);
    slot = {static_cast<std::uint32_t>(m_names.size()), hash};
    if (m_names.size() + m_names.size() / 2 > m_slots.size())
        makeSlots(4 * m_slots.size());
    return {m_names.size() - 1, true};
}

std::optional<std::size_t> NameSet::find(std::string_view name) const
{
    const Slot& slot = m_slots[slotOf(name, hashOf(name))];
    return slot.number == 0 ? std::nullopt : std::optional<std::size_t>(slot.number - 1);
}

void NameSet::reserve(std::size_t names)
{
    constexpr std::size_t usualSize = 16;
    m_names.reserve(names, usualSize * names);
    if (const std::size_t slots = std::bit_ceil(names + names / 2); slots > m_slots.size())
        makeSlots(slots);
}

// Where a name is, or would be.
std::size_t NameSet::slotOf(std::string_view name, std::uint32_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].number != 0 && (m_slots[at].hash != hash || m_names[m_slots[at].number - 1] != name))
        at = (at + 1) & mask;
    return at;
}

void NameSet::makeSlots(std::size_t count)
{
    const std::vector<Slot> slots = std::exchange(m_slots, std::vector<Slot>(count));
    for (const Slot& slot : slots) {
        std::size_t at = slot.hash & (m_slots.size() - 1);
        while (slot.number != 0 && m_slots[at].number != 0)
            at = (at + 1) & (m_slots.size() - 1);
        if (slot.number != 0)
            m_slots[at] = slot;
    }
}

bool operator==(const NameSet& one, const NameSet& other)
{
    bool isEqual = one.m_names.size() == other.m_names.size();
    for (std::size_t i = 0; i < one.m_names.size() && isEqual; ++i)
        isEqual = other.contains(one.m_names[i]);
    return isEqual;
}

} // namespace tessera
