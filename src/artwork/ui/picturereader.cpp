#include "artwork/ui/picturereader.h"

#include <QByteArrayList>
#include <QFileInfo>
#include <QImageReader>

namespace tessera {

namespace {

const QByteArrayList formats{"png", "jpeg", "gif", "bmp", "webp"};

bool isTooLarge(QSize size)
{
    return size.isValid() && qint64{size.width()} * size.height() > mostPixels;
}

} // namespace

std::expected<QImage, Failure> readPicture(const QString& path)
{
    // A pipe would block the reader.
    if (!QFileInfo(path).isFile())
        return std::unexpected(Failure{"picture_unreadable", {path, Failure{"picture_nofile", {}}.text()}});
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    // No vector formats: these could take any time to draw, or read other files.
    if (!formats.contains(reader.format()))
        return std::unexpected(Failure{"picture_unreadable", {path, reader.errorString()}});
    if (isTooLarge(reader.size()))
        return std::unexpected(
            Failure{"picture_toolarge",
                    {path, QString::number(reader.size().width()), QString::number(reader.size().height())}});
    QImage image = reader.read();
    if (image.isNull())
        return std::unexpected(Failure{"picture_unreadable", {path, reader.errorString()}});
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    // The density that the file declares is ignored.
    image.setDevicePixelRatio(1);
    return image;
}

} // namespace tessera
