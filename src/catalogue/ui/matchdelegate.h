#pragma once

#include "catalogue/search/matches.h"

#include <QStyledItemDelegate>

namespace tessera {

/// Draws a list's texts, and in them what a search has found.
class MatchDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The field of the records that a column shows, as a number.
    static constexpr int FieldRole = Qt::UserRole + 16;

    using QStyledItemDelegate::QStyledItemDelegate;

    void setMatches(const Matches& matches) { m_matches = matches; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    Matches m_matches;
};

} // namespace tessera
