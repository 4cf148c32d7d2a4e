#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace tessera {

/// The command line that a desktop entry's text starts for a file: its Exec line, with the file where that
/// says so, or at the end. Nothing where it starts nothing.
std::optional<QStringList> desktopEntryCommand(const QByteArray& entry, const QString& file);

/// A desktop entry that starts a command in a folder. The icon is a picture file; without one the desktop
/// shows its own.
QByteArray desktopEntry(const QString& name, const QStringList& command, const QString& folder,
                        const QString& icon = QString());

} // namespace tessera
