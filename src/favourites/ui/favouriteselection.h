#pragma once

#include "catalogue/arrangedlist.h"

#include <QObject>

namespace tessera {

class GameTableView;

/// The selected rows of the favourites table, and the favourites in them. They are known before there is a
/// table.
class FavouriteSelection
{
public:
    explicit FavouriteSelection(const ArrangedList& list)
        : m_list(list)
    {
    }

    /// The table takes the selection over.
    void setTable(GameTableView* table);

    /// -1 where nothing is selected.
    int firstRow() const;
    std::optional<std::uint32_t> first() const;
    /// Indexes of favourites, rising.
    std::vector<std::uint32_t> favourites() const;

    /// Selects a row alone and scrolls to it; one that is not there leaves nothing selected.
    void selectRow(qint64 row);
    /// Those that the list shows, and nothing else.
    void selectFavourites(const std::vector<std::uint32_t>& favourites);

private:
    const ArrangedList& m_list;
    GameTableView* m_table = nullptr;
    std::vector<std::uint32_t> m_waiting; ///< as long as there is no table
};

} // namespace tessera
