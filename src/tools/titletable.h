#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The Japanese titles: one flat list of the first two fields of every line, in file order. It is not forced
/// into pairs, so a line of one field shifts what follows it; that is deliberate.
class TitleTable
{
public:
    TitleTable() = default;
    /// The bytes of a title list. Valid UTF-8 with other characters than ASCII is taken as UTF-8, anything
    /// else as Shift JIS; broken bytes become U+FFFD.
    explicit TitleTable(std::string_view file);

    /// Lets the memory be fetched that titleOf() will need for this name.
    void expect(std::string_view name) const;
    /// What follows the first entry that is exactly `name`, or nothing.
    std::optional<std::string_view> titleOf(std::string_view name) const;

    const std::vector<std::string_view>& entries() const { return m_entries; }

private:
    /// An entry's first place in the list, counted from 1; an empty slot holds 0. Not an unordered_map: with
    /// a title for every set, converting took a fifth longer, and reading the titles three times as long.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;
    };

    void addLine(std::string_view line);
    void index();
    std::size_t slotOf(std::string_view name, std::uint32_t hash) const;

    std::unique_ptr<const std::string> m_text; ///< stays in its place when the table is moved
    std::vector<std::string_view> m_entries;
    std::vector<Slot> m_slots; ///< a power of two, at most half of them taken
};

} // namespace tessera
