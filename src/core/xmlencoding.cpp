#include "core/xmlencoding.h"

#include "core/xmldeclaration.h"
#include "core/encodings.h"

#include <QLatin1StringView>
#include <QStringDecoder>

#include <array>
#include <string_view>

namespace tessera {

namespace {

struct Signature {
    std::string_view bytes;
    const char* encoding;
    std::size_t mark; ///< how many of the bytes are a byte-order mark
};

using namespace std::string_view_literals;

// The longer ones first: UTF-32 begins like UTF-16.
// clang-format off
constexpr std::array signatures{
    Signature{"\xEF\xBB\xBF"sv, "UTF-8", 3},
    Signature{"\xFF\xFE\0\0"sv, "UTF-32LE", 4},
    Signature{"\0\0\xFE\xFF"sv, "UTF-32BE", 4},
    Signature{"<\0\0\0"sv, "UTF-32LE", 0},
    Signature{"\0\0\0<"sv, "UTF-32BE", 0},
    Signature{"\xFF\xFE"sv, "UTF-16LE", 2},
    Signature{"\xFE\xFF"sv, "UTF-16BE", 2},
    Signature{"<\0"sv, "UTF-16LE", 0},
    Signature{"\0<"sv, "UTF-16BE", 0},
};
// clang-format on

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
    std::string encoding;
    for (const Signature& signature : signatures) {
        if (encoding.empty() && bytes.starts_with(signature.bytes)) {
            encoding = signature.encoding;
            bytes.erase(0, signature.mark);
        }
    }
    if (encoding.empty()) {
        const auto declaration = xmlDeclaration(bytes);
        encoding
            = declaration && !declaration->encoding.empty() ? std::string(declaration->encoding) : "UTF-8";
    }
    if (QLatin1StringView(encoding.c_str()).compare(QLatin1StringView("UTF-8"), Qt::CaseInsensitive) != 0)
        return decode(bytes, encoding);
    if (!isUtf8(bytes))
        return std::unexpected(encoding);
    return bytes;
}

} // namespace tessera
