#include "app/keycommands.h"

#include <QWidget>

#include <algorithm>

namespace tessera {

KeyCommands::KeyCommands(std::vector<Row> rows, std::function<void(const QString& game)> run, QObject* parent)
    : QObject(parent)
    , m_rows(std::move(rows))
    , m_run(std::move(run))
{
    for (const Row& row : m_rows)
        m_keyWindow.watch(*row.widget, row.window);
    connect(&m_keyWindow, &KeyWindow::changed, this, &KeyCommands::keyWindowChanged);
}

void KeyCommands::add(Row row)
{
    m_keyWindow.watch(*row.widget, row.window);
    m_rows.push_back(std::move(row));
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
    m_run(key != nullptr && key->game ? key->game() : QString());
}

void KeyCommands::remove()
{
    run(&Row::remove);
}

void KeyCommands::save()
{
    run(&Row::save);
}

} // namespace tessera
