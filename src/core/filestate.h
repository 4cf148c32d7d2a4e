#pragma once

#include <QString>

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

} // namespace tessera
