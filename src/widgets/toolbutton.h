#pragma once

#include <QString>

class QToolButton;

namespace tessera {

/// A button that shows only an icon; its name is its tool tip, and what a screen reader says.
QToolButton* toolButton(const QString& icon, const QString& name);

} // namespace tessera
