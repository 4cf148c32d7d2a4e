#pragma once

#include <QString>

#include <optional>

namespace tessera {

/// Which set's picture is wanted, of the kind whose folder it is.
struct WantedPicture {
    QString folder;
    QString name;
    /// Nothing where the parent's picture is not wanted.
    std::optional<QString> parent;
};

struct FoundPicture {
    QString path;
    bool isOfParent;

    bool operator==(const FoundPicture&) const = default;
};

/// The first of a set's numbered snapshots, or the picture under its name; then the same of its parent. A
/// name that is no plain file name has no picture: it would lie elsewhere. A file that cannot be read is
/// there all the same.
std::optional<FoundPicture> findPicture(const WantedPicture& wanted);

/// Neither empty nor hidden, and nothing that leads out of a folder.
bool isPlainFileName(const QString& name);

} // namespace tessera
