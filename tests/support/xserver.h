#pragma once

#include <QProcess>
#include <QStandardPaths>

namespace tessera::test {

/// An X server without a screen, and without a window manager, which DISPLAY names while this lives.
class XServer
{
public:
    XServer()
    {
        m_server.setProgram(QStringLiteral("Xvfb"));
        // A number of its own choice, which it prints once it can be connected to.
        m_server.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                               QStringLiteral("0"), QStringLiteral("800x600x24"), QStringLiteral("-nolisten"),
                               QStringLiteral("tcp")});
        m_server.start(QIODevice::ReadOnly);
        while (!m_server.canReadLine() && m_server.waitForReadyRead(20000)) { }
        const QByteArray number = m_server.readLine().trimmed();
        if (!number.isEmpty())
            qputenv("DISPLAY", ':' + number);
        m_isThere = !number.isEmpty();
    }
    ~XServer()
    {
        if (m_before.isNull())
            qunsetenv("DISPLAY");
        else
            qputenv("DISPLAY", m_before);
        m_server.terminate();
        m_server.waitForFinished();
    }
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    static bool isInstalled() { return !QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty(); }
    bool isThere() const { return m_isThere; }

private:
    QByteArray m_before = qgetenv("DISPLAY");
    QProcess m_server;
    bool m_isThere = false;
};

} // namespace tessera::test
