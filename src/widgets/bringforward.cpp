#include "widgets/bringforward.h"

#include <QWidget>

namespace tessera {

void bringForward(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace tessera
