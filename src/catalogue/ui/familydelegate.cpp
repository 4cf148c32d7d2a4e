#include "catalogue/ui/familydelegate.h"

#include "widgets/theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace tessera {

namespace {

constexpr int indent = 16;
constexpr int padding = 8;

QString badge(const QModelIndex& index)
{
    const int clones = index.data(FamilyDelegate::ClonesRole).toInt();
    if (clones == 0)
        return QString();
    return (index.data(FamilyDelegate::IsOpenRole).toBool() ? QStringLiteral("▾ %1") : QStringLiteral("▸ %1"))
        .arg(clones);
}

int badgeWidth(const QStyleOptionViewItem& option, const QString& text)
{
    return text.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(text) + 2 * padding;
}

} // namespace

void FamilyDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyleOptionViewItem inner = option;
    const QString text = badge(index);
    if (index.data(IsCloneRole).toBool())
        inner.rect.setLeft(option.rect.left() + indent);
    inner.rect.setRight(option.rect.right() - badgeWidth(option, text));
    // The row's own background reaches under all of it.
    if (inner.rect != option.rect) {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const bool isOther = option.features.testFlag(QStyleOptionViewItem::Alternate);
        painter->fillRect(option.rect,
                          theme::color(isSelected    ? "selection"
                                           : isOther ? "otherrow"
                                                     : "base"));
    }
    MatchDelegate::paint(painter, inner, index);
    if (text.isEmpty())
        return;
    painter->save();
    painter->setPen(theme::color("faint"));
    painter->drawText(option.rect.adjusted(0, 0, -padding, 0), Qt::AlignRight | Qt::AlignVCenter, text);
    painter->restore();
}

bool FamilyDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* release = static_cast<QMouseEvent*>(event);
        if (release->button() == Qt::LeftButton
            && release->position().x() > option.rect.right() - badgeWidth(option, badge(index))) {
            Q_EMIT toggled(index.row());
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

} // namespace tessera
