#include "tools/existence.h"

#include "tools/foldersets.h"

#include <algorithm>
#include <cstdint>
#include <future>

namespace tessera {

namespace {

constexpr std::string_view header = "Name:";
// So many sets are looked for while memory is fetched.
constexpr std::size_t ahead = 12;

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

// What can be made of the list alone.
struct Asked {
    ListedSets sets;
    std::vector<PackedName> keys;

    explicit Asked(ListedSets listed)
        : sets(std::move(listed))
    {
        keys.reserve(sets.size());
        for (std::size_t i = 0; i < sets.size(); ++i)
            keys.push_back(FolderSets::keyOf(sets[i]));
    }
};

std::vector<std::uint8_t> findEach(const Asked& asked, const FolderSets& roms)
{
    std::vector<std::uint8_t> isFound(asked.keys.size());
    for (std::size_t i = 0; i < isFound.size(); ++i) {
        roms.expect(asked.keys[std::min(i + ahead, isFound.size() - 1)]);
        isFound[i] = roms.holds(asked.sets[i], asked.keys[i]) ? 1 : 0;
    }
    return isFound;
}

// Deliberate: the header stays among the sets and is counted; a list that has none is not shown at all, nor
// is one whose header is the name of something in the folder.
std::expected<ExistenceList, Failure> look(Asked asked, const FolderSets& roms)
{
    const std::vector<std::uint8_t> isFound = findEach(asked, roms);
    ExistenceList list{std::move(asked.sets), std::vector<ExistenceRow>(isFound.size())};
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

} // namespace

std::expected<ExistenceList, Failure> existenceOf(ListedSets sets, const FolderSets& roms)
{
    return look(Asked(std::move(sets)), roms);
}

// The list is read beside the folder, which takes longer.
std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms)
{
    auto reading = std::async(std::launch::async, [&]() -> std::expected<Asked, Failure> {
        auto sets = ListedSets::read(listfull);
        if (!sets)
            return std::unexpected(sets.error());
        return Asked(std::move(*sets));
    });
    const FolderSets folder = FolderSets::read(roms);
    auto asked = reading.get();
    if (!asked)
        return std::unexpected(asked.error());
    return look(std::move(*asked), folder);
}

std::expected<ExistenceList, Failure> checkExistenceOf(std::string_view printed, const QString& roms)
{
    return existenceOf(ListedSets(printed), FolderSets::read(roms));
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
