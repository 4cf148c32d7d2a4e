#pragma once

class QMenuBar;
class QWidget;

namespace tessera {

class Tessera_AppDelegate;

/// Fills the menu bar from one table of commands; their shortcuts work in every window.
void fillMainMenu(QMenuBar& bar, Tessera_AppDelegate& delegate);

/// Gives a window without menus their keys.
void carryMenuKeys(const QMenuBar& bar, QWidget& other);

} // namespace tessera
