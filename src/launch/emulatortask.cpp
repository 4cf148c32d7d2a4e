#include "launch/emulatortask.h"

#include "core/encodings.h"
#include "launch/emulatoridentity.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <chrono>

namespace tessera {

namespace {

constexpr std::chrono::seconds graceTime(5);
constexpr int quitGraceTime = 2000; // milliseconds
// A turn of the event loop takes no more, so that a program that floods us does not keep the windows from
// answering.
constexpr qint64 pieceSize = qint64{64} * 1024;

// How many bytes at the end may be the beginning of a character.
std::size_t beginningAtTheEnd(std::string_view bytes)
{
    for (std::size_t count = 1; count <= 3 && count <= bytes.size(); ++count) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - count]);
        if ((byte & 0xC0) == 0x80)
            continue;
        const std::size_t whole = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
        return whole > count ? count : 0;
    }
    return 0;
}

QString decoded(std::string_view bytes)
{
    std::string text;
    appendUtf8(text, bytes);
    return QString::fromStdString(text);
}

} // namespace

EmulatorTask::EmulatorTask(QObject* parent)
    : QObject(parent)
{
}

EmulatorTask::~EmulatorTask()
{
    QList<QProcess*> left = findChildren<QProcess*>(Qt::FindDirectChildrenOnly);
    for (QProcess* process : left) {
        process->disconnect();
        process->terminate();
    }
    for (QProcess* process : left) {
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(quitGraceTime)) {
            process->kill();
            process->waitForFinished();
        }
        delete process;
    }
}

bool EmulatorTask::isRunning() const
{
    return m_process && !m_exited && m_process->state() != QProcess::NotRunning;
}

void EmulatorTask::occupy()
{
    stop();
    m_cutOff.clear();
    m_exited = false;
    m_process = new QProcess(this);
}

void EmulatorTask::start(const QString& executable, const QString& workingFolder,
                         const QStringList& arguments, const QString& outputFile)
{
    occupy();
    QProcess* process = m_process;
    process->setProcessChannelMode(QProcess::MergedChannels);
    if (!outputFile.isEmpty())
        process->setStandardOutputFile(outputFile);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessEnvironment(emulatorEnvironment());
    process->setWorkingDirectory(workingFolder);
    process->setProgram(executable);
    process->setArguments(arguments);
    connect(process, &QProcess::started, this, &EmulatorTask::started);
    connect(process, &QProcess::readyReadStandardOutput, this, &EmulatorTask::pump);
    connect(process, &QProcess::finished, this, [this] {
        m_exited = true;
        pumpLater();
    });
    // Queued, as nobody expects to hear from a start before it has returned.
    connect(
        process, &QProcess::errorOccurred, this,
        [this, process](QProcess::ProcessError error) {
            if (error != QProcess::FailedToStart || process != m_process)
                return;
            letGo();
            Q_EMIT failedToStart(process->errorString());
        },
        Qt::QueuedConnection);
    process->start(QIODevice::ReadOnly);
}

void EmulatorTask::stop()
{
    if (!m_process)
        return;
    QProcess* process = m_process;
    process->disconnect(this);
    process->terminate();
    // One that was not started, or prints into a file, has nothing for us.
    QByteArray rest;
    if (process->isReadable()) {
        process->waitForReadyRead(0);
        rest = process->readAllStandardOutput();
    }
    letGo();
    emitPiece(rest);
    Q_EMIT stopped();
}

bool EmulatorTask::waitForExit()
{
    if (!m_process || m_isWaitedFor)
        return false;
    m_isWaitedFor = true;
    bool hasEnded = false;
    QEventLoop loop;
    // Connected last, so that everybody else has heard of the end before.
    connect(this, &EmulatorTask::ended, &loop, [&] {
        hasEnded = true;
        loop.quit();
    });
    connect(this, &EmulatorTask::failedToStart, &loop, &QEventLoop::quit);
    connect(this, &EmulatorTask::stopped, &loop, &QEventLoop::quit);
    loop.exec();
    m_isWaitedFor = false;
    return hasEnded;
}

// The process may be the one whose signal we are in, and it may take its time to end.
void EmulatorTask::letGo()
{
    QProcess* process = std::exchange(m_process, nullptr);
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    connect(process, &QProcess::readyReadStandardOutput, process,
            [process] { process->readAllStandardOutput(); });
    QTimer::singleShot(graceTime, process, &QProcess::kill);
}

void EmulatorTask::pumpLater()
{
    if (std::exchange(m_pumpQueued, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_pumpQueued = false;
        pump();
    });
}

void EmulatorTask::pump()
{
    QProcess* process = m_process;
    if (!process)
        return;
    // What goes to a file is not read by us.
    if (process->isReadable())
        emitPiece(process->read(pieceSize));
    if (process != m_process)
        return;
    if (process->bytesAvailable() > 0)
        pumpLater();
    else if (m_exited)
        finish();
}

void EmulatorTask::finish()
{
    if (const std::string rest = std::exchange(m_cutOff, {}); !rest.empty())
        Q_EMIT output(decoded(rest));
    if (!m_process || !m_exited)
        return;
    // For a run that crashed the exit code is the number of the signal.
    const int status = m_process->exitCode();
    letGo();
    Q_EMIT ended(status);
}

void EmulatorTask::emitPiece(const QByteArray& bytes)
{
    std::string whole = m_cutOff + bytes.toStdString();
    const std::size_t end = whole.size() - beginningAtTheEnd(whole);
    m_cutOff = whole.substr(end);
    whole.resize(end);
    if (!whole.empty())
        Q_EMIT output(decoded(whole));
}

} // namespace tessera
