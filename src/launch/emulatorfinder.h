#pragma once

#include <QStringList>

namespace tessera {

/// Where an emulator is looked for when none was chosen, in this order.
struct EmulatorPlaces {
    QStringList folders; ///< that may hold "mame"
    QStringList flatpakExports; ///< that may hold the wrapper of org.mamedev.MAME

    /// PATH, /usr/games, /usr/local/bin and ~/.local/bin; then the Flatpak exports of the system and the
    /// user.
    static EmulatorPlaces standard();
};

/// The first executable file, or an empty text.
QString findEmulator(const EmulatorPlaces& places = EmulatorPlaces::standard());

/// The emulator that launches use: the chosen one (setting ExecutionPath) whether it exists or not, so that
/// another never takes its place unseen; the one that is found where none was chosen.
QString emulatorToUse(const QString& chosen, const EmulatorPlaces& places = EmulatorPlaces::standard());

} // namespace tessera
