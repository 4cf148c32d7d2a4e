#pragma once

#include <unistd.h>

namespace tessera::test {

/// While it lives, files are opened with an ordinary user's rights: root would be allowed everything.
/// The real user is lowered as well: access() goes by that one.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        if (m_root)
            m_lowered = setresuid(65534, 65534, 0) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_lowered && setresuid(0, 0, 0) != 0)
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
