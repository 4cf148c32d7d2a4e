#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace tessera {

/// False where the compositor alone moves and resizes windows; it is asked to, then.
bool mayPlaceWindows();

/// Moves a view's window by what the mouse is dragged over the view. A press that ends where it began is a
/// click.
class WindowDrag
{
public:
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event, QWidget& view);
    /// True for a click.
    bool release(const QMouseEvent& event);

private:
    bool handOver(const QWidget& view);

    QPoint m_last; ///< where the mouse was, on the screen
    QPoint m_start;
    bool m_isPressed = false;
    bool m_isDragging = false;
};

} // namespace tessera
