#include "app/windowswitching.h"

#include "widgets/bringforward.h"

namespace tessera {

namespace {

// Also where it fills the screen.
void takePlace(QWidget& window, const QWidget& from)
{
    window.setGeometry(from.geometry());
    window.setWindowState(from.windowState() & ~Qt::WindowMinimized);
}

} // namespace

WindowSwitching::WindowSwitching(QWidget& main, QWidget& mini, QWidget& favorites,
                                 std::function<void()> refresh)
    : m_main(main)
    , m_mini(mini)
    , m_favorites(favorites)
    , m_refresh(std::move(refresh))
{
}

// Hidden, not closed: closing the main window asks for the end of the program.
void WindowSwitching::windowMain()
{
    m_refresh();
    windowAdjustment();
    m_mini.hide();
    m_favorites.hide();
    bringForward(m_main);
}

void WindowSwitching::windowFavorites()
{
    m_refresh();
    windowAdjustment();
    m_main.hide();
    m_mini.hide();
    bringForward(m_favorites);
}

void WindowSwitching::windowMini()
{
    m_main.hide();
    m_favorites.hide();
    bringForward(m_mini);
}

void WindowSwitching::windowAdjustment()
{
    if (m_main.isVisible())
        takePlace(m_favorites, m_main);
    else if (m_favorites.isVisible())
        takePlace(m_main, m_favorites);
}

} // namespace tessera
