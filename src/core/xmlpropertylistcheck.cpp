#include "core/propertylistcheck.h"

#include "core/encodings.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace tessera {

namespace {

constexpr std::size_t weightOfElement = 128;

bool isAnyText(QStringView)
{
    return true;
}

bool isNothing(QStringView text)
{
    return text.trimmed().isEmpty();
}

bool isInteger(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    const bool isHex = trimmed.startsWith(QStringLiteral("0x"), Qt::CaseInsensitive);
    bool isSigned = false;
    bool isUnsigned = false;
    (void)trimmed.toLongLong(&isSigned);
    (void)trimmed.toULongLong(&isUnsigned, isHex ? 16 : 10);
    return isSigned || isUnsigned;
}

bool isReal(QStringView text)
{
    const QString trimmed = text.trimmed().toString().toLower();
    bool isGood = false;
    trimmed.toDouble(&isGood);
    return isGood || trimmed == QStringLiteral("nan") || trimmed == QStringLiteral("+infinity")
        || trimmed == QStringLiteral("-infinity") || trimmed == QStringLiteral("infinity");
}

bool isDate(QStringView text)
{
    const QString trimmed = text.trimmed().toString();
    return trimmed.size() == 20 && trimmed.endsWith(QLatin1Char('Z'))
        && QDateTime::fromString(trimmed, Qt::ISODate).isValid();
}

struct Leaf {
    QLatin1StringView element;
    bool (*takes)(QStringView text);
};

// clang-format off
constexpr std::array leaves{
    Leaf{QLatin1StringView("string"),  isAnyText},
    Leaf{QLatin1StringView("integer"), isInteger},
    Leaf{QLatin1StringView("real"),    isReal},
    Leaf{QLatin1StringView("date"),    isDate},
    Leaf{QLatin1StringView("data"),    isAnyText},
    Leaf{QLatin1StringView("true"),    isNothing},
    Leaf{QLatin1StringView("false"),   isNothing},
};
// clang-format on

/// Goes through a file once, without calling itself.
class XmlCheck
{
public:
    XmlCheck(const QByteArray& bytes, const QString& path)
        : m_reader(bytes)
        , m_path(path)
    {
    }

    std::expected<void, Failure> run();

private:
    enum class Container { File, Array, Dictionary };
    struct Open {
        Container container;
        std::size_t values = 0;
        bool hasKey = false;
    };

    std::optional<Failure> take();
    std::optional<Failure> startElement();
    std::optional<Failure> endElement();
    std::optional<Failure> startValue(QStringView element);
    Failure malformed() const
    {
        return Failure{"failure_plist_malformed", {m_path, QString::number(m_reader.lineNumber())}};
    }

    QXmlStreamReader m_reader;
    const QString& m_path;
    std::vector<Open> m_open;
    std::size_t m_weight = 0;
};

std::expected<void, Failure> XmlCheck::run()
{
    while (!m_reader.atEnd()) {
        m_reader.readNext();
        if (auto failure = take())
            return std::unexpected(*failure);
    }
    if (m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        return std::unexpected(Failure{"failure_plist_truncated", {m_path}});
    if (m_reader.hasError())
        return std::unexpected(malformed());
    return {};
}

std::optional<Failure> XmlCheck::take()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        return startElement();
    case QXmlStreamReader::EndElement:
        return endElement();
    case QXmlStreamReader::Characters:
        return m_reader.isWhitespace() ? std::nullopt : std::optional(malformed());
    case QXmlStreamReader::EntityReference:
        return malformed();
    default:
        return std::nullopt;
    }
}

std::optional<Failure> XmlCheck::startElement()
{
    const QStringView element = m_reader.name();
    m_weight += weightOfElement;
    if (m_open.empty()) {
        if (element != QLatin1StringView("plist"))
            return Failure{"failure_plist_foreign", {m_path, element.toString()}};
        m_open.push_back({Container::File});
        return std::nullopt;
    }
    if (m_open.size() > deepestPropertyList || m_weight > std::size_t{4} * largestPropertyList)
        return Failure{"failure_plist_large", {m_path}};
    Open& open = m_open.back();
    if (open.container == Container::Dictionary && !open.hasKey) {
        if (element != QLatin1StringView("key"))
            return malformed();
        m_reader.readElementText();
        open.hasKey = true;
        return std::nullopt;
    }
    // The library would keep one value of several.
    if (open.container == Container::File && open.values == 1)
        return malformed();
    ++open.values;
    open.hasKey = false;
    return startValue(element);
}

std::optional<Failure> XmlCheck::startValue(QStringView element)
{
    if (element == QLatin1StringView("array") || element == QLatin1StringView("dict")) {
        m_open.push_back({element == QLatin1StringView("array") ? Container::Array : Container::Dictionary});
        return std::nullopt;
    }
    const auto leaf = std::ranges::find_if(leaves, [&](const Leaf& each) { return each.element == element; });
    if (leaf == leaves.end() || !leaf->takes(m_reader.readElementText()))
        return malformed();
    return std::nullopt;
}

std::optional<Failure> XmlCheck::endElement()
{
    const Open open = m_open.back();
    m_open.pop_back();
    const bool isWhole = open.container == Container::File ? open.values == 1 : !open.hasKey;
    return isWhole ? std::nullopt : std::optional(malformed());
}

} // namespace

std::expected<void, Failure> checkXmlPropertyList(const QByteArray& bytes, const QString& path)
{
    // The library takes every byte for UTF-8, whatever the file says of itself, and stumbles over a NUL.
    const bool isText
        = !bytes.contains('\0') && isUtf8({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (!isText)
        return std::unexpected(Failure{"failure_plist_encoding", {path}});
    return XmlCheck(bytes, path).run();
}

} // namespace tessera
