#pragma once

#include <QString>

#include <optional>

namespace tessera {

/// Which program a file is: another size or time means that it was changed. The path is the file's own, links
/// followed, since an update of a Flatpak moves nothing but a link.
struct EmulatorIdentity {
    QString path;
    qint64 size = 0;
    qint64 modified = 0; ///< milliseconds since 1970, UTC

    /// Nothing where there is no file at the path.
    static std::optional<EmulatorIdentity> of(const QString& executable);

    /// All three in one line.
    QString text() const;

    bool operator==(const EmulatorIdentity&) const = default;
};

} // namespace tessera
