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
    // A pipe of that name would be waited for.
    if (!QFileInfo(path).isFile())
        return std::unexpected(Failure{"picture_unreadable", {path, Failure{"picture_nofile", {}}.text()}});
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    // Not what could take any time, or reads other files, to be drawn.
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
    // What the file says of its own density is of no use here.
    image.setDevicePixelRatio(1);
    return image;
}

} // namespace tessera
