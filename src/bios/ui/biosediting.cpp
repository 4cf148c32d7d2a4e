#include "bios/ui/biosediting.h"

#include "bios/ui/biosmodel.h"
#include "bios/ui/biospanel.h"

#include <QScrollBar>
#include <QTreeView>
#include <QUndoStack>

#include <utility>

namespace tessera {

namespace {

class BiosStep : public QUndoCommand
{
public:
    BiosStep(BiosEditing& editing, const QString& name, BiosEntries before, BiosEntries after)
        : QUndoCommand(name)
        , m_editing(editing)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }

    void undo() override { m_editing.restore(m_before); }
    void redo() override
    {
        // It was done before it became a step.
        if (std::exchange(m_isDone, true))
            m_editing.restore(m_after);
    }

private:
    BiosEditing& m_editing;
    BiosEntries m_before;
    BiosEntries m_after;
    bool m_isDone = false;
};

} // namespace

BiosEditing::BiosEditing(BiosPanel& panel, QUndoStack& undo, QObject* parent)
    : QObject(parent)
    , m_panel(panel)
    , m_undo(undo)
{
    connect(panel.treeController_list, &BiosModel::edited, this, &BiosEditing::noteEdit);
    connect(panel.biosView->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &BiosEditing::endEditor);
}

void BiosEditing::load(const BiosEntries& entries)
{
    m_undo.clear();
    m_panel.treeController_list->setEntries(entries);
    m_last = entries;
    m_panel.expandAll();
}

void BiosEditing::replace(const BiosEntries& entries, const QString& step)
{
    m_panel.treeController_list->setEntries(entries);
    m_panel.expandAll();
    note(step);
}

void BiosEditing::addEntry()
{
    const QModelIndex added = m_panel.treeController_list->add({});
    m_added = added;
    m_panel.biosView->setCurrentIndex(added);
    m_panel.biosView->edit(added);
}

bool BiosEditing::removeEntry()
{
    const QModelIndex row = m_panel.biosView->selectionModel()->selectedRows().value(0);
    if (!m_panel.treeController_list->remove(row))
        return false;
    note(qtTrId("undo_remove_bios"));
    return true;
}

void BiosEditing::noteEdit()
{
    note(m_added.isValid() ? qtTrId("undo_add_bios") : qtTrId("undo_edit_bios"));
}

void BiosEditing::note(const QString& step)
{
    const BiosEntries now = m_panel.treeController_list->entries();
    if (now != m_last)
        m_undo.push(new BiosStep(*this, step, std::exchange(m_last, now), now));
    Q_EMIT edited();
}

void BiosEditing::restore(const BiosEntries& entries)
{
    QScrollBar& bar = *m_panel.biosView->verticalScrollBar();
    const int scrolled = bar.value();
    BiosModel& list = *m_panel.treeController_list;
    const QModelIndex row = [&] {
        const std::vector<int> place = firstDifference(m_last, entries);
        list.setEntries(entries);
        return list.at(place);
    }();
    m_last = entries;
    m_panel.expandAll();
    m_panel.biosView->setCurrentIndex(row);
    bar.setValue(scrolled);
    m_panel.biosView->scrollTo(row);
    Q_EMIT edited();
}

// While the editor only goes from cell to cell of the new row, the row is still being filled in.
void BiosEditing::endEditor(QWidget*, QAbstractItemDelegate::EndEditHint hint)
{
    const bool goesOn
        = hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
    const QModelIndex current = m_panel.biosView->currentIndex();
    const bool isSameEntry = current.row() == m_added.row() && current.parent() == m_added.parent();
    if (goesOn && isSameEntry && m_panel.biosView->indexWidget(current) != nullptr)
        return;
    const QModelIndex added = std::exchange(m_added, QPersistentModelIndex());
    if (added.isValid() && m_panel.treeController_list->isBlank(added))
        m_panel.treeController_list->remove(added);
}

} // namespace tessera
