#pragma once

#include "launch/launchoptions.h"

namespace tessera {

class DefaultsController;

/// The launch options as the controls would show them, from the settings alone.
LaunchOptions storedOptions(const DefaultsController& defaults, const SelectedGame& selected);

/// True when a file or folder exists at the path of the ROM folder.
bool romsFolderExists(const QString& path);

} // namespace tessera
