#include "widgets/toolbar.h"

#include "widgets/named.h"
#include "widgets/theme.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace tessera {

namespace {
constexpr int iconSize = 20;
}

Toolbar::Toolbar(QWidget& preferencesWindow, QStackedWidget& preferencesTab)
    : QObject(&preferencesWindow)
    , m_preferencesWindow(preferencesWindow)
    , m_preferencesTab(preferencesTab)
    , m_items(new QButtonGroup(this))
{
}

void Toolbar::awakeFromNib()
{
    auto* bar = named("ToolbarForTabView", withRole("toolbar", new QWidget(&m_preferencesWindow)));
    bar->setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(4);
    layout->addStretch();
    for (const Item& item : items) {
        QToolButton* button = makeItem(item);
        m_items->addButton(button);
        layout->addWidget(button);
    }
    layout->addStretch();
    qobject_cast<QBoxLayout*>(m_preferencesWindow.layout())->insertWidget(0, bar);
    QWidget* before = bar;
    for (QAbstractButton* button : m_items->buttons())
        QWidget::setTabOrder(std::exchange(before, button), button);
    _showTab(QLatin1String(items.front().identifier));
}

QToolButton* Toolbar::makeItem(const Item& item)
{
    auto* button = named(item.identifier, withRole("page", new QToolButton));
    button->setText(qtTrId(item.identifier));
    button->setIcon(theme::icon(QLatin1String(item.image)));
    button->setIconSize(QSize(iconSize, iconSize));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, button] { _showTab(button->objectName()); });
    return button;
}

QStringList Toolbar::toolbarDefaultItemIdentifiers()
{
    QStringList identifiers;
    for (const Item& item : items)
        identifiers << QLatin1String(item.identifier);
    return identifiers;
}

QToolButton* Toolbar::itemForIdentifier(const QString& identifier) const
{
    const auto buttons = m_items->buttons();
    const auto found = std::ranges::find(buttons, identifier, &QObject::objectName);
    return found == buttons.end() ? nullptr : qobject_cast<QToolButton*>(*found);
}

QToolButton* Toolbar::selectedItem() const
{
    return qobject_cast<QToolButton*>(m_items->checkedButton());
}

void Toolbar::_showTab(const QString& identifier)
{
    if (QToolButton* item = itemForIdentifier(identifier))
        item->setChecked(true);
    for (int i = 0; i < m_preferencesTab.count(); ++i) {
        if (m_preferencesTab.widget(i)->objectName() == identifier)
            m_preferencesTab.setCurrentIndex(i);
    }
}

void Toolbar::pagestrip(int segment)
{
    if (m_preferencesTab2 != nullptr)
        m_preferencesTab2->setCurrentIndex(segment);
}

} // namespace tessera
