#pragma once

#include "app/keywindow.h"

#include <functional>
#include <vector>

class QUndoStack;

namespace tessera {

class GameSelection;
class GameTableView;

/// The commands that act on the window that is key: one table of windows by commands. Its columns differ from
/// each other on purpose.
class KeyCommands : public QObject
{
    Q_OBJECT

public:
    using Command = std::function<void()>;

    struct Row {
        KeyWindow::Kind window;
        Command random;
        Command home;
        Command end;
        const GameSelection* game; ///< that is run
        Command remove;
        Command save;
        Command edit;
        Command find;
        Command bigger;
        Command smaller;
        std::function<GameTableView*()> list; ///< in which cells are edited and copied
        QUndoStack* undo;
    };

    KeyCommands(KeyWindow& keyWindow, std::vector<Row> rows, QObject* parent = nullptr);

    /// The list of the key window; null where it has none.
    GameTableView* list() const;
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
    void edit();
    void find();
    void makeTextBigger();
    void makeTextSmaller();

Q_SIGNALS:
    void keyWindowChanged();
    /// By its reference, the empty one included.
    void runRequested(const QString& game);

private:
    const Row* row() const;
    void run(Command Row::* command);

    KeyWindow& m_keyWindow;
    std::vector<Row> m_rows;
};

} // namespace tessera
