#pragma once

#include "catalogue/namelist.h"

#include <initializer_list>
#include <optional>

namespace tessera {

/// Tens of thousands of names, to be found again at once. With a std::unordered_set, which takes a block of
/// memory for each, the report on a whole ROM folder takes half as long again.
class NameSet
{
public:
    NameSet() = default;
    NameSet(std::initializer_list<std::string_view> names);

    /// Makes room for about so many, so that nothing is moved while they come.
    void reserve(std::size_t names);
    /// Which one of the names it is, and whether it is new.
    std::pair<std::size_t, bool> insert(std::string_view name);
    std::optional<std::size_t> find(std::string_view name) const;
    bool contains(std::string_view name) const { return find(name).has_value(); }
    const NameList& names() const { return m_names; } ///< in the order in which they came
    bool empty() const { return m_names.size() == 0; }

    friend bool operator==(const NameSet& one, const NameSet& other);

private:
    struct Slot {
        std::uint32_t number = 0; ///< the name's, from 1 on
        std::uint32_t hash = 0;
    };

    std::size_t slotOf(std::string_view name, std::uint32_t hash) const;
    void makeSlots(std::size_t count);

    NameList m_names;
    /// A power of two of them, a third or more of which is free; a name has the one at its hash, or one
    /// behind it where that was taken.
    std::vector<Slot> m_slots = std::vector<Slot>(16);
};

} // namespace tessera
