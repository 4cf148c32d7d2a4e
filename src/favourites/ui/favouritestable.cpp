#include "favourites/ui/favouritestable.h"

#include "favourites/ui/favouritestablemodel.h"

#include <QHeaderView>

namespace tessera {

FavouritesTable::FavouritesTable(QWidget* parent)
    : GameTableView(parent)
{
    setObjectName(QStringLiteral("favouritesTable"));
    setAccessibleName(qtTrId("favourites_table"));
    horizontalHeader()->setFixedHeight(headerHeight);
}

void FavouritesTable::setModel(QAbstractItemModel* model)
{
    GameTableView::setModel(model);
    for (const FavouriteColumn column : FavouritesTableModel::hiddenColumns)
        setColumnHidden(static_cast<int>(column), true);
}

} // namespace tessera
