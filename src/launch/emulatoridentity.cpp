#include "launch/emulatoridentity.h"

#include <QDateTime>
#include <QFileInfo>

namespace tessera {

std::optional<EmulatorIdentity> EmulatorIdentity::of(const QString& executable)
{
    const QFileInfo file(QFileInfo(executable).canonicalFilePath());
    if (executable.isEmpty() || !file.isFile())
        return std::nullopt;
    return EmulatorIdentity{file.filePath(), file.size(), file.lastModified().toMSecsSinceEpoch()};
}

QString EmulatorIdentity::text() const
{
    return QStringLiteral("%1 %2 ").arg(size).arg(modified) + path;
}

} // namespace tessera
