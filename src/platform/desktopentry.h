#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace tessera {

/// The command line that a desktop entry's text starts for a file: its Exec line, with the file where that
/// says so, or at the end. Nothing where it starts nothing.
std::optional<QStringList> desktopEntryCommand(const QByteArray& entry, const QString& file);

} // namespace tessera
