#pragma once

#include "launch/emulatorprocess.h"

#include <optional>

namespace tessera {

/// One run of an emulator with -showusage and, where it is an emulator, one with -showconfig; with a limit to
/// their time and to their output.
class UsageQuestion : public QObject
{
    Q_OBJECT

public:
    /// Ends with the object.
    explicit UsageQuestion(const QString& executable, QObject* parent = nullptr);

    /// Starts the program; answered() follows from the event loop.
    void ask();
    /// Starts the program and blocks until it has answered.
    void askAndWait();

    /// What it printed, one text behind the other: nothing where it could not be started, empty where it gave
    /// no whole answer.
    std::optional<QByteArray> answer() const { return m_answer; }
    /// False where the program was ended before it had finished: it may answer another time.
    bool isAnsweredForGood() const { return m_isAnsweredForGood; }

Q_SIGNALS:
    void answered();

private:
    void start(const QString& option);
    void runEnded(QProcess::ExitStatus how);
    void read();
    void giveUp();
    void settle(const std::optional<QByteArray>& answer);

    QString m_executable;
    EmulatorProcess m_process;
    QByteArray m_usage; ///< once it is complete
    QByteArray m_text; ///< of the present run
    std::optional<QByteArray> m_answer;
    bool m_settled = false;
    bool m_isAnsweredForGood = false;
};

} // namespace tessera
