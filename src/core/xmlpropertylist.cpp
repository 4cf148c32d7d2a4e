#include "core/propertylistcheck.h"

#include "core/xmlencoding.h"

#include <QDateTime>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace tessera {

namespace {

constexpr std::size_t weightOfElement = 128;

// What stands in an element, as the library is to read it; nothing where it is no value of that kind.
using Plain = std::optional<QString>;

Plain anyText(const QString& text)
{
    return text;
}

Plain nothing(const QString& text)
{
    return text.trimmed().isEmpty() ? Plain(QString()) : std::nullopt;
}

// The library knows no sign before a hexadecimal one.
Plain integer(const QString& text)
{
    QStringView digits = QStringView(text).trimmed();
    const bool isNegative = digits.startsWith(u'-');
    if (isNegative || digits.startsWith(u'+'))
        digits = digits.sliced(1);
    const bool isHex = digits.startsWith(QLatin1StringView("0x"), Qt::CaseInsensitive);
    if (isHex)
        digits = digits.sliced(2);
    if (digits.isEmpty() || digits.front() == u'-' || digits.front() == u'+')
        return std::nullopt;
    bool isGood = false;
    const qulonglong number = digits.toULongLong(&isGood, isHex ? 16 : 10);
    const bool isTooSmall = isNegative && number > qulonglong{1} << 63;
    if (!isGood || isTooSmall)
        return std::nullopt;
    const QString plain = QString::number(number);
    return isNegative ? QString(u'-' + plain) : plain;
}

Plain real(const QString& text)
{
    const QString trimmed = text.trimmed().toLower();
    bool isGood = false;
    (void)trimmed.toDouble(&isGood);
    constexpr std::array others{QLatin1StringView("nan"), QLatin1StringView("+infinity"),
                                QLatin1StringView("-infinity"), QLatin1StringView("infinity")};
    const bool isOther = std::ranges::any_of(others, [&](auto name) { return trimmed == name; });
    return isGood || isOther ? Plain(text) : std::nullopt;
}

Plain date(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool isDate = trimmed.size() == 20 && trimmed.endsWith(QLatin1Char('Z'))
        && QDateTime::fromString(trimmed, Qt::ISODate).isValid();
    return isDate ? Plain(trimmed) : std::nullopt;
}

struct Leaf {
    QLatin1StringView element;
    Plain (*plain)(const QString& text);
};

// clang-format off
constexpr std::array leaves{
    Leaf{QLatin1StringView("string"),  anyText},
    Leaf{QLatin1StringView("integer"), integer},
    Leaf{QLatin1StringView("real"),    real},
    Leaf{QLatin1StringView("date"),    date},
    Leaf{QLatin1StringView("data"),    anyText},
    Leaf{QLatin1StringView("true"),    nothing},
    Leaf{QLatin1StringView("false"),   nothing},
};
// clang-format on

/// Goes through a file once, without calling itself.
class XmlReader
{
public:
    XmlReader(std::string_view utf8, const QString& path)
        : m_reader(QByteArray::fromRawData(utf8.data(), static_cast<qsizetype>(utf8.size())))
        , m_path(path)
    {
    }

    std::expected<QByteArray, Failure> run();

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
    std::optional<QString> text();
    void write(QLatin1StringView element, QStringView text);
    bool isTooHeavy() const { return m_weight > std::size_t{4} * largestPropertyList; }
    Failure malformed() const
    {
        return Failure{"failure_plist_malformed", {m_path, QString::number(m_reader.lineNumber())}};
    }

    QXmlStreamReader m_reader;
    const QString& m_path;
    std::vector<Open> m_open;
    std::size_t m_weight = 0;
    QByteArray m_plain;
};

std::expected<QByteArray, Failure> XmlReader::run()
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
    return std::move(m_plain);
}

std::optional<Failure> XmlReader::take()
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

std::optional<Failure> XmlReader::startElement()
{
    const QStringView element = m_reader.name();
    m_weight += weightOfElement;
    if (m_open.empty()) {
        if (element != QLatin1StringView("plist"))
            return Failure{"failure_plist_foreign", {m_path, element.toString()}};
        m_open.push_back({Container::File});
        m_plain += "<plist version=\"1.0\">\n";
        return std::nullopt;
    }
    if (m_open.size() > deepestPropertyList || isTooHeavy())
        return Failure{"failure_plist_large", {m_path}};
    Open& open = m_open.back();
    if (open.container == Container::Dictionary && !open.hasKey) {
        if (element != QLatin1StringView("key"))
            return malformed();
        const auto key = text();
        if (!key)
            return std::nullopt;
        write(QLatin1StringView("key"), *key);
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

// What stands in the element that was just begun, to its end. Nothing where something else stands in it, or
// where the file ends or breaks off, which the reader says by itself.
std::optional<QString> XmlReader::text()
{
    QString text;
    for (;;) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::Characters:
            text += m_reader.text();
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::EndElement:
            m_weight += static_cast<std::size_t>(text.size());
            return text;
        case QXmlStreamReader::Invalid:
            return std::nullopt;
        default:
            // An element, or an entity that nothing declares.
            m_reader.raiseError();
            return std::nullopt;
        }
    }
}

void XmlReader::write(QLatin1StringView element, QStringView text)
{
    const QByteArray name(element.data(), element.size());
    m_plain += '<' + name + '>';
    for (const char byte : text.toUtf8()) {
        // A return alone would be read as the end of a line.
        switch (byte) {
        case '&':
            m_plain += "&amp;";
            break;
        case '<':
            m_plain += "&lt;";
            break;
        case '>':
            m_plain += "&gt;";
            break;
        case '\r':
            m_plain += "&#13;";
            break;
        default:
            m_plain += byte;
        }
    }
    m_plain += "</" + name + ">\n";
}

std::optional<Failure> XmlReader::startValue(QStringView element)
{
    if (element == QLatin1StringView("array") || element == QLatin1StringView("dict")) {
        m_plain += '<' + element.toLatin1() + ">\n";
        m_open.push_back({element == QLatin1StringView("array") ? Container::Array : Container::Dictionary});
        return std::nullopt;
    }
    const auto leaf = std::ranges::find_if(leaves, [&](const Leaf& each) { return each.element == element; });
    if (leaf == leaves.end())
        return malformed();
    const auto read = text();
    if (!read)
        return std::nullopt;
    const Plain plain = leaf->plain(*read);
    if (!plain)
        return malformed();
    write(leaf->element, *plain);
    return std::nullopt;
}

std::optional<Failure> XmlReader::endElement()
{
    const Open open = m_open.back();
    m_open.pop_back();
    const bool isWhole = open.container == Container::File ? open.values == 1 : !open.hasKey;
    m_plain += "</" + m_reader.name().toLatin1() + ">\n";
    return isWhole ? std::nullopt : std::optional(malformed());
}

} // namespace

std::expected<QByteArray, Failure> plainXmlPropertyList(const QByteArray& bytes, const QString& path)
{
    const auto text = xmlToUtf8(bytes.toStdString());
    // The library stumbles over a NUL.
    if (!text || text->find('\0') != std::string::npos)
        return std::unexpected(Failure{"failure_plist_encoding", {path}});
    if (text->empty())
        return std::unexpected(Failure{"failure_plist_empty", {path}});
    // The declaration may name an encoding that the text is not in any more.
    const auto declaration = xmlDeclaration(*text);
    return XmlReader(std::string_view(*text).substr(declaration ? declaration->length : 0), path).run();
}

} // namespace tessera
