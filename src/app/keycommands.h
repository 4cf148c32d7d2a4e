#pragma once

#include "app/keywindow.h"

#include <functional>
#include <vector>

class QUndoStack;

namespace tessera {

/// The commands that act on the window that is key: one table of windows by commands. Its columns differ from
/// each other on purpose.
class KeyCommands : public QObject
{
    Q_OBJECT

public:
    using Command = std::function<void()>;

    struct Row {
        KeyWindow::Kind window;
        QWidget* widget;
        Command random;
        Command home;
        Command end;
        std::function<QString()> game; ///< that is run
        Command remove;
        Command save;
        QUndoStack* undo;
    };

    /// `run` starts a game by its reference, the empty one included.
    KeyCommands(std::vector<Row> rows, std::function<void(const QString& game)> run,
                QObject* parent = nullptr);

    /// A window that is made later.
    void add(Row row);

    KeyWindow::Kind keyWindow() const { return m_keyWindow.kind(); }
    /// Nothing to undo in a window without edits of its own: the catalogue's, which is the first row's.
    QUndoStack* undoStack() const;

public Q_SLOTS:
    /// A random game.
    void mameslotAction();
    void scrollsHomeAction();
    void scrollsEndAction();
    void menuRun();
    void remove();
    void save();

Q_SIGNALS:
    void keyWindowChanged();

private:
    const Row* row() const;
    void run(Command Row::* command);

    std::vector<Row> m_rows;
    std::function<void(const QString& game)> m_run;
    KeyWindow m_keyWindow;
};

} // namespace tessera
