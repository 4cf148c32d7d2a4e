#include "launch/archivepath.h"

#include "launch/storedoptions.h"

#include <QFileInfo>

namespace tessera {

QString archivePath(const ArchiveFolders& folders, const QString& game)
{
    const QString folder = folders.usesRomFolder && romsFolderExists(folders.romFolder)
        ? folders.romFolder
        : QFileInfo(folders.executable).path() + QStringLiteral("/roms");
    return folder + QLatin1Char('/') + game + QStringLiteral(".zip");
}

} // namespace tessera
