#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tessera {

/// The names in a folder, read once and then asked instead of the file system, with the same answers. A link
/// that leads nowhere counts as absent, as there.
class FolderNames
{
public:
    enum class Kind : std::uint8_t { File, Folder };
    /// Whether the file system takes upper for lower case.
    enum class Case : std::uint8_t { Matters, Ignored };
    using Entries = std::unordered_map<std::string, Kind>;

    /// A folder that is not there has no names.
    static FolderNames read(const QString& folder);
    FolderNames(QString folder, const Entries& entries, Case letters);

    /// What "folder/name" is, or nothing where it does not exist.
    std::optional<Kind> find(std::string_view name) const;

private:
    bool canTell(std::string_view name) const;
    std::optional<Kind> ask(std::string_view name) const;

    QString m_folder;
    Entries m_entries; // in lower case where case is ignored
    Case m_case;
    bool m_listed = true; // else somebody may open what is in it, but not look around
    bool m_foreignLetters = false;
};

} // namespace tessera
