#pragma once

#include "tools/ui/utilityhooks.h"

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
    FavouritesTool(FavouritesPage& page, Workbench& workbench, UtilityHooks hooks, QObject* parent = nullptr);

public Q_SLOTS:
    void favoritesConvert();
    void selectFavoritesxml();
    /// What the game list shows is something else now.
    void showHidden();

private:
    bool confirm();
    void convert(const QString& old);
    bool replaceFavorites(const QList<RecordDictionary>& records);
    void backUp(const QString& favourites);
    void trash(const QString& old);

    FavouritesPage& m_page;
    Workbench& m_workbench;
    UtilityHooks m_hooks;
    QThreadPool m_trashPool; ///< ends first, while everything else still stands
};

} // namespace tessera
