#pragma once

#include "core/failure.h"

#include <vector>

namespace tessera {

/// Why an emulator ended, in plain words, from what it printed: the files that it misses and the archives
/// that hold them, an option or a system that it does not know, a screen that there is not. None where it
/// does not say.
std::vector<Failure> failureReasons(const QString& printed);

} // namespace tessera
