#pragma once

#include <QByteArray>

#include <sys/mount.h>

namespace tessera::test {

/// A file system of 64 KB in a folder's place while it lives, where one may be mounted.
class SmallDisk
{
public:
    explicit SmallDisk(QByteArray at)
        : m_at(std::move(at))
        , m_isThere(::mount("none", m_at.constData(), "tmpfs", 0, "size=64k") == 0)
    {
    }
    ~SmallDisk() { takeAway(); }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isThere() const { return m_isThere; }
    /// As when somebody pulls it out.
    void takeAway()
    {
        if (m_isThere)
            ::umount2(m_at.constData(), MNT_DETACH);
        m_isThere = false;
    }

private:
    QByteArray m_at;
    bool m_isThere;
};

} // namespace tessera::test
