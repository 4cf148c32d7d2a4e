#include "platform/trash.h"

#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace tessera {

// Where the user's own Trash cannot be made, the toolkit would move the file into whatever folder we are in.
std::expected<void, QString> moveToTrash(const QString& path)
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    std::error_code error;
    std::filesystem::create_directories(
        QFile::encodeName(home + QStringLiteral("/Trash/files")).toStdString(), error);
    if (error)
        return std::unexpected(QString::fromStdString(error.message()));
    QFile file(path);
    if (file.moveToTrash())
        return {};
    return std::unexpected(file.errorString());
}

} // namespace tessera
