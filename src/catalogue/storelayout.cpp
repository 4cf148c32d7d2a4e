#include "catalogue/storelayout.h"

#include <QUuid>

namespace tessera::storelayout {

std::string newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString();
}

} // namespace tessera::storelayout
