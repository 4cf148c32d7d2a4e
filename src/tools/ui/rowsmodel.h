#pragma once

#include <QAbstractTableModel>

#include <array>
#include <string>
#include <vector>

namespace tessera {

/// With a sign in the place of each control character: a file's name may hold line feeds.
QString onOneLine(QString text);

/// The list of a tool: a name, and what became of it, in two columns that can be sorted and filtered.
class RowsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, StateColumn };

    struct Row {
        std::string name; ///< as the file system or the emulator has it
        QString state;
    };

    RowsModel(std::array<QString, 2> titles, QObject* parent = nullptr);

    /// They are shown in the order by which the list is sorted now.
    void setRows(std::vector<Row> rows);
    std::size_t size() const { return m_rows.size(); }
    /// The rows in the order shown.
    const Row& shown(std::size_t position) const { return m_rows[m_order[position]]; }
    /// The places of all of them.
    const std::vector<std::size_t>& places() const { return m_order; }
    /// Of the row at a position now; the place that it keeps however the list is sorted.
    std::size_t placeOf(std::size_t position) const { return m_order[position]; }
    void setState(std::size_t place, const QString& state);
    /// Only rows whose name holds this text are in the table; shown() still has all of them.
    void setFilter(const QString& text);
    /// Of a row of the table.
    const Row& visible(int row) const { return m_rows[m_visible[static_cast<std::size_t>(row)]]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Equal rows stay in the list's own order; without a column all of them do.
    void sort(int column, Qt::SortOrder order) override;

private:
    void arrange();
    void sortRows();
    void filter();

    std::array<QString, 2> m_titles;
    std::vector<Row> m_rows;
    std::vector<std::size_t> m_order; ///< of all rows
    std::vector<std::size_t> m_visible; ///< those of them that are in the table
    std::string m_filter; ///< in lower case
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace tessera
