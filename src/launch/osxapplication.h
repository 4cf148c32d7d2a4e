#pragma once

#include <QStringList>

#include <optional>

namespace tessera {

/// The executable of the application at a path: what the Info.plist of its folder names, or the file itself
/// where it is no folder.
QString bundleExecutable(const QString& application);

/// What the arguments of the MAME OS X application begin with: the game, and the ROM folder where there is
/// one to be used. `game` is a short name or the absolute path of an archive, which brings its own folder.
QStringList osxGameArguments(const QString& game, const QString& romFolder);

/// The ROM folder that the MAME OS X application keeps among its own settings in `home`.
std::optional<QString> osxRomPath(const QString& home);

} // namespace tessera
