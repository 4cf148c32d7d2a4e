#include "artwork/pictureanswer.h"

#include "artwork/picturelookup.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

/// The bytes at a place in the content.
struct Signature {
    qsizetype at;
    QByteArrayView bytes;
};

// clang-format off
constexpr std::array signatures{
    Signature{0, "\x89PNG\r\n\x1a\n"},
    Signature{0, "\xff\xd8\xff"},
    Signature{0, "GIF8"},
    Signature{0, "BM"},
    Signature{8, "WEBP"},
};
// clang-format on

bool isSeparator(QChar c)
{
    return c == u'/' || c == u'\\';
}

bool isInvisible(QChar c)
{
    return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
}

// Without invisible characters, and without the leading dots that would hide the file.
QString cleaned(QString name)
{
    name.removeIf(&isInvisible);
    const auto first
        = std::find_if(name.cbegin(), name.cend(), [](QChar c) { return c != u'.' && !c.isSpace(); });
    return name.sliced(first - name.cbegin()).trimmed();
}

// The last component, whichever system its separators are of.
QString reduced(const QString& suggested)
{
    const auto separator = std::find_if(suggested.crbegin(), suggested.crend(), &isSeparator);
    return cleaned(QString(separator.base(), suggested.cend() - separator.base()));
}

// A parameter's value, without its quotation marks.
QByteArray unquoted(QByteArray value)
{
    value = value.trimmed();
    if (!value.startsWith('"'))
        return value.split(';').constFirst().trimmed();
    QByteArray text;
    for (qsizetype at = 1; at < value.size() && value[at] != '"'; ++at) {
        if (value[at] == '\\' && at + 1 < value.size())
            ++at;
        text += value[at];
    }
    return text;
}

// The value of "name=" behind a semicolon; the case of the name does not matter.
std::optional<QByteArray> parameter(const QByteArray& header, const QByteArray& name)
{
    bool isQuoted = false;
    for (qsizetype at = 0; at < header.size(); ++at) {
        if (isQuoted && header[at] == '\\')
            ++at;
        else if (header[at] == '"')
            isQuoted = !isQuoted;
        else if (header[at] == ';' && !isQuoted) {
            const QByteArray rest = header.mid(at + 1).trimmed();
            const qsizetype sign = rest.indexOf('=');
            if (sign >= 0 && rest.left(sign).trimmed().compare(name, Qt::CaseInsensitive) == 0)
                return unquoted(rest.mid(sign + 1));
        }
    }
    return std::nullopt;
}

// "UTF-8''a%20b": an encoding, a language, and the percent-encoded text.
QString decodedParameter(const QByteArray& value)
{
    const QByteArray text = QByteArray::fromPercentEncoding(value.mid(value.lastIndexOf('\'') + 1));
    return value.toLower().startsWith("utf-8'") ? QString::fromUtf8(text) : QString::fromLatin1(text);
}

QString suggestedName(const QByteArray& contentDisposition)
{
    if (const auto encoded = parameter(contentDisposition, "filename*"))
        return decodedParameter(*encoded);
    return QString::fromUtf8(parameter(contentDisposition, "filename").value_or(QByteArray()));
}

// Split before it is decoded: a set name may hold a slash, encoded.
QString lastComponent(const QUrl& url)
{
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    return QString::fromUtf8(QByteArray::fromPercentEncoding(path.mid(path.lastIndexOf('/') + 1)));
}

} // namespace

bool isPictureAnswer(QByteArrayView contentType)
{
    constexpr QLatin1StringView image("image/");
    const auto type = QLatin1StringView(contentType).trimmed();
    return type.startsWith(image, Qt::CaseInsensitive);
}

double expectedLength(QByteArrayView contentLength)
{
    bool isNumber = false;
    const qlonglong length = contentLength.toByteArray().trimmed().toLongLong(&isNumber);
    return isNumber && length >= 0 ? static_cast<double>(length) : unknownLength;
}

std::optional<double> downloadPercent(double length, double expectedLength)
{
    if (expectedLength <= 0)
        return std::nullopt;
    return std::min(length / expectedLength * 100, 100.0);
}

bool startsLikeImage(QByteArrayView content)
{
    return std::ranges::any_of(signatures, [&](const Signature& signature) {
        return content.size() >= imageStart
            && content.sliced(signature.at, signature.bytes.size()) == signature.bytes;
    });
}

std::optional<QString> pictureFileName(const QByteArray& contentDisposition, const QUrl& url)
{
    const QString asked = lastComponent(url);
    // A backslash may be part of the set's own name.
    for (const QString& name : {reduced(suggestedName(contentDisposition)), cleaned(asked), reduced(asked)}) {
        if (isPlainFileName(name))
            return name;
    }
    return std::nullopt;
}

} // namespace tessera
