#pragma once

#include "catalogue/ui/matchdelegate.h"

namespace tessera {

/// Draws the first column of a list with families: a parent with the number of its clones, a clone further
/// in.
class FamilyDelegate : public MatchDelegate
{
    Q_OBJECT

public:
    /// What a model says of a row besides its texts.
    enum Role { ClonesRole = Qt::UserRole, IsOpenRole, IsCloneRole };

    using MatchDelegate::MatchDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

Q_SIGNALS:
    /// The number was clicked.
    void toggled(int row);
};

} // namespace tessera
