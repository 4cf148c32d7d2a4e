#pragma once

#include <QHBoxLayout>
#include <QWidget>

namespace tessera {

/// The widget under the name that tests and the style sheet know it by. `heard` is what a screen reader calls
/// it, where it does not read by itself.
template <class Widget>
Widget* named(const char* name, Widget* widget, const QString& heard = QString())
{
    widget->setObjectName(QLatin1StringView(name));
    if (!heard.isEmpty())
        widget->setAccessibleName(heard);
    return widget;
}

/// The widget in its part of the style sheet: "dim", "accent".
template <class Widget>
Widget* withRole(const char* role, Widget* widget)
{
    widget->setProperty("role", QLatin1StringView(role));
    return widget;
}

/// A layout that fills a widget from edge to edge. Without a spacing it has the style's own.
template <class Layout = QHBoxLayout>
Layout* edgeToEdge(QWidget* widget, int spacing = -1)
{
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace tessera
