// bench_store TESSERA.XML: loading and writing a catalogue, each against the least that it could take.

#include "rounds.h"

#include "catalogue/storeparser.h"
#include "catalogue/storereader.h"
#include "catalogue/storewriter.h"

#include <QFile>

#include <filesystem>
#include <fstream>
#include <memory>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace tessera;

std::string wholeFile(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes(std::filesystem::file_size(path), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

void readIntoBuffer(const char* path)
{
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC);
    struct stat facts{};
    if (descriptor < 0 || ::fstat(descriptor, &facts) != 0)
        return;
    const auto size = static_cast<std::size_t>(facts.st_size);
    const auto buffer = std::make_unique_for_overwrite<char[]>(size);
    std::size_t used = 0;
    for (ssize_t count = 1; used < size && count > 0;
         used += static_cast<std::size_t>(std::max<ssize_t>(count, 0)))
        count = ::read(descriptor, buffer.get() + used, size - used);
    ::close(descriptor);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: bench_store TESSERA.XML\n", stderr);
        return 2;
    }
    const QString path = QFile::decodeName(argv[1]);
    const auto readBuffer = [&] { readIntoBuffer(argv[1]); };
    bench::compare(
        "load / read into a buffer", [&] { std::ignore = readStore(path); }, readBuffer, bench::timedAfresh);
    const auto load = [&] { std::ignore = parseStore(wholeFile(argv[1]), path); };
    bench::compare("load through the XML library / read into a buffer", load, readBuffer, bench::timedAfresh,
                   9);

    const auto store = readStore(path);
    if (!store) {
        std::fputs("bench_store: the store cannot be read\n", stderr);
        return 1;
    }
    std::printf("%zu records\n", store->records.size());
    const auto write = [&] { std::ignore = storeText(store->records); };
    bench::compare("text of the store / read into a buffer", write, readBuffer, bench::timedAfresh);
    return 0;
}
