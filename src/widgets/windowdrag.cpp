#include "widgets/windowdrag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>

namespace tessera {

bool mayPlaceWindows()
{
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

void WindowDrag::press(const QMouseEvent& event)
{
    m_isPressed = event.button() == Qt::LeftButton;
    m_isDragging = false;
    m_start = m_last = event.globalPosition().toPoint();
}

// Only where windows cannot be placed: elsewhere it depends on the window manager whether it takes the drag.
bool WindowDrag::handOver(const QWidget& view)
{
    QWindow* window = view.window()->windowHandle();
    return !mayPlaceWindows() && window != nullptr && window->startSystemMove();
}

void WindowDrag::move(const QMouseEvent& event, QWidget& view)
{
    if (!m_isPressed)
        return;
    const QPoint place = event.globalPosition().toPoint();
    const int far = QGuiApplication::styleHints()->startDragDistance();
    if (!m_isDragging && (place - m_start).manhattanLength() < far)
        return;
    m_isDragging = true;
    // The compositor takes the mouse over: no release reaches us then.
    if (handOver(view)) {
        m_isPressed = false;
        return;
    }
    QWidget& window = *view.window();
    if (!window.isMaximized() && !window.isFullScreen())
        window.move(window.pos() + place - m_last);
    m_last = place;
}

bool WindowDrag::release(const QMouseEvent& event)
{
    const bool isClick = m_isPressed && !m_isDragging && event.button() == Qt::LeftButton;
    if (event.button() == Qt::LeftButton)
        m_isPressed = m_isDragging = false;
    return isClick;
}

} // namespace tessera
