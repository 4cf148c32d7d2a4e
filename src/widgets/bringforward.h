#pragma once

class QWidget;

namespace tessera {

/// On the screen. The toolkit calls a minimised window visible as well.
bool isShown(const QWidget& window);

/// Shows a window before all others, as the key window; a minimised one comes back.
void bringForward(QWidget& window);

/// Shows a window before all others, but the key window stays; a minimised one comes back.
void showBesides(QWidget& window);

/// Closes a window that is shown, and brings any other forward.
void toggle(QWidget& window);

} // namespace tessera
