#include "app/commands/editcommands.h"

#include "app/desks/cataloguerebuild.h"
#include "app/commands/keycommands.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "favourites/ui/ucappcontroller.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QUndoStack>

namespace tessera {

EditCommands::EditCommands(KeyCommands& keys, Catalogue& catalogue, const CatalogueRebuild& rebuild,
                           GameListController& list, UCAppController& favorites, QObject* parent)
    : QObject(parent)
    , m_keys(keys)
    , m_catalogue(catalogue)
    , m_rebuild(rebuild)
    , m_list(list)
    , m_favourites(favorites)
{
}

void EditCommands::follow(QAction& undo, QAction& redo, const QList<QUndoStack*>& stacks)
{
    const auto show = [this, &undo, &redo] {
        undo.setEnabled(m_keys.undoStack()->canUndo());
        redo.setEnabled(m_keys.undoStack()->canRedo());
    };
    connect(&m_keys, &KeyCommands::keyWindowChanged, this, show);
    for (const QUndoStack* stack : stacks) {
        connect(stack, &QUndoStack::canUndoChanged, this, show);
        connect(stack, &QUndoStack::canRedoChanged, this, show);
    }
    show();
}

// While a catalogue is built, edits of the old one stay as they are.
QUndoStack* EditCommands::editedStack()
{
    QUndoStack* stack = m_keys.undoStack();
    return stack == &m_catalogue.undoStack() && m_rebuild.isRunning() ? nullptr : stack;
}

// What is being typed in a list is an edit like the others, and the last one.
void EditCommands::undo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->undo();
}

void EditCommands::redo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->redo();
}

void EditCommands::commitCells()
{
    m_favourites.commitEditing();
    m_list.commitEditing();
}

void EditCommands::editCell()
{
    if (GameTableView* table = m_keys.list(); table != nullptr && !m_rebuild.isRunning())
        table->edit(table->currentIndex());
}

void EditCommands::copySelection()
{
    QWidget* focused = QApplication::focusWidget();
    if (auto* text = qobject_cast<QPlainTextEdit*>(focused))
        text->copy();
    else if (auto* label = qobject_cast<QLabel*>(focused); label != nullptr && label->hasSelectedText())
        QGuiApplication::clipboard()->setText(label->selectedText());
    else if (const GameTableView* table = m_keys.list())
        table->copySelection();
}

} // namespace tessera
