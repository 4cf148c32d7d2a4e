#include "widgets/sortheader.h"

#include "widgets/theme.h"

#include <QPainter>

namespace tessera {

namespace {

// As large as the sorted column's, and in the same place.
constexpr int arrowSize = 10;
constexpr int arrowMargin = 8;

} // namespace

SortHeader::SortHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
}

void SortHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    const QVariant second = model()->headerData(section, Qt::Horizontal, SecondSortRole);
    if (!second.isValid())
        return;
    const bool upwards = second.toInt() == Qt::AscendingOrder;
    const QRect arrow(rect.right() + 1 - arrowMargin - arrowSize, rect.center().y() - arrowSize / 2,
                      arrowSize, arrowSize);
    painter->save();
    theme::icon(upwards ? QStringLiteral("arrow-up") : QStringLiteral("arrow-down"), "faint")
        .paint(painter, arrow);
    painter->restore();
}

} // namespace tessera
