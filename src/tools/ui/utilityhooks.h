#pragma once

#include "catalogue/recorddictionary.h"
#include "core/failure.h"

#include <QList>

#include <expected>
#include <functional>
#include <optional>

namespace tessera {

/// What the tools ask of the rest of the program.
struct UtilityHooks {
    // The game list
    /// The records of these set names among those that are shown.
    std::function<QList<RecordDictionary>(const QStringList& names)> search_arrangedObjects;
    /// How many records are not shown.
    std::function<std::size_t()> hiddenRecords;
    std::function<void()> showAllRecords;

    /// Selects a machine, also one that was hidden; false where there is none of that name.
    std::function<bool(const QString& name)> openGame;

    // The emulator
    /// The path of the one to ask; empty where there is none.
    std::function<QString()> emulator;

    /// Where the user's ROMs are; empty for the emulator's own folders.
    std::function<QString()> romFolder;

    // The catalogue
    /// Puts a file in its place, and says what differs from the old one; nothing where it was not replaced.
    std::function<std::optional<QString>(const QString& path)> useAsCatalogue;
    /// Machine by machine what differed the last time.
    std::function<void()> showChanges;

    // The favourites
    std::function<QString()> pathOfDataFile;
    std::function<void(const QString& path)> dir_make;
    std::function<void()> set_favorites;
    /// Writes what is not saved yet into a file of its own, and gives its path; an empty one where everything
    /// is saved.
    std::function<std::expected<QString, Failure>()> keepUnsavedFavorites;
};

} // namespace tessera
