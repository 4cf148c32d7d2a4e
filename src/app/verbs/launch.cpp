#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "app/verbs/selectedgame.h"
#include "launch/argumentsarray.h"
#include "launch/commandline.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatoridentity.h"
#include "launch/profilecache.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "platform/recentdocuments.h"

#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace tessera {

namespace {

// Becomes the emulator: its output, its standard error among it, goes to our stdout, signals reach it, and
// its status is ours. Comes back only where it could not be started.
Failure become(const QString& executable, const QStringList& arguments)
{
    const QByteArray program = QFile::encodeName(executable);
    std::vector<QByteArray> words{program};
    words.reserve(static_cast<std::size_t>(arguments.size()) + 1);
    for (const QString& argument : arguments)
        words.push_back(argument.toLocal8Bit());
    std::vector<char*> pointers;
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const QStringList ours = emulatorEnvironment().toStringList();
    std::vector<QByteArray> environment;
    environment.reserve(static_cast<std::size_t>(ours.size()));
    for (const QString& variable : ours)
        environment.push_back(variable.toLocal8Bit());
    std::vector<char*> variables;
    for (QByteArray& variable : environment)
        variables.push_back(variable.data());
    variables.push_back(nullptr);

    std::fflush(stdout);
    const QByteArray folder = QFile::encodeName(QFileInfo(executable).absolutePath());
    const int ownStderr = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    if (dup2(STDOUT_FILENO, STDERR_FILENO) >= 0 && chdir(folder.constData()) == 0)
        execve(program.constData(), pointers.data(), variables.data());
    const auto failure = Failure{"failure_exec", {executable, QString::fromLocal8Bit(std::strerror(errno))}};
    dup2(ownStderr, STDERR_FILENO);
    return failure;
}

} // namespace

int runLaunch(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    const QString given = parser.positionalArguments().constFirst();
    if (given.isEmpty())
        return badCommandLine(verb, QStringLiteral("The game has no name."));
    const QString game = given.contains(QLatin1Char('/')) ? QFileInfo(given).absoluteFilePath() : given;

    UserDefaults settings(UserDefaults::standardPath());
    DefaultsController defaults(settings);
    defaults.setInitialValues(QString(), QDir::homePath());
    const QString executable = emulatorToUse(settings.string(keys::ExecutionPath.name));
    if (executable.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});

    // The record file's name needs the titles; without a catalogue there are none, and the launch goes on.
    const auto known = selectedGame(standardCataloguePath(), game);
    const LaunchOptions options
        = storedOptions(defaults, known ? *known : SelectedGame{game, QString(), QString()});
    const CommandLine line
        = commandLine(ProfileCache().ask(executable).profile, game, argumentsArray(options), {});
    if (QFileInfo(game).isAbsolute()) {
        RecentDocuments(settings).note(game);
        std::ignore = settings.synchronize();
    }
    if (const QString note = line.leftOutLine(); !note.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(note));
    return failed(become(QFileInfo(executable).absoluteFilePath(), line.arguments));
}

} // namespace tessera
