#pragma once

#include <QHeaderView>

namespace tessera {

/// A table's header that also marks the column which decides among rows that are equal in the sorted one: its
/// arrow is fainter.
class SortHeader : public QHeaderView
{
    Q_OBJECT

public:
    /// What the model's header data has for that column, a Qt::SortOrder; nothing for the others.
    static constexpr int SecondSortRole = Qt::UserRole + 200;

    explicit SortHeader(QWidget* parent = nullptr);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

} // namespace tessera
