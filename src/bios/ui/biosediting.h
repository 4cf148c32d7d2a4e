#pragma once

#include "bios/biosentry.h"

#include <QAbstractItemDelegate>
#include <QObject>
#include <QPersistentModelIndex>

class QUndoStack;

namespace tessera {

class BiosPanel;

/// What the user does to the BIOS list, and how it is undone: each step remembers the whole list, which is a
/// few hundred rows.
class BiosEditing : public QObject
{
    Q_OBJECT

public:
    BiosEditing(BiosPanel& panel, QUndoStack& undo, QObject* parent = nullptr);

    /// Shows what was read; nothing of it can be undone.
    void load(const BiosEntries& entries);
    /// Shows another list in the place of this one, as a step that can be undone.
    void replace(const BiosEntries& entries, const QString& step);
    /// A row to be filled in. It is part of the list as soon as something stands in it.
    void addEntry();
    /// False for a fixed row.
    bool removeEntry();
    /// Shows the list again as it was, with the row selected in which it differs.
    void restore(const BiosEntries& entries);

Q_SIGNALS:
    /// The list is another one now.
    void edited();

private:
    void noteEdit();
    void note(const QString& step);
    void endEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint);

    BiosPanel& m_panel;
    QUndoStack& m_undo;
    BiosEntries m_last; ///< as the last step left it
    QPersistentModelIndex m_added;
};

} // namespace tessera
