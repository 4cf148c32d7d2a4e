#include "core/atomicfile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace tessera {

std::expected<void, Failure> writeAtomically(const QString& path, std::span<const std::string_view> pieces)
{
    return writeAtomically(path, [pieces](const ContentSink& sink) {
        for (const std::string_view piece : pieces) {
            if (!sink(piece))
                return;
        }
    });
}

std::expected<void, Failure> writeAtomically(const QString& path,
                                             const std::function<void(const ContentSink&)>& content)
{
    // A pipe or a device would be replaced by a file.
    const QFileInfo present(path);
    if (present.exists() && !present.isFile())
        return std::unexpected(Failure{"failure_write", {path, QStringLiteral("not a regular file")}});
    QSaveFile file(path);
    const auto failed = [&] { return std::unexpected(Failure{"failure_write", {path, file.errorString()}}); };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    bool isGood = true;
    content([&](std::string_view piece) {
        // A disk that fills up takes a part of the piece first; the next attempt has the reason.
        while (isGood && !piece.empty()) {
            const qint64 written = file.write(piece.data(), static_cast<qint64>(piece.size()));
            isGood = written > 0;
            piece.remove_prefix(isGood ? static_cast<std::size_t>(written) : 0);
        }
        return isGood;
    });
    // What is still in the buffer has to be written first: commit() does not notice where that fails.
    if (!isGood || !file.flush() || !file.commit())
        return failed();
    return {};
}

} // namespace tessera
