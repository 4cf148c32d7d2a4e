#pragma once

class QWidget;

namespace tessera {

/// Escape and the desktop's own shortcut (Ctrl+W) close the window; while a pop-up is open, Escape closes
/// that one alone.
void closeByKeyboard(QWidget& window);

} // namespace tessera
