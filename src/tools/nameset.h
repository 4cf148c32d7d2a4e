#pragma once

#include "tools/packedname.h"

#include <bit>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Tens of thousands of names, to be found again at once.
class NameSet
{
public:
    NameSet();

    void add(std::string_view name);
    /// Between the last add() and the first contains().
    void arrange();
    bool contains(std::string_view name) const;
    bool contains(const PackedName& name) const { return !m_slots[slotOf(name)].isNone(); }
    /// Lets the memory be fetched that contains() will need for this name.
    void expect(const PackedName& name) const { __builtin_prefetch(&m_slots[placeOf(name)]); }

private:
    static constexpr std::size_t fewestSlots = 64;

    std::size_t placeOf(const PackedName& name) const
    {
        return name.hash() >> (64 - std::countr_zero(m_slots.size()));
    }
    std::size_t slotOf(const PackedName& name) const;

    std::vector<PackedName> m_packed; ///< until they have their slots
    /// A power of two of them; a name stands at its hash, or behind it where that place was taken.
    std::vector<PackedName> m_slots;
    std::vector<std::string> m_others; ///< that cannot be packed, in order
};

} // namespace tessera
