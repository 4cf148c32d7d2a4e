#pragma once

#include <QTableView>

namespace tessera {

/// The table of games: whole rows are selected, Return plays, F2 edits the cell.
class GameTableView : public QTableView
{
    Q_OBJECT

public:
    explicit GameTableView(QWidget* parent = nullptr);

    /// Puts the text of an open cell editor into its record, as leaving the cell would.
    void commitOpenEditor();

    void setModel(QAbstractItemModel* model) override;

Q_SIGNALS:
    /// A double click on a row, or Return.
    void doubleAction();
    void selectionDidChange();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
};

} // namespace tessera
