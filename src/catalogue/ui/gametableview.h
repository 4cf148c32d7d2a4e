#pragma once

#include <QTableView>

class QMenu;

namespace tessera {

class FamilyDelegate;
class MatchDelegate;
class Matches;

class DefaultsController;

/// Rows that stand together.
struct RowRange {
    int first;
    int last;
};

/// The table of games: whole rows are selected, Return plays, F2 edits the cell.
class GameTableView : public QTableView
{
    Q_OBJECT

public:
    explicit GameTableView(QWidget* parent = nullptr);

    /// The rows are as high as the setting has it, also when it changes.
    void followRowHeight(const DefaultsController& defaults);
    /// Puts the text of an open cell editor into its record, as leaving the cell would.
    void commitOpenEditor();

    /// The selected rows on the clipboard: a line each, tabs between the columns that are shown, in their
    /// order.
    void copySelection() const;
    /// At once, so that the scroll bars fit the rows.
    void layOut() { executeDelayedItemsLayout(); }
    /// Marks in the rows what they were found by.
    void showMatches(const Matches& matches);
    /// A tick for each column; the last one that is shown stays.
    void fillColumnsMenu(QMenu& menu);

    /// The one that stands first among those that are shown.
    int firstColumn() const { return shownColumns().value(0); }

    void setModel(QAbstractItemModel* model) override;
    /// Whatever keys are held meanwhile.
    void selectRowAlone(int row);
    /// In the order of the rows.
    std::vector<RowRange> selectedRanges() const;

Q_SIGNALS:
    /// A double click, on a row or beneath the rows.
    void doubleAction();
    /// The Return key.
    void returnAction();
    /// Other rows are selected, or another one of them is the first.
    void selectionDidChange();
    /// Letters that belong into the search field.
    void typed(const QString& text);
    /// What an input method sends of them; the event is good only during the call.
    void composed(QInputMethodEvent* event);
    /// Show or fold the clones of this row.
    void familyToggled(int row);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    bool isFamilyKey(const QKeyEvent* event) const;
    QList<int> shownColumns() const;
    void showColumnsMenu(QPoint place);

    QModelIndex firstSelected() const;
    int rowsSelected() const;

    MatchDelegate* m_texts;
    FamilyDelegate* m_families;
    bool m_selectsAlone = false;
    // While the rows change places.
    QPersistentModelIndex m_firstSelected;
    int m_rowsSelected = 0;
};

} // namespace tessera
