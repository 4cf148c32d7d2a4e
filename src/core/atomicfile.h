#pragma once

#include "core/failure.h"

#include <QByteArrayView>
#include <QSaveFile>

#include <expected>
#include <span>
#include <string_view>

namespace tessera {

/// The new content of a file, piece by piece. The file is replaced in one step once every byte is on disk;
/// until then the old one stands.
class AtomicFile
{
public:
    explicit AtomicFile(const QString& path);

    /// False where the piece could not be written, and no more is wanted.
    bool write(QByteArrayView piece);
    /// The failure's key is "failure_write": the path and the system's reason.
    std::expected<void, Failure> commit();

private:
    QSaveFile m_file;
    QString m_obstacle; ///< what keeps the file from being replaced at all
    bool m_isGood = false;
};

/// The same with a content that is there already, whole or as pieces that follow one another.
std::expected<void, Failure> writeAtomically(const QString& path, QByteArrayView content);
std::expected<void, Failure> writeAtomically(const QString& path, std::span<const std::string_view> pieces);

} // namespace tessera
