#include "artwork/ui/pictureloader.h"

#include "artwork/ui/picturereader.h"

#include <QFileInfo>

namespace tessera {

namespace {

constexpr int mostKept = 48 * 1024; // kilobytes

QImage withinSize(const QImage& image, QSize most)
{
    const bool isLarger = image.width() > most.width() || image.height() > most.height();
    return isLarger && !most.isEmpty() ? image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                       : image;
}

} // namespace

PictureLoader::PictureLoader(QSize most, QObject* parent)
    : QObject(parent)
    , m_most(most)
    , m_kept(mostKept)
{
}

void PictureLoader::load(const QString& wanted)
{
    // What is wanted is nothing any more once it has been told of.
    const QString path = wanted;
    m_wanted = path;
    if (const Kept* kept = m_kept.object(path)) {
        const QFileInfo file(path);
        if (kept->changed == file.lastModified() && kept->length == file.size()) {
            m_wanted.clear();
            const QImage image = kept->image;
            Q_EMIT loaded(path, image);
            return;
        }
    }
    if (!m_isReading && !m_isHeld)
        read(path);
}

void PictureLoader::setHeld(bool held)
{
    m_isHeld = held;
    if (!held && !m_wanted.isEmpty())
        load(m_wanted);
}

void PictureLoader::read(const QString& path)
{
    m_isReading = true;
    m_pool.start([this, path, most = m_most] {
        // Taken before it is read, so that a file that is written meanwhile counts as changed.
        const QFileInfo file(path);
        const QDateTime changed = file.lastModified();
        const qint64 length = file.size();
        const auto picture = readPicture(path);
        QMetaObject::invokeMethod(
            this,
            [this, path, changed, length, image = picture ? withinSize(*picture, most) : QImage(),
             reason = picture ? QString() : picture.error().text()] {
                takePicture(path, changed, length, image, reason);
            },
            Qt::QueuedConnection);
    });
}

void PictureLoader::takePicture(const QString& path, const QDateTime& changed, qint64 length,
                                const QImage& image, const QString& reason)
{
    m_isReading = false;
    if (!image.isNull())
        m_kept.insert(path, new Kept{changed, length, image}, static_cast<int>(image.sizeInBytes() / 1024));
    if (m_wanted.isEmpty())
        return;
    if (m_wanted != path)
        return load(m_wanted);
    m_wanted.clear();
    if (image.isNull())
        Q_EMIT failed(path, reason);
    else
        Q_EMIT loaded(path, image);
}

} // namespace tessera
