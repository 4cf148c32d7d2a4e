#pragma once

#include "info/infofile.h"

#include <QLatin1StringView>

namespace tessera {

/// What the history window says; the same in every language.
namespace historytexts {
inline constexpr std::string_view historyHeading = "MAME History\r\n\r\n";
inline constexpr std::string_view noHistory = "No MAME history.\r\n\r\n";
inline constexpr std::string_view infoHeading = "MAME Info\r\n\r\n";
inline constexpr std::string_view noInfo = "No MAME Info\r\n";
inline constexpr std::string_view sectionEnd = "\r\n";
inline constexpr QLatin1StringView noName("No result.");
// Two blanks before "is", and one line break less in the second.
inline constexpr QLatin1StringView historyMissing("history.dat  is not found.\r\n\r\n");
inline constexpr QLatin1StringView infoMissing("mameinfo.dat  is not found.\r\n");
inline constexpr QLatin1StringView historyFailed("history load error: %1");
inline constexpr QLatin1StringView infoFailed("mameinfo load error: %1");
} // namespace historytexts

/// Both files; one that was never read, or could not be, is null.
struct InfoFiles {
    const InfoFile* history = nullptr;
    const InfoFile* info = nullptr;
};

/// Whether an entry that only stands beside or behind other names is shown too.
enum class FiledEntries { LeaveOut, Show };

struct HistoryText {
    std::string text;
    /// Under which name an entry that was left out is filed.
    std::optional<std::string> filedUnder;
};

/// What is shown for a set: its history and its info. A file that is absent gives an empty section.
/// `name` is not empty.
HistoryText historyText(const InfoFiles& files, std::string_view name,
                        FiledEntries filed = FiledEntries::LeaveOut);

} // namespace tessera
