#include "widgets/fontname.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <optional>

namespace tessera {

namespace {

// Where two makers have a family of one name, Qt has the maker behind it: "Clean [Schumacher]". Of what is
// asked for it reads no further than the bracket, so that with a style behind it it would pass for the
// family.
bool isFamily(const QString& name)
{
    return QFontDatabase::hasFamily(name) && (name.endsWith(u']') || !name.contains(u']'));
}

// Families have spaces in their names as styles have: "Inter Display Semi Bold". The longest family wins.
std::optional<QFont> fontOfStyle(const QString& name)
{
    for (qsizetype space = name.lastIndexOf(u' '); space > 0; space = name.lastIndexOf(u' ', space - 1)) {
        const QString family = name.first(space);
        const QString style = name.sliced(space + 1);
        if (isFamily(family) && QFontDatabase::styles(family).contains(style))
            return QFontDatabase::font(family, style, QFont().pointSize());
    }
    return std::nullopt;
}

} // namespace

QString fontName(const QFont& font)
{
    const QFontInfo wanted(font);
    const QFontInfo alone(QFont(font.family()));
    if (wanted.family() == alone.family() && wanted.styleName() == alone.styleName())
        return font.family();
    const QString style = font.styleName().isEmpty() ? wanted.styleName() : font.styleName();
    return font.family() + u' ' + style;
}

QFont namedFont(const QString& name)
{
    QFont font;
    if (name.isEmpty())
        return font;
    const QStringList own = font.families();
    // Mostly the name is a family, and no styles have to be looked through.
    if (!isFamily(name))
        font = fontOfStyle(name).value_or(font);
    font.setFamilies(QStringList{font.styleName().isEmpty() ? name : font.family()} + own);
    return font;
}

} // namespace tessera
