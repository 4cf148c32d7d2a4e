#pragma once

class QAction;
class QMenu;
class QMenuBar;
class QString;

namespace tessera {

/// The first item with exactly this title, level by level: a menu's own items come before those of its
/// submenus. The ampersands of mnemonics are no part of a title. Nothing without a menu to start at.
QAction* findMenuItemNamed(const QString& title, const QMenu* start);
QAction* findMenuItemNamed(const QString& title, const QMenuBar* start);

} // namespace tessera
