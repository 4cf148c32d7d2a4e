#include "tools/nameset.h"

#include <algorithm>
#include <utility>

namespace tessera {

namespace {
// So many names are dealt with while memory is fetched.
constexpr std::size_t ahead = 12;
// As many as there usually are at most. Memory that is not used costs nothing; to copy what was used does.
constexpr std::size_t usualNames = 50'000;
} // namespace

NameSet::NameSet()
    : m_slots(fewestSlots)
{
    m_packed.reserve(usualNames);
}

void NameSet::add(std::string_view name)
{
    if (PackedName::fits(name))
        m_packed.push_back(PackedName::of(name));
    else
        m_others.emplace_back(name);
}

// A third of the slots or more stays free, so that a search ends soon.
void NameSet::arrange()
{
    std::ranges::sort(m_others);
    const std::vector<PackedName> names = std::exchange(m_packed, {});
    m_slots.resize(std::bit_ceil(std::max(fewestSlots, names.size() + names.size() / 2)));
    for (std::size_t i = 0; i < names.size(); ++i) {
        __builtin_prefetch(&m_slots[placeOf(names[std::min(i + ahead, names.size() - 1)])], 1);
        m_slots[slotOf(names[i])] = names[i];
    }
}

bool NameSet::contains(std::string_view name) const
{
    return PackedName::fits(name) ? contains(PackedName::of(name))
                                  : std::ranges::binary_search(m_others, name);
}

// Where a name is, or would be.
std::size_t NameSet::slotOf(const PackedName& name) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = placeOf(name);
    while (!m_slots[slot].isNone() && m_slots[slot] != name)
        slot = (slot + 1) & mask;
    return slot;
}

} // namespace tessera
