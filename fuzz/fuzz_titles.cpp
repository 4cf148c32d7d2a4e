// Bytes as a title list: entries are clean, and a look-up gives what a search from the start gives.

#include "core/encodings.h"
#include "tools/titletable.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const tessera::TitleTable table(bytes);
    const auto& entries = table.entries();
    for (const std::string_view entry : entries) {
        check(!entry.empty() && tessera::isUtf8(entry));
        check(entry.find_first_of("\t\r\n") == std::string_view::npos && entry.front() != ' ');
        const auto first = std::find(entries.begin(), entries.end(), entry);
        const bool isLast = first + 1 == entries.end();
        check(table.titleOf(entry) == (isLast ? std::nullopt : std::optional(*(first + 1))));
    }
    return 0;
}
