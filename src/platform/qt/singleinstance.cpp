#include "platform/qt/singleinstance.h"

#include <QLocalSocket>
#include <QStandardPaths>

#include <unistd.h>

namespace tessera {

namespace {

constexpr int handOverTimeout = 1500; // milliseconds; a hung first instance does not keep us from starting
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
    if (!socket.waitForConnected(handOverTimeout))
        return false;
    socket.write(path.toUtf8() + '\n');
    // The answer says that the message was taken: without it this start goes on by itself.
    return socket.waitForBytesWritten(handOverTimeout) && socket.waitForReadyRead(handOverTimeout);
}

bool SingleInstance::listen()
{
    if (m_server.listen(m_name))
        return true;
    // Nobody answered handOver(), so what lies there is left over from a program that was killed.
    QLocalServer::removeServer(m_name);
    return m_server.listen(m_name);
}

void SingleInstance::receive()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine() && socket->bytesAvailable() < longestPath)
                return;
            const QString path = QString::fromUtf8(socket->readLine(longestPath)).chopped(1);
            socket->write("\n");
            Q_EMIT handedOver(path);
        });
    }
}

} // namespace tessera
