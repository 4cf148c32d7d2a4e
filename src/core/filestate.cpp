#include "core/filestate.h"

#include <QFile>

#include <sys/stat.h>

namespace tessera {

FileState FileState::of(const QString& path)
{
    struct stat state{};
    if (::stat(QFile::encodeName(path).constData(), &state) != 0)
        return {};
    return {state.st_ino, state.st_size, state.st_mtim.tv_sec, state.st_mtim.tv_nsec};
}

} // namespace tessera
