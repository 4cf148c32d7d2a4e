#pragma once

#include "core/failure.h"
#include "tools/printedtext.h"

#include <QLatin1StringView>

#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

class FolderNames;

/// What the tool says and writes; the same in every language.
namespace existencetexts {
inline constexpr QLatin1StringView started("Now Checking...");
inline constexpr QLatin1StringView noListfull("listfull.txt file is not found.");
inline constexpr QLatin1StringView noRoms("ROMs folder is not found.");
inline constexpr QLatin1StringView noReport("No Report file.");
inline constexpr QLatin1StringView summary("%1 ROMs ( Found: %2 / Not found: %3 )");
inline constexpr QLatin1StringView notWritten("Error writing file at %1\n%2");
inline constexpr std::string_view found = "Found";
inline constexpr std::string_view notFound = "Not found";
} // namespace existencetexts

/// One set that the emulator lists. The name is a view of a text that somebody else holds.
struct ExistenceRow {
    std::string_view romlistfull;
    bool isFound = false;

    std::string_view existence() const { return isFound ? existencetexts::found : existencetexts::notFound; }
    friend bool operator==(const ExistenceRow&, const ExistenceRow&) = default;
};

/// The sets that are found, then those that are not, each in the order of the list.
struct ExistenceList {
    ListedSets sets; ///< whose names the rows have
    std::vector<ExistenceRow> rows;
    int found = 0;
    int notFound = 0;
};

/// Without the list's header, "existence_no_header".
std::expected<ExistenceList, Failure> existenceOf(ListedSets sets, const FolderNames& roms);

/// The same of a file and a folder.
std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms);

/// The same of what the emulator printed, and a folder.
std::expected<ExistenceList, Failure> checkExistenceOf(std::string_view printed, const QString& roms);

/// The information line's words. `count` may differ from the sum: it is the rows that are shown.
QString existenceSummary(std::size_t count, int found, int notFound);

/// The report's text, with the rows as they come.
std::string existenceReport(std::span<const ExistenceRow> rows, int found, int notFound);

/// The rows as comma-separated values with a line of titles, as RFC 4180 has it.
std::string existenceCsv(std::span<const ExistenceRow> rows);

} // namespace tessera
