#pragma once

#include "app/keywindow.h"

#include <QUndoStack>

#include <functional>
#include <vector>

namespace tessera {

class CatalogueRebuild;
class GameSelection;
class GameTableView;
class ListController;

/// The commands that act on the window that is key: one table of windows by commands, and what the Edit menu
/// does to the list of the key window and to what was edited there. Deliberate: Home and End move by a page
/// only where the window has text, and the editors have no list of their own.
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
        ListController* list; ///< in which cells are edited and copied
        QUndoStack* undo;
    };

    /// The first row is that of the game list, which is not edited while a catalogue is built.
    KeyCommands(KeyWindow& keyWindow, std::vector<Row> rows, const CatalogueRebuild& rebuild,
                QObject* parent = nullptr);

    /// The list of the key window; null where it has none.
    GameTableView* list() const;
    /// What undo and redo would do in the key window. One without edits of its own has those of the game
    /// list.
    bool canUndo() const { return undoStack()->canUndo(); }
    bool canRedo() const { return undoStack()->canRedo(); }

public Q_SLOTS:
    /// A random game.
    void mameslotAction();
    void scrollsHomeAction();
    void scrollsEndAction();
    void menuRun();
    void undo();
    void redo();
    void editCell();
    /// What is selected in the text that has the focus, or in the list.
    void copySelection();
    void remove();
    void save();
    void edit();
    void find();
    void makeTextBigger();
    void makeTextSmaller();

Q_SIGNALS:
    /// Another window is key, or there is something else to undo.
    void changed();
    /// By its reference, the empty one included.
    void runRequested(const QString& game);

private:
    const Row* row() const;
    void run(Command Row::* command);
    QUndoStack* undoStack() const;
    QUndoStack* editedStack();
    void commitCells();

    KeyWindow& m_keyWindow;
    std::vector<Row> m_rows;
    const CatalogueRebuild& m_rebuild;
};

} // namespace tessera
