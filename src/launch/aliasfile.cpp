#include "launch/aliasfile.h"

#include <QDir>
#include <QFileInfo>

namespace tessera {

std::optional<QString> resolveAliasFileWithPath(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return std::nullopt;
    return file.isSymLink() ? file.canonicalFilePath() : path;
}

std::optional<QString> userDataArchive(const QString& home, const QString& name)
{
    const auto data = resolveAliasFileWithPath(home + QStringLiteral("/Documents/MacMAME User Data"));
    if (!data || !QDir::isAbsolutePath(*data))
        return std::nullopt;
    const auto roms = resolveAliasFileWithPath(*data + QStringLiteral("/ROMs"));
    if (!roms || !QDir::isAbsolutePath(*roms))
        return std::nullopt;
    const QString archive = *roms + QLatin1Char('/') + name + QStringLiteral(".zip");
    return QFileInfo::exists(archive) ? std::optional(archive) : std::nullopt;
}

} // namespace tessera
