#include "catalogue/ui/chiplayout.h"

#include <algorithm>

namespace tessera {

ChipLayout::ChipLayout() = default;

ChipLayout::~ChipLayout() = default;

void ChipLayout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

void ChipLayout::insertItem(int index, QLayoutItem* item)
{
    m_items.emplace(m_items.begin() + index, item);
    invalidate();
}

void ChipLayout::insert(int index, QWidget* widget)
{
    addChildWidget(widget);
    insertItem(index, new QWidgetItem(widget));
}

void ChipLayout::insertGap(int index, int width)
{
    insertItem(index, new QSpacerItem(width, 0));
}

QLayoutItem* ChipLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* ChipLayout::takeAt(int index)
{
    if (itemAt(index) == nullptr)
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* item = place->release();
    m_items.erase(place);
    return item;
}

// One row.
QSize ChipLayout::sizeHint() const
{
    int width = -spacing();
    int height = 0;
    for (const auto& item : m_items) {
        width += item->sizeHint().width() + spacing();
        height = std::max(height, item->sizeHint().height());
    }
    return {std::max(0, width), height};
}

// One beneath the other; how high that is, heightForWidth() says.
QSize ChipLayout::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int ChipLayout::heightForWidth(int width) const
{
    int height = 0;
    for (const QRect& place : places(width))
        height = std::max(height, place.bottom() + 1);
    return height;
}

void ChipLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const std::vector<QRect> all = places(rect.width());
    for (std::size_t i = 0; i < all.size(); ++i)
        m_items[i]->setGeometry(all[i].translated(rect.topLeft()));
}

std::vector<QRect> ChipLayout::places(int width) const
{
    const QSize row = sizeHint();
    int left = width + spacing(); // of one row, or nothing
    for (const auto& item : m_items)
        left -= item->minimumSize().width() + spacing();
    std::vector<QRect> all;
    QPoint at;
    for (const auto& item : m_items) {
        left -= item->sizeHint().width() - item->minimumSize().width();
        // At a row's begin a gap would be an indent.
        if (item->spacerItem() != nullptr && at.x() == 0) {
            all.emplace_back(at, QSize());
            continue;
        }
        const QSize size = left >= 0 ? item->sizeHint() : item->minimumSize();
        if (at.x() > 0 && at.x() + size.width() > width)
            at = QPoint(0, at.y() + row.height() + spacing());
        if (item == m_items.back())
            at.setX(std::max(0, width - size.width()));
        all.emplace_back(at, QSize(size.width(), row.height()));
        at.rx() += size.width() + spacing();
    }
    return all;
}

} // namespace tessera
