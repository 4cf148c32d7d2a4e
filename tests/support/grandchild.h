#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <csignal>

#include <sys/file.h>

namespace tessera::test {

/// The program that the stand-in leaves behind with its output open. It holds a lock for as long as it lives,
/// and is ended with this object.
class Grandchild
{
public:
    Grandchild() { qputenv("FAKE_GRANDCHILD", QFile::encodeName(m_file.fileName())); }
    ~Grandchild()
    {
        qunsetenv("FAKE_GRANDCHILD");
        const int id = isAlive() ? m_file.readAll().trimmed().toInt() : 0;
        if (id > 0)
            ::kill(id, SIGKILL);
    }
    Grandchild(const Grandchild&) = delete;
    Grandchild& operator=(const Grandchild&) = delete;

    bool isAlive()
    {
        return (m_file.isOpen() || m_file.open(QIODevice::ReadOnly))
            && ::flock(m_file.handle(), LOCK_SH | LOCK_NB) != 0;
    }

private:
    QTemporaryDir m_folder;
    QFile m_file{m_folder.filePath(QStringLiteral("grandchild"))};
};

} // namespace tessera::test
