#pragma once

#include <QStandardPaths>

namespace tessera {

/// $XDG_DATA_HOME/Tessera/Tessera.xml
inline QString standardCataloguePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Tessera/Tessera.xml");
}

} // namespace tessera
