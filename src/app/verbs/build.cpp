#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatoridentity.h"
#include "platform/userdefaults.h"
#include "tools/cataloguebuild.h"
#include "tools/conversion.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace tessera {

namespace {

void showProgress(int machines)
{
    std::fprintf(stderr, "\r%d machines", machines);
}

// The window says by this whether the emulator has changed since.
void rememberEmulator(UserDefaults& settings, const QString& identity)
{
    settings.setValue(keys::BuiltFrom.name, identity);
    if (!settings.synchronize())
        warn(Failure{"failure_settings", {settings.path()}});
}

int build(const QString& emulator, const QString& output, const QString& titles, bool& built)
{
    CatalogueBuild job;
    int status = Failed;
    const bool terminal = isatty(STDERR_FILENO) == 1;
    if (terminal) {
        std::fprintf(stderr, "Asking %s for its list of machines; Ctrl+C leaves the catalogue as it is.\n",
                     qUtf8Printable(emulator));
        QObject::connect(&job, &CatalogueBuild::progress, &job, &showProgress);
    }
    const auto end = [&] {
        if (terminal)
            std::fputs("\r\033[K", stderr);
        QCoreApplication::quit();
    };
    QObject::connect(&job, &CatalogueBuild::finished, &job, [&](int machines) {
        end();
        print(conversionReport(static_cast<std::size_t>(machines)));
        if (const auto& titlesFailure = job.titlesFailure())
            warn(Message{"rebuild_without_titles", {titlesFailure->text()}});
        status = Done;
        built = true;
    });
    QObject::connect(&job, &CatalogueBuild::failed, &job, [&](const Failure& failure) {
        end();
        status = failed(failure);
    });
    job.start(emulator, output, titles);
    QCoreApplication::exec();
    return status;
}

} // namespace

int runBuild(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption emulatorOption(QStringLiteral("emulator"), QString(), QStringLiteral("PATH"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("FILE"));
    parser.addOptions({emulatorOption, output});
    if (const auto status = parseVerb(verb, parser, arguments, 0, 0))
        return *status;

    UserDefaults settings(UserDefaults::standardPath());
    const QString given = parser.value(emulatorOption);
    if (parser.isSet(emulatorOption) && given.isEmpty())
        return badCommandLine(verb, QStringLiteral("The emulator has no path."));
    const QString emulator = given.isEmpty() ? emulatorToUse(settings.string(keys::ExecutionPath.name))
                                             : QFileInfo(given).absoluteFilePath();
    if (emulator.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});
    const QString file = parser.isSet(output) ? parser.value(output) : standardCataloguePath();
    if (!parser.isSet(output))
        QDir().mkpath(QFileInfo(file).absolutePath());
    const auto identity = EmulatorIdentity::of(emulator);

    bool built = false;
    const int status = build(emulator, file, settings.string(keys::localizePath.name), built);
    if (built && !parser.isSet(output) && identity)
        rememberEmulator(settings, identity->text());
    return status;
}

} // namespace tessera
