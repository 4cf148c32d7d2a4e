#include "launch/runending.h"

#include "launch/emulatorprocess.h"
#include "platform/desktop.h"

#include <csignal>

namespace tessera {

RunEnding::RunEnding(Desktop& desktop, const Patience& patience)
    : m_desktop(desktop)
    , m_patience(patience)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RunEnding::goOn);
}

void RunEnding::begin(pid_t leader)
{
    m_leader = leader;
    m_stage = Stage::Asked;
    if (m_desktop.askToClose(leader))
        m_timer.start(m_patience.closing);
    else
        goOn();
}

void RunEnding::goOn()
{
    switch (m_stage) {
    case Stage::Asked:
        return signalRun(Stage::Terminated, SIGTERM);
    case Stage::Terminated:
        return signalRun(Stage::Killed, SIGKILL);
    case Stage::Killed:
        // Nobody takes the dead away.
        return forget();
    }
}

void RunEnding::signalRun(Stage stage, int number)
{
    m_stage = stage;
    signalGroup(m_leader, number);
    m_timer.start(m_patience.terminating);
}

bool RunEnding::isLeftBehind()
{
    if (m_leader <= 0 || ::kill(-m_leader, 0) != 0)
        return false;
    if (m_stage == Stage::Asked)
        goOn();
    return true;
}

void RunEnding::forget()
{
    m_timer.stop();
    m_leader = 0;
}

} // namespace tessera
