#pragma once

#include "launch/launchoptions.h"

#include <QStringList>
#include <QStringView>

namespace tessera {

/// The options of the command-line emulator; neither the game nor anything that depends on the program's
/// version. Elements are arguments as they stand: literal double quotes in them are meant.
QStringList argumentsArray(const LaunchOptions& options);

/// The options of the MAME OS X application: each a name and one value.
QStringList argumentsArray2(const LaunchOptions& options);

/// True for an option of argumentsArray() that is followed by a value.
bool takesValue(QStringView option);

} // namespace tessera
