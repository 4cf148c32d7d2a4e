#pragma once

#include <QString>

class QPushButton;
class QToolButton;

namespace tessera {

/// A button that shows only an icon; its name is its tool tip, and what a screen reader says.
QToolButton* toolButton(const QString& icon, const QString& name);

/// The button of a window's main command, with icon and text in the accent's colours.
QPushButton* accentButton(const QString& icon, const QString& text);

} // namespace tessera
