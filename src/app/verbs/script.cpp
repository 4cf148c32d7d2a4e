#include "app/verbs/verbs.h"

#include "app/verbs/selectedgame.h"
#include "catalogue/cataloguepath.h"
#include "launch/argumentsarray.h"
#include "launch/emulatorfinder.h"
#include "launch/profilecache.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "tools/launchscript.h"

#include <QDir>

#include <algorithm>

namespace tessera {

namespace {

// The command-line emulator's options without what it would not understand, as a shell is to read them.
QStringList shellOptions(const QString& emulator, const LaunchOptions& options)
{
    const QStringList built = argumentsArray(options);
    const ProfileAnswer answer = ProfileCache().ask(emulator);
    return answer.profile ? answer.profile->fit(built, EmulatorProfile::Quotes::Kept).arguments : built;
}

QString emulatorPath(const UserDefaults& settings, ScriptEmulator emulator)
{
    switch (emulator) {
    case ScriptEmulator::CommandLine:
        return emulatorToUse(settings.string(keys::ExecutionPath.name));
    case ScriptEmulator::MameOsx:
        return settings.string(keys::MameosxPath.name);
    default:
        return settings.string(keys::ApplicationPath.name);
    }
}

QStringList optionsFor(const ScriptRequest& request, const DefaultsController& defaults)
{
    // The record file's name needs the titles; without a catalogue there are none.
    const auto known = selectedGame(standardCataloguePath(), request.game);
    const LaunchOptions options
        = storedOptions(defaults, known ? *known : SelectedGame{request.game, QString(), QString()});
    if (request.emulator == ScriptEmulator::CommandLine)
        return shellOptions(request.emulatorPath, options);
    return request.emulator == ScriptEmulator::MameOsx ? argumentsArray2(options) : QStringList();
}

int writeScript(ScriptRequest request, bool withOptions, const QString& output)
{
    UserDefaults settings(UserDefaults::standardPath());
    DefaultsController defaults(settings);
    defaults.setInitialValues(QString(), QDir::homePath());
    request.emulatorPath = emulatorPath(settings, request.emulator);
    request.home = QDir::homePath();
    if (request.emulatorPath.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});
    if (withOptions)
        request.options = optionsFor(request, defaults);
    if (const auto written = saveScript(output, request.format, scriptText(request)); !written)
        return failed(written.error());
    print(scripttexts::saved);
    return Done;
}

} // namespace

int runScript(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption format(QStringLiteral("format"), QString(), QStringLiteral("tool|sh|scpt"));
    const QCommandLineOption emulator(QStringLiteral("emulator"), QString(), QStringLiteral("0|1|2"),
                                      QStringLiteral("0"));
    const QCommandLineOption noOptions(QStringLiteral("no-options"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("FILE"));
    parser.addOptions({format, emulator, noOptions, output});
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    const auto extension = std::ranges::find_if(
        scriptExtensions, [&](const char* each) { return parser.value(format) == QLatin1String(each); });
    bool isNumber = false;
    ScriptRequest request;
    request.game = parser.positionalArguments().constFirst();
    request.emulator = scriptEmulatorAt(parser.value(emulator).toInt(&isNumber));
    request.format = scriptFormatAt(static_cast<int>(extension - scriptExtensions.begin()));
    if (request.game.isEmpty())
        return badCommandLine(verb, QStringLiteral("The game has no name."));
    if (request.format == ScriptFormat::None)
        return badCommandLine(verb, QStringLiteral("The format is tool, sh or scpt."));
    if (!isNumber || request.emulator == ScriptEmulator::None)
        return badCommandLine(verb, QStringLiteral("The emulator is 0, 1 or 2."));
    if (!parser.isSet(output))
        return badCommandLine(verb, QStringLiteral("-o FILE is missing."));
    return writeScript(request, !parser.isSet(noOptions), parser.value(output));
}

} // namespace tessera
