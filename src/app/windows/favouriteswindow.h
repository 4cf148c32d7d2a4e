#pragma once

#include "app/windows/listwindow.h"

class QMenuBar;

namespace tessera {

class ChipButton;
class SiteChoice;

/// The favourites. It takes the main window's place.
class FavouritesWindow : public ListWindow
{
    Q_OBJECT

public:
    explicit FavouritesWindow(DefaultsController& defaults);

    GameTableView* favoritesTable;
    SiteChoice* siteChoice; ///< in the side panel
    QToolButton* editButton;
    QToolButton* removeButton;
    QToolButton* mainButton;
    QToolButton* miniButton;
    ChipButton* recentChip; ///< only what was played in the last days
    QPushButton* saveButton; ///< shown while something is not saved

    /// The same menus as in the main window.
    void takeMenus(const QMenuBar& from);
    void showCount(std::size_t shown, std::size_t all);
    void showUnsaved(bool unsaved);

private:
    static const Kind& kind();
    Bar* makeButtons();
    void makeStatusLine();

    QLabel* m_unsaved;
};

} // namespace tessera
