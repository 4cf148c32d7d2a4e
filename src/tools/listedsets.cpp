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
    const auto printed = readPrinted(listfull);
    if (!printed)
        return std::unexpected(printed.error());
    return ListedSets(*printed);
}

void ListedSets::addWord(std::string_view word)
{
    if (isAscii(word))
        add(word);
    else
        add(printedText(std::string(word)));
}

} // namespace tessera
