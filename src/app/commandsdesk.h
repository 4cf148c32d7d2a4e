#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QMenu;

namespace tessera {

class CommandBar;
class CommandController;
class CommandLineFoot;
class DefaultsController;
class Desktop;
class EmulatorTask;
class LaunchController;
class LogWindow;
class PathChooser;
class PreferencesWindow;
class RunController;

/// Puts the emulator's commands into the log window and the menus. The controls are made when they are first
/// asked for: a start of the program needs none of them.
class CommandsDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Desktop& desktop;
        DefaultsController& defaults;
        LogWindow& logWindow;
        EmulatorTask& task;
        RunController& runs;
        LaunchController& launches;
        PathChooser& paths;
        std::function<QString()> selectedGame;
        std::function<QString()> selectedTitle;
        std::function<QString()> selectedPicture; ///< its file; empty for none
        QList<QObject*> stops; ///< buttons and menu items that stop the emulator
    };
    explicit CommandsDesk(Parts parts, QObject* parent = nullptr);
    ~CommandsDesk() override;

    CommandBar& bar();
    CommandController& controller();
    /// The quick audits of the selected game are added to the menu when it is first opened.
    void addAuditsTo(QMenu& menu);
    /// The first of them.
    void verifySelected();
    /// The command line of the selected game at the preferences' foot, while they are shown.
    void addLineTo(PreferencesWindow& preferences);
    void showLine();
    /// One more button or menu item that stops the emulator.
    void leaveOpen(QObject& stop);
    /// Saves a desktop entry that starts the selected game as it would be started now.
    void saveLauncher();

Q_SIGNALS:
    void statusMessage(const QString& text);

private:
    void make();
    void addAudits(QMenu& menu);

    Parts m_parts;
    CommandBar* m_bar = nullptr;
    QPointer<CommandLineFoot> m_foot;
    std::unique_ptr<CommandController> m_controller;
};

} // namespace tessera
