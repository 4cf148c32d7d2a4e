#pragma once

#include <QFileInfo>
#include <QStandardPaths>

namespace tessera {

/// The favourites file in the user's application-support folder.
inline QString favouritesPath(const QString& applicationSupport)
{
    return applicationSupport + QStringLiteral("/Plover.Tessera/jp.Plover.Tessera_Favorites.xml");
}

/// $XDG_DATA_HOME/Plover.Tessera/jp.Plover.Tessera_Favorites.xml
inline QString standardFavouritesPath()
{
    return favouritesPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

/// Where it is noted how often games were played: beside the favourites.
inline QString playedPath(const QString& favouritesPath)
{
    return QFileInfo(favouritesPath).path() + QStringLiteral("/jp.Plover.Tessera_Played.xml");
}

} // namespace tessera
