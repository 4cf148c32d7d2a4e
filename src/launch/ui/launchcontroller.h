#pragma once

#include "launch/archivepath.h"
#include "launch/commandline.h"
#include "launch/launchoptions.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace tessera {

class DefaultsController;
class Desktop;
class EmulatorTask;
class EmulatorChoice;
class LaunchPages;
class PathChooser;
class ProfileCache;
class RunController;
struct ProfileAnswer;

/// What a launch needs; all of it outlives the controller.
struct LaunchParts {
    Desktop& desktop;
    DefaultsController& defaults;
    EmulatorChoice& emulator;
    const LaunchPages& pages;
    PathChooser& paths;
    EmulatorTask& task;
    RunController& runs;
    ProfileCache& profiles;
    const GameSelection& selection; ///< of the game list
    /// The extra options of the favourite with that short name; empty where there is none.
    std::function<QString(const QString& name)> search_priorityOption;
};

/// A program and what it is started with.
struct ShownLine {
    QString executable;
    CommandLine line;
};

/// Starts games.
class LaunchController : public QObject
{
    Q_OBJECT

public:
    explicit LaunchController(LaunchParts parts, QObject* parent = nullptr);

    /// True while a game runs, or is about to.
    bool isRunning() const;
    /// Says what runs.
    QString runningText() const;
    /// False when the user wants to go on playing. The game goes on in any case, until the program ends.
    bool confirmQuit();
    /// For the end of the program: stays in an event loop, in which no window takes input, until what runs
    /// has ended.
    void stopAndWait();
    bool romsfolder_FoundCheck() const;
    /// Where archives are expected with what is chosen now.
    ArchiveFolders archiveFolders() const;
    /// What would be started for a short name, or without a game; the emulator's own wishes are respected
    /// where it was asked already.
    ShownLine shownLine(const QString& game);
    /// The same as a shell would take it.
    QString shownCommandLine(const QString& game);
    /// The command-line emulator's options as a shell is to read them, without what it would not understand
    /// where it was asked already.
    QStringList shellOptions();
    QStringList osxOptions() const;
    /// Asks the emulator for its options now, so that no launch has to wait for it.
    void prepareProfile();

public Q_SLOTS:
    /// `game` is a short name or the absolute path of an archive. Where something runs it is asked to end,
    /// and the game is started when it has ended.
    void Launchusing(const QString& game);
    /// The same of what a window has selected; beeps where that is nothing.
    void runGame(const QString& game);
    void LaunchTask_SDLMAME(const QString& game);
    void LaunchTask_MAMEOSX(const QString& game);
    void LaunchTask_APPMAME(const QString& game);
    void LaunchemuCheck();
    void LaunchemuPopAction();
    /// The launch mode of this title was chosen in the menu.
    void MenuLaunchusing(const QString& title);
    /// Asks what runs to end, and gives up what was to be started.
    void stopProcess();

Q_SIGNALS:
    /// Another launch mode is selected: window titles name it.
    void launchModeChanged(const QString& title);
    void runningChanged(bool running);
    /// Another application has got the archive of a set.
    void handedOver(const QString& game);
    void statusMessage(const QString& text);

private:
    /// A launch whose command line is complete but for what the emulator says it understands.
    struct Launch {
        QString executable;
        QString game;
        QStringList built;
        QStringList own;
    };
    void launch(const QString& game);
    void launchNext();
    LaunchOptions options() const;
    QString usedRomFolder() const;
    Launch launchOf(const QString& game) const;
    void begin(const Launch& launch, const ProfileAnswer& answer);
    void profileAnswered(const QString& executable, const ProfileAnswer& answer);
    void noteRecent(const QString& game);
    QString aboutGame(const char* key) const;

    // A launch waits for its emulator to say what it understands, runs, and is asked to end; another one
    // begins when it has ended.
    LaunchParts m_parts;
    std::optional<Launch> m_waiting;
    std::optional<QString> m_next; ///< once what runs has ended
    QString m_name; ///< of the game that was started last
};

} // namespace tessera
