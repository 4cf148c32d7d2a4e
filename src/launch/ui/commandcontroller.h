#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QAbstractButton;

namespace tessera {

class CommandBar;
class Desktop;
class EmulatorChoice;
class EmulatorTask;
class GameSelection;
class LaunchController;
class PathChooser;
class RunController;

/// What commands need; all of it outlives the controller.
struct CommandParts {
    Desktop& desktop;
    EmulatorChoice& emulator;
    CommandBar& bar;
    EmulatorTask& task;
    RunController& runs;
    LaunchController& launches;
    PathChooser& paths;
    const GameSelection& selection; ///< of the game list
};

/// Runs the emulator's informational commands, and waits for them.
class CommandController : public QObject
{
    Q_OBJECT

public:
    explicit CommandController(const CommandParts& parts, QObject* parent = nullptr);

    /// A button or a menu's action that stops the emulator; while a command is waited for it works as the
    /// bar's own.
    void leaveOpen(QObject& stop);

public Q_SLOTS:
    void commandAction();
    void exportAction();
    /// `tag` is the command's position; 0 is none.
    void MiniAudit(int tag);

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    bool waitForExit();
    void concludeExport(const QString& path, bool isWritable, bool hasEnded);

    CommandParts m_parts;
    QList<QPointer<QObject>> m_open;
};

} // namespace tessera
