#pragma once

#include "core/failure.h"

namespace tessera {

/// Becomes the emulator: its output, its standard error among it, goes to our stdout, signals reach it, and
/// its status is ours. Comes back only where it could not be started.
Failure becomeEmulator(const QString& executable, const QStringList& arguments);

} // namespace tessera
