#include "app/windowswitching.h"

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

WindowSwitching::WindowSwitching(QWidget& main, Maker mini, Maker favorites, std::function<void()> refresh)
    : m_main(main)
    , m_makeMini(std::move(mini))
    , m_makeFavorites(std::move(favorites))
    , m_refresh(std::move(refresh))
{
}

// Hidden, not closed: closing the main window asks for the end of the program.
void WindowSwitching::windowMain()
{
    m_refresh();
    windowAdjustment();
    hide(m_mini);
    hide(m_favorites);
    bringForward(m_main);
}

void WindowSwitching::windowFavorites()
{
    m_refresh();
    m_favorites = &m_makeFavorites();
    windowAdjustment();
    m_main.hide();
    hide(m_mini);
    bringForward(*m_favorites);
}

void WindowSwitching::windowMini()
{
    m_mini = &m_makeMini();
    m_main.hide();
    hide(m_favorites);
    bringForward(*m_mini);
}

void WindowSwitching::comeForward()
{
    for (QWidget* window : {m_favorites, m_mini}) {
        if (window != nullptr && window->isVisible()) {
            bringForward(*window);
            return;
        }
    }
    bringForward(m_main);
}

void WindowSwitching::windowAdjustment()
{
    if (m_favorites == nullptr)
        return;
    if (m_main.isVisible())
        takePlace(*m_favorites, m_main);
    else if (m_favorites->isVisible())
        takePlace(m_main, *m_favorites);
}

} // namespace tessera
