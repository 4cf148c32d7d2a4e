#pragma once

#include <QObject>
#include <QStringList>

namespace tessera {

class DefaultsController;
class Desktop;
class EmulatorTask;
class LogWindow;

/// What occupies the emulator task.
struct EmulatorRun {
    QString name; ///< as messages call it
    QString executable;
    QString folder; ///< where it works
    QStringList arguments;
    QString game = QString(); ///< the reference that a game was started with; empty for a command
    /// Takes everything that is printed, in place of the log; then a bad end raises no alert.
    QString outputFile = QString();
};

/// Runs the emulator for launches, commands and exports: shows what it prints and how it ends.
class RunController : public QObject
{
    Q_OBJECT

public:
    RunController(Desktop& desktop, DefaultsController& defaults, LogWindow& logWindow, EmulatorTask& task,
                  QObject* parent = nullptr);

    /// Puts a header in place of the whole log.
    void beginLog(const QString& header);
    void start(const EmulatorRun& run);
    /// A text about the run, with its name for %1.
    QString about(const char* key) const;

public Q_SLOTS:
    void getData(const QString& text);
    void appendOutput(const QString& text);
    void stopProcess();
    void errerAlert(const QString& statusText);
    void saveLogAction();
    void showLogWindow();
    void windowLog();

Q_SIGNALS:
    /// True once more when the run is asked to end.
    void runningChanged(bool running);
    /// The game runs, by the reference that it was started with.
    void started(const QString& game);
    void statusMessage(const QString& text);

private:
    void taskStarted();
    void taskEnded(int status);
    void taskStopped();
    void taskFailedToStart(const QString& reason);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    LogWindow& m_logWindow;
    EmulatorTask& m_task;
    EmulatorRun m_run;
    QString m_printed; ///< the end of what it printed
};

} // namespace tessera
