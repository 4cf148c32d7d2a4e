#include "artwork/ui/aspectview.h"

#include "artwork/aspectratios.h"
#include "platform/defaultscontroller.h"
#include "widgets/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>

namespace tessera {

namespace {

constexpr int settled = 40; // milliseconds without another picture or size

} // namespace

AspectView::AspectView(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent)
    , m_defaults(defaults)
    , m_refining(new QTimer(this))
{
    m_refining->setSingleShot(true);
    m_refining->setInterval(settled);
    connect(m_refining, &QTimer::timeout, this, &AspectView::refine);
    setProperty("role", QStringLiteral("picture"));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    connect(&defaults, &DefaultsController::changed, this, &AspectView::settingChanged);
}

int AspectView::rationum() const
{
    return m_defaults.index(keys::AspectRatio);
}

bool AspectView::hasWholeSteps() const
{
    return m_defaults.stored().flag(keys::PictureWholeSteps.name);
}

void AspectView::settingChanged(const QString& name)
{
    if (name.isEmpty() || name == keys::AspectRatio.name || name == keys::PictureWholeSteps.name)
        update();
}

void AspectView::setImage(const QImage& image)
{
    m_image = image;
    m_scaled = QPixmap();
    update();
}

QRect AspectView::drawnRect() const
{
    const double ratio = devicePixelRatioF();
    const auto place = picturePlace(m_image.size(), QRectF(QPointF(), QSizeF(size()) * ratio), rationum());
    if (!place)
        return {};
    const QRectF drawn
        = (hasWholeSteps() ? inWholeSteps(*place, m_image.size()) : *place).rectangle(m_image.size());
    // Whole pixels: at a fraction of one the picture would be blurred.
    return QRect(qRound(drawn.x()), qRound(drawn.y()), qMax(1, qRound(drawn.width())),
                 qMax(1, qRound(drawn.height())));
}

void AspectView::refine()
{
    if (m_image.isNull())
        return;
    m_scaled = QPixmap::fromImage(
        m_image.scaled(drawnRect().size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    update();
}

void AspectView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (const QRect drawn = drawnRect(); !drawn.isEmpty())
        drawPicture(painter, drawn);
    // The picture covers the view's own border.
    if (hasFocus()) {
        painter.setPen(theme::color("accent"));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void AspectView::drawPicture(QPainter& painter, const QRect& drawn)
{
    const double ratio = devicePixelRatioF();
    QTransform transform;
    transform.scale(1 / ratio, 1 / ratio);
    transform.translate(drawn.x(), drawn.y());
    painter.save();
    painter.setTransform(transform, true);
    const bool isEven = hasWholeSteps() && drawn.width() >= m_image.width();
    if (!isEven && m_scaled.size() == drawn.size()) {
        painter.drawPixmap(0, 0, m_scaled);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, !isEven);
        painter.drawImage(QRect(QPoint(), drawn.size()), m_image);
        if (!isEven)
            m_refining->start();
    }
    painter.restore();
}

void AspectView::mousePressEvent(QMouseEvent* event)
{
    m_drag.press(*event);
}

void AspectView::mouseMoveEvent(QMouseEvent* event)
{
    m_drag.move(*event, *this);
}

void AspectView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_drag.release(*event))
        Q_EMIT clicked();
}

void AspectView::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
        Q_EMIT clicked();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tessera
