#include "app/windows.h"

#include "widgets/deletionfocusring.h"
#include "widgets/filedrop.h"

#include <QAction>
#include <QMenuBar>

namespace tessera {

Windows::Windows(const QMenuBar& menus, DefaultsController& defaults)
    : m_menus(menus)
    , m_places(defaults)
{
}

void Windows::watch(QWidget& window, KeyWindow::Kind kind)
{
    m_key.watch(window, kind);
    // The main window's turn comes after it was painted.
    if (kind != KeyWindow::Kind::Main)
        DeletionFocusRing::awakeFromNib(window);
}

void Windows::carryMenuKeys(QWidget& window) const
{
    for (QAction* action : m_menus.findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty())
            window.addAction(action);
    }
}

void Windows::openDropped(QWidget& window)
{
    connect(new FileDrop(window), &FileDrop::dropped, this, &Windows::dropped);
}

} // namespace tessera
