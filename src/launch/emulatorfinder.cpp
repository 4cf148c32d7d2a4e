#include "launch/emulatorfinder.h"

#include <QDir>
#include <QFileInfo>

namespace tessera {

namespace {

QString firstExecutable(const QStringList& folders, const QString& name)
{
    for (const QString& folder : folders) {
        // An empty or relative entry of PATH stands for the folder that we happen to be in.
        if (!QDir::isAbsolutePath(folder))
            continue;
        const QFileInfo file(QDir(folder).filePath(name));
        if (file.isFile() && file.isExecutable())
            return QDir::cleanPath(file.filePath());
    }
    return QString();
}

} // namespace

EmulatorPlaces EmulatorPlaces::standard()
{
    EmulatorPlaces places;
    places.folders = qEnvironmentVariable("PATH").split(QLatin1Char(':'))
        + QStringList{QStringLiteral("/usr/games"), QStringLiteral("/usr/local/bin"),
                      QDir::homePath() + QStringLiteral("/.local/bin")};
    places.flatpakExports = {QStringLiteral("/var/lib/flatpak/exports/bin"),
                             QDir::homePath() + QStringLiteral("/.local/share/flatpak/exports/bin")};
    return places;
}

QString findEmulator(const EmulatorPlaces& places)
{
    const QString plain = firstExecutable(places.folders, QStringLiteral("mame"));
    return plain.isEmpty() ? firstExecutable(places.flatpakExports, QStringLiteral("org.mamedev.MAME"))
                           : plain;
}

QString emulatorToUse(const QString& chosen, const EmulatorPlaces& places)
{
    return chosen.isEmpty() ? findEmulator(places) : chosen;
}

} // namespace tessera
