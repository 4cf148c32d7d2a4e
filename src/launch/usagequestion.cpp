#include "launch/usagequestion.h"

#include "launch/emulatorprofile.h"

#include <QDeadlineTimer>
#include <QTimer>

#include <chrono>

namespace tessera {

namespace {
constexpr std::chrono::seconds timeLimit(30);
constexpr qsizetype outputLimit = 1 << 20; // of one run; an emulator prints some 20 KB
constexpr QLatin1StringView usageOption("-showusage");
constexpr QLatin1StringView configOption("-showconfig");
} // namespace

UsageQuestion::UsageQuestion(const QString& executable, QObject* parent)
    : QObject(parent)
    , m_executable(executable)
{
    m_process.setStandardErrorFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &UsageQuestion::read);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            settle(m_usage.isEmpty() ? std::nullopt : std::optional(m_usage));
    });
    // The status is of no interest: some programs end with an error after a good text.
    connect(&m_process, &QProcess::finished, this, [this](int, QProcess::ExitStatus how) { runEnded(how); });
}

void UsageQuestion::ask()
{
    QTimer::singleShot(timeLimit, this, &UsageQuestion::giveUp);
    start(usageOption);
}

void UsageQuestion::askAndWait()
{
    const QDeadlineTimer deadline(timeLimit);
    start(usageOption);
    while (!m_settled && m_process.state() != QProcess::NotRunning && !deadline.hasExpired())
        m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    giveUp();
}

void UsageQuestion::start(const QString& option)
{
    m_process.run(m_executable, {option});
}

void UsageQuestion::runEnded(QProcess::ExitStatus how)
{
    read();
    if (m_settled)
        return;
    const bool isWhole = how == QProcess::NormalExit;
    if (m_usage.isEmpty() && isWhole && EmulatorProfile::fromUsage(m_text)) {
        m_usage = std::exchange(m_text, {}) + '\n';
        start(configOption);
        return;
    }
    m_isAnsweredForGood = isWhole;
    // What broke off may hold half a line, or half of the options.
    settle(isWhole ? m_usage + m_text : m_usage);
}

void UsageQuestion::read()
{
    if (m_settled)
        return;
    m_text += m_process.readAllStandardOutput();
    if (m_text.size() > outputLimit) {
        m_isAnsweredForGood = true;
        giveUp();
    }
}

void UsageQuestion::giveUp()
{
    settle(m_usage);
    m_process.killAll();
}

void UsageQuestion::settle(const std::optional<QByteArray>& answer)
{
    if (m_settled)
        return;
    m_settled = true;
    m_answer = answer;
    Q_EMIT answered();
}

} // namespace tessera
