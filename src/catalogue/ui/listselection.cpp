#include "catalogue/ui/listselection.h"

#include "catalogue/ui/gametableview.h"

#include <QItemSelectionModel>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace tessera {

void ListSelection::setTable(GameTableView* table)
{
    m_table = table;
    select(std::exchange(m_waiting, {}));
}

// In the order of the rows. The model's own list of rows takes a time that grows with the square of its
// ranges.
std::vector<ListSelection::RowRange> ListSelection::ranges() const
{
    if (m_table == nullptr)
        return rangesOf(m_waiting);
    std::vector<RowRange> ranges;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        if (range.isValid())
            ranges.push_back({range.top(), range.bottom()});
    }
    std::ranges::sort(ranges, {}, &RowRange::first);
    return ranges;
}

// Those that the list shows, each run of rows as one range.
std::vector<ListSelection::RowRange> ListSelection::rangesOf(const std::vector<std::uint32_t>& records) const
{
    std::vector<int> rows;
    for (const std::uint32_t record : records) {
        if (const auto row = m_list.rowOf(record))
            rows.push_back(static_cast<int>(*row));
    }
    std::ranges::sort(rows);
    std::vector<RowRange> ranges;
    for (const int row : rows) {
        if (ranges.empty() || row > ranges.back().last + 1)
            ranges.push_back({row, row});
        else
            ranges.back().last = row;
    }
    return ranges;
}

QItemSelection ListSelection::itemsOf(const std::vector<std::uint32_t>& records) const
{
    const QAbstractItemModel* model = m_table->model();
    QItemSelection items;
    for (const RowRange& range : rangesOf(records))
        items.append({model->index(range.first, 0), model->index(range.last, model->columnCount() - 1)});
    return items;
}

int ListSelection::firstRow() const
{
    const std::vector<RowRange> selected = ranges();
    return selected.empty() ? -1 : selected.front().first;
}

std::optional<std::uint32_t> ListSelection::first() const
{
    const int row = firstRow();
    return row < 0 ? std::nullopt : std::optional(m_list.rows()[static_cast<std::size_t>(row)]);
}

int ListSelection::count() const
{
    int count = 0;
    for (const RowRange& range : ranges())
        count += range.last - range.first + 1;
    return count;
}

std::vector<std::uint32_t> ListSelection::records() const
{
    std::vector<std::uint32_t> records;
    for (const RowRange& range : ranges()) {
        const auto rows = m_list.rows().begin();
        records.insert(records.end(), rows + range.first, rows + range.last + 1);
    }
    return records;
}

void ListSelection::selectRow(qint64 row)
{
    if (row < 0 || row >= static_cast<qint64>(m_list.size()))
        return select({});
    if (m_table == nullptr)
        return select({m_list.rows()[static_cast<std::size_t>(row)]});
    const int place = static_cast<int>(row);
    m_table->selectRowAlone(place);
    m_table->scrollTo(m_table->model()->index(place, 0), QAbstractItemView::PositionAtCenter);
}

void ListSelection::select(const std::vector<std::uint32_t>& records)
{
    if (m_table == nullptr) {
        m_waiting = records;
        std::erase_if(m_waiting, [this](std::uint32_t each) { return !m_list.rowOf(each); });
        return;
    }
    const QItemSelection items = itemsOf(records);
    QItemSelectionModel* model = m_table->selectionModel();
    if (items.isEmpty())
        return model->clearSelection();
    const QModelIndex first = items.front().topLeft();
    model->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    model->select(items, QItemSelectionModel::ClearAndSelect);
    m_table->scrollTo(first);
}

ListSelection::State ListSelection::state() const
{
    State state{records(), {}, 0};
    if (m_table == nullptr)
        return state;
    if (const QModelIndex current = m_table->currentIndex(); current.isValid())
        state.current = m_list.rows()[static_cast<std::size_t>(current.row())];
    state.scrolled = m_table->verticalScrollBar()->value();
    return state;
}

void ListSelection::restore(const State& state)
{
    if (m_table == nullptr)
        return select(state.records);
    const QAbstractItemModel* model = m_table->model();
    if (const auto row = state.current ? m_list.rowOf(*state.current) : std::nullopt)
        m_table->selectionModel()->setCurrentIndex(model->index(static_cast<int>(*row), 0),
                                                   QItemSelectionModel::NoUpdate);
    m_table->selectionModel()->select(itemsOf(state.records), QItemSelectionModel::ClearAndSelect);
    m_table->layOut();
    m_table->verticalScrollBar()->setValue(state.scrolled);
    if (const int first = firstRow(); first >= 0)
        m_table->scrollTo(model->index(first, 0));
}

} // namespace tessera
