#include "widgets/colorwell.h"

#include "widgets/theme.h"

#include <QPainter>
#include <QPainterPath>

namespace tessera {

namespace {

constexpr QSize wellSize(64, 30);
constexpr qreal radius = 6;
constexpr qreal border = 3; // pixels between the well's edge and the colour
constexpr int square = 6;

void drawSquares(QPainter& painter, const QRectF& room)
{
    painter.fillRect(room, theme::color("base"));
    for (int row = 0; row * square < room.height(); ++row) {
        for (int column = row % 2; column * square < room.width(); column += 2)
            painter.fillRect(QRectF(room.left() + column * square, room.top() + row * square, square, square),
                             theme::color("border"));
    }
}

} // namespace

ColorWell::ColorWell(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void ColorWell::setColor(const QColor& color)
{
    m_color = color;
    setToolTip(color.name(QColor::HexArgb));
    setAccessibleDescription(color.name(QColor::HexArgb));
    update();
}

QSize ColorWell::sizeHint() const
{
    return wellSize;
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(theme::color(hasFocus() ? "accent" : underMouse() ? "faint" : "border"));
    painter.setBrush(theme::color(isDown() ? "selection" : "control"));
    painter.drawRoundedRect(edge, radius, radius);

    const QRectF room = QRectF(rect()).adjusted(border, border, -border, -border);
    QPainterPath shape;
    shape.addRoundedRect(room, radius - border, radius - border);
    painter.setClipPath(shape);
    if (m_color.alpha() < 255)
        drawSquares(painter, room);
    painter.fillRect(room, m_color);
}

} // namespace tessera
