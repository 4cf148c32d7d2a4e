#include "core/xmlaswritten.h"

#include "core/xmlencoding.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tessera {

namespace {

QLatin1StringView latin1(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QByteArray raw(const std::string& text)
{
    return QByteArray::fromRawData(text.data(), std::ssize(text));
}

// The lines stay where they are.
void blank(std::string& text, std::size_t size)
{
    const auto isInLine = [](char c) { return c != '\n' && c != '\r'; };
    std::ranges::replace_if(std::span(text).first(size), isInLine, ' ');
}

void blankDeclaration(std::string& text)
{
    if (const auto declaration = xmlDeclaration(text))
        blank(text, declaration->length);
}

void blankDocumentType(std::string& text)
{
    QXmlStreamReader reader(raw(text));
    while (!reader.atEnd() && !reader.isDTD() && !reader.isStartElement())
        reader.readNext();
    if (!reader.isDTD())
        return;
    // The offset is one of UTF-16, of which none takes more than three bytes.
    const qsizetype offset = reader.characterOffset();
    const QString seen = QString::fromUtf8(text.data(), std::min<qsizetype>(3 * offset, std::ssize(text)));
    blank(text, static_cast<std::size_t>(seen.left(offset).toUtf8().size()));
}

} // namespace

XmlAsWritten::XmlAsWritten(std::string utf8)
    : m_text(std::move(utf8))
{
    blankDeclaration(m_text);
    // A reader expands what it has once seen declared.
    blankDocumentType(m_text);
    addData(raw(m_text));
    setNamespaceProcessing(false);
    setEntityResolver(this);
}

bool XmlAsWritten::readElement()
{
    do {
        step();
    } while (!atEnd() && !isStartElement() && !isEndElement());
    return isStartElement();
}

bool XmlAsWritten::readElement(std::string_view name)
{
    while (readElement()) {
        if (isAt(name))
            return true;
        skip();
    }
    return false;
}

std::string XmlAsWritten::readText()
{
    QString text;
    for (step(); !atEnd() && !isEndElement(); step()) {
        if (isStartElement())
            skip();
        else if (isCharacters())
            text += QXmlStreamReader::text();
    }
    return text.toStdString();
}

void XmlAsWritten::skip()
{
    for (int depth = 1; depth > 0 && !atEnd();) {
        step();
        depth += isStartElement() ? 1 : isEndElement() ? -1 : 0;
    }
}

void XmlAsWritten::readToEnd()
{
    while (!atEnd())
        step();
}

bool XmlAsWritten::isAt(std::string_view element) const
{
    return qualifiedName() == latin1(element);
}

std::string XmlAsWritten::attribute(std::string_view name) const
{
    return attributes().value(latin1(name)).toUtf8().toStdString();
}

void XmlAsWritten::step()
{
    readNext();
    // The one that may stand here is blanked; the base takes others everywhere.
    if (isDTD())
        raiseError(QStringLiteral("misplaced <!DOCTYPE>"));
}

QString XmlAsWritten::resolveUndeclaredEntity(const QString& name)
{
    return QStringLiteral("&#38;%1;").arg(name);
}

} // namespace tessera
