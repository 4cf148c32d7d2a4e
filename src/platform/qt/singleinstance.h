#pragma once

#include <QLocalServer>
#include <QObject>

namespace tessera {

/// One running Tessera a user: the first one listens, a second one hands its file over and ends.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `name` tells users apart; the socket lies in $XDG_RUNTIME_DIR where there is one.
    explicit SingleInstance(const QString& name = userName(), QObject* parent = nullptr);

    static QString userName();

    /// Hands `path` (may be empty) to an instance that already runs. False where there is none.
    bool handOver(const QString& path);
    /// Becomes the instance that others hand over to.
    bool listen();
    /// The next start goes on by itself, and so does one that was not answered yet.
    void stopListening();

Q_SIGNALS:
    /// Another start of the program: bring ours to the front, and open `path` unless it is empty.
    void handedOver(const QString& path);

private:
    void receive();

    QString m_name;
    QLocalServer m_server;
};

} // namespace tessera
