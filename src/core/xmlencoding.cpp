#include "core/xmlencoding.h"

#include "core/xmldeclaration.h"
#include "core/encodings.h"

#include <QLatin1StringView>
#include <QStringDecoder>

#include <string_view>

namespace tessera {

namespace {

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
