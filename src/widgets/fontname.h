#pragma once

#include <QFont>
#include <QString>

namespace tessera {

/// One text for a family and a style, as settings keep it: "Inter", "Inter Bold". The style is left out where
/// the family alone brings it back.
QString fontName(const QFont& font);

/// The font that a name stands for, with the program's own families behind it for what it lacks. A name
/// that no font has gives a font that looks like the program's.
QFont namedFont(const QString& name);

} // namespace tessera
