#pragma once

#include <QTimer>

#include <chrono>

#include <sys/types.h>

namespace tessera {

class Desktop;

/// How long a run is given before it is told more firmly to end.
struct Patience {
    std::chrono::milliseconds closing{5000}; ///< after its window was asked
    std::chrono::milliseconds terminating{2000}; ///< after SIGTERM
};

/// Ends the processes of a run. Its window is asked to close, since an emulator saves its settings and states
/// then, and may not heed SIGTERM at all; SIGTERM and SIGKILL are for what does not end of it, and for what
/// has no window.
class RunEnding : public QObject
{
public:
    RunEnding(Desktop& desktop, const Patience& patience);

    /// `leader` leads the process group of the run.
    void begin(pid_t leader);
    /// The leader has ended. What it has left of its group gets its signals now; true while there is
    /// something.
    bool isLeftBehind();
    /// Nothing more is done to the run.
    void forget();

private:
    enum class Stage { Asked, Terminated, Killed };
    void goOn();
    void signalRun(Stage stage, int number);

    Desktop& m_desktop;
    Patience m_patience;
    pid_t m_leader = 0;
    Stage m_stage = Stage::Asked;
    QTimer m_timer; ///< until the next stage
};

} // namespace tessera
