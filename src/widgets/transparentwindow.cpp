#include "widgets/transparentwindow.h"

#include "widgets/rounded_view2.h"
#include "widgets/windowdrag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace tessera {

namespace {

constexpr int shadowAlpha = 9; // of each of its rings

// What grows downwards on the screen is turned over at its lower edge.
double screenBottom()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    return screen.y() + screen.height();
}

Place onScreen(const QMouseEvent& event)
{
    return turnedOver(event.globalPosition(), screenBottom());
}

// The main one; the desktop's own panel at its upper edge counts as the menu bar.
Screen mainScreen()
{
    const QRect all = QGuiApplication::primaryScreen()->geometry();
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    return {QRectF(all.x(), 0, all.width(), all.height()), static_cast<double>(free.y() - all.y())};
}

int sizeOr(double size, int other)
{
    return size > 0 ? static_cast<int>(size) + 2 * TransparentWindow::shadowWidth : other;
}

} // namespace

TransparentWindow::TransparentWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_panel(new Rounded_View2)
{
    setAttribute(Qt::WA_TranslucentBackground);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(shadowWidth, shadowWidth, shadowWidth, shadowWidth);
    layout->addWidget(m_panel);
    connect(m_panel, &Rounded_View2::orderOut, this, &TransparentWindow::orderOut);
    connect(m_panel, &Rounded_View2::miniaturize, this, &TransparentWindow::miniaturize);
}

Frame TransparentWindow::frame() const
{
    return turnedOver(QRectF(geometry().adjusted(shadowWidth, shadowWidth, -shadowWidth, -shadowWidth)),
                      screenBottom());
}

void TransparentWindow::setFrame(const Frame& frame)
{
    setGeometry(turnedOver(frame, screenBottom())
                    .toRect()
                    .adjusted(-shadowWidth, -shadowWidth, shadowWidth, shadowWidth));
}

void TransparentWindow::setLimits(const SizeLimits& limits)
{
    m_limits = limits;
    setMinimumSize(sizeOr(limits.minWidth, 0), sizeOr(limits.minHeight, 0));
    setMaximumSize(sizeOr(limits.maxWidth, QWIDGETSIZE_MAX), sizeOr(limits.maxHeight, QWIDGETSIZE_MAX));
}

// To change the flag the window is made anew, and hidden: it is shown again where it was.
void TransparentWindow::setAbove(bool above)
{
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == above)
        return;
    const bool wasVisible = isVisible();
    const QRect place = geometry();
    setWindowFlag(Qt::WindowStaysOnTopHint, above);
    setGeometry(place);
    setVisible(wasVisible);
}

void TransparentWindow::orderOut()
{
    hide();
    Q_EMIT orderedOut();
}

void TransparentWindow::miniaturize()
{
    showMinimized();
}

// Only where windows cannot be placed: the desktop's own move and resize know neither the limits of the
// upper edge nor the step that a window makes at its largest height.
bool TransparentWindow::handOver()
{
    if (mayPlaceWindows() || windowHandle() == nullptr)
        return false;
    return m_isResizing ? windowHandle()->startSystemResize(Qt::RightEdge | Qt::BottomEdge)
                        : windowHandle()->startSystemMove();
}

void TransparentWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    m_startWindowFrame = frame();
    m_startLocation = onScreen(*event);
    m_initialLocation = inWindow(m_startWindowFrame, m_startLocation);
    m_isResizing = holds(resizeGrip(m_startWindowFrame), m_initialLocation);
    m_isDragging = !m_isResizing;
    // The compositor takes the mouse over: no release reaches us then.
    if (handOver())
        m_isResizing = m_isDragging = false;
    QWidget::mousePressEvent(event);
}

void TransparentWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isResizing) {
        const Frame resized = resizedFrame(m_startWindowFrame, m_startLocation, onScreen(*event), m_limits);
        if (resized != frame())
            setFrame(resized);
    } else if (m_isDragging) {
        setFrame(movedFrame(frame(), m_initialLocation, onScreen(*event), mainScreen()));
    }
}

void TransparentWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_startWindowFrame = {};
    m_startLocation = {};
    (m_isResizing ? m_isResizing : m_isDragging) = false;
}

// Rings around the panel, the more of them the nearer; none beneath it, since it can be seen through.
void TransparentWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, shadowAlpha));
    const QRectF panel(m_panel->geometry());
    QPainterPath inner;
    inner.addRoundedRect(panel, Rounded_View2::radius, Rounded_View2::radius);
    for (int ring = 1; ring <= shadowWidth; ++ring) {
        QPainterPath outer;
        const double radius = Rounded_View2::radius + ring;
        outer.addRoundedRect(panel.adjusted(-ring, -ring, ring, ring), radius, radius);
        painter.drawPath(outer.subtracted(inner));
    }
}

} // namespace tessera
