#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "app/verbs/becomeemulator.h"
#include "app/verbs/selectedgame.h"
#include "favourites/favouritespath.h"
#include "favourites/priorityoption.h"
#include "launch/archivepath.h"
#include "launch/argumentsarray.h"
#include "launch/commandline.h"
#include "launch/emulatorfinder.h"
#include "launch/profilecache.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "platform/recentdocuments.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace tessera {

namespace {

// As in the windows, a launch goes on without the options of favourites that cannot be read.
QString favouriteOptions(const QString& game)
{
    const auto option = priorityOption(standardFavouritesPath(), game);
    if (!option)
        std::fprintf(stderr, "%s\n", qUtf8Printable(option.error().text()));
    return option.value_or(QString());
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
    const QString game = gameReference(given);

    UserDefaults settings(UserDefaults::standardPath());
    DefaultsController defaults(settings);
    defaults.setInitialValues(QString(), QDir::homePath());
    const QString executable = emulatorToUse(settings.string(keys::ExecutionPath.name));
    if (executable.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});

    // The record file's name needs the titles; without a catalogue there are none, and the launch goes on.
    const auto known = selectedGame(standardCataloguePath(), game);
    const LaunchOptions options
        = storedOptions(defaults, known ? *known : SelectedGame{gameName(game), QString(), QString()});
    const CommandLine line
        = commandLine(ProfileCache().ask(executable).profile, game, argumentsArray(options),
                      ownOptions(favouriteOptions(game)), QFileInfo(executable).absolutePath());
    const ArchiveFolders folders{options.checkboxRompath != 0, options.romsTextField, executable};
    RecentDocuments(defaults).note(QDir::isAbsolutePath(game) ? game : archivePath(folders, game));
    std::ignore = settings.synchronize();
    if (const QString note = line.leftOutLine(); !note.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(note));
    return failed(becomeEmulator(QFileInfo(executable).absoluteFilePath(), line.arguments));
}

} // namespace tessera
