#pragma once

#include <QString>

namespace tessera {

/// Where a set's archive is expected: in the ROM folder where that is used and exists, else in "roms" beside
/// the executable. Nobody looks whether there is an archive.
struct ArchiveFolders {
    bool usesRomFolder = false;
    QString romFolder;
    QString executable;
};
QString archivePath(const ArchiveFolders& folders, const QString& game);

} // namespace tessera
