#include "widgets/calmwheel.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace tessera {

namespace {

// The control of a value that the wheel would change; null for anything else.
QWidget* valueControl(QObject* object)
{
    const bool is = qobject_cast<QComboBox*>(object) != nullptr
        || qobject_cast<QAbstractSpinBox*>(object) != nullptr || qobject_cast<QSlider*>(object) != nullptr;
    return is ? static_cast<QWidget*>(object) : nullptr;
}

} // namespace

CalmWheel::CalmWheel(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool CalmWheel::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        if (QWidget* control = valueControl(object);
            control != nullptr && control->focusPolicy() == Qt::WheelFocus)
            control->setFocusPolicy(Qt::StrongFocus);
    } else if (event->type() == QEvent::Wheel) {
        if (const QWidget* control = valueControl(object); control != nullptr && !control->hasFocus()) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

} // namespace tessera
