#pragma once

#include <QString>

#include <expected>

namespace tessera {

/// Moves a file to the user's Trash; the system's reason where that was not possible. It may take a while.
std::expected<void, QString> moveToTrash(const QString& path);

} // namespace tessera
