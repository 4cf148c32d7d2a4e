#include "launch/emulatorprocess.h"

#include <QFileInfo>
#include <QProcessEnvironment>

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace tessera {

QProcessEnvironment emulatorEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // LC_ALL would outvote LC_NUMERIC; as LANG it still decides all the rest.
    const QString everything = QStringLiteral("LC_ALL");
    if (!environment.value(everything).isEmpty())
        environment.insert(QStringLiteral("LANG"), environment.value(everything));
    environment.remove(everything);
    environment.insert(QStringLiteral("LC_NUMERIC"), QStringLiteral("C"));
    return environment;
}

EmulatorProcess::EmulatorProcess(End end, QObject* parent)
    : QProcess(parent)
{
    setProcessEnvironment(emulatorEnvironment());
    setStandardInputFile(nullDevice());
    setChildProcessModifier([end] {
        ::setpgid(0, 0);
        if (end == End::WithUs)
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
}

EmulatorProcess::~EmulatorProcess()
{
    // Whoever listens may be half gone.
    disconnect();
    killAll();
    waitForFinished();
}

void EmulatorProcess::run(const QString& executable, const QStringList& arguments, const QString& folder)
{
    setWorkingDirectory(folder.isEmpty() ? QFileInfo(executable).path() : folder);
    start(executable, arguments, ReadOnly);
}

void EmulatorProcess::signalAll(int number)
{
    signalGroup(processId(), number);
}

void EmulatorProcess::killAll()
{
    if (state() == NotRunning)
        return;
    signalAll(SIGKILL);
    // There is no group before it has begun.
    kill();
}

void signalGroup(qint64 leader, int number)
{
    // 0 and 1 would mean our own group, and everybody.
    if (leader > 1)
        ::kill(static_cast<pid_t>(-leader), number);
}

} // namespace tessera
