#include "launch/osxapplication.h"

#include "core/propertylist.h"
#include "launch/commandline.h"

#include <QDir>
#include <QFileInfo>

namespace tessera {

namespace {

std::optional<QString> textOf(const QString& path, const char* key)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    const auto list = readPropertyList(path);
    if (!list || list->kind() != PropertyList::Kind::Dictionary)
        return std::nullopt;
    return list->text(key);
}

} // namespace

QString bundleExecutable(const QString& application)
{
    const QFileInfo bundle(application);
    if (!bundle.isDir())
        return application;
    // A bundle that names nothing has an executable of its own name.
    const auto named = textOf(application + QStringLiteral("/Contents/Info.plist"), "CFBundleExecutable");
    return application + QStringLiteral("/Contents/MacOS/")
        + (named && !named->isEmpty() ? *named : QFileInfo(QDir::cleanPath(application)).completeBaseName());
}

QStringList osxGameArguments(const QString& game, const QString& romFolder)
{
    const QString folder = QDir::isAbsolutePath(game) ? QFileInfo(game).path() : romFolder;
    QStringList arguments{QStringLiteral("-Game"), gameName(game)};
    if (!folder.isEmpty())
        arguments << QStringLiteral("-RomPath") << folder;
    return arguments;
}

std::optional<QString> osxRomPath(const QString& home)
{
    return textOf(home + QStringLiteral("/Library/Preferences/net.mame.mameosx.plist"), "RomPath");
}

} // namespace tessera
