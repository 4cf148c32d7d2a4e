#include "tools/emulatorrun.h"

#include "core/atomicfile.h"
#include "launch/emulatorprocess.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessera {

namespace {

constexpr int lookEvery = 50; // milliseconds, whether somebody asks to stop
constexpr qsizetype errorsKept = 2000; // bytes

void handOver(QProcess& process, const EmulatorRunWatch& watch)
{
    const QByteArray bytes = process.readAllStandardOutput();
    if (watch.printed && !bytes.isEmpty())
        watch.printed({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

QString lastWords(QProcess& process)
{
    return QString::fromUtf8(process.readAllStandardError().right(errorsKept)).trimmed();
}

} // namespace

std::expected<int, Failure> runEmulator(const QString& emulator, const QStringList& arguments,
                                        const EmulatorRunWatch& watch)
{
    EmulatorProcess process;
    process.run(emulator, arguments);
    if (!process.waitForStarted())
        return std::unexpected(Failure{"build_not_started", {emulator, process.errorString()}});
    while (process.state() != QProcess::NotRunning && !watch.stop.stop_requested()) {
        process.waitForReadyRead(lookEvery);
        handOver(process, watch);
    }
    if (process.state() != QProcess::NotRunning)
        return 0;
    handOver(process, watch);
    if (process.exitStatus() == QProcess::CrashExit)
        return std::unexpected(
            Failure{"emulator_crashed", {emulator, QString::number(process.exitCode()), lastWords(process)}});
    return process.exitCode();
}

std::expected<std::string, Failure> printedBy(const QString& emulator, const QStringList& arguments,
                                              bool mayFail, const EmulatorRunWatch& watch)
{
    std::string text;
    const EmulatorRunWatch collecting{watch.stop, [&](std::string_view piece) {
                                          text += piece;
                                          if (watch.printed)
                                              watch.printed(piece);
                                      }};
    const auto status = runEmulator(emulator, arguments, collecting);
    if (!status)
        return std::unexpected(status.error());
    if (watch.stop.stop_requested())
        return text;
    const QString words = arguments.join(QLatin1Char(' '));
    if (*status != 0 && !mayFail)
        return std::unexpected(Failure{"emulator_status", {emulator, words, QString::number(*status)}});
    if (text.empty())
        return std::unexpected(Failure{"emulator_silent", {emulator, words}});
    return text;
}

QString printedPath(const QString& name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/Tessera/printed/") + name;
}

std::expected<std::string, Failure> keptPrintedBy(const QString& emulator, const QStringList& arguments,
                                                  bool mayFail, const QString& name,
                                                  const EmulatorRunWatch& watch)
{
    auto printed = printedBy(emulator, arguments, mayFail, watch);
    if (!printed || watch.stop.stop_requested())
        return printed;
    const QString path = printedPath(name);
    QDir().mkpath(QFileInfo(path).path());
    if (const auto written = writeAtomically(path, *printed); !written)
        return std::unexpected(written.error());
    return printed;
}

} // namespace tessera
