#pragma once

#include <QObject>
#include <QStringList>

#include <string>

class QProcess;

namespace tessera {

/// The one child-process slot of the program: a run of the emulator with its standard output and standard
/// error on one pipe. A new start replaces the run before.
class EmulatorTask : public QObject
{
    Q_OBJECT

public:
    explicit EmulatorTask(QObject* parent = nullptr);
    /// Ends a run that is still going, and waits a moment for it.
    ~EmulatorTask() override;

    /// Returns at once; what becomes of it comes with the signals. Where a file is named it is emptied, and
    /// everything that the run prints goes there instead of output().
    void start(const QString& executable, const QString& workingFolder, const QStringList& arguments,
               const QString& outputFile = QString());
    /// Puts a run into the slot that is not started, in place of the one that has ended.
    void occupy();
    bool isRunning() const;

    /// Stays in an event loop until the run has ended and everything of it was handed over, slots of ended()
    /// included. False where it was stopped or never started.
    bool waitForExit();
    bool isWaitedFor() const { return m_isWaitedFor; }

    /// Hands over what the run has printed so far and lets go of it: the run is asked to end, killed after a
    /// grace time, and neither its later output nor its end is heard of.
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
    /// The run was let go of by stop().
    void stopped();

private:
    void pump();
    void pumpLater();
    void finish();
    void emitPiece(const QByteArray& bytes);
    void letGo();

    QProcess* m_process = nullptr;
    std::string m_cutOff; ///< bytes of a character whose rest is still to come
    bool m_pumpQueued = false;
    bool m_exited = false;
    bool m_isWaitedFor = false;
};

} // namespace tessera
