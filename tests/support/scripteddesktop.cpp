#include "support/scripteddesktop.h"

#include <QFileInfo>
#include <QTest>

namespace tessera::test {

ScriptedDesktop::~ScriptedDesktop()
{
    for (const Answer& answer : m_answers)
        QTest::qFail(qPrintable(QStringLiteral("never asked: %1 %2").arg(answer.kind, answer.question)),
                     __FILE__, __LINE__);
}

void ScriptedDesktop::answerAlert(const QString& question, int button)
{
    m_answers.push_back({QStringLiteral("alert"), question, button, {}});
}

void ScriptedDesktop::answerError(const QString& question, int recovery)
{
    m_answers.push_back({QStringLiteral("error"), question, recovery, {}});
}

void ScriptedDesktop::answerOpen(const std::optional<QString>& path)
{
    m_answers.push_back({QStringLiteral("open"), QString(), 0, path});
}

void ScriptedDesktop::answerSave(const QString& name, const std::optional<QString>& path)
{
    m_answers.push_back({QStringLiteral("save"), name, 0, path});
}

void ScriptedDesktop::answerColor(const QString& from, const std::optional<QString>& color)
{
    m_answers.push_back({QStringLiteral("color"), from, 0, color});
}

std::optional<ScriptedDesktop::Answer> ScriptedDesktop::take(const QString& kind, const QString& question)
{
    m_transcript << QStringLiteral("%1 %2").arg(kind, question).trimmed();
    if (const auto meanwhile = std::exchange(whileAsked, nullptr))
        meanwhile();
    if (m_answers.empty() || m_answers.front().kind != kind
        || !question.contains(m_answers.front().question)) {
        QTest::qFail(qPrintable(QStringLiteral("unexpected %1: %2").arg(kind, question)), __FILE__, __LINE__);
        return std::nullopt;
    }
    Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

void ScriptedDesktop::beep()
{
    m_transcript << QStringLiteral("beep");
}

void ScriptedDesktop::playSound(const QString& name)
{
    m_transcript << QStringLiteral("sound ") + name;
}

int ScriptedDesktop::runAlert(const Alert& alert)
{
    alerts.push_back(alert);
    const auto answer = take(QStringLiteral("alert"), alert.message);
    return answer ? answer->choice : static_cast<int>(alert.buttons.size()) - 1;
}

std::optional<QString> ScriptedDesktop::openPanel(const OpenRequest& request)
{
    openRequests.push_back(request);
    const auto answer = take(QStringLiteral("open"), QString());
    return answer ? answer->path : std::nullopt;
}

std::optional<QString> ScriptedDesktop::savePanel(const SaveRequest& request)
{
    saveRequests.push_back(request);
    const auto answer = take(QStringLiteral("save"), request.name);
    return answer ? answer->path : std::nullopt;
}

std::optional<QString> ScriptedDesktop::colorPanel(const ColorRequest& request)
{
    colorRequests.push_back(request);
    const auto answer = take(QStringLiteral("color"), request.color);
    return answer ? answer->path : std::nullopt;
}

bool ScriptedDesktop::presentError(const QString& message, const QString&,
                                   const std::vector<Recovery>& recoveries)
{
    const auto answer = take(QStringLiteral("error"), message);
    if (!answer || answer->choice < 0)
        return false;
    const auto chosen = static_cast<std::size_t>(answer->choice);
    if (chosen >= recoveries.size()) {
        QTest::qFail("no such recovery", __FILE__, __LINE__);
        return false;
    }
    return recoveries[chosen].attempt();
}

bool ScriptedDesktop::reveal(const QString& path)
{
    m_transcript << QStringLiteral("reveal ") + path;
    return QFileInfo::exists(path);
}

bool ScriptedDesktop::openFolder(const QString& path)
{
    m_transcript << QStringLiteral("folder ") + path;
    return QFileInfo::exists(path);
}

bool ScriptedDesktop::openWith(const QString& path, const QString& application)
{
    m_transcript << QStringLiteral("with %1 %2").arg(application, path);
    return QFileInfo::exists(application);
}

bool ScriptedDesktop::openUrl(const QUrl& url)
{
    m_transcript << QStringLiteral("url ") + url.toString(QUrl::FullyEncoded);
    return hasBrowser;
}

bool ScriptedDesktop::askToClose(qint64 process)
{
    m_transcript << QStringLiteral("close");
    return windows && windows(process);
}

void ScriptedDesktop::noteRecent(const QString& path)
{
    m_transcript << QStringLiteral("recent ") + path;
}

void ScriptedDesktop::log(const QString& line)
{
    m_transcript << QStringLiteral("log ") + line;
}

} // namespace tessera::test
