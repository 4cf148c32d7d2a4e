#include "app/verbs/verbs.h"

#include "launch/emulatorcommands.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatoridentity.h"
#include "platform/userdefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace tessera {

namespace {

// Everything that the emulator prints goes into the file as it comes.
int exportInto(const QString& path, const QString& executable, int position)
{
    if (QFile file(path); !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return failed(Failure{"failure_write", {path, file.errorString()}});
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(path);
    process.setProcessEnvironment(emulatorEnvironment());
    process.setWorkingDirectory(QFileInfo(executable).path());
    process.start(executable, exportArguments(position));
    process.waitForFinished(-1);
    if (process.error() == QProcess::FailedToStart)
        return failed(Failure{"launch_notstarted", {executable, process.errorString()}});
    print(QString(exportCompleted).trimmed());
    if (const int status = process.exitCode(); status != 0 || process.exitStatus() != QProcess::NormalExit)
        return failed(Failure{"launch_endedbadly", {executable, QString::number(status)}});
    return Done;
}

} // namespace

int runExport(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("FILE"));
    parser.addOption(output);
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    if (!parser.isSet(output))
        return badCommandLine(verb, QStringLiteral("-o FILE is missing."));
    const QString given = parser.positionalArguments().constFirst();
    bool isNumber = false;
    const int position = given.toInt(&isNumber);
    if (!isNumber || position < 0)
        return badCommandLine(verb, QStringLiteral("\"%1\" is no position.").arg(given));

    UserDefaults settings(UserDefaults::standardPath());
    const QString emulator = emulatorToUse(settings.string(keys::ExecutionPath.name));
    if (emulator.isEmpty())
        return failed(Failure{"failure_no_emulator", {}});
    return exportInto(QFileInfo(parser.value(output)).absoluteFilePath(),
                      QFileInfo(emulator).absoluteFilePath(), position);
}

} // namespace tessera
