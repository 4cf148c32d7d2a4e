#pragma once

#include <QWidget>

#include <functional>

namespace tessera {

/// The main, the mini and the favourites window are three views of the same work: one of them is shown.
class WindowSwitching
{
public:
    /// `refresh` makes picture and status mark follow the present selection.
    WindowSwitching(QWidget& main, QWidget& mini, QWidget& favorites, std::function<void()> refresh);

    void windowMain();
    void windowMini();
    void windowFavorites();
    /// Gives the main or the favourites window, whichever is hidden, the place and size of the other.
    void windowAdjustment();

private:
    QWidget& m_main;
    QWidget& m_mini;
    QWidget& m_favorites;
    std::function<void()> m_refresh;
};

} // namespace tessera
