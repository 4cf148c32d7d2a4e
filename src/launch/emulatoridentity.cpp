#include "launch/emulatoridentity.h"

#include <QDateTime>
#include <QFileInfo>
#include <QProcessEnvironment>

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

QProcessEnvironment emulatorEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // LC_ALL would outvote LC_NUMERIC; as LANG it still decides all the rest.
    const QString everything = QStringLiteral("LC_ALL");
    if (!environment.value(everything).isEmpty())
        environment.insert(QStringLiteral("LANG"), environment.value(everything));
    environment.remove(everything);
    environment.insert(QStringLiteral("LC_NUMERIC"), QStringLiteral("C"));
    return environment;
}

} // namespace tessera
