#include "app/commands/keycommands.h"

#include "catalogue/gameselection.h"

#include <algorithm>

namespace tessera {

KeyCommands::KeyCommands(KeyWindow& keyWindow, std::vector<Row> rows, QObject* parent)
    : QObject(parent)
    , m_keyWindow(keyWindow)
    , m_rows(std::move(rows))
{
    connect(&m_keyWindow, &KeyWindow::changed, this, &KeyCommands::keyWindowChanged);
}

const KeyCommands::Row* KeyCommands::row() const
{
    const auto row = std::ranges::find(m_rows, m_keyWindow.kind(), &Row::window);
    return row == m_rows.end() ? nullptr : &*row;
}

QUndoStack* KeyCommands::undoStack() const
{
    const Row* key = row();
    return key != nullptr && key->undo != nullptr ? key->undo : m_rows.front().undo;
}

GameTableView* KeyCommands::list() const
{
    const Row* key = row();
    return key != nullptr && key->list ? key->list() : nullptr;
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
