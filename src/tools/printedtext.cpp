#include "tools/printedtext.h"

#include "core/encodings.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// Bytes; the largest that an emulator prints has some hundred MB, a device may have no end.
constexpr std::size_t textLimit = std::size_t{1} << 30;

std::unexpected<Failure> notRead(const QFile& file)
{
    return std::unexpected(Failure{"convert_not_read", {file.fileName(), file.errorString()}});
}

bool isWhiteSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view withoutWhiteSpace(std::string_view text)
{
    return text.substr(
        static_cast<std::size_t>(std::ranges::find_if_not(text, &isWhiteSpace) - text.begin()));
}

} // namespace

std::expected<std::string, Failure> readPrinted(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return notRead(file);
    std::string bytes;
    if (!file.isSequential())
        bytes.reserve(std::min(static_cast<std::size_t>(file.size()), textLimit));
    std::array<char, 128 * 1024> piece;
    for (;;) {
        const qint64 count = file.read(piece.data(), piece.size());
        if (count < 0)
            return notRead(file);
        if (count == 0)
            return bytes;
        bytes.append(piece.data(), static_cast<std::size_t>(count));
        if (bytes.size() > textLimit)
            return std::unexpected(Failure{"tool_text_too_large", {path}});
    }
}

std::string printedText(std::string bytes)
{
    if (isAscii(bytes))
        return bytes;
    std::string text;
    text.reserve(bytes.size());
    appendUtf8(text, bytes);
    return text;
}

std::string_view withoutIndent(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t\n"), text.size()));
}

std::vector<std::string_view> firstWords(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!(text = withoutWhiteSpace(text)).empty()) {
        // Words are short, and what follows them is long.
        const auto end = std::ranges::find_if(text, [](char c) { return c == ' ' || c == '\n'; });
        words.push_back(text.substr(0, static_cast<std::size_t>(end - text.begin())));
        text.remove_prefix(std::min(text.find('\n', words.back().size()), text.size()));
    }
    return words;
}

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
