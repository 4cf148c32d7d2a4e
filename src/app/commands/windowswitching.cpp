#include "app/commands/windowswitching.h"

#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "widgets/bringforward.h"

namespace tessera {

namespace {

// Also where it fills the screen.
void takePlace(QWidget& window, const QWidget& from)
{
    const bool fills = from.windowState().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen);
    const QRect normal = from.normalGeometry();
    window.setGeometry(fills && normal.isValid() ? normal : from.geometry());
    window.setWindowState(from.windowState() & ~Qt::WindowMinimized);
}

void hide(QWidget* window)
{
    if (window != nullptr)
        window->hide();
}

} // namespace

WindowSwitching::WindowSwitching(QWidget& main, MiniDesk& mini, FavouritesDesk& favorites,
                                 GameListController& list, QObject* parent)
    : QObject(parent)
    , m_main(main)
    , m_miniDesk(mini)
    , m_favouritesDesk(favorites)
    , m_list(list)
{
}

// Hidden, not closed: closing the main window asks for the end of the program.
void WindowSwitching::windowMain()
{
    // Picture and status mark follow the present selection.
    m_list.tableViewSelectionDidChange();
    windowAdjustment();
    hide(m_mini);
    hide(m_favourites);
    bringForward(m_main);
}

void WindowSwitching::windowFavorites()
{
    m_list.tableViewSelectionDidChange();
    m_favourites = &m_favouritesDesk.window();
    windowAdjustment();
    m_main.hide();
    hide(m_mini);
    bringForward(*m_favourites);
}

void WindowSwitching::windowMini()
{
    m_mini = &m_miniDesk.window();
    m_main.hide();
    hide(m_favourites);
    bringForward(*m_mini);
}

void WindowSwitching::comeForward()
{
    for (QWidget* window : {m_favourites, m_mini}) {
        if (window != nullptr && window->isVisible()) {
            bringForward(*window);
            return;
        }
    }
    bringForward(m_main);
}

void WindowSwitching::windowAdjustment()
{
    if (m_favourites == nullptr)
        return;
    if (m_main.isVisible())
        takePlace(*m_favourites, m_main);
    else if (m_favourites->isVisible())
        takePlace(m_main, *m_favourites);
}

} // namespace tessera
