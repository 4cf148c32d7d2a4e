#include "tools/printedtext.h"

#include "core/encodings.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n\v\f";
// Bytes; the largest that an emulator prints has some hundred MB, a device may have no end.
constexpr std::size_t textLimit = std::size_t{1} << 30;

} // namespace

std::expected<std::string, Failure> readPrintedText(const QString& path)
{
    QFile file(path);
    const auto failed
        = [&](const QString& why) { return std::unexpected(Failure{"convert_not_read", {path, why}}); };
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return failed(file.errorString());
    std::string bytes;
    if (!file.isSequential())
        bytes.reserve(std::min(static_cast<std::size_t>(file.size()), textLimit));
    std::array<char, 128 * 1024> piece;
    for (;;) {
        const qint64 count = file.read(piece.data(), piece.size());
        if (count < 0)
            return failed(file.errorString());
        if (count == 0)
            return printedText(std::move(bytes));
        if (bytes.size() + static_cast<std::size_t>(count) > textLimit)
            return std::unexpected(Failure{"tool_text_too_large", {path}});
        bytes.append(piece.data(), static_cast<std::size_t>(count));
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
    return text.substr(std::min(text.find_first_not_of(whiteSpace), text.size()));
}

std::vector<std::string_view> firstWords(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!(text = withoutIndent(text)).empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        words.push_back(line.substr(0, line.find(' ')));
        text.remove_prefix(line.size());
    }
    return words;
}

} // namespace tessera
