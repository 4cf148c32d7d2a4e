#include "widgets/bringforward.h"

#include <QWidget>

namespace tessera {

bool isShown(const QWidget& window)
{
    return window.isVisible() && !window.isMinimized();
}

void bringForward(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void showBesides(QWidget& window)
{
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void toggle(QWidget& window)
{
    if (isShown(window))
        window.close();
    else
        bringForward(window);
}

} // namespace tessera
