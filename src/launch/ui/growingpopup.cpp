#include "launch/ui/growingpopup.h"

#include "platform/defaultscontroller.h"

#include <QComboBox>

namespace tessera {

GrowingPopup::GrowingPopup(QComboBox& popup, DefaultsController& defaults, const GrowingItems& items)
    : QObject(&popup)
    , m_popup(popup)
    , m_defaults(defaults)
    , m_items(items)
{
    show();
    connect(&defaults, &DefaultsController::changed, this, [this](const QString& name) {
        if (name.isEmpty() || name == m_items.kept.name)
            show();
    });
    connect(&popup, &QComboBox::activated, this, &GrowingPopup::keepChosen);
}

void GrowingPopup::offer(const QStringList& titles)
{
    m_offered = titles;
    show();
}

void GrowingPopup::show()
{
    const QStringList titles = keptTitles(m_defaults, m_items) + newTitles(m_defaults, m_items, m_offered);
    const auto shipped = static_cast<int>(m_items.shipped.size());
    // What stays is not touched: it may be selected.
    int same = 0;
    while (same < titles.size() && m_popup.itemText(shipped + same) == titles[same])
        ++same;
    while (m_popup.count() > shipped + same)
        m_popup.removeItem(m_popup.count() - 1);
    m_popup.addItems(titles.mid(same));
}

void GrowingPopup::keepChosen(int index)
{
    QStringList shown;
    for (int i = static_cast<int>(m_items.shipped.size()); i <= index; ++i)
        shown << m_popup.itemText(i);
    if (!newTitles(m_defaults, m_items, shown).isEmpty())
        keepTitles(m_defaults, m_items, shown);
}

} // namespace tessera
