#include "widgets/firstpaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace tessera {

namespace {

// What a window that was just shown is told (its place, that it is active) comes first.
constexpr std::chrono::milliseconds settling{20};

} // namespace

FirstPaint::FirstPaint(QWidget& window)
    : QObject(&window)
{
    window.installEventFilter(this);
}

// The window's own paint event is the first of a pass that paints its children too; the timer comes after.
bool FirstPaint::eventFilter(QObject* window, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        window->removeEventFilter(this);
        QTimer::singleShot(settling, this, &FirstPaint::passed);
        connect(this, &FirstPaint::passed, this, &QObject::deleteLater);
    }
    return false;
}

} // namespace tessera
