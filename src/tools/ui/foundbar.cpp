#include "tools/ui/foundbar.h"

#include "widgets/theme.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

namespace tessera {

namespace {
constexpr int barHeight = 6;
constexpr int gap = 6;
} // namespace

FoundBar::FoundBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("foundBar"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCounts(0, 0);
}

void FoundBar::setCounts(int found, int missing)
{
    m_found = found;
    m_missing = missing;
    const QLocale locale;
    setAccessibleName(qtTrId("existence_bar").arg(locale.toString(found), locale.toString(missing)));
    setVisible(found + missing > 0);
    update();
}

double FoundBar::part() const
{
    const int all = m_found + m_missing;
    return all > 0 ? static_cast<double>(m_found) / all : 0;
}

QSize FoundBar::sizeHint() const
{
    return {200, fontMetrics().height() + gap + barHeight};
}

void FoundBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QLocale locale;
    const QRect words(0, 0, width(), fontMetrics().height());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(words, Qt::AlignLeading | Qt::AlignVCenter,
                     qtTrId("existence_bar_found").arg(locale.toString(m_found)));
    painter.setPen(theme::color("dim"));
    painter.drawText(words, Qt::AlignTrailing | Qt::AlignVCenter,
                     qtTrId("existence_bar_missing").arg(locale.toString(m_missing)));

    const QRectF bar(0, words.height() + gap, width(), barHeight);
    QPainterPath shape;
    shape.addRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
    painter.fillPath(shape, theme::color("control"));
    painter.setClipPath(shape);
    painter.fillRect(QRectF(bar.left(), bar.top(), bar.width() * part(), bar.height()),
                     theme::color("accent"));
}

} // namespace tessera
