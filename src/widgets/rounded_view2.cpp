#include "widgets/rounded_view2.h"

#include "core/failure.h"
#include "widgets/roundedpath.h"
#include "widgets/theme.h"

#include <QPainter>
#include <QToolButton>

namespace tessera {

namespace {

QRect inView(const Frame& frame, int viewHeight)
{
    const Frame turned = turnedOver(frame, viewHeight);
    return QRectF(turned.x, turned.y, turned.width, turned.height).toRect();
}

} // namespace

Rounded_View2::Rounded_View2(QWidget* parent)
    : QWidget(parent)
{
    setDefaults();
    closeButton = makeButton(closePanelButton, qtTrId("panel_close"), QKeySequence(Qt::CTRL | Qt::Key_W));
    minimiseButton
        = makeButton(minimisePanelButton, qtTrId("panel_minimise"), QKeySequence(Qt::CTRL | Qt::Key_M));
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

QToolButton* Rounded_View2::makeButton(const PanelButton& button, const QString& name,
                                       const QKeySequence& keys)
{
    auto* made = new QToolButton(this);
    made->setObjectName(QLatin1String(button.image));
    made->setProperty("role", QStringLiteral("knob"));
    made->setIcon(theme::mark(QLatin1String(button.image)));
    made->setIconSize(inView(panelButtonFrame(button, 0), 0).size());
    made->setToolTip(name + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText)
                     + QLatin1Char(')'));
    made->setAccessibleName(name);
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

void Rounded_View2::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    closeButton->setGeometry(inView(panelButtonFrame(closePanelButton, height()), height()));
    minimiseButton->setGeometry(inView(panelButtonFrame(minimisePanelButton, height()), height()));
}

void Rounded_View2::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, height());
    painter.scale(1, -1);
    const QPainterPath outline = painterPath(
        roundedPath({0, 0, static_cast<double>(width()), static_cast<double>(height())}, m_borderWidth));
    painter.fillPath(outline, m_backgroundColor);
    if (m_borderWidth > 0)
        painter.strokePath(outline, QPen(m_borderColor, static_cast<double>(m_borderWidth)));
}

} // namespace tessera
