#pragma once

#include <QColor>
#include <QIcon>

class QApplication;

/// The look, in one place: palette, style sheet, icons. No window sets a colour or a font of its own; it
/// marks its widgets with the property "role" ("heading", "dim", "faint", "line", "panel", "accent",
/// "status").
namespace tessera::theme {

/// Gives the whole program its style, palette and font families; before the first widget.
void apply(QApplication& application);

/// Gives the whole program its style sheet, once; after the windows are put together and before one is shown.
/// Each widget that moves to another parent under a style sheet costs a full polish of everything in it.
void applyStyleSheet(QApplication& application);

QColor color(const char* token);

/// A drawn icon of resources/icons in the colour of a token; the accent colour where it is checked.
QIcon icon(const QString& name, const char* token = "text");

/// A picture of resources/icons in its own colours: a status mark, the application's icon.
QIcon mark(const QString& name);

} // namespace tessera::theme
