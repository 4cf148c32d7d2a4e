#pragma once

#include <QXmlStreamReader>

#include <string>
#include <string_view>

namespace tessera {

/// Goes through an XML text in UTF-8, whatever encoding it declares, without calling itself. No entity is
/// expanded but the five predefined ones: a reference to another one stays as it is written, also where a
/// document type declares it.
class XmlAsWritten : private QXmlStreamReader, private QXmlStreamEntityResolver
{
public:
    explicit XmlAsWritten(std::string utf8);

    /// To the root, or to the next child of the element; false at the end of the element, or where there is
    /// an error.
    bool readElement();
    /// The same to the next one of that name, past all others.
    bool readElement(std::string_view name);
    /// What stands in the element itself, not in its children, to its end.
    std::string readText();
    /// To the end of the element.
    void skip();
    void readToEnd();

    bool isAt(std::string_view element) const;
    /// Empty, too, where the element has none of that name.
    std::string attribute(std::string_view name) const;
    using QXmlStreamReader::qualifiedName;

    using QXmlStreamReader::errorString;
    using QXmlStreamReader::hasError;
    using QXmlStreamReader::lineNumber;
    /// An error because something is missing, not because something is wrong.
    bool endsTooEarly() const { return error() == PrematureEndOfDocumentError; }

private:
    void step();
    QString resolveUndeclaredEntity(const QString& name) override;

    std::string m_text;
};

} // namespace tessera
