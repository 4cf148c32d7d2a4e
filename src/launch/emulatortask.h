#pragma once

#include "launch/runending.h"

#include <QObject>
#include <QStringList>

#include <string>

namespace tessera {

class EmulatorProcess;

/// The one child-process slot of the program: a run of the emulator with its standard output and standard
/// error on one pipe. A new start takes the place of a run that has ended.
class EmulatorTask : public QObject
{
    Q_OBJECT

public:
    explicit EmulatorTask(Desktop& desktop, const Patience& patience = {}, QObject* parent = nullptr);
    /// Ends a run that is still going without asking its window, and waits a moment for it.
    ~EmulatorTask() override;

    /// Returns at once; what becomes of it comes with the signals. A run that is still going is killed
    /// unheard: whoever wants it to end well stops it and waits for stopped(). Where a file is named it is
    /// emptied, and everything that the run prints goes there instead of output().
    void start(const QString& executable, const QString& workingFolder, const QStringList& arguments,
               const QString& outputFile = QString());
    /// Puts a run into the slot that is not started, in place of the one that has ended.
    void occupy();
    /// True until the end of a run was told.
    bool isRunning() const { return m_process && m_isBegun; }
    /// True from stop() until the end was told.
    bool isEnding() const { return m_isEnding; }

    /// Stays in an event loop until the run has ended and everything of it was handed over, slots of ended()
    /// included. False where it was stopped or never started.
    bool waitForExit();
    bool isWaitedFor() const { return m_isWaitedFor; }

    /// Asks the run to end, and sees to it that it does. What it prints meanwhile is handed over; its end is
    /// told by stopped(), whatever its status.
    void stop();

Q_SIGNALS:
    /// The program runs.
    void started();
    /// Text as it comes, in pieces that never part a character; what is not UTF-8 reads U+FFFD.
    void output(const QString& text);
    /// After the last output: the exit status, or the number of the signal that ended the run.
    void ended(int status);
    /// The program could not be started; the system's reason.
    void failedToStart(const QString& reason);
    /// After the last output: the run has ended because of stop().
    void stopped();

private:
    void pump();
    void pumpLater();
    void finish();
    void emitPiece(const QByteArray& bytes);
    void letGo();

    RunEnding m_ending;
    EmulatorProcess* m_process = nullptr;
    bool m_isBegun = false; ///< false for a run that is not to be started
    bool m_isEnding = false;
    std::string m_cutOff; ///< bytes of a character whose rest is still to come
    bool m_pumpQueued = false;
    bool m_exited = false;
    bool m_isWaitedFor = false;
};

} // namespace tessera
