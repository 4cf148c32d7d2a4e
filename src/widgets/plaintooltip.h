#pragma once

#include <QString>

namespace tessera {

/// For setToolTip(): a text from outside reads as it stands, also where it looks like markup.
QString plainToolTip(const QString& text);

} // namespace tessera
