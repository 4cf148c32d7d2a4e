// bench_tools LISTFULL FOLDER: existence and marking against one reading of a folder with an archive for most
// of the list's sets, which is made in FOLDER; a verification report against twelve searches through it.

#include "rounds.h"

#include "tools/existence.h"
#include "tools/printedtext.h"
#include "tools/separation.h"
#include "tools/verification.h"

#include <QDir>
#include <QFile>

#include <cstring>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace tessera;

constexpr std::size_t archives = 40'000;
constexpr std::size_t reportSize = 200'000'000;

void makeArchives(const std::string& folder, std::span<const std::string_view> sets)
{
    for (const std::string_view set : sets.first(std::min(archives, sets.size())))
        ::close(
            ::open((folder + '/' + std::string(set) + ".zip").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
}

// Every name once, kept nowhere.
std::size_t readFolder(const char* folder)
{
    std::size_t bytes = 0;
    DIR* entries = ::opendir(folder);
    while (const dirent* entry = entries == nullptr ? nullptr : ::readdir(entries))
        bytes += std::strlen(entry->d_name);
    if (entries != nullptr)
        ::closedir(entries);
    return bytes;
}

// As an emulator would print it of a large collection with something of everything.
std::string verifyroms(std::span<const std::string_view> sets)
{
    constexpr std::array<std::string_view, 10> lines{" : a.1 (4096 bytes) - NOT FOUND\n",
                                                     " : b.2 (8192 bytes) - INCORRECT CHECKSUM:\n",
                                                     " : c.3 (16384 bytes) - INCORRECT LENGTH: 2048 bytes\n",
                                                     " : d.4 (4096 bytes) - NEEDS REDUMP\n",
                                                     " : e.5 (20 bytes) - NOT FOUND - NO GOOD DUMP KNOWN\n",
                                                     " : f.6 (4096 bytes) - NOT FOUND (shared with parent)\n",
                                                     " : g.7 (4096 bytes) - NOT FOUND (neogeo)\n",
                                                     " is bad\n",
                                                     " is good\n",
                                                     " is best available\n"};
    std::string text;
    text.reserve(reportSize + 200);
    for (std::size_t i = 0; text.size() < reportSize; ++i) {
        text += "romset ";
        text += sets[i % sets.size()];
        text += lines[i % lines.size()];
        if (i % lines.size() == 1)
            text += "EXPECTED: CRC(d9dafcc3) SHA1(a089a9bc55fb7d6d0ac53f91b258396d5d62677a)\n   FOUND: "
                    "CRC(ab54d286)\n";
    }
    return text;
}

std::size_t twelveSearches(std::string_view text)
{
    std::size_t hits = 0;
    for (const Verdict& verdict : verdicts) {
        const char* from = text.data();
        const char* const end = from + text.size();
        while (const void* hit = ::memmem(from, static_cast<std::size_t>(end - from), verdict.words.data(),
                                          verdict.words.size())) {
            ++hits;
            from = static_cast<const char*>(hit) + verdict.words.size();
        }
    }
    return hits;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("usage: bench_tools LISTFULL FOLDER\n", stderr);
        return 2;
    }
    const QString roms = QFile::decodeName(argv[2]) + QStringLiteral("/roms");
    const auto text = readPrinted(QFile::decodeName(argv[1]));
    if (!text || !QDir().mkpath(roms))
        return 1;
    const auto words = firstWords(*text);
    // All but the header.
    const auto sets = std::span(words).subspan(1);
    const std::string folder = roms.toStdString();
    makeArchives(folder, sets);
    const QString listfull = QFile::decodeName(argv[1]);
    const auto list = checkExistence(listfull, roms);
    if (!list)
        return 1;
    std::printf("%zu sets, %d found\n", list->rows.size(), list->found);

    std::size_t kept = 0;
    bench::compare(
        "existence / reading the folder once", [&] { kept += checkExistence(listfull, roms)->rows.size(); },
        [&] { kept += readFolder(folder.c_str()); });

    const auto names = romNames(roms);
    const auto mark = [&](std::size_t part) {
        const SupportedNames supported(text->substr(0, text->size() / part));
        for (std::size_t i = 0; i < names.size() / part; ++i)
            kept += supported.supports(names[i]) ? 1 : 0;
    };
    bench::compare("marking: the whole / half of list and folder", [&] { mark(1); }, [&] { mark(2); });

    const std::string printed = verifyroms(sets);
    bench::compare(
        "verification with all twelve / twelve searches",
        [&] { kept += verificationReport(printed, ChosenVerdicts().set()).size(); },
        [&] { kept += twelveSearches(printed); }, bench::timed, 5);
    return kept == 0 ? 1 : 0;
}
