#pragma once

#include <QColor>
#include <QIcon>

class QApplication;

/// The look, in one place: palette, style sheet, icons. No window sets a colour or a font of its own; it
/// marks its widgets with the property "role" ("heading", "dim", "faint", "line", "panel", "accent",
/// "status").
namespace tessera::theme {

/// Gives the whole program its palette, font families and style sheet.
void apply(QApplication& application);

QColor color(const char* token);

/// A drawn icon of resources/icons in the colour of a token; the accent colour where it is checked.
QIcon icon(const QString& name, const char* token = "text");

/// A picture of resources/icons in its own colours: a status mark, the application's icon.
QIcon mark(const QString& name);

} // namespace tessera::theme
