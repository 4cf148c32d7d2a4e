#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "app/verbs/selectedgame.h"
#include "launch/argumentsarray.h"
#include "launch/commandline.h"
#include "launch/profilecache.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>

namespace tessera {

namespace {

// The numbers that are typed into fields: they are sent as they stand, whatever that is.
constexpr std::array typedNumbers{keys::Displaybeam.name, keys::Displayflicker.name, keys::Soundvolume.name};

// Puts KEY=VALUE among the settings, by the kind of its initial value. What is wrong with it, or nothing.
std::optional<QString> set(UserDefaults& settings, const QString& assignment)
{
    const auto equals = assignment.indexOf(QLatin1Char('='));
    const QString key = assignment.left(equals);
    const QString value = assignment.mid(equals + 1);
    if (equals < 0)
        return QStringLiteral("--set takes KEY=VALUE, not \"%1\".").arg(assignment);
    for (const InitialSetting& row : initialSettings) {
        if (key != row.name)
            continue;
        if (std::holds_alternative<bool>(row.value)) {
            const bool on = value == QStringLiteral("true") || value == QStringLiteral("1");
            if (!on && value != QStringLiteral("false") && value != QStringLiteral("0"))
                return QStringLiteral("%1 is true or false, not \"%2\".").arg(key, value);
            settings.setValue(row.name, on);
        } else if (std::holds_alternative<float>(row.value)) {
            bool isNumber = false;
            const double number = value.toDouble(&isNumber);
            if (std::ranges::find(typedNumbers, row.name) != typedNumbers.end())
                settings.setValue(row.name, value);
            else if (isNumber && number > -1e6 && number < 1e6)
                settings.setValue(row.name, number);
            else
                return QStringLiteral("%1 is a number, not \"%2\".").arg(key, value);
        } else {
            settings.setValue(row.name, value);
        }
        return std::nullopt;
    }
    if (key == keys::RomsPath.name || key == keys::ExecutionPath.name) {
        settings.setValue(key == keys::RomsPath.name ? keys::RomsPath.name : keys::ExecutionPath.name, value);
        return std::nullopt;
    }
    return QStringLiteral("There is no launch setting \"%1\".").arg(key);
}

void printElements(const QStringList& elements)
{
    for (const QString& element : elements)
        print(element);
}

int printForEmulator(const QString& emulator, const QString& game, const QStringList& built)
{
    const QString path = QFileInfo(emulator).absoluteFilePath();
    const ProfileAnswer answer = ProfileCache().ask(path);
    if (!answer.profile)
        return failed(Failure{"failure_no_profile", {path}});
    const CommandLine line = commandLine(answer.profile, game, built, {}, QFileInfo(path).path());
    // Without a game there is no first element.
    printElements(game.isEmpty() ? line.arguments.mid(1) : line.arguments);
    if (const QString note = line.leftOutLine(); !note.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(note));
    return Done;
}

} // namespace

int runArguments(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption dialect(QStringLiteral("dialect"), QString(), QStringLiteral("sdl|osx"),
                                     QStringLiteral("sdl"));
    const QCommandLineOption catalogue(QStringLiteral("catalogue"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption setting(QStringLiteral("set"), QString(), QStringLiteral("KEY=VALUE"));
    const QCommandLineOption forEmulator(QStringLiteral("for"), QString(), QStringLiteral("EMULATOR"));
    parser.addOptions({dialect, catalogue, setting, forEmulator});
    if (const auto status = parseVerb(verb, parser, arguments, 0, 1))
        return *status;
    const bool osx = parser.value(dialect) == QStringLiteral("osx");
    if (!osx && parser.value(dialect) != QStringLiteral("sdl"))
        return badCommandLine(verb, QStringLiteral("The dialect is sdl or osx."));
    if (osx && parser.isSet(forEmulator))
        return badCommandLine(verb, QStringLiteral("--for goes with the sdl dialect."));

    // Settings given here are tried on a copy: nothing of the user's changes.
    QTemporaryDir copy;
    if (!copy.isValid())
        return failed(Failure{"failure_write", {QDir::tempPath(), copy.errorString()}});
    const QString copiedSettings = copy.filePath(QStringLiteral("Tessera.ini"));
    QFile::copy(UserDefaults::standardPath(), copiedSettings);
    UserDefaults settings(copiedSettings);
    for (const QString& assignment : parser.values(setting)) {
        if (const auto wrong = set(settings, assignment))
            return badCommandLine(verb, *wrong);
    }
    DefaultsController defaults(settings);
    defaults.setInitialValues(QString(), QDir::homePath());

    const QString game = gameReference(parser.positionalArguments().value(0));
    SelectedGame selected{gameName(game), QString(), QString()};
    const QString store = parser.isSet(catalogue) ? parser.value(catalogue) : standardCataloguePath();
    if (!game.isEmpty() && (parser.isSet(catalogue) || QFileInfo::exists(store))) {
        const auto known = selectedGame(store, game);
        if (!known)
            return failed(known.error());
        selected = *known;
    }
    const LaunchOptions options = storedOptions(defaults, selected);
    if (osx) {
        printElements(argumentsArray2(options));
        return Done;
    }
    if (parser.isSet(forEmulator))
        return printForEmulator(parser.value(forEmulator), game, argumentsArray(options));
    printElements(argumentsArray(options));
    return Done;
}

} // namespace tessera
