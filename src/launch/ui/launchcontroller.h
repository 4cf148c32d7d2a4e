#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace tessera {

class DefaultsController;
class Desktop;
class EmulatorTask;
class LaunchPages;
class LogWindow;
class PathChooser;
class ProfileCache;
struct ProfileAnswer;

/// The readers of the game list's selection; each gives an empty text when nothing is selected.
struct SelectionReaders {
    std::function<QString()> tableViewSelectionROM;
    std::function<QString()> tableViewSelectionTitleE;
    std::function<QString()> tableViewSelectionTitleJ;
};

/// What a launch needs; all of it outlives the controller.
struct LaunchParts {
    Desktop& desktop;
    DefaultsController& defaults;
    LaunchPages& pages;
    PathChooser& paths;
    LogWindow& logWindow;
    EmulatorTask& task;
    ProfileCache& profiles;
    SelectionReaders selection;
    /// The extra options of the favourite with that short name; empty where there is none.
    std::function<QString(const QString& name)> search_priorityOption;
};

/// Starts games, and shows what the emulator prints and how it ends.
class LaunchController : public QObject
{
    Q_OBJECT

public:
    explicit LaunchController(LaunchParts parts, QObject* parent = nullptr);

    /// True while a game runs, or is about to.
    bool isRunning() const;
    /// False when the user wants to go on playing. The game goes on in any case, until the program ends.
    bool confirmQuit();
    bool romsfolder_FoundCheck() const;
    /// What would be started for a short name, as a shell would take it; the emulator's own wishes are respected
    /// where it was asked already.
    QString shownCommandLine(const QString& game);
    /// Asks the emulator for its options now, so that no launch has to wait for it.
    void prepareProfile();

public Q_SLOTS:
    /// `game` is a short name or the absolute path of an archive.
    void Launchusing(const QString& game);
    void LaunchTask_SDLMAME(const QString& game);
    void LaunchemuCheck();
    void LaunchemuPopAction();
    void getData(const QString& text);
    void appendOutput(const QString& text);
    void stopProcess();
    void errerAlert(const QString& statusText);
    void saveLogAction();
    void showLogWindow();
    void windowLog();

Q_SIGNALS:
    /// Another launch mode is selected: window titles name it.
    void launchModeChanged();
    void runningChanged(bool running);
    /// The game runs, by the reference that it was started with.
    void started(const QString& game);
    void statusMessage(const QString& text);

private:
    /// A launch whose command line is complete but for what the emulator says it understands.
    struct Launch {
        QString executable;
        QString game;
        QStringList built;
        QStringList own;
    };
    Launch launchOf(const QString& game) const;
    void begin(const Launch& launch, const ProfileAnswer& answer);
    void profileAnswered(const QString& executable, const ProfileAnswer& answer);
    void noteRecent(const QString& game);
    void taskEnded(int status);
    void taskFailedToStart(const QString& reason);
    QString executable() const;
    QString aboutGame(const char* key) const;

    LaunchParts m_parts;
    std::optional<Launch> m_waiting;
    QString m_name; ///< of the game that was started last
    QString m_game; ///< its reference
};

} // namespace tessera
