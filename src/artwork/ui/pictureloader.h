#pragma once

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QThreadPool>

namespace tessera {

/// Reads pictures beside the windows, one at a time. Only the one that was asked for last is told of; those
/// that were asked for meanwhile are not read at all. The last few are kept.
class PictureLoader : public QObject
{
    Q_OBJECT

public:
    /// A picture that is larger is given in this size at most; an empty size is no limit.
    explicit PictureLoader(QSize most = {}, QObject* parent = nullptr);

    /// One of the two signals follows, unless another picture is asked for before; at once where the picture
    /// is kept and its file is the same.
    void load(const QString& wanted);
    /// While it is held, nothing is read; what was asked for last is read at the end.
    void setHeld(bool held);

Q_SIGNALS:
    void loaded(const QString& path, const QImage& image);
    void failed(const QString& path, const QString& reason);

private:
    /// A file as it was when it was read.
    struct Kept {
        QDateTime changed;
        qint64 length;
        QImage image;
    };

    void read(const QString& path);
    void takePicture(const QString& path, const QDateTime& changed, qint64 length, const QImage& image,
                     const QString& reason);

    QSize m_most;
    QString m_wanted; ///< the last that was asked for; empty once it has been told of
    bool m_isReading = false;
    bool m_isHeld = false;
    QCache<QString, Kept> m_kept; ///< costs in kilobytes
    QThreadPool m_pool; ///< the last member: its threads end before what they use is destroyed
};

} // namespace tessera
