#include "widgets/myscrollers.h"

#include "widgets/theme.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace tessera {

namespace {

constexpr qreal margin = 2; // pixels between the knob and the bar's edges

QColor knobColor(bool pressed, bool hovered)
{
    return theme::color(pressed ? "dim" : hovered ? "faint" : "border");
}

} // namespace

MyScrollers::MyScrollers(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent)
{
    // Not every pixel is painted, so that it may also lie over something.
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setAttribute(Qt::WA_Hover);
}

QRectF MyScrollers::knob() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (maximum() <= minimum())
        return QRectF();
    const QRect room
        = style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    return QRectF(room).adjusted(margin, margin, -margin, -margin);
}

void MyScrollers::paintEvent(QPaintEvent*)
{
    const QRectF shape = knob();
    if (shape.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(knobColor(isSliderDown(), underMouse()));
    const qreal radius = qMin(shape.width(), shape.height()) / 2;
    painter.drawRoundedRect(shape, radius, radius);
}

} // namespace tessera
