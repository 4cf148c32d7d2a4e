#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace tessera::test {

/// A web server on this machine that says what it was told to, byte for byte.
class ScriptedServer : public QTcpServer
{
public:
    /// What behind an answer's last byte happens to the connection.
    enum class Then { Close, Wait };
    struct Answer {
        QByteArray bytes;
        Then then = Then::Close;
    };

    ScriptedServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, &ScriptedServer::greet);
    }

    QUrl url(const QString& path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path));
    }

    /// A whole answer with a length.
    static QByteArray answer(const QByteArray& head, const QByteArray& content)
    {
        return "HTTP/1.1 " + head + "\r\nContent-Length: " + QByteArray::number(content.size()) + "\r\n\r\n"
            + content;
    }

    QHash<QByteArray, Answer> answers; ///< by path
    QList<QByteArray> requests; ///< the heads of those that came

private:
    void greet()
    {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { hear(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }

    void hear(QTcpSocket& socket)
    {
        const QByteArray head = socket.peek(socket.bytesAvailable());
        if (!head.endsWith("\r\n\r\n"))
            return;
        requests << socket.readAll();
        const Answer answer = answers.value(head.split(' ').value(1));
        socket.write(answer.bytes);
        if (answer.then == Then::Close)
            socket.disconnectFromHost();
    }
};

} // namespace tessera::test
