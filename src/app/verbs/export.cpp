#include "app/verbs/verbs.h"

#include "launch/emulatorcommands.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatorprocess.h"
#include "platform/userdefaults.h"

#include <QFile>
#include <QFileInfo>

namespace tessera {

namespace {

// Everything that the emulator prints goes into the file as it comes.
bool writePrinted(QProcess& process, QFile& file)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const auto write = [&] {
        const QByteArray piece = process.readAll();
        return file.write(piece) == piece.size() && file.flush();
    };
    while (write()) {
        if (!process.waitForReadyRead(-1)) {
            process.waitForFinished(-1);
            // What came with its end.
            return write();
        }
    }
    return false;
}

// A file that is there loses what it holds only to an emulator that runs.
int exportInto(const QString& path, const QString& executable, int position)
{
    EmulatorProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.run(executable, exportArguments(position));
    if (!process.waitForStarted(-1))
        return failed(Failure{"launch_notstarted", {executable, process.errorString()}});
    QFile file(path);
    if (!writePrinted(process, file))
        return failed(Failure{"failure_write", {path, file.errorString()}});
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
