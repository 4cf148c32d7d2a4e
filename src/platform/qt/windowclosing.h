#pragma once

#include <sys/types.h>

namespace tessera {

/// Asks the windows of a process, and of those that it started, to close, over a connection of its own to the
/// X server that DISPLAY names. False where there is no such server, or no such window that can be asked.
bool askWindowsToClose(pid_t process);

} // namespace tessera
