#pragma once

#include <QWidget>

#include <functional>

namespace tessera {

/// The main, the mini and the favourites window are three views of the same work: one of them is shown.
class WindowSwitching
{
public:
    using Maker = std::function<QWidget&()>;

    /// Mini and favourites window are made when they are first shown. `refresh` makes picture and status mark
    /// follow the present selection.
    WindowSwitching(QWidget& main, Maker mini, Maker favorites, std::function<void()> refresh);

    void windowMain();
    void windowMini();
    void windowFavorites();
    /// Brings forward the one that is shown.
    void comeForward();
    /// Gives the main or the favourites window, whichever is hidden, the place and size of the other.
    void windowAdjustment();

private:
    QWidget& m_main;
    Maker m_makeMini;
    Maker m_makeFavorites;
    QWidget* m_mini = nullptr; ///< once it was shown, like the other
    QWidget* m_favorites = nullptr;
    std::function<void()> m_refresh;
};

} // namespace tessera
