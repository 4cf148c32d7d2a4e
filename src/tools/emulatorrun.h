#pragma once

#include "core/failure.h"

#include <QStringList>

#include <expected>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

namespace tessera {

/// Who watches an emulator that is asked something.
struct EmulatorRunWatch {
    std::stop_token stop; ///< the emulator is killed then, with all that it has started
    /// The next piece of what it prints.
    std::function<void(std::string_view piece)> printed;
};

/// Runs an emulator until it ends, and gives its exit status; what it prints on standard error is in the
/// failure where it crashed. For threads that may wait: the game that is played has a slot of its own.
std::expected<int, Failure> runEmulator(const QString& emulator, const QStringList& arguments,
                                        const EmulatorRunWatch& watch = {});

/// All that an emulator prints. A status other than 0 is a failure unless `mayFail`; so is an emulator that
/// prints nothing.
std::expected<std::string, Failure> printedBy(const QString& emulator, const QStringList& arguments,
                                              bool mayFail, const EmulatorRunWatch& watch = {});

/// Where what an emulator printed is kept, for the tools that read it from a file: a name in our cache.
QString printedPath(const QString& name);

/// The same as printedBy(), and what came is kept there under `name`, unless somebody asked to stop.
std::expected<std::string, Failure> keptPrintedBy(const QString& emulator, const QStringList& arguments,
                                                  bool mayFail, const QString& name,
                                                  const EmulatorRunWatch& watch = {});

} // namespace tessera
