#pragma once

#include <QObject>

class QSocketNotifier;

namespace tessera {

/// Tells that the program is to end without anybody being asked: the desktop ends the session, or somebody
/// sends SIGTERM, SIGHUP or SIGINT. One for the whole program.
class SessionEnd : public QObject
{
    Q_OBJECT

public:
    explicit SessionEnd(QObject* parent = nullptr);
    /// The signals end the program at once again.
    ~SessionEnd() override;

Q_SIGNALS:
    /// The session may end; it can still be called off.
    void mayEnd();
    /// The program has to end now.
    void ended();

private:
    void receive();

    int m_read = -1;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace tessera
