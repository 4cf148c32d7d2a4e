#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// What an entry's own text begins with, in the history file and in the info file.
enum class EntryKind { Bio, Mame };

/// The text of a set's entry, as it stands in the file. Only the exact forms are found: for the history file
/// "$info=NAME" with nothing behind it, or else NAME as the first of several that commas end; for the info
/// file the first form alone. A name that stands second on such a line is deliberately not found.
/// The text goes up to the first "$end" behind it, whatever stands between; where none follows at all, up to
/// the next "$info=" or the end of the file.
std::optional<std::string_view> exactEntry(std::string_view file, std::string_view name, EntryKind kind);

/// An entry that the exact forms do not reach.
struct FiledEntry {
    std::string name; ///< the first on its line
    std::string_view text;
};

/// The first entry whose "$info=" line has the name at any place, whatever ends its lines.
std::optional<FiledEntry> filedEntry(std::string_view file, std::string_view name, EntryKind kind);

/// An entry's lines run together: a line with something on it loses its CR LF, so that an empty line is the
/// one line break behind the text before it. Every other line stays as it is.
std::string makeParsedString(std::string_view text);

} // namespace tessera
