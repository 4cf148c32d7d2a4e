#include "app/commands/modemenu.h"

#include "launch/popupitems.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/menusearch.h"

#include <QMenu>
#include <QMenuBar>

namespace tessera {

ModeMenu::ModeMenu(QMenuBar& bar, LaunchController& launches, QObject* parent)
    : QObject(parent)
    , m_bar(bar)
{
    auto* menu = bar.findChild<QMenu*>(QStringLiteral("menu_emulator"));
    menu->addSeparator();
    for (const PopupItem& item : launchModes) {
        const QString title = item.shown();
        QAction* action = menu->addAction(title);
        action->setCheckable(true);
        connect(action, &QAction::triggered, &launches, [&launches, this, title] {
            // The toggle that comes with a click is no mark.
            mark(title);
            launches.MenuLaunchusing(title);
        });
    }
}

void ModeMenu::mark(const QString& title)
{
    if (m_oldselectLaunchemu)
        m_oldselectLaunchemu->setChecked(false);
    m_oldselectLaunchemu = findMenuItemNamed(title, &m_bar);
    if (m_oldselectLaunchemu)
        m_oldselectLaunchemu->setChecked(true);
}

} // namespace tessera
