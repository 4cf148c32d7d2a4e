#include "core/keptcopy.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace tessera {

namespace {

QString numbered(const QString& path, const QString& ending)
{
    const QFileInfo file(path);
    return QDir(file.path())
        .filePath(file.completeBaseName() + QLatin1Char(' ') + ending + QLatin1Char('.') + file.suffix());
}

QString reason(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

} // namespace

QString datedName(const QString& path, const QDateTime& when)
{
    return numbered(path, when.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")));
}

QString freeName(const QString& name)
{
    QString free = name;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = numbered(name, QString::number(number));
    return free;
}

std::expected<QString, Failure> keepAs(const QString& path, const QString& name)
{
    if (!QFileInfo(path).isFile())
        return QString();
    QString free = freeName(name);
    // A symbolic link is followed, as a new text replaces what it leads to. Where the file system has no hard
    // links, a copy does as well.
    if (::linkat(AT_FDCWD, QFile::encodeName(path).constData(), AT_FDCWD, QFile::encodeName(free).constData(),
                 AT_SYMLINK_FOLLOW)
        == 0)
        return free;
    const int error = errno;
    if (QFile::copy(path, free))
        return free;
    return std::unexpected(Failure{"failure_write", {free, reason(error)}});
}

} // namespace tessera
