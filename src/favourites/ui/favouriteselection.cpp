#include "favourites/ui/favouriteselection.h"

#include <QItemSelectionModel>
#include <QTableView>

#include <algorithm>

namespace tessera {

int FavouriteSelection::firstRow() const
{
    if (m_table == nullptr)
        return -1;
    int first = -1;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        if (range.isValid() && (first < 0 || range.top() < first))
            first = range.top();
    }
    return first;
}

std::optional<std::uint32_t> FavouriteSelection::first() const
{
    const int row = firstRow();
    return row < 0 ? std::nullopt : std::optional(m_list.rows()[static_cast<std::size_t>(row)]);
}

std::vector<std::uint32_t> FavouriteSelection::favourites() const
{
    std::vector<std::uint32_t> favourites;
    if (m_table == nullptr)
        return favourites;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        favourites.push_back(m_list.rows()[static_cast<std::size_t>(row.row())]);
    std::ranges::sort(favourites);
    return favourites;
}

void FavouriteSelection::selectRow(qint64 row)
{
    if (m_table == nullptr)
        return;
    m_table->clearSelection();
    if (row < 0 || row >= static_cast<qint64>(m_list.size()))
        return;
    m_table->selectRow(static_cast<int>(row));
    m_table->scrollTo(m_table->model()->index(static_cast<int>(row), 0), QAbstractItemView::PositionAtCenter);
}

void FavouriteSelection::selectFavourites(const std::vector<std::uint32_t>& favourites)
{
    if (m_table == nullptr)
        return;
    QItemSelection selection;
    QModelIndex first;
    for (const std::uint32_t favourite : favourites) {
        const auto row = m_list.rowOf(favourite);
        if (!row)
            continue;
        const QModelIndex place = m_table->model()->index(static_cast<int>(*row), 0);
        selection.select(place, place);
        if (!first.isValid() || place.row() < first.row())
            first = place;
    }
    if (first.isValid())
        m_table->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_table->selectionModel()->select(selection,
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

} // namespace tessera
