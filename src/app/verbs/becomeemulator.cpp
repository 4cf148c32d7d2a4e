#include "app/verbs/becomeemulator.h"

#include "launch/emulatorprocess.h"

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace tessera {

namespace {

// As the system takes them: one behind the other, and none behind the last.
std::vector<char*> pointersTo(std::vector<QByteArray>& words)
{
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

Failure becomeEmulator(const QString& executable, const QStringList& arguments)
{
    const QByteArray program = QFile::encodeName(executable);
    std::vector<QByteArray> words{program};
    words.reserve(static_cast<std::size_t>(arguments.size()) + 1);
    for (const QString& argument : arguments)
        words.push_back(argument.toLocal8Bit());
    const QStringList ours = emulatorEnvironment().toStringList();
    std::vector<QByteArray> environment;
    environment.reserve(static_cast<std::size_t>(ours.size()));
    for (const QString& variable : ours)
        environment.push_back(variable.toLocal8Bit());

    std::fflush(stdout);
    const QByteArray folder = QFile::encodeName(QFileInfo(executable).absolutePath());
    const int ownStderr = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    if (dup2(STDOUT_FILENO, STDERR_FILENO) >= 0 && chdir(folder.constData()) == 0)
        execve(program.constData(), pointersTo(words).data(), pointersTo(environment).data());
    const auto failure = Failure{"failure_exec", {executable, QString::fromLocal8Bit(std::strerror(errno))}};
    dup2(ownStderr, STDERR_FILENO);
    return failure;
}

} // namespace tessera
