#include "artwork/ui/aspectchoice.h"

#include "core/message.h"
#include "widgets/boundcontrols.h"

#include <QActionGroup>
#include <QComboBox>
#include <QMenu>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// By position; nullptr is a separator, which has one too.
constexpr std::array titles{
    textKey("aspect_own"),  static_cast<const char*>(nullptr), textKey("aspect_1_1"), textKey("aspect_4_3"),
    textKey("aspect_16_9"), static_cast<const char*>(nullptr), textKey("aspect_6_4"), textKey("aspect_8_3"),
    textKey("aspect_12_3"),
};

} // namespace

AspectChoice::AspectChoice(DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_items(new QActionGroup(this))
{
    connect(m_items, &QActionGroup::triggered, this, &AspectChoice::MenuAspect);
}

void AspectChoice::setPopup(QComboBox& popup)
{
    m_popup = &popup;
    addPopup(popup);
}

void AspectChoice::addPopup(QComboBox& popup)
{
    for (const char* title : titles) {
        if (title != nullptr)
            popup.addItem(qtTrId(title));
        else
            popup.insertSeparator(popup.count());
    }
    bind(popup, m_defaults, keys::AspectRatio);
    connect(&popup, &QComboBox::activated, this, &AspectChoice::snapviewAction);
}

void AspectChoice::fillMenu(QMenu& menu)
{
    int tag = 0;
    for (const char* title : titles) {
        if (title != nullptr) {
            QAction* item = m_items->addAction(menu.addAction(qtTrId(title)));
            item->setCheckable(true);
            item->setData(tag);
        } else {
            menu.addSeparator();
        }
        ++tag;
    }
}

// The views follow the setting by themselves.
void AspectChoice::snapviewAction()
{
    const QString title = m_popup->currentText();
    const QList<QAction*> items = m_items->actions();
    const auto item = std::ranges::find(items, title, &QAction::text);
    check(item == items.end() ? nullptr : *item);
    m_defaults.flush();
}

// Every pop-up follows the setting.
void AspectChoice::MenuAspect(QAction* item)
{
    check(item);
    m_defaults.setIndex(keys::AspectRatio, item->data().toInt());
}

void AspectChoice::check(QAction* item)
{
    if (m_selectMenuitem != nullptr)
        m_selectMenuitem->setChecked(false);
    m_selectMenuitem = item;
    if (item != nullptr)
        item->setChecked(true);
}

} // namespace tessera
