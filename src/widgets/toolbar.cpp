#include "widgets/toolbar.h"

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
    auto* bar = new QWidget(&m_preferencesWindow);
    bar->setObjectName(QStringLiteral("ToolbarForTabView"));
    bar->setProperty("role", QStringLiteral("toolbar"));
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
    auto* button = new QToolButton;
    const QString identifier = QLatin1String(item.identifier);
    button->setObjectName(identifier);
    button->setProperty("role", QStringLiteral("page"));
    button->setText(qtTrId(item.identifier));
    button->setIcon(theme::icon(QLatin1String(item.image)));
    button->setIconSize(QSize(iconSize, iconSize));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, identifier] { _showTab(identifier); });
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
