#include "launch/emulatortask.h"

#include "core/encodings.h"
#include "launch/emulatorprocess.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <csignal>

#include <unistd.h>

namespace tessera {

namespace {

constexpr std::chrono::milliseconds lookAgain(20); // at what a run has left behind
constexpr int quitGraceTime = 2000; // milliseconds
// A turn of the event loop takes no more, so that a program that floods us does not keep the windows from
// answering.
constexpr qint64 pieceSize = qint64{64} * 1024;

// How many bytes at the end may be the beginning of a character. (QStringDecoder would know it, but of a
// character that is broken off by the next piece it swallows that piece's first byte as well.)
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

pid_t groupOf(const QProcess& process)
{
    return static_cast<pid_t>(process.processId());
}

} // namespace

EmulatorTask::EmulatorTask(Desktop& desktop, const Patience& patience, QObject* parent)
    : QObject(parent)
    , m_ending(desktop, patience)
{
}

EmulatorTask::~EmulatorTask()
{
    const auto left = findChildren<EmulatorProcess*>(Qt::FindDirectChildrenOnly);
    for (EmulatorProcess* process : left) {
        process->disconnect();
        if (process->waitForStarted())
            process->signalAll(SIGTERM);
    }
    for (EmulatorProcess* process : left) {
        const pid_t group = groupOf(*process);
        if (process->state() != QProcess::NotRunning) {
            process->waitForFinished(quitGraceTime);
            // And whatever it leaves behind.
            signalGroup(group, SIGKILL);
            process->waitForFinished();
        }
        delete process;
    }
}

void EmulatorTask::occupy()
{
    if (m_process)
        letGo();
    m_cutOff.clear();
    m_exited = false;
    m_isBegun = false;
    m_process = new EmulatorProcess(EmulatorProcess::End::ByItself, this);
}

void EmulatorTask::start(const QString& executable, const QString& workingFolder,
                         const QStringList& arguments, const QString& outputFile)
{
    occupy();
    m_isBegun = true;
    EmulatorProcess* process = m_process;
    process->setProcessChannelMode(QProcess::MergedChannels);
    if (!outputFile.isEmpty())
        process->setStandardOutputFile(outputFile);
    connect(process, &QProcess::started, this, [this, process] {
        if (m_isEnding)
            m_ending.begin(groupOf(*process));
        else
            Q_EMIT started();
    });
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
            const bool isStopped = m_isEnding;
            letGo();
            if (isStopped)
                Q_EMIT stopped();
            else
                Q_EMIT failedToStart(process->errorString());
        },
        Qt::QueuedConnection);
    process->run(executable, arguments, workingFolder);
}

void EmulatorTask::stop()
{
    if (!isRunning() || m_isEnding)
        return;
    // It could not be started, which was not told yet. (Mostly it is only found out later.)
    if (m_process->state() == QProcess::NotRunning && !m_exited) {
        letGo();
        Q_EMIT stopped();
        return;
    }
    m_isEnding = true;
    // Before that, our own handler would take the signal in the process that is to become the program.
    if (m_process->state() == QProcess::Running)
        m_ending.begin(groupOf(*m_process));
}

bool EmulatorTask::waitForExit()
{
    if (!isRunning() || m_isWaitedFor)
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

// The process may be the one whose signal we are in.
void EmulatorTask::letGo()
{
    m_ending.forget();
    m_isEnding = false;
    EmulatorProcess* process = std::exchange(m_process, nullptr);
    process->disconnect(this);
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->killAll();
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
    EmulatorProcess* process = m_process;
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
    if (m_isEnding) {
        if (m_ending.isLeftBehind())
            return QTimer::singleShot(lookAgain, this, &EmulatorTask::pump);
        letGo();
        Q_EMIT stopped();
        return;
    }
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
