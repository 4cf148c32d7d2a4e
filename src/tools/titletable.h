#pragma once

#include "catalogue/nameset.h"

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

    /// What follows the first entry that is exactly `name`, or nothing.
    std::optional<std::string_view> titleOf(std::string_view name) const;

    const std::vector<std::string_view>& entries() const { return m_entries; }

private:
    void addLine(std::string_view line);

    std::unique_ptr<const std::string> m_text; ///< stays in its place when the table is moved
    std::vector<std::string_view> m_entries;
    NameSet m_names; ///< all entries but the last one
    std::vector<std::string_view> m_titles; ///< what follows each of these
};

} // namespace tessera
