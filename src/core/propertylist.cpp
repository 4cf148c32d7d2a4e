#include "core/propertylist.h"

#include "core/propertylistcheck.h"

#include <QFile>
#include <QFileInfo>

#include <clocale>
#include <cstdlib>

#include <plist/plist.h>

namespace tessera {

namespace {

/// While it lives, numbers are read with a point, whatever the user's locale writes.
class PlainNumbers
{
public:
    PlainNumbers()
        : m_plain(newlocale(LC_NUMERIC_MASK, "C", nullptr))
        , m_before(uselocale(m_plain))
    {
    }
    ~PlainNumbers()
    {
        uselocale(m_before);
        if (m_plain != nullptr)
            freelocale(m_plain);
    }
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;

private:
    locale_t m_plain;
    locale_t m_before;
};

QByteArray rawXml(plist_t node)
{
    const PlainNumbers numbers;
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node, &text, &length);
    const QByteArray xml(text, length);
    plist_to_xml_free(text);
    return xml;
}

// A number or a date as the file writes it: what stands in its element.
QString written(plist_t node)
{
    const QString xml = QString::fromUtf8(rawXml(node));
    const qsizetype end
        = xml.lastIndexOf(QStringLiteral("</"), xml.lastIndexOf(QStringLiteral("</plist>")) - 1);
    const qsizetype begin = xml.lastIndexOf(QLatin1Char('>'), end) + 1;
    return xml.mid(begin, end - begin);
}

std::optional<QString> shownText(plist_t node)
{
    double number = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
    case PLIST_BOOLEAN:
        return plist_bool_val_is_true(node) != 0 ? QStringLiteral("true") : QStringLiteral("false");
    case PLIST_REAL:
        plist_get_real_val(node, &number);
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    case PLIST_UINT:
    case PLIST_DATE:
        return written(node);
    default:
        return std::nullopt;
    }
}

// A text may hold what XML has no way to write, and a lone return would be read as a line's end.
QByteArray legalXml(const QByteArray& xml)
{
    QString text = QString::fromUtf8(xml);
    for (QChar& c : text) {
        const bool isControl = c < QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n')
            && c != QLatin1Char('\r');
        if (isControl || c == QChar(0xFFFE) || c == QChar(0xFFFF))
            c = QChar::ReplacementCharacter;
    }
    return text.replace(QLatin1Char('\r'), QStringLiteral("&#13;")).toUtf8();
}

} // namespace

void PropertyList::Free::operator()(void* node) const
{
    plist_free(node);
}

PropertyList PropertyList::array()
{
    return PropertyList(Node(plist_new_array()));
}

PropertyList PropertyList::dictionary()
{
    return PropertyList(Node(plist_new_dict()));
}

PropertyList::PropertyList(const PropertyList& other)
    : m_node(plist_copy(other.m_node.get()))
{
}

PropertyList& PropertyList::operator=(const PropertyList& other)
{
    if (this != &other)
        m_node.reset(plist_copy(other.m_node.get()));
    return *this;
}

PropertyList::Kind PropertyList::kind() const
{
    switch (plist_get_node_type(m_node.get())) {
    case PLIST_ARRAY:
        return Kind::Array;
    case PLIST_DICT:
        return Kind::Dictionary;
    default:
        return Kind::Value;
    }
}

std::vector<PropertyList> PropertyList::items() const
{
    std::vector<PropertyList> items;
    if (kind() != Kind::Array)
        return items;
    items.reserve(plist_array_get_size(m_node.get()));
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(m_node.get(), &iterator);
    plist_t item = nullptr;
    for (plist_array_next_item(m_node.get(), iterator, &item); item != nullptr;
         plist_array_next_item(m_node.get(), iterator, &item))
        items.push_back(PropertyList(Node(plist_copy(item))));
    std::free(iterator);
    return items;
}

void PropertyList::append(PropertyList item)
{
    plist_array_append_item(m_node.get(), item.m_node.release());
}

std::optional<QString> PropertyList::text(const char* key) const
{
    const plist_t value = plist_dict_get_item(m_node.get(), key);
    return value == nullptr ? std::nullopt : shownText(value);
}

std::optional<QString> PropertyList::string(const char* key) const
{
    const plist_t value = plist_dict_get_item(m_node.get(), key);
    return value != nullptr && plist_get_node_type(value) == PLIST_STRING ? shownText(value) : std::nullopt;
}

void PropertyList::setText(const char* key, const QString& text)
{
    plist_dict_set_item(m_node.get(), key, plist_new_string(text.toUtf8().constData()));
}

std::optional<PropertyList> PropertyList::value(const char* key) const
{
    const plist_t value = plist_dict_get_item(m_node.get(), key);
    return value == nullptr ? std::nullopt : std::optional(PropertyList(Node(plist_copy(value))));
}

void PropertyList::set(const char* key, PropertyList value)
{
    plist_dict_set_item(m_node.get(), key, value.m_node.release());
}

void PropertyList::remove(const char* key)
{
    plist_dict_remove_item(m_node.get(), key);
}

std::expected<QByteArray, Failure> PropertyList::xml(const QString& path) const
{
    QByteArray xml = legalXml(rawXml(m_node.get()));
    if (xml.size() > largestPropertyList)
        return std::unexpected(Failure{"failure_plist_large", {path}});
    if (auto good = plainXmlPropertyList(xml, path); !good)
        return std::unexpected(good.error());
    return xml;
}

std::expected<PropertyList, Failure> parsePropertyList(const QByteArray& bytes, const QString& path)
{
    if (bytes.size() > largestPropertyList)
        return std::unexpected(Failure{"failure_plist_large", {path}});
    const bool isBinary = bytes.startsWith("bplist0");
    if (isBinary) {
        if (auto sound = checkBinaryPropertyList(bytes, path); !sound)
            return std::unexpected(sound.error());
    }
    const std::expected<QByteArray, Failure> text = isBinary ? bytes : plainXmlPropertyList(bytes, path);
    if (!text)
        return std::unexpected(text.error());

    const PlainNumbers numbers;
    plist_t node = nullptr;
    const auto length = static_cast<std::uint32_t>(text->size());
    if (isBinary)
        plist_from_bin(text->constData(), length, &node);
    else
        plist_from_xml(text->constData(), length, &node);
    if (node == nullptr)
        return std::unexpected(Failure{"failure_plist_library", {path}});
    return PropertyList(PropertyList::Node(node));
}

std::expected<PropertyList, Failure> readPropertyList(const QString& path)
{
    // A pipe would be waited for, and a device never ends.
    if (const QFileInfo present(path); present.exists() && !present.isFile())
        return std::unexpected(Failure{"failure_plist_nofile", {path}});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(Failure{"failure_plist_read", {path, file.errorString()}});
    const QByteArray bytes = file.read(largestPropertyList + 1);
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(Failure{"failure_plist_read", {path, file.errorString()}});
    return parsePropertyList(bytes, path);
}

} // namespace tessera
