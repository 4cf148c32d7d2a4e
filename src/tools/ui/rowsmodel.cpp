#include "tools/ui/rowsmodel.h"

#include <algorithm>
#include <numeric>

namespace tessera {

QString onOneLine(QString text)
{
    for (QChar& c : text) {
        if (c == u'\n' || c == u'\r')
            c = u'\u21B5';
        else if (c.unicode() < 0x20)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

RowsModel::RowsModel(std::array<QString, 2> titles, QObject* parent)
    : QAbstractTableModel(parent)
    , m_titles(std::move(titles))
{
}

void RowsModel::setRows(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    arrange();
    endResetModel();
}

void RowsModel::setState(std::size_t place, const QString& state)
{
    m_rows[place].state = state;
    // Where a row stands among tens of thousands need not be looked up: what is visible is painted again.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, StateColumn), index(rowCount() - 1, StateColumn));
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_visible.size());
}

int RowsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_titles.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const Row& row = visible(index.row());
    return index.column() == NameColumn ? onOneLine(QString::fromStdString(row.name)) : row.state;
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return {};
    return m_titles[static_cast<std::size_t>(section)];
}

void RowsModel::sort(int column, Qt::SortOrder order)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<std::size_t> places;
    const QModelIndexList before = persistentIndexList();
    for (const QModelIndex& index : before)
        places.push_back(m_visible[static_cast<std::size_t>(index.row())]);
    m_sortColumn = column;
    m_sortOrder = order;
    arrange();
    std::vector<int> positions(m_rows.size());
    for (std::size_t position = 0; position < m_visible.size(); ++position)
        positions[m_visible[position]] = static_cast<int>(position);
    QModelIndexList after;
    for (std::size_t i = 0; i < places.size(); ++i)
        after << index(positions[places[i]], before[static_cast<qsizetype>(i)].column());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void RowsModel::arrange()
{
    m_order.resize(m_rows.size());
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    if (m_sortColumn >= 0)
        sortRows();
    filter();
}

void RowsModel::sortRows()
{
    const auto order = [this](std::size_t a, std::size_t b) {
        return m_sortColumn == NameColumn ? m_rows[a].name.compare(m_rows[b].name)
                                          : m_rows[a].state.compare(m_rows[b].state);
    };
    std::ranges::sort(m_order, [&](std::size_t a, std::size_t b) {
        const int result = m_sortOrder == Qt::AscendingOrder ? order(a, b) : order(b, a);
        return result != 0 ? result < 0 : a < b;
    });
}

void RowsModel::setFilter(const QString& text)
{
    beginResetModel();
    m_filter = text.trimmed().toLower().toStdString();
    filter();
    endResetModel();
}

// Set names are ASCII in lower case; a file's name may be anything.
void RowsModel::filter()
{
    m_visible = m_order;
    if (m_filter.empty())
        return;
    std::erase_if(m_visible, [this](std::size_t place) {
        const std::string& name = m_rows[place].name;
        return !name.contains(m_filter)
            && !QString::fromStdString(name).toLower().toStdString().contains(m_filter);
    });
}

} // namespace tessera
