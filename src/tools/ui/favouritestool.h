#pragma once

#include "tools/ui/utilityhost.h"

#include <QObject>
#include <QThreadPool>

namespace tessera {

class FavouritesPage;
class Workbench;

/// The commands of the favourites conversion.
class FavouritesTool : public QObject
{
    Q_OBJECT

public:
    FavouritesTool(FavouritesPage& page, Workbench& workbench, UtilityHost& host, QObject* parent = nullptr);

public Q_SLOTS:
    void favoritesConvert();
    /// What the game list shows is something else now.
    void showHidden();

private:
    bool confirm();
    void convert(const QString& old);
    bool replaceFavourites(const QList<RecordDictionary>& records);
    void backUp(const QString& favourites);
    void trash(const QString& old);

    FavouritesPage& m_page;
    Workbench& m_workbench;
    UtilityHost& m_host;
    QThreadPool m_trashPool; ///< ends first, while everything else still stands
};

} // namespace tessera
