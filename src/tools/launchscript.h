#pragma once

#include "core/failure.h"

#include <QStringList>

#include <array>
#include <expected>

namespace tessera {

namespace scripttexts {

inline constexpr QLatin1StringView started("Now making...");
inline constexpr QLatin1StringView noGame("Game is not selected.");
inline constexpr QLatin1StringView cancelled("Canceled.");
inline constexpr QLatin1StringView notWritten("Error writing file at %1 - %2");
inline constexpr QLatin1StringView saved("Saved a Script file.");

} // namespace scripttexts

// The choices by their positions. A position that is none of them writes nothing of its kind.
enum class ScriptFormat { None = -1, CommandFile, ShellScript, AppleScript };
enum class ScriptEmulator { None = -1, CommandLine, MameOsx, OtherApplication };

/// By format.
inline constexpr std::array scriptExtensions{"tool", "sh", "scpt"};

ScriptFormat scriptFormatAt(int position);
ScriptEmulator scriptEmulatorAt(int position);

/// What a script is made of.
struct ScriptRequest {
    ScriptFormat format = ScriptFormat::CommandFile;
    ScriptEmulator emulator = ScriptEmulator::CommandLine;
    QString emulatorPath; ///< of that emulator
    QString home; ///< where the other application keeps its archives
    QString game; ///< the short name
    QStringList options; ///< in the emulator's own words; none for the other application
};
QString scriptText(const ScriptRequest& request);

struct ScriptTitles {
    QString name; ///< the short name
    QString title;
    QString titlejp;
    QString emulator; ///< the emulator item's
};
/// The proposed name: 0 to 2 by one of the game's three names, 4 to 6 with the emulator before it, anything
/// else by none, and the format's extension.
QString scriptFileName(int choice, ScriptFormat format, const ScriptTitles& titles);

/// Writes the file; a command file can be started then.
std::expected<void, Failure> saveScript(const QString& path, ScriptFormat format, const QString& text);

} // namespace tessera
