#include "tools/listedsets.h"

#include "core/encodings.h"
#include "tools/printedtext.h"

namespace tessera {

ListedSets::ListedSets(std::string_view printed)
{
    for (const std::string_view word : firstWords(printed))
        addWord(word);
}

std::expected<ListedSets, Failure> ListedSets::read(const QString& listfull)
{
    ListedSets sets;
    const auto read = readFirstWords(listfull, [&](std::span<const std::string_view> words) {
        for (const std::string_view word : words)
            sets.addWord(word);
    });
    if (!read)
        return std::unexpected(read.error());
    return sets;
}

void ListedSets::addWord(std::string_view word)
{
    if (isAscii(word))
        add(word);
    else
        add(printedText(std::string(word)));
}

} // namespace tessera
