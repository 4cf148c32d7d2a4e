#include "tools/existence.h"

#include "catalogue/foldernames.h"
#include "tools/printedtext.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::string_view header = "Name:";
constexpr std::string_view archiveEnding = ".zip";

} // namespace

bool setExists(const FolderNames& roms, std::string_view setName)
{
    std::string name(setName);
    // The folder itself, and what it is in, are not among its names; as a path they are asked for.
    if (name == "." || name == "..")
        name += '/';
    else if (roms.find(name + std::string(archiveEnding)))
        return true;
    return roms.find(name).has_value();
}

std::expected<ExistenceList, Failure> existenceOf(std::string_view listfull, const FolderNames& roms)
{
    ExistenceList list;
    for (const std::string_view word : firstWords(listfull)) {
        const bool isFound = setExists(roms, word);
        ++(isFound ? list.found : list.notFound);
        list.rows.push_back({std::string(word), isFound});
    }
    // Deliberate: the header stays among the sets and is counted; a list that has none is not shown at all,
    // nor is one whose header is the name of something in the folder.
    if (std::ranges::find(list.rows, ExistenceRow{std::string(header), false}) == list.rows.end())
        return std::unexpected(Failure{"existence_no_header", {}});
    std::ranges::stable_partition(list.rows, &ExistenceRow::isFound);
    return list;
}

std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms)
{
    const auto text = readPrintedText(listfull);
    if (!text)
        return std::unexpected(text.error());
    return existenceOf(*text, FolderNames::read(roms));
}

QString existenceSummary(std::size_t count, int found, int notFound)
{
    return QString(existencetexts::summary).arg(count).arg(found).arg(notFound);
}

std::string existenceReport(std::span<const ExistenceRow> rows, int found, int notFound)
{
    std::string report = "MAME ROM Existence Report\nAll: "
        + existenceSummary(rows.size(), found, notFound).toStdString() + "\n\n";
    for (const ExistenceRow& row : rows) {
        report += row.romlistfull;
        report += "\t\t";
        report += row.existence();
        report += '\n';
    }
    return report;
}

} // namespace tessera
