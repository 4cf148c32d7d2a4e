#include "catalogue/ui/gametableview.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

namespace tessera {

GameTableView::GameTableView(QWidget* parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setSortingEnabled(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setIconSize(QSize(14, 14));
    // Rows of one fixed height: nothing is asked of 45,000 records before the first paint.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(8);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableView::doubleClicked, this, &GameTableView::doubleAction);
}

void GameTableView::commitOpenEditor()
{
    for (QLineEdit* editor : viewport()->findChildren<QLineEdit*>()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void GameTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    // A reset drops the selection without a word from the selection model.
    connect(model, &QAbstractItemModel::modelReset, this, &GameTableView::selectionDidChange);
}

void GameTableView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState && event->modifiers() == Qt::NoModifier)
        Q_EMIT doubleAction();
    else
        QTableView::keyPressEvent(event);
}

void GameTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

} // namespace tessera
