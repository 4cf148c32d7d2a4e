#pragma once

#include "app/windows/listwindow.h"

class QMenuBar;

namespace tessera {

class ChipButton;
class SearchField;
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
    SearchField* searchField;
    ChipButton* recentChip; ///< only what was played in the last days
    QPushButton* saveButton; ///< shown while something is not saved

    /// The same menus as in the main window.
    void takeMenus(const QMenuBar& from);
    void showCount(std::size_t shown, std::size_t all);
    /// Why the list may be empty where there are favourites.
    void setSearching(bool searching) { m_isSearching = searching; }
    void showUnsaved(bool unsaved);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    static const Kind& kind();
    Bar* makeButtons();
    void makeStatusLine();

    QLabel* m_unsaved;
    bool m_isSearching = false;
};

} // namespace tessera
