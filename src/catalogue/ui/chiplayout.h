#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace tessera {

/// What stands over the list: one row where everything has the room that it would like, or the first ones
/// have; else as many rows as are needed, with the least room for each. The last one stands at the right.
/// Nothing ever overlaps.
class ChipLayout : public QLayout
{
    Q_OBJECT

public:
    ChipLayout();
    ~ChipLayout() override;

    void addItem(QLayoutItem* item) override;
    void insert(int index, QWidget* widget);
    /// More room before what follows in the same row.
    void insertGap(int index, int width);
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    void insertItem(int index, QLayoutItem* item);
    std::vector<QRect> places(int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace tessera
