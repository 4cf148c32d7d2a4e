#pragma once

#include "catalogue/foldernames.h"
#include "catalogue/gamerecord.h"
#include "catalogue/have.h"

#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace tessera {

/// Which sets the user has: the ROM folder and the emulator's own ones, each read once. It never changes, so
/// that any thread may read the folders and ask; somebody who learns that they did reads them anew.
class RomFolders
{
public:
    RomFolders() = default;
    /// Reads the folders. Without a ROM folder nobody has an archive in it.
    RomFolders(std::optional<QString> romFolder, const QStringList& emulatorFolders);

    const std::optional<QString>& romFolder() const { return m_romFolder; }

    /// The rule of the row colour: "name.zip" exists in the ROM folder.
    bool hasArchive(std::string_view setName) const;
    /// Or the emulator finds an archive or a folder of the set in one of its own.
    bool holds(std::string_view setName) const;

    Have have(const GameRecord& record) const;

    /// A record's own set and its parent's, in a copy that any thread may keep.
    struct SetNames {
        std::optional<std::string> name;
        std::string parent;
    };
    static std::vector<SetNames> setNames(std::span<const GameRecord> content);
    std::vector<Have> haves(std::span<const SetNames> sets) const;
    std::vector<Have> haves(std::span<const GameRecord> content) const { return haves(setNames(content)); }

private:
    Have have(std::optional<std::string_view> name, std::string_view parent) const;

    std::optional<QString> m_romFolder;
    std::optional<FolderNames> m_romNames;
    std::vector<FolderNames> m_emulatorNames;
};

} // namespace tessera
