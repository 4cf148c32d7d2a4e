#pragma once

#include "app/keycommands.h"

namespace tessera {

class Tessera_AppDelegate;

/// Windows by commands: what each command does while that window is key.
std::vector<KeyCommands::Row> keyTable(Tessera_AppDelegate& hub);

} // namespace tessera
