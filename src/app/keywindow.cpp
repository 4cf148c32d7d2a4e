#include "app/keywindow.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace tessera {

namespace {

QWidget* widgetOf(const QWindow* window)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window)
            return widget;
    }
    return nullptr;
}

// Menus and pop-ups, and what waits for an answer.
bool isPassing(const QWidget& window)
{
    return window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip || window.isModal();
}

} // namespace

KeyWindow::KeyWindow(QObject* parent)
    : QObject(parent)
{
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &KeyWindow::focusChanged);
}

void KeyWindow::watch(QWidget& window, Kind kind)
{
    m_kinds.insert(&window, kind);
}

void KeyWindow::focusChanged(QWindow* focused)
{
    const QWidget* window = focused == nullptr ? nullptr : widgetOf(focused);
    if (window == nullptr || isPassing(*window))
        return;
    const Kind kind = m_kinds.value(window, Kind::Other);
    if (std::exchange(m_kind, kind) != kind)
        Q_EMIT changed();
}

} // namespace tessera
