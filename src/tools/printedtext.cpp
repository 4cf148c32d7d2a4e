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

// `take` gets each piece, and as how many bytes the whole file is known.
template <class Take>
std::expected<void, Failure> readPieces(const QString& path, Take take)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return notRead(file);
    const std::size_t expected = file.isSequential() ? 0 : static_cast<std::size_t>(file.size());
    std::array<char, 128 * 1024> piece;
    for (std::size_t all = 0;;) {
        const qint64 count = file.read(piece.data(), piece.size());
        if (count < 0)
            return notRead(file);
        if (count == 0)
            return {};
        all += static_cast<std::size_t>(count);
        if (all > textLimit)
            return std::unexpected(Failure{"tool_text_too_large", {path}});
        take(std::string_view(piece.data(), static_cast<std::size_t>(count)), std::min(expected, textLimit));
    }
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

// Words are short, and what follows them is long.
template <class Take>
void takeFirstWords(std::string_view text, Take take)
{
    while (!(text = withoutWhiteSpace(text)).empty()) {
        std::size_t end = 0;
        while (end < text.size() && text[end] != ' ' && text[end] != '\n')
            ++end;
        take(text.substr(0, end));
        text.remove_prefix(std::min(text.find('\n', end), text.size()));
    }
}

} // namespace

std::expected<std::string, Failure> readPrinted(const QString& path)
{
    std::string bytes;
    const auto read = readPieces(path, [&](std::string_view piece, std::size_t expected) {
        bytes.reserve(expected);
        bytes += piece;
    });
    if (!read)
        return std::unexpected(read.error());
    return bytes;
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
    takeFirstWords(text, [&](std::string_view word) { words.push_back(word); });
    return words;
}

std::expected<void, Failure>
readFirstWords(const QString& path, const std::function<void(std::span<const std::string_view>)>& take)
{
    std::string rest; // the line that the next piece goes on with
    std::vector<std::string_view> words;
    const auto handOn = [&](std::string_view lines) {
        words.clear();
        takeFirstWords(lines, [&](std::string_view word) { words.push_back(word); });
        take(words);
    };
    const auto read = readPieces(path, [&](std::string_view piece, std::size_t) {
        const std::size_t whole = piece.rfind('\n') + 1;
        std::string_view lines = piece.substr(0, whole);
        if (!rest.empty() && !lines.empty()) {
            const std::size_t first = lines.find('\n') + 1;
            handOn(rest += lines.substr(0, first));
            rest.clear();
            lines.remove_prefix(first);
        }
        handOn(lines);
        rest += piece.substr(whole);
    });
    if (read)
        handOn(rest);
    return read;
}

} // namespace tessera
