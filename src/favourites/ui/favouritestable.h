#pragma once

#include "catalogue/ui/gametableview.h"

namespace tessera {

/// The table of favourites: the game list's, with a plain header of its own height.
class FavouritesTable : public GameTableView
{
    Q_OBJECT

public:
    static constexpr int headerHeight = 22;

    explicit FavouritesTable(QWidget* parent = nullptr);

    /// Some columns are not among the shown ones at first.
    void setModel(QAbstractItemModel* model) override;
};

} // namespace tessera
