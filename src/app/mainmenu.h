#pragma once

class QMenuBar;

namespace tessera {

class Tessera_AppDelegate;

/// Fills the menu bar from one table of commands; their shortcuts work in every window.
void fillMainMenu(QMenuBar& bar, Tessera_AppDelegate& delegate);

} // namespace tessera
