#pragma once

#include <QString>

#include <optional>

namespace tessera {

/// What a link leads to, over any number of links; the path itself, as it is written, where it is no link.
/// Nothing where there is nothing.
std::optional<QString> resolveAliasFileWithPath(const QString& path);

/// The archive of a set among the user data of MacMAME in `home`, any folder of which may be a link. Nothing
/// where it is not there.
std::optional<QString> userDataArchive(const QString& home, const QString& name);

} // namespace tessera
