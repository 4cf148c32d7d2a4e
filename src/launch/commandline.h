#pragma once

#include "launch/emulatorprofile.h"

namespace tessera {

/// What the emulator is started with.
struct CommandLine {
    QStringList arguments; ///< the game first
    QStringList leftOut; ///< what of the builder's list the emulator would not understand
    QString unwritable = QString(); ///< the folder that its log file cannot be written to

    /// One line for the log, without a line end; empty where nothing was left out.
    QString leftOutLine() const;
};

/// `game` is a short name or the absolute path of an archive; `built` is argumentsArray(), `own` the options
/// of a favourite, which go as they are. Without a profile everything does. With `where`, the folder that
/// the emulator works in, the builder's log file is left out when it cannot be written there, which would end
/// the emulator.
CommandLine commandLine(const std::optional<EmulatorProfile>& profile, const QString& game,
                        const QStringList& built, const QStringList& own, const QString& where = QString());

/// An option text parted at every single blank, so that two of them make an empty element.
QStringList ownOptions(const QString& text);

/// In one line as a shell reads it: what holds more than plain characters stands in quotes.
QString shellWords(const QStringList& words);

/// The last component of an archive's path without its extension; a short name as it is.
QString gameName(const QString& game);

} // namespace tessera
