#pragma once

#include <QFile>

#include <csignal>

namespace tessera::test {

/// What has ended, and nobody has asked how yet, is dead, too.
inline bool isAlive(pid_t process)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    return stat.open(QIODevice::ReadOnly) && !stat.readAll().contains(") Z ");
}

/// For ScriptedDesktop::windows: the stand-in is asked to close as a window's own button would ask it.
inline bool clickCloseButton(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), SIGUSR1) == 0;
}

} // namespace tessera::test
