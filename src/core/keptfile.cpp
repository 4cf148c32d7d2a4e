#include "core/keptfile.h"

#include "core/atomicfile.h"
#include "core/keptcopy.h"

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

bool KeptFile::exists() const
{
    return QFile::exists(m_path);
}

std::expected<QString, Failure> KeptFile::write(QByteArrayView text, const QDateTime& when)
{
    std::expected<QString, Failure> kept;
    if (FileState::of(m_path) != m_known)
        kept = keepAs(m_path, datedName(m_path, when));
    if (!kept)
        return kept;
    if (const auto written = writeAtomically(m_path, text); !written) {
        if (!kept->isEmpty())
            QFile::remove(*kept);
        return std::unexpected(written.error());
    }
    setRead();
    return kept;
}

} // namespace tessera
