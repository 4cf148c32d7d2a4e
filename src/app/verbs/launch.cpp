#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "app/verbs/becomeemulator.h"
#include "app/verbs/selectedgame.h"
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
    const CommandLine line = commandLine(ProfileCache().ask(executable).profile, game,
                                         argumentsArray(options), {}, QFileInfo(executable).absolutePath());
    if (QFileInfo(game).isAbsolute()) {
        RecentDocuments(settings).note(game);
        std::ignore = settings.synchronize();
    }
    if (const QString note = line.leftOutLine(); !note.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(note));
    return failed(becomeEmulator(QFileInfo(executable).absoluteFilePath(), line.arguments));
}

} // namespace tessera
