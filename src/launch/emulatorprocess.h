#pragma once

#include <QProcess>

namespace tessera {

/// Our own environment, but numbers are written with a point: emulators print and read them by the locale.
QProcessEnvironment emulatorEnvironment();

/// An emulator as it is always run: with emulatorEnvironment(), in its own folder, with nothing to read, and
/// at the head of a process group, as a start script may have started it. One that still runs is killed with
/// the object.
class EmulatorProcess : public QProcess
{
    Q_OBJECT

public:
    /// Whether it is killed when we are. A game that is played goes on.
    enum class End { WithUs, ByItself };

    explicit EmulatorProcess(End end = End::WithUs, QObject* parent = nullptr);
    ~EmulatorProcess() override;

    /// In another folder than its own where one is given.
    void run(const QString& executable, const QStringList& arguments, const QString& folder = QString());
    /// To all of the group, once the emulator runs.
    void signalAll(int number);
    /// Its end is still to come.
    void killAll();
};

/// Only what leads a group of its own may be sent a signal.
void signalGroup(qint64 leader, int number);

} // namespace tessera
