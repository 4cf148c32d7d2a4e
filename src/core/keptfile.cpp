#include "core/keptfile.h"

#include "core/atomicfile.h"
#include "core/keptcopy.h"

#include <QFile>

namespace tessera {

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
    const std::array pieces{std::string_view(text.data(), static_cast<std::size_t>(text.size()))};
    if (const auto written = writeAtomically(m_path, pieces); !written) {
        if (!kept->isEmpty())
            QFile::remove(*kept);
        return std::unexpected(written.error());
    }
    setRead();
    return kept;
}

} // namespace tessera
