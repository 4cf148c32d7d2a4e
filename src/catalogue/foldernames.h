#pragma once

#include "catalogue/nameset.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The names in a folder, read once and then asked instead of the file system, with the same answers. A link
/// that leads nowhere counts as absent, as there.
class FolderNames
{
public:
    enum class Kind : std::uint8_t { File, Folder };
    /// Whether the file system takes upper for lower case.
    enum class Case : std::uint8_t { Matters, Ignored };
    struct Entry {
        std::string name;
        Kind kind;
    };

    /// A folder that is not there has no names.
    static FolderNames read(const QString& folder);
    FolderNames(QString folder, std::initializer_list<Entry> entries, Case letters);

    /// What "folder/name" is, or nothing where it does not exist.
    std::optional<Kind> find(std::string_view name) const;

private:
    explicit FolderNames(QString folder);
    void add(std::string_view name, Kind kind);
    void ignoreCase();
    bool canTell(std::string_view name) const;
    std::optional<Kind> ask(std::string_view name) const;

    QString m_folder;
    NameSet m_names; // in lower case where case is ignored
    std::vector<Kind> m_kinds; // one each
    Case m_case = Case::Matters;
    bool m_listed = true; // else somebody may open what is in it, but not look around
    bool m_foreignLetters = false;
};

} // namespace tessera
