#pragma once

#include "app/keywindow.h"

#include <functional>
#include <vector>

class QAbstractScrollArea;

namespace tessera {

class GameListController;
class MainWindow;
class RecordEditing;

/// The commands that act on the window that is key: one table of windows by commands.
class KeyCommands : public QObject
{
    Q_OBJECT

public:
    KeyCommands(MainWindow& mainWindow, QWidget& logWindow, QAbstractScrollArea& log,
                GameListController& list, RecordEditing& editing, QObject* parent = nullptr);

public Q_SLOTS:
    /// A random game.
    void mameslotAction();
    void scrollsHomeAction();
    void scrollsEndAction();
    void editRecord();

private:
    using Command = std::function<void()>;
    struct Row {
        KeyWindow::Kind window;
        Command random;
        Command home;
        Command end;
    };

    void run(Command Row::* command);

    RecordEditing& m_editing;
    KeyWindow m_keyWindow;
    std::vector<Row> m_rows;
};

} // namespace tessera
