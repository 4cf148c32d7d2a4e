#include "widgets/fontname.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include <optional>

namespace tessera {

namespace {

// Families have spaces in their names as styles have: "Inter Display Semi Bold". The longest family wins.
std::optional<QFont> fontOfStyle(const QString& name)
{
    for (qsizetype space = name.lastIndexOf(u' '); space > 0; space = name.lastIndexOf(u' ', space - 1)) {
        const QString family = name.first(space);
        const QString style = name.sliced(space + 1);
        if (QFontDatabase::styles(family).contains(style))
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
    if (!QFontDatabase::hasFamily(name))
        font = fontOfStyle(name).value_or(font);
    font.setFamilies(QStringList{font.styleName().isEmpty() ? name : font.family()} + own);
    return font;
}

} // namespace tessera
