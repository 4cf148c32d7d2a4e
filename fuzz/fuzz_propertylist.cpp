// Bytes as a property list: whatever they are, what was read can be written, and reads and writes the same
// again.

#include "core/propertylist.h"

#include <cstdint>
#include <cstdlib>

using namespace tessera;

namespace {

// Read from our own text, and written once more.
QByteArray again(const QByteArray& written)
{
    const auto list = parsePropertyList(written, QString());
    const auto xml = list ? list->xml(QString()) : std::unexpected(list.error());
    if (!xml)
        std::abort();
    return *xml;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto list = parsePropertyList(bytes, QString());
    if (!list)
        return 0;
    const std::vector<PropertyList> copies(2, *list);
    const PropertyList& copy = copies.back();
    for (const PropertyList& item : copy.items()) {
        if (item.kind() == PropertyList::Kind::Dictionary)
            (void)item.text("name");
    }
    const auto written = copy.xml(QString());
    if (!written)
        return 0;
    // Of values under one key the last is left after the first reading.
    const QByteArray once = again(*written);
    if (again(once) != once)
        std::abort();
    return 0;
}
