#pragma once

#include <QString>

namespace tessera {

/// $XDG_DATA_HOME/Tessera/Tessera.xml
QString standardCataloguePath();

} // namespace tessera
