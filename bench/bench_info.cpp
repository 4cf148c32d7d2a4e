// bench_info: decoding a large Shift JIS file against ICU's own conversion of it and one pass of detection;
// the search for a set's entry against passes over the same text.

#include "rounds.h"

#include "core/encodings.h"
#include "info/historytext.h"
#include "info/textencoding.h"

#include <unicode/unistr.h>

#include <cstring>
#include <string>

#include <unicode/ucnv.h>

namespace {

using namespace tessera;

constexpr std::size_t fileSize = 60'000'000;
constexpr int entries = 45'000;

std::string setNamed(int number)
{
    return "set" + std::to_string(number);
}

// Entries of a usual length; each tells the same in Japanese or in English.
std::string historyFile(bool japanese)
{
    const std::string line = japanese
        ? "\x83\x70\x83\x62\x83\x4E\x83\x7D\x83\x93\x82\xCD\x96\xC0\x98\x48\x82\xCC\x83\x51\x81\x5B\x83\x80"
          "\x82\xC5\x82\xB7\x81\x42 1980\r\n"
        : "A maze with four ghosts, for $10 at most, published in 1980.\r\n";
    std::string text;
    text.reserve(fileSize + 4096);
    for (int i = 0; text.size() < fileSize; ++i) {
        text += "$info=" + setNamed(i) + (i % 2 == 0 ? "\r\n" : ",other" + std::to_string(i) + ",\r\n");
        text += "$bio\r\n\r\n";
        for (const std::size_t end = text.size() + fileSize / entries; text.size() < end;)
            text += line;
        text += "$end\r\n\r\n";
    }
    return text;
}

std::size_t converted(std::string_view bytes)
{
    UErrorCode status = U_ZERO_ERROR;
    UConverter* converter = ucnv_open("windows-31j", &status);
    const icu::UnicodeString units(bytes.data(), static_cast<int32_t>(bytes.size()), converter, status);
    ucnv_close(converter);
    return static_cast<std::size_t>(units.length());
}

// What a trial costs that only says yes or no: every byte looked at, nothing kept.
std::size_t detected(std::string_view bytes)
{
    UErrorCode status = U_ZERO_ERROR;
    UConverter* converter = ucnv_open("windows-31j", &status);
    ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    std::array<UChar, 8192> units;
    std::size_t count = 0;
    const char* source = bytes.data();
    do {
        UChar* target = units.data();
        status = U_ZERO_ERROR;
        ucnv_toUnicode(converter, &target, units.data() + units.size(), &source, bytes.data() + bytes.size(),
                       nullptr, true, &status);
        count += static_cast<std::size_t>(target - units.data());
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    ucnv_close(converter);
    return count;
}

// Each for another name, lest one pass be taken for all.
std::size_t passes(std::string_view text, int count)
{
    std::size_t found = 0;
    for (int i = 0; i < count; ++i) {
        const std::string line = "$info=nowhere" + std::to_string(i) + "\r\n";
        found += ::memmem(text.data(), text.size(), line.data(), line.size()) == nullptr ? 1 : 0;
    }
    return found;
}

} // namespace

int main()
{
    std::size_t kept = 0;
    const std::string bytes = historyFile(true);
    bench::compare(
        "decoding Shift JIS / ICU's own conversion and one detection",
        [&] { kept += decodedText(bytes).text->size(); }, [&] { kept += converted(bytes) + detected(bytes); },
        bench::timed, 7);

    const std::string text = historyFile(false);
    const InfoFile file(text);
    const auto search
        = [&](const std::string& name) { kept += historyText({&file, &file}, name).text.size(); };
    const int last = static_cast<int>(text.size() / (fileSize / entries)) / 100 * 95;
    bench::compare(
        "the last entries, alone / 3 passes",
        [&] { kept += file.entry(setNamed(last & ~1), EntryKind::Bio)->size(); },
        [&] { kept += passes(text, 3); });
    bench::compare(
        "the last entries, first of two / 3 passes",
        [&] { kept += file.entry(setNamed(last | 1), EntryKind::Bio)->size(); },
        [&] { kept += passes(text, 3); });
    bench::compare(
        "a name that is nowhere, in both files / 6 passes", [&] { search("nowhere"); },
        [&] { kept += passes(text, 6); });
    return kept == 0 ? 1 : 0;
}
