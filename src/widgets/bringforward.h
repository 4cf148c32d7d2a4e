#pragma once

class QWidget;

namespace tessera {

/// Shows a window before all others, as the key window; a minimised one comes back.
void bringForward(QWidget& window);

} // namespace tessera
