#include "favourites/ui/favouritestable.h"

#include "favourites/ui/favouritestablemodel.h"
#include "platform/defaultscontroller.h"

#include <QHeaderView>

namespace tessera {

FavouritesTable::FavouritesTable(DefaultsController& defaults, QWidget* parent)
    : GameTableView(parent)
    , m_defaults(defaults)
{
    setObjectName(QStringLiteral("favouritesTable"));
    setAccessibleName(qtTrId("favourites_table"));
    horizontalHeader()->setFixedHeight(headerHeight);
    applyRowHeight();
    connect(&defaults, &DefaultsController::changed, this, &FavouritesTable::applyRowHeight);
}

void FavouritesTable::setModel(QAbstractItemModel* model)
{
    GameTableView::setModel(model);
    for (const FavouriteColumn column : FavouritesTableModel::hiddenColumns)
        setColumnHidden(static_cast<int>(column), true);
}

void FavouritesTable::applyRowHeight()
{
    // The setting may have half a pixel (13.5), rows have whole ones.
    const int height = qBound(8, qRound(m_defaults.number(keys::rowHeight)), 400);
    if (verticalHeader()->defaultSectionSize() != height)
        verticalHeader()->setDefaultSectionSize(height);
}

} // namespace tessera
