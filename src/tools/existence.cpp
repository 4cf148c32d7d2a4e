#include "tools/existence.h"

#include "catalogue/foldernames.h"

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

// "name.zip", or anything of that very name.
void findEach(const ListedSets& sets, const FolderNames& roms, std::size_t first,
              std::span<std::uint8_t> isFound)
{
    std::string archive;
    for (std::size_t i = 0; i < isFound.size(); ++i) {
        const std::string_view set = sets[first + i];
        archive.assign(set).append(".zip");
        isFound[i] = roms.find(archive) || roms.find(set) ? 1 : 0;
    }
}

// In two halves beside each other.
std::vector<std::uint8_t> findAll(const ListedSets& sets, const FolderNames& roms)
{
    std::vector<std::uint8_t> isFound(sets.size());
    const std::size_t half = sets.size() / 2;
    const auto later = std::async(std::launch::async,
                                  [&] { findEach(sets, roms, half, std::span(isFound).subspan(half)); });
    findEach(sets, roms, 0, std::span(isFound).first(half));
    later.wait();
    return isFound;
}

} // namespace

// Deliberate: the header stays among the sets and is counted; a list that has none is not shown at all, nor
// is one whose header is the name of something in the folder.
std::expected<ExistenceList, Failure> existenceOf(ListedSets sets, const FolderNames& roms)
{
    const std::vector<std::uint8_t> isFound = findAll(sets, roms);
    ExistenceList list{std::move(sets), std::vector<ExistenceRow>(isFound.size())};
    list.found = static_cast<int>(std::ranges::count(isFound, 1));
    list.notFound = static_cast<int>(isFound.size()) - list.found;
    bool hasHeader = false;
    auto found = list.rows.begin();
    auto missing = found + list.found;
    for (std::size_t i = 0; i < isFound.size(); ++i) {
        const std::string_view set = list.sets[i];
        *(isFound[i] != 0 ? found : missing)++ = {set, isFound[i] != 0};
        hasHeader = hasHeader || (set == header && isFound[i] == 0);
    }
    if (!hasHeader)
        return std::unexpected(Failure{"existence_no_header", {}});
    return list;
}

// The list is read beside the folder, which takes longer.
std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms)
{
    auto reading = std::async(std::launch::async, &ListedSets::read, listfull);
    const FolderNames folder = FolderNames::read(roms);
    auto sets = reading.get();
    if (!sets)
        return std::unexpected(sets.error());
    return existenceOf(std::move(*sets), folder);
}

std::expected<ExistenceList, Failure> checkExistenceOf(std::string_view printed, const QString& roms)
{
    return existenceOf(ListedSets(printed), FolderNames::read(roms));
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
