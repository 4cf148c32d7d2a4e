#include "catalogue/cataloguepath.h"

#include <QStandardPaths>

namespace tessera {

QString standardCataloguePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Tessera/Tessera.xml");
}

} // namespace tessera
