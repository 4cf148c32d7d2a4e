#include "tools/existence.h"

#include "tools/foldersets.h"
#include "tools/printedtext.h"

#include <algorithm>
#include <cstdint>
#include <future>

namespace tessera {

namespace {

constexpr std::string_view header = "Name:";

// In quotes where it must be; a quote in it is written twice.
void appendQuoted(std::string& csv, std::string_view value)
{
    if (value.find_first_of(",\"\r\n") == std::string_view::npos) {
        csv += value;
        return;
    }
    csv += '"';
    for (const char c : value) {
        if (c == '"')
            csv += '"';
        csv += c;
    }
    csv += '"';
}

} // namespace

// Deliberate: the header stays among the sets and is counted; a list that has none is not shown at all, nor
// is one whose header is the name of something in the folder.
std::expected<ExistenceList, Failure> existenceOf(std::span<const std::string_view> words,
                                                  const FolderSets& roms)
{
    const std::vector<std::uint8_t> isFound = roms.holdEach(words);
    ExistenceList list;
    list.rows.reserve(words.size());
    const auto take = [&](std::uint8_t answer) {
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (isFound[i] == answer)
                list.rows.push_back({printedText(std::string(words[i])), answer != 0});
        }
        return static_cast<int>(list.rows.size());
    };
    list.found = take(1);
    list.notFound = take(0) - list.found;
    const auto missing = std::span(list.rows).subspan(static_cast<std::size_t>(list.found));
    if (std::ranges::find(missing, header, &ExistenceRow::romlistfull) == missing.end())
        return std::unexpected(Failure{"existence_no_header", {}});
    return list;
}

// The list is read beside the folder, which takes longer.
std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms)
{
    std::expected<std::string, Failure> printed;
    std::vector<std::string_view> words;
    auto reading = std::async(std::launch::async, [&] {
        printed = readPrinted(listfull);
        if (printed)
            words = firstWords(*printed);
    });
    const FolderSets sets = FolderSets::read(roms);
    reading.get();
    if (!printed)
        return std::unexpected(printed.error());
    return existenceOf(words, sets);
}

std::expected<ExistenceList, Failure> checkExistenceOf(std::string_view printed, const QString& roms)
{
    return existenceOf(firstWords(printed), FolderSets::read(roms));
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

std::string existenceCsv(std::span<const ExistenceRow> rows)
{
    std::string csv = "Set,Existence\r\n";
    for (const ExistenceRow& row : rows) {
        appendQuoted(csv, row.romlistfull);
        csv += ',';
        appendQuoted(csv, row.existence());
        csv += "\r\n";
    }
    return csv;
}

} // namespace tessera
