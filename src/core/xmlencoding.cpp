#include "core/xmlencoding.h"

#include "core/encodings.h"

#include <QLatin1StringView>
#include <QStringDecoder>

namespace tessera {

namespace {

constexpr std::string_view blanks = " \t\r\n";

bool skipBlanks(std::string_view& text)
{
    const std::size_t count = text.find_first_not_of(blanks);
    if (count == 0 || count == std::string_view::npos)
        return false;
    text.remove_prefix(count);
    return true;
}

// ` name = "value"`; leaves the text alone where something else stands.
std::optional<std::string_view> takeItem(std::string_view& text, std::string_view name)
{
    std::string_view rest = text;
    if (!skipBlanks(rest) || !rest.starts_with(name))
        return std::nullopt;
    rest.remove_prefix(name.size());
    skipBlanks(rest);
    if (!rest.starts_with('='))
        return std::nullopt;
    rest.remove_prefix(1);
    skipBlanks(rest);
    if (!rest.starts_with('"') && !rest.starts_with('\''))
        return std::nullopt;
    const std::size_t end = rest.find(rest.front(), 1);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view value = rest.substr(1, end - 1);
    text = rest.substr(end + 1);
    return value;
}

std::expected<std::string, std::string> decode(std::string_view bytes, const std::string& encoding)
{
    QStringDecoder decoder(encoding.c_str(), QStringConverter::Flag::Stateless);
    if (!decoder.isValid())
        return std::unexpected(encoding);
    const QString text = decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (decoder.hasError() || !text.isValidUtf16())
        return std::unexpected(encoding);
    return text.toStdString();
}

} // namespace

std::optional<XmlDeclaration> xmlDeclaration(std::string_view text)
{
    constexpr std::string_view start = "<?xml";
    if (!text.starts_with(start))
        return std::nullopt;
    std::string_view rest = text.substr(start.size());
    const auto version = takeItem(rest, "version");
    if (!version || !version->starts_with("1.")
        || version->find_first_not_of("0123456789", 2) != std::string_view::npos)
        return std::nullopt;
    const auto encoding = takeItem(rest, "encoding");
    if (encoding && encoding->empty())
        return std::nullopt;
    const auto standalone = takeItem(rest, "standalone");
    if (standalone && *standalone != "yes" && *standalone != "no")
        return std::nullopt;
    skipBlanks(rest);
    if (!rest.starts_with("?>"))
        return std::nullopt;
    return XmlDeclaration{encoding.value_or(std::string_view()), text.size() - rest.size() + 2};
}

std::expected<std::string, std::string> xmlToUtf8(std::string bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::string encoding = "UTF-8";
    if (const auto known = QStringConverter::encodingForData(bytes, u'<'))
        encoding = QStringConverter::nameForEncoding(*known);
    else if (const auto declaration = xmlDeclaration(bytes); declaration && !declaration->encoding.empty())
        encoding = declaration->encoding;
    if (QLatin1StringView(encoding.c_str()).compare(QLatin1StringView("UTF-8"), Qt::CaseInsensitive) != 0)
        return decode(bytes, encoding);
    if (!isUtf8(bytes))
        return std::unexpected(encoding);
    if (bytes.starts_with(mark))
        bytes.erase(0, mark.size());
    return bytes;
}

} // namespace tessera
