#include "platform/qt/sessionend.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tessera {

namespace {

constexpr std::array endSignals{SIGTERM, SIGHUP, SIGINT};

// A signal handler may do little more than write a byte.
volatile std::sig_atomic_t writeEnd = -1;

void note(int)
{
    const char byte = 0;
    (void)!::write(writeEnd, &byte, 1);
}

} // namespace

SessionEnd::SessionEnd(QObject* parent)
    : QObject(parent)
{
    connect(qApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::mayEnd);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_read = ends[0];
    writeEnd = ends[1];
    m_notifier = new QSocketNotifier(m_read, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &SessionEnd::receive);
    struct sigaction action{};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    for (const int number : endSignals)
        ::sigaction(number, &action, nullptr);
}

SessionEnd::~SessionEnd()
{
    if (m_read < 0)
        return;
    for (const int number : endSignals)
        std::signal(number, SIG_DFL);
    ::close(m_read);
    ::close(writeEnd);
    writeEnd = -1;
}

void SessionEnd::receive()
{
    std::array<char, 16> bytes{};
    while (::read(m_read, bytes.data(), bytes.size()) > 0) { }
    Q_EMIT ended();
}

} // namespace tessera
