#pragma once

class QWidget;

namespace tessera {

/// Escape and the desktop's own shortcut (Ctrl+W) close the window.
void closeByKeyboard(QWidget& window);

} // namespace tessera
