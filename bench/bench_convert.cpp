// bench_convert LISTXML [TITLES]: converting a saved list, against reading the file through a buffer.

#include "rounds.h"

#include "tools/conversion.h"
#include "tools/titletable.h"

#include <QFile>

#include <array>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace tessera;

alignas(4096) std::array<char, std::size_t{256} * 1024> buffer;

void readThroughBuffer(const char* path)
{
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC);
    while (::read(descriptor, buffer.data(), buffer.size()) > 0)
        continue;
    ::close(descriptor);
}

// Megabytes, the most that were resident so far.
double peakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::stod(line.substr(6)) / 1024;
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2 || argc > 3) {
        std::fputs("usage: bench_convert LISTXML [TITLES]\n", stderr);
        return 2;
    }
    const QString listxml = QFile::decodeName(argv[1]);
    TitleTable titles;
    if (argc > 2) {
        const QString path = QFile::decodeName(argv[2]);
        bench::compare(
            "titles / read through a buffer", [&] { return readTitles(path); },
            [&] { readThroughBuffer(argv[2]); });
        if (auto table = readTitles(path))
            titles = std::move(*table);
    }
    const double before = peakMemory();
    {
        const auto list = convertFile(listxml, titles, {});
        if (!list) {
            std::fprintf(stderr, "bench_convert: %s\n", list.error().key);
            return 1;
        }
        std::printf("%zu games, %.1f MB of store, %.1f MB resident above the program\n", list->games,
                    static_cast<double>(list->text.size()) / 1e6, peakMemory() - before);
    }
    bench::compare(
        "convert / read through a buffer", [&] { return convertFile(listxml, titles, {}); },
        [&] { readThroughBuffer(argv[1]); }, bench::timedAfresh);
    return 0;
}
