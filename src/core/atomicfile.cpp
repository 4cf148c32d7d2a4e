#include "core/atomicfile.h"

#include <QFileInfo>

namespace tessera {

AtomicFile::AtomicFile(const QString& path)
    : m_file(path)
{
    // A pipe or a device would be replaced by a file.
    const QFileInfo present(path);
    if (present.exists() && !present.isFile())
        m_obstacle = QStringLiteral("not a regular file");
    m_isGood = m_obstacle.isEmpty() && m_file.open(QIODevice::WriteOnly);
}

// A disk that fills up takes a part of the piece first; the next attempt has the reason.
bool AtomicFile::write(QByteArrayView piece)
{
    while (m_isGood && !piece.isEmpty()) {
        const qint64 written = m_file.write(piece.data(), piece.size());
        m_isGood = written > 0;
        piece = piece.sliced(qMax(written, qint64{0}));
    }
    return m_isGood;
}

std::expected<void, Failure> AtomicFile::commit()
{
    // What is still in the buffer has to be written first: QSaveFile does not notice where that fails.
    if (m_isGood && m_file.flush() && m_file.commit())
        return {};
    return std::unexpected(Failure{
        "failure_write", {m_file.fileName(), m_obstacle.isEmpty() ? m_file.errorString() : m_obstacle}});
}

std::expected<void, Failure> writeAtomically(const QString& path, QByteArrayView content)
{
    AtomicFile file(path);
    file.write(content);
    return file.commit();
}

std::expected<void, Failure> writeAtomically(const QString& path, std::span<const std::string_view> pieces)
{
    AtomicFile file(path);
    for (const std::string_view piece : pieces)
        file.write(piece);
    return file.commit();
}

} // namespace tessera
