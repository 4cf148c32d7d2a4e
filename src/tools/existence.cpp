#include "tools/existence.h"

#include "tools/foldersets.h"
#include "tools/printedtext.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace tessera {

namespace {

constexpr std::string_view header = "Name:";
// Bytes; lines of real lists are longer, so that the rows need not move.
constexpr std::size_t lineLength = 32;

// Takes the list's words one after another.
class Check
{
public:
    Check(const FolderSets& roms, std::size_t expected)
        : m_roms(roms)
    {
        m_list.rows.reserve(expected);
    }

    void take(std::string_view word)
    {
        const bool isFound = m_roms.holds(word);
        (isFound ? m_list.rows : m_missing).push_back({printedText(std::string(word)), isFound});
    }

    std::expected<ExistenceList, Failure> finish();

private:
    const FolderSets& m_roms;
    ExistenceList m_list;
    std::vector<ExistenceRow> m_missing;
};

// Deliberate: the header stays among the sets and is counted; a list that has none is not shown at all, nor
// is one whose header is the name of something in the folder.
std::expected<ExistenceList, Failure> Check::finish()
{
    if (std::ranges::find(m_missing, header, &ExistenceRow::romlistfull) == m_missing.end())
        return std::unexpected(Failure{"existence_no_header", {}});
    m_list.found = static_cast<int>(m_list.rows.size());
    m_list.notFound = static_cast<int>(m_missing.size());
    std::ranges::move(m_missing, std::back_inserter(m_list.rows));
    return std::move(m_list);
}

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

std::expected<ExistenceList, Failure> existenceOf(std::span<const std::string_view> words,
                                                  const FolderSets& roms)
{
    Check check(roms, words.size());
    for (const std::string_view word : words)
        check.take(word);
    return check.finish();
}

std::expected<ExistenceList, Failure> checkExistence(const QString& listfull, const QString& roms)
{
    const FolderSets sets = FolderSets::read(roms);
    Check check(sets, static_cast<std::size_t>(QFileInfo(listfull).size()) / lineLength);
    if (const auto read = readFirstWords(listfull, [&](std::string_view word) { check.take(word); }); !read)
        return std::unexpected(read.error());
    return check.finish();
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
