// Bytes as a history file: the text is UTF-8, an entry is a part of it that ends where it must, and reflowing
// takes line ends only.

#include "core/encodings.h"
#include "info/historytext.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace tessera;

void check(bool holds)
{
    if (!holds)
        std::abort();
}

void checkEntry(std::string_view text, std::string_view entry)
{
    check(entry.data() >= text.data() && entry.data() + entry.size() <= text.data() + text.size());
    // Another entry's beginning stands in it only where nothing ended this one before.
    check(entry.find("$end") == std::string_view::npos);
    const std::string_view behind
        = text.substr(static_cast<std::size_t>(entry.data() - text.data()) + entry.size());
    check(entry.find("$info=") == std::string_view::npos || behind.starts_with("$end"));
    std::string parsed = makeParsedString(entry);
    check(parsed.size() <= entry.size());
    std::string plain(entry);
    for (std::string* one : {&parsed, &plain})
        std::erase_if(*one, [](char c) { return c == '\r' || c == '\n'; });
    check(parsed == plain);
}

void checkKind(const InfoFile& file, std::string_view name, EntryKind kind)
{
    const auto entry = file.entry(name, kind);
    if (entry && !file.text().empty())
        checkEntry(file.text(), *entry);
    if (const auto filed = file.filed(name, kind)) {
        check(!filed->name.empty());
        checkEntry(file.text(), filed->text);
    }
}

} // namespace

// The first byte says how many of the next ones are the name that is looked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string all(data + 1, data + size);
    const std::size_t nameSize = std::min<std::size_t>(data[0] % 8, all.size());
    const std::string name = all.substr(0, nameSize);
    const auto file = InfoFile::parse(all.substr(nameSize), QString());
    if (!file)
        return 0;
    check(isUtf8(file->text()));
    for (const EntryKind kind : {EntryKind::Bio, EntryKind::Mame})
        checkKind(*file, name, kind);
    const HistoryText left = historyText({&*file, &*file}, name);
    const HistoryText shown = historyText({&*file, &*file}, name, FiledEntries::Show);
    check(shown.filedUnder == std::nullopt && (left.filedUnder || left.text == shown.text));
    return 0;
}
