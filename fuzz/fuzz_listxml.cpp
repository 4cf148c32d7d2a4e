// Bytes as an emulator's list, in pieces of any size: the store equals what the rules give over the whole
// text.

#include "tools/listxmlconverter.h"
#include "tools/titletable.h"

#include "tools/naiveconverter.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    // Two bytes decide how it is done, the rest is the text.
    const unsigned how = data[0];
    const std::size_t pieceSize = 1 + data[1] * std::size_t{3};
    const std::string text(data + 2, data + size);
    const TitleTable titles("pong\tPON & <G>\npuck\n????\tnameless\n");
    const ConversionOptions options{(how & 1) != 0, (how & 2) != 0, (how & 4) != 0};

    ListxmlConverter converter(titles, options, ElementName::Undecided,
                               how & 8 ? findCandidatesPlainly : candidateSearch());
    bool isGood = true;
    for (std::size_t at = 0; at < text.size() && isGood; at += pieceSize)
        isGood = converter.feed(std::string_view(text).substr(at, pieceSize)).has_value();
    const auto list = isGood ? converter.finish() : std::unexpected(Failure{"refused", {}});
    const bool hasNul = text.find('\0') != std::string::npos;
    check(list.has_value() != hasNul);
    if (!list)
        return 0;

    const std::string store = list->text.joined();
    test::NaiveConverter naive;
    naive.options = options;
    naive.titles.assign(titles.entries().begin(), titles.entries().end());
    naive.isStream = true;
    naive.uuid = test::uuidOf(store);
    check(naive.convert(text) == store);
    check(naive.games == list->games);
    return 0;
}
