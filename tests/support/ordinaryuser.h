#pragma once

#include <unistd.h>

namespace tessera::test {

/// While it lives, files are opened with an ordinary user's rights: root would be allowed everything.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        if (m_root)
            m_lowered = seteuid(65534) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_lowered && seteuid(0) != 0)
            _exit(1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// True where rights are an ordinary user's now.
    bool holds() const { return !m_root || m_lowered; }

private:
    bool m_root = geteuid() == 0;
    bool m_lowered = false;
};

} // namespace tessera::test
