#pragma once

#include "catalogue/gameselection.h"
#include "catalogue/recorddictionary.h"
#include "core/failure.h"
#include "tools/launchscript.h"

#include <QList>

#include <expected>
#include <optional>

namespace tessera {

/// What the tools ask of the rest of the program.
class UtilityHost
{
public:
    virtual ~UtilityHost() = default;

    // The game list
    virtual SelectedGame selectedGame() const = 0;
    /// The records of these set names among those that are shown.
    virtual QList<RecordDictionary> search_arrangedObjects(const QStringList& names) = 0;
    /// How many records are not shown.
    virtual std::size_t hiddenRecords() const = 0;
    virtual void showAllRecords() = 0;
    /// Selects a machine, also one that was hidden; false where there is none of that name.
    virtual bool openGame(const QString& name) = 0;

    // The emulator
    /// The path of the one to ask; empty where there is none.
    virtual QString emulator() = 0;
    /// The same of the one that a script starts.
    virtual QString emulatorPath(ScriptEmulator emulator) const = 0;
    virtual QStringList argumentsArray() = 0; ///< as the command-line emulator understands them
    virtual QStringList argumentsArray2() = 0;
    /// Where the user's ROMs are; empty for the emulator's own folders.
    virtual QString romFolder() const = 0;

    // The catalogue
    /// Puts a file in its place, and says what differs from the old one; nothing where it was not replaced.
    virtual std::optional<QString> useAsCatalogue(const QString& path) = 0;
    /// Machine by machine what differed the last time.
    virtual void showChanges() = 0;

    // The favourites
    virtual QString pathOfDataFile() const = 0;
    virtual void dir_make(const QString& path) = 0;
    virtual void set_favorites() = 0;
    /// Writes what is not saved yet into a file of its own, and gives its path; an empty one where everything
    /// is saved.
    virtual std::expected<QString, Failure> keepUnsavedFavourites() = 0;
};

} // namespace tessera
