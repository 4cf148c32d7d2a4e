#include "app/commands/keycommands.h"

#include "app/desks/cataloguerebuild.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/listcontroller.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>

#include <algorithm>

namespace tessera {

KeyCommands::KeyCommands(KeyWindow& keyWindow, std::vector<Row> rows, const CatalogueRebuild& rebuild,
                         QObject* parent)
    : QObject(parent)
    , m_keyWindow(keyWindow)
    , m_rows(std::move(rows))
    , m_rebuild(rebuild)
{
    connect(&m_keyWindow, &KeyWindow::changed, this, &KeyCommands::changed);
    for (const Row& row : m_rows) {
        connect(row.undo, &QUndoStack::canUndoChanged, this, &KeyCommands::changed, Qt::UniqueConnection);
        connect(row.undo, &QUndoStack::canRedoChanged, this, &KeyCommands::changed, Qt::UniqueConnection);
    }
}

const KeyCommands::Row* KeyCommands::row() const
{
    const auto row = std::ranges::find(m_rows, m_keyWindow.kind(), &Row::window);
    return row == m_rows.end() ? nullptr : &*row;
}

QUndoStack* KeyCommands::undoStack() const
{
    const Row* key = row();
    return key == nullptr ? m_rows.front().undo : key->undo;
}

// While a catalogue is built, edits of the old one stay as they are.
QUndoStack* KeyCommands::editedStack()
{
    QUndoStack* stack = undoStack();
    return stack == m_rows.front().undo && m_rebuild.isRunning() ? nullptr : stack;
}

GameTableView* KeyCommands::list() const
{
    const Row* key = row();
    return key != nullptr && key->list != nullptr ? key->list->table() : nullptr;
}

// Any other window: nothing.
void KeyCommands::run(Command Row::* command)
{
    const Row* key = row();
    if (key != nullptr && key->*command)
        (key->*command)();
}

void KeyCommands::mameslotAction()
{
    run(&Row::random);
}

void KeyCommands::scrollsHomeAction()
{
    run(&Row::home);
}

void KeyCommands::scrollsEndAction()
{
    run(&Row::end);
}

// Any other window has no game, which is for the launch to say.
void KeyCommands::menuRun()
{
    const Row* key = row();
    Q_EMIT runRequested(key != nullptr && key->game != nullptr ? key->game->selected().name : QString());
}

// What is being typed in a list is an edit like the others, and the last one.
void KeyCommands::undo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->undo();
}

void KeyCommands::redo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->redo();
}

void KeyCommands::commitCells()
{
    for (const Row& row : m_rows) {
        if (row.list != nullptr && row.undo == undoStack())
            row.list->commitEditing();
    }
}

void KeyCommands::editCell()
{
    if (GameTableView* table = list(); table != nullptr && !m_rebuild.isRunning())
        table->edit(table->currentIndex());
}

void KeyCommands::copySelection()
{
    QWidget* focused = QApplication::focusWidget();
    if (auto* text = qobject_cast<QPlainTextEdit*>(focused))
        text->copy();
    else if (auto* label = qobject_cast<QLabel*>(focused); label != nullptr && label->hasSelectedText())
        QGuiApplication::clipboard()->setText(label->selectedText());
    else if (const GameTableView* table = list())
        table->copySelection();
}

void KeyCommands::remove()
{
    run(&Row::remove);
}

void KeyCommands::save()
{
    run(&Row::save);
}

void KeyCommands::edit()
{
    run(&Row::edit);
}

void KeyCommands::find()
{
    run(&Row::find);
}

void KeyCommands::makeTextBigger()
{
    run(&Row::bigger);
}

void KeyCommands::makeTextSmaller()
{
    run(&Row::smaller);
}

} // namespace tessera
