#pragma once

#include <QString>

namespace tessera {

/// The favourites file in the user's application-support folder.
QString favouritesPath(const QString& applicationSupport);

/// $XDG_DATA_HOME/Plover.Tessera/jp.Plover.Tessera_Favorites.xml
QString standardFavouritesPath();

/// Where it is noted how often games were played: beside the favourites.
QString playedPath(const QString& favouritesPath);

} // namespace tessera
