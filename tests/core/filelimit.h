#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tessera::test {

/// While it lives, no file grows beyond `bytes`: what a full disk looks like to a writer.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &small);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace tessera::test
