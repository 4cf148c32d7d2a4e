// Bytes as a store file: whatever they are, both ways of reading agree, and what was read can be written and
// read again without loss.

#include "catalogue/storeparser.h"
#include "catalogue/storereader.h"
#include "catalogue/storescanner.h"
#include "catalogue/storewriter.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace tessera;

bool sameValue(std::string_view a, std::string_view b)
{
    return a == b && (a.data() == nullptr) == (b.data() == nullptr);
}

bool sameRecords(const std::vector<GameRecord>& a, const std::vector<GameRecord>& b)
{
    return std::ranges::equal(a, b, [](const GameRecord& left, const GameRecord& right) {
        return std::ranges::equal(left.values, right.values, sameValue);
    });
}

void check(bool holds)
{
    if (!holds)
        std::abort();
}

std::optional<StoredCatalogue> scanThrough(std::string_view bytes, std::size_t window)
{
    std::string_view rest = bytes;
    const ByteSource source = [&](char* buffer, std::size_t room) {
        const std::size_t count = rest.copy(buffer, room);
        rest.remove_prefix(count);
        return static_cast<std::ptrdiff_t>(count);
    };
    return scanStore(source, bytes.size(), window);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const auto parsed = parseStore(bytes, QString());
    for (const std::size_t window : {scanWindow, std::size_t(700)}) {
        if (const auto scanned = scanThrough(bytes, window))
            check(parsed && sameRecords(scanned->records, parsed->records));
    }
    const auto read = readStoreText(bytes);
    check(read.has_value() == parsed.has_value());
    if (!read)
        return 0;
    const auto again = readStoreText(storeText(read->records));
    check(again && sameRecords(again->records, read->records));
    return 0;
}
