#pragma once

#include "app/keycommands.h"

namespace tessera {

class HistoryWindow;
class Tessera_AppDelegate;

/// Windows by commands: what each command does while that window is key.
std::vector<KeyCommands::Row> keyTable(Tessera_AppDelegate& hub);

/// The row of the history window, which is made later.
KeyCommands::Row historyRow(Tessera_AppDelegate& hub, HistoryWindow& window);

} // namespace tessera
