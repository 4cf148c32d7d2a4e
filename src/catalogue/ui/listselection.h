#pragma once

#include "catalogue/arrangedlist.h"

#include <QItemSelection>

namespace tessera {

class GameTableView;

/// The selected rows of a list's table, and the records in them. They are known before there is a table.
class ListSelection
{
public:
    explicit ListSelection(const ArrangedList& list)
        : m_list(list)
    {
    }

    /// The table takes the selection over.
    void setTable(GameTableView* table);

    /// -1 where nothing is selected.
    int firstRow() const;
    /// The record in the first selected row.
    std::optional<std::uint32_t> first() const;
    int count() const;
    /// Indexes of records, in the order of the rows.
    std::vector<std::uint32_t> records() const;

    /// Selects a row alone and scrolls to it; one that is not there leaves nothing selected.
    void selectRow(qint64 row);
    /// Those that the list shows, and nothing else.
    void select(const std::vector<std::uint32_t>& records);

    /// What is selected and in view.
    struct State {
        std::vector<std::uint32_t> records;
        std::optional<std::uint32_t> current;
        int scrolled = 0;
    };
    State state() const;
    /// Where the rows allow it.
    void restore(const State& state);

private:
    struct RowRange {
        int first;
        int last;
    };

    std::vector<RowRange> ranges() const;
    std::vector<RowRange> rangesOf(const std::vector<std::uint32_t>& records) const;
    QItemSelection itemsOf(const std::vector<std::uint32_t>& records) const;

    const ArrangedList& m_list;
    GameTableView* m_table = nullptr;
    std::vector<std::uint32_t> m_waiting; ///< as long as there is no table
};

} // namespace tessera
