#pragma once

#include "core/failure.h"

#include <QByteArrayView>
#include <QDateTime>

#include <expected>

namespace tessera {

/// Which content stands at a path: another inode, size or time means that somebody has written it.
struct FileState {
    quint64 inode = 0; ///< 0 where there is no file
    qint64 size = 0; ///< bytes
    qint64 seconds = 0;
    qint64 nanoseconds = 0;

    static FileState of(const QString& path);

    bool operator==(const FileState&) const = default;
};

/// A file that is written whole. Whatever stands at its path and was not read, because it is broken or
/// because somebody has written it since, is kept under a dated name when ours takes its place.
class KeptFile
{
public:
    explicit KeptFile(QString path)
        : m_path(std::move(path))
    {
    }

    const QString& path() const { return m_path; }
    bool exists() const;

    /// What `reader` makes of the path: an std::expected, or an std::optional.
    template <class Reader>
    auto read(Reader reader)
    {
        const FileState state = FileState::of(m_path);
        auto content = reader(m_path);
        m_known = content ? state : FileState();
        return content;
    }
    /// For a reader that works elsewhere: what stands there now is read.
    void setRead() { m_known = FileState::of(m_path); }
    /// What stands there is kept, although it was read.
    void setForeign() { m_known = {}; }

    /// Gives the name under which the file before is kept, empty where it is not. Where the text cannot be
    /// written, nothing is kept either.
    std::expected<QString, Failure> write(QByteArrayView text,
                                          const QDateTime& when = QDateTime::currentDateTime());

private:
    QString m_path;
    FileState m_known; ///< of the file as it was read or written last
};

} // namespace tessera
