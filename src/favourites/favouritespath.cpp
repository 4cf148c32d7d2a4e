#include "favourites/favouritespath.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace tessera {

QString favouritesPath(const QString& applicationSupport)
{
    return applicationSupport + QStringLiteral("/Plover.Tessera/jp.Plover.Tessera_Favorites.xml");
}

QString standardFavouritesPath()
{
    return favouritesPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString playedPath(const QString& favouritesPath)
{
    return QFileInfo(favouritesPath).path() + QStringLiteral("/jp.Plover.Tessera_Played.xml");
}

} // namespace tessera
