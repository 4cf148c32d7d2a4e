#include "widgets/rounded_view2.h"

#include "core/message.h"
#include "widgets/named.h"
#include "widgets/theme.h"

#include <QPainter>
#include <QToolButton>

namespace tessera {

namespace {
constexpr int buttonSize = 14;
constexpr int buttonTop = 12;
} // namespace

Rounded_View2::Rounded_View2(QWidget* parent)
    : QWidget(parent)
{
    setDefaults();
    closeButton = makeButton("bu_close2", 8, qtTrId("panel_close"), QKeySequence(Qt::CTRL | Qt::Key_W));
    minimiseButton
        = makeButton("bu_minus2", 28, qtTrId("panel_minimise"), QKeySequence(Qt::CTRL | Qt::Key_M));
    connect(closeButton, &QToolButton::clicked, this, &Rounded_View2::orderOut);
    connect(minimiseButton, &QToolButton::clicked, this, &Rounded_View2::miniaturize);
}

void Rounded_View2::setDefaults()
{
    m_borderWidth = 0.9F;
    m_borderColor = QColor::fromRgbF(0.4F, 0.4F, 0.4F, 0.75F);
    m_backgroundColor = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.75F);
    update();
}

QToolButton* Rounded_View2::makeButton(const char* image, int x, const QString& name,
                                       const QKeySequence& keys)
{
    auto* made = named(image, withRole("knob", new QToolButton(this)), name);
    made->setIcon(theme::mark(QLatin1String(image)));
    made->setGeometry(x, buttonTop, buttonSize, buttonSize);
    made->setIconSize(made->size());
    made->setToolTip(name + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText)
                     + QLatin1Char(')'));
    made->setShortcut(keys);
    made->setAutoRaise(true);
    return made;
}

void Rounded_View2::setBorderWidth(float width)
{
    m_borderWidth = width;
    update();
}

void Rounded_View2::setBorderColor(const QColor& color)
{
    m_borderColor = color;
    update();
}

void Rounded_View2::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

QPainterPath Rounded_View2::outline() const
{
    const double inset = static_cast<double>(m_borderWidth) / 1.5;
    const QRectF inner = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    QPainterPath outline;
    if (inner.isValid())
        outline.addRoundedRect(inner.toAlignedRect(), radius, radius);
    return outline;
}

void Rounded_View2::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline(), m_backgroundColor);
    if (m_borderWidth > 0)
        painter.strokePath(outline(), QPen(m_borderColor, static_cast<double>(m_borderWidth)));
}

} // namespace tessera
