#include "app/verbs/verbs.h"

#include "app/verbs/becomeemulator.h"
#include "launch/archivepath.h"
#include "launch/emulatorcommands.h"
#include "launch/emulatorfinder.h"
#include "platform/defaultscontroller.h"

#include <QDir>
#include <QFileInfo>

namespace tessera {

int runCommand(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    if (const auto status = parseVerb(verb, parser, arguments, 1, 2))
        return *status;
    const QStringList given = parser.positionalArguments();
    bool isNumber = false;
    const int position = given.constFirst().toInt(&isNumber);
    if (!isNumber || position < 0)
        return badCommandLine(verb, QStringLiteral("\"%1\" is no position.").arg(given.constFirst()));
    // What the words lack is said before anything is looked for: a bad command line is bad on every machine.
    const QString game = given.value(1);
    if (!commandArguments(position, {game, game, QString()}))
        return badCommandLine(verb, QStringLiteral("This command wants a GAME."));

    UserDefaults settings(UserDefaults::standardPath());
    DefaultsController defaults(settings);
    defaults.setInitialValues(QString(), QDir::homePath());
    const QString emulator = emulatorToUse(settings.string(keys::ExecutionPath.name));
    if (emulator.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});
    const QString executable = QFileInfo(emulator).absoluteFilePath();
    const ArchiveFolders folders{defaults.flag(keys::Outputserror), defaults.text(keys::RomsPath),
                                 executable};
    const auto words = commandArguments(position, {game, archivePath(folders, game), executable});
    return failed(becomeEmulator(executable, words.value_or(QStringList())));
}

} // namespace tessera
