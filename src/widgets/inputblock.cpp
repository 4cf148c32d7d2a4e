#include "widgets/inputblock.h"

#include <QApplication>
#include <QEvent>

namespace tessera {

namespace {

// A window's own object hands these on to its widgets, so that they are kept from these alone.
bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isRefused(const QObject& receiver, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Quit:
    case QEvent::Shortcut:
        return true;
    case QEvent::Close:
        return event.spontaneous();
    default:
        return receiver.isWidgetType() && isInput(event.type());
    }
}

} // namespace

InputBlock::InputBlock(const QList<QPointer<QObject>>& open)
    : m_open(open)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputBlock::eventFilter(QObject* receiver, QEvent* event)
{
    if (!isRefused(*receiver, *event) || QApplication::activeModalWidget() || m_open.contains(receiver))
        return false;
    // A close event that is only eaten counts as accepted.
    event->ignore();
    return true;
}

} // namespace tessera
