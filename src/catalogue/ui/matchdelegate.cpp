#include "catalogue/ui/matchdelegate.h"

#include "widgets/theme.h"

#include <QApplication>
#include <QPainter>

namespace tessera {

namespace {

constexpr int translucent = 90;
constexpr qreal corner = 2.5;

// Where the style puts the text.
QRect textRect(const QStyleOptionViewItem& option)
{
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    return style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget)
        .adjusted(margin, 0, -margin, 0);
}

} // namespace

// The style draws background and letters at once: like a marker's stroke, this one comes over them.
void MatchDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QVariant field = m_matches.isEmpty() ? QVariant() : index.data(FieldRole);
    if (!field.isValid())
        return;
    const std::vector<TextRange> ranges
        = m_matches.in(index.data().toString(), static_cast<Field>(field.toInt()));
    if (ranges.empty())
        return;
    QStyleOptionViewItem inner = option;
    initStyleOption(&inner, index);
    const QRect place = textRect(inner);
    const QFontMetrics& metrics = inner.fontMetrics;
    const int height = metrics.height();
    QColor stroke = theme::color("accent");
    stroke.setAlpha(translucent);
    painter->save();
    painter->setClipRect(place);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(stroke);
    QRegion strokes;
    for (const TextRange& range : ranges) {
        const int begin = metrics.horizontalAdvance(inner.text, static_cast<int>(range.begin));
        const int end = metrics.horizontalAdvance(inner.text, static_cast<int>(range.end));
        const QRect letters(place.left() + begin, place.center().y() - height / 2 + 1, end - begin,
                            height - 1);
        painter->drawRoundedRect(letters, corner, corner);
        strokes += letters;
    }
    // The letters once more, else they would be dim.
    const bool isSelected = inner.state.testFlag(QStyle::State_Selected);
    painter->setClipRegion(strokes & place);
    painter->setFont(inner.font);
    painter->setPen(inner.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(inner.text, inner.textElideMode, place.width()));
    painter->restore();
}

} // namespace tessera
