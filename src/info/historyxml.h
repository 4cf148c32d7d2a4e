#pragma once

#include "core/failure.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tessera {

/// Whether a text is the XML form in which histories are published today.
bool isHistoryXml(std::string_view text);

/// The entries of machines in such a text, each found under every name that it lists. Entries of software are
/// left out.
class HistoryXml
{
public:
    /// `path` is for the failure's text.
    static std::expected<HistoryXml, Failure> parse(std::string text, const QString& path);

    std::optional<std::string_view> entry(std::string_view name) const;

private:
    struct Place {
        std::size_t start;
        std::size_t size;
    };
    struct NameHash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::string m_texts; ///< one behind another
    std::unordered_map<std::string, Place, NameHash, std::equal_to<>> m_places;
};

} // namespace tessera
