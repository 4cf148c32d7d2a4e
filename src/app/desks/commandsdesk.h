#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QMenu;

namespace tessera {

class ArtworkDesk;
class CommandBar;
class CommandController;
class CommandLineFoot;
class DefaultsController;
class Desktop;
class EmulatorChoice;
class EmulatorTask;
class GameListController;
class LaunchController;
class LogWindow;
class PathChooser;
class PreferencesWindow;
class ProfileCache;
class RunController;
class StatusLine;

/// Puts the emulator's commands into the log window and the menus. The controls are made when they are first
/// asked for: a start of the program needs none of them.
class CommandsDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Desktop& desktop;
        EmulatorChoice& emulator;
        DefaultsController& defaults;
        LogWindow& logWindow;
        EmulatorTask& task;
        RunController& runs;
        LaunchController& launches;
        ProfileCache& profiles;
        PathChooser& paths;
        GameListController& list;
        const ArtworkDesk& artwork;
        PreferencesWindow& preferences;
        StatusLine& status;
    };
    /// The command line of the selected game stands at the preferences' foot.
    explicit CommandsDesk(const Parts& parts, QObject* parent = nullptr);
    ~CommandsDesk() override;

    CommandBar& bar();
    CommandController& controller();
    /// The quick audits of the selected game are added to the menu when it is first opened.
    void addAuditsTo(QMenu& menu);
    /// A button or menu item that stops the emulator, which a command leaves open.
    void leaveOpen(QObject& stop);

public Q_SLOTS:
    /// The first of the audits.
    void verifySelected();
    void showLine();
    /// Saves a desktop entry that starts the selected game as it would be started now.
    void saveLauncher();

private:
    void make();
    void addLine();
    void addAudits(QMenu& menu);

    Parts m_parts;
    QList<QObject*> m_stops;
    CommandBar* m_bar = nullptr;
    QPointer<CommandLineFoot> m_foot;
    std::unique_ptr<CommandController> m_controller;
};

} // namespace tessera
