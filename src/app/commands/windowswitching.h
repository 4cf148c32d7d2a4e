#pragma once

#include <QWidget>

namespace tessera {

class FavouritesDesk;
class GameListController;
class MiniDesk;

/// The main, the mini and the favourites window are three views of the same work: one of them is shown.
class WindowSwitching : public QObject
{
    Q_OBJECT

public:
    WindowSwitching(QWidget& main, MiniDesk& mini, FavouritesDesk& favorites, GameListController& list,
                    QObject* parent = nullptr);

    /// Gives the main or the favourites window, whichever is hidden, the place and size of the other.
    void windowAdjustment();

public Q_SLOTS:

    void windowMain();
    void windowMini();
    void windowFavorites();
    /// Brings forward the one that is shown.
    void comeForward();

private:
    QWidget& m_main;
    MiniDesk& m_miniDesk;
    FavouritesDesk& m_favouritesDesk;
    GameListController& m_list;
    QWidget* m_mini = nullptr; ///< once it was shown, like the other
    QWidget* m_favourites = nullptr;
};

} // namespace tessera
