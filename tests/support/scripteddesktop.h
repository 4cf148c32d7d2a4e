#pragma once

#include "platform/desktop.h"

#include <deque>

namespace tessera::test {

/// A desktop that answers from a script and keeps a transcript. Each answer names the question that it was
/// written for; an unexpected question, or an answer left over, fails the test.
class ScriptedDesktop : public Desktop
{
public:
    ~ScriptedDesktop() override;

    /// The next alert's message must contain `question`; `button` is pressed.
    void answerAlert(const QString& question, int button);
    /// The next error's message must contain `question`; `recovery` is chosen, or -1 dismisses it.
    void answerError(const QString& question, int recovery = -1);
    void answerOpen(const std::optional<QString>& path);
    /// The next save panel must propose `name`.
    void answerSave(const QString& name, const std::optional<QString>& path);

    /// The next colour panel must begin with `from`.
    void answerColor(const QString& from, const std::optional<QString>& color);

    /// "beep", "sound Tink", "alert MESSAGE", "open", "save NAME", "color FROM", "error MESSAGE", "reveal
    /// PATH", "folder PATH", "with APPLICATION PATH", "url ADDRESS", "close", "recent PATH", "log LINE", in
    /// order.
    QStringList transcript() const { return m_transcript; }
    /// The first line of this text is taken out.
    void forget(const QString& line) { m_transcript.removeOne(line); }
    QStringList takeTranscript() { return std::exchange(m_transcript, {}); }

    std::vector<Alert> alerts;
    std::vector<OpenRequest> openRequests;
    std::vector<SaveRequest> saveRequests;
    std::vector<ColorRequest> colorRequests;
    /// What openUrl() answers.
    bool hasBrowser = true;
    /// What happens while the next question stands.
    std::function<void()> whileAsked;
    /// What askToClose() does and answers; without one there is no window.
    std::function<bool(qint64 process)> windows;
    QDateTime clock = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5));

    void beep() override;
    void playSound(const QString& name) override;
    int runAlert(const Alert& alert) override;
    std::optional<QString> openPanel(const OpenRequest& request) override;
    std::optional<QString> savePanel(const SaveRequest& request) override;
    std::optional<QString> colorPanel(const ColorRequest& request) override;
    bool presentError(const QString& message, const QString& informative,
                      const std::vector<Recovery>& recoveries) override;
    bool reveal(const QString& path) override;
    bool openFolder(const QString& path) override;
    bool openWith(const QString& path, const QString& application) override;
    bool openUrl(const QUrl& url) override;
    bool askToClose(qint64 process) override;
    void noteRecent(const QString& path) override;
    void log(const QString& line) override;
    QDateTime now() const override { return clock; }

private:
    struct Answer {
        QString kind;
        QString question;
        int choice = 0;
        std::optional<QString> path; ///< or colour
    };
    std::optional<Answer> take(const QString& kind, const QString& question);

    std::deque<Answer> m_answers;
    QStringList m_transcript;
};

} // namespace tessera::test
