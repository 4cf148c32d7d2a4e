#include "platform/qt/singleinstance.h"

#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

namespace tessera {

namespace {

constexpr int connectTimeout = 1500; // milliseconds
constexpr int answerTimeout = 10000; // milliseconds; a busy instance answers late, a hung one never
constexpr qint64 longestPath = 1 << 16; // bytes that are read of a message

} // namespace

SingleInstance::SingleInstance(const QString& name, QObject* parent)
    : QObject(parent)
    , m_name(name)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

QString SingleInstance::userName()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QStringLiteral("tessera-%1").arg(getuid())
                            : folder + QStringLiteral("/tessera");
}

bool SingleInstance::handOver(const QString& path)
{
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(connectTimeout))
        return false;
    socket.write(path.toUtf8() + '\n');
    // The answer says that the message was taken: without it this start goes on by itself.
    return socket.waitForBytesWritten(connectTimeout) && socket.waitForReadyRead(answerTimeout);
}

bool SingleInstance::listen()
{
    if (m_server.listen(m_name))
        return true;
    // Nobody answered handOver(), so what lies there is left over from a program that was killed.
    QLocalServer::removeServer(m_name);
    return m_server.listen(m_name);
}

void SingleInstance::stopListening()
{
    m_server.close();
    for (QLocalSocket* socket : m_server.findChildren<QLocalSocket*>())
        socket->abort();
}

void SingleInstance::receive()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine() && socket->bytesAvailable() < longestPath)
                return;
            // Whoever did not wait has gone on by itself, with its file.
            if (socket->state() != QLocalSocket::ConnectedState)
                return;
            const QString path = QString::fromUtf8(socket->readLine(longestPath)).chopped(1);
            socket->write("\n");
            socket->flush();
            // Later: whoever opens the file may wait for an answer, and this socket is gone by then.
            QMetaObject::invokeMethod(this, [this, path] { Q_EMIT handedOver(path); }, Qt::QueuedConnection);
        });
    }
}

} // namespace tessera
