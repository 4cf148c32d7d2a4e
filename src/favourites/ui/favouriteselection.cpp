#include "favourites/ui/favouriteselection.h"

#include "catalogue/ui/gametableview.h"

#include <QItemSelectionModel>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessera {

void FavouriteSelection::setTable(GameTableView* table)
{
    m_table = table;
    selectFavourites(std::exchange(m_waiting, {}));
}

int FavouriteSelection::firstRow() const
{
    int first = -1;
    const auto take = [&](int row) { first = first < 0 ? row : std::min(first, row); };
    if (m_table == nullptr) {
        for (const std::uint32_t favourite : m_waiting) {
            if (const auto row = m_list.rowOf(favourite))
                take(static_cast<int>(*row));
        }
        return first;
    }
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        if (range.isValid())
            take(range.top());
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
    if (m_table == nullptr)
        return m_waiting;
    std::vector<std::uint32_t> favourites;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        favourites.push_back(m_list.rows()[static_cast<std::size_t>(row.row())]);
    std::ranges::sort(favourites);
    return favourites;
}

void FavouriteSelection::selectRow(qint64 row)
{
    const bool isThere = row >= 0 && row < static_cast<qint64>(m_list.size());
    if (m_table == nullptr) {
        m_waiting.clear();
        if (isThere)
            m_waiting.push_back(m_list.rows()[static_cast<std::size_t>(row)]);
        return;
    }
    m_table->clearSelection();
    if (!isThere)
        return;
    m_table->selectRowAlone(static_cast<int>(row));
    m_table->scrollTo(m_table->model()->index(static_cast<int>(row), 0), QAbstractItemView::PositionAtCenter);
}

void FavouriteSelection::selectFavourites(const std::vector<std::uint32_t>& favourites)
{
    if (m_table == nullptr) {
        m_waiting.clear();
        std::ranges::copy_if(favourites, std::back_inserter(m_waiting),
                             [this](std::uint32_t each) { return m_list.rowOf(each).has_value(); });
        std::ranges::sort(m_waiting);
        return;
    }
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
