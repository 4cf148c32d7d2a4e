#pragma once

class QAction;
class QString;
class QWidget;

namespace tessera {

/// The first item of a menu or a menu bar with exactly this title, level by level: a menu's own items come
/// before those of its submenus. The ampersands of mnemonics are no part of a title. Nothing without a menu
/// to start at.
QAction* findMenuItemNamed(const QString& title, const QWidget* start);

} // namespace tessera
