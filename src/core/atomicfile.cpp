#include "core/atomicfile.h"

#include <QSaveFile>

namespace tessera {

std::expected<void, Failure> writeAtomically(const QString& path, std::span<const std::string_view> pieces)
{
    QSaveFile file(path);
    const auto failed = [&] { return std::unexpected(Failure{"failure_write", {path, file.errorString()}}); };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    for (std::string_view piece : pieces) {
        // A disk that fills up takes a part of the piece first; the next attempt has the reason.
        while (!piece.empty()) {
            const qint64 written = file.write(piece.data(), static_cast<qint64>(piece.size()));
            if (written <= 0)
                return failed();
            piece.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    if (!file.commit())
        return failed();
    return {};
}

} // namespace tessera
