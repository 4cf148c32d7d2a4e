#include "widgets/theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <QSvgRenderer>

namespace tessera::theme {

namespace {

struct Token {
    const char* name;
    QColor color;
};

const std::array tokens{
    Token{"window", QColor(0x19, 0x1b, 0x1f)},
    Token{"panel", QColor(0x1f, 0x22, 0x27)},
    Token{"base", QColor(0x15, 0x17, 0x1a)},
    Token{"otherrow", QColor(0x18, 0x1a, 0x1e)},
    Token{"line", QColor(0x2b, 0x2f, 0x36)},
    Token{"control", QColor(0x2a, 0x2e, 0x35)},
    Token{"border", QColor(0x34, 0x39, 0x41)},
    Token{"text", QColor(0xe8, 0xe8, 0xe9)}, // white at 0.90 over the window
    Token{"dim", QColor(0x97, 0x98, 0x9a)}, // white at 0.55
    Token{"faint", QColor(0x76, 0x78, 0x7b)}, // white at 0.40: 0.32 is too faint to read at 12 px
    Token{"accent", QColor(0x45, 0xb5, 0xaa)},
    Token{"onaccent", QColor(0x10, 0x20, 0x1e)},
    Token{"selection", QColor(0x23, 0x4b, 0x52)},
    Token{"good", QColor(0x5f, 0xbf, 0x77)},
    Token{"imperfect", QColor(0xe3, 0xb0, 0x4b)},
    Token{"preliminary", QColor(0xe0, 0x6c, 0x5f)},
};

QString styleSheet()
{
    QFile file(QStringLiteral(":/theme.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QString sheet = QString::fromUtf8(file.readAll());
    for (const Token& token : tokens)
        sheet.replace(QLatin1Char('@') + QLatin1String(token.name) + QLatin1Char('@'), token.color.name());
    return sheet;
}

QPalette palette()
{
    QPalette dark;
    dark.setColor(QPalette::Window, color("window"));
    dark.setColor(QPalette::Base, color("base"));
    dark.setColor(QPalette::AlternateBase, color("otherrow"));
    dark.setColor(QPalette::Button, color("control"));
    dark.setColor(QPalette::ToolTipBase, color("panel"));
    dark.setColor(QPalette::Highlight, color("selection"));
    dark.setColor(QPalette::Link, color("accent"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::HighlightedText, QPalette::BrightText})
        dark.setColor(role, color("text"));
    dark.setColor(QPalette::PlaceholderText, color("faint"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, color("faint"));
    return dark;
}

// Draws a monochrome icon in the colour of its state, at any size and scale factor.
class DrawnIcon : public QIconEngine
{
public:
    DrawnIcon(QByteArray svg, const char* token)
        : m_svg(std::move(svg))
        , m_token(token)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QColor ink = mode == QIcon::Disabled ? color("faint")
            : state == QIcon::On                   ? color("accent")
                                                   : color(m_token);
        QSvgRenderer renderer(QByteArray(m_svg).replace("currentColor", ink.name().toLatin1()));
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIcon(m_svg, m_token); }

private:
    QByteArray m_svg;
    const char* m_token;
};

} // namespace

QColor color(const char* token)
{
    for (const Token& row : tokens) {
        if (qstrcmp(row.name, token) == 0)
            return row.color;
    }
    return QColor();
}

// Made once, like a mark: rows ask for theirs whenever they are drawn.
QIcon icon(const QString& name, const char* token)
{
    static QHash<std::pair<QString, QByteArray>, QIcon> made;
    QIcon& icon = made[{name, token}];
    QFile file(QStringLiteral(":/icons/") + name + QStringLiteral(".svg"));
    if (icon.isNull() && file.open(QIODevice::ReadOnly))
        icon = QIcon(new DrawnIcon(file.readAll(), token));
    return icon;
}

QIcon mark(const QString& name)
{
    static QHash<QString, QIcon> made;
    QIcon& picture = made[name];
    if (!picture.isNull())
        return picture;
    const QString file = QStringLiteral(":/icons/") + name + QStringLiteral(".svg");
    picture.addFile(file);
    // In a selected row it keeps its own colours, too.
    picture.addFile(file, QSize(), QIcon::Selected);
    return picture;
}

void apply(QApplication& application)
{
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font = application.font();
    font.setFamilies({QStringLiteral("Inter"), font.family(), QStringLiteral("Noto Sans CJK JP")});
    font.setPixelSize(13);
    application.setFont(font);
    application.setPalette(palette());
}

void applyStyleSheet(QApplication& application)
{
    if (application.styleSheet().isEmpty())
        application.setStyleSheet(styleSheet());
}

} // namespace tessera::theme
