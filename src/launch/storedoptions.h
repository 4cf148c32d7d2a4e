#pragma once

#include "launch/launchoptions.h"

namespace tessera {

class DefaultsController;

/// The launch options as the controls would show them, from the settings alone.
LaunchOptions storedOptions(const DefaultsController& defaults, const SelectedGame& selected);

/// Recording and replay never stay switched on from one run of the program to the next.
void switchRecordingOff(DefaultsController& defaults);

/// True when a file or folder exists at the path of the ROM folder.
bool romsFolderExists(const QString& path);

} // namespace tessera
