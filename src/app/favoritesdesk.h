#pragma once

#include "catalogue/search/nameset.h"
#include "favourites/favourites.h"
#include "favourites/playedgames.h"
#include "favourites/ui/favouriteediting.h"
#include "favourites/ui/playedcontroller.h"
#include "favourites/ui/ucappcontroller.h"

#include <QObject>

#include <memory>

class QWidget;

namespace tessera {

class Catalogue;
class DefaultsController;
class Desktop;
class FavoritesWindow;
class GameListController;

/// Joins the favourites and what was played to their window and to the game list.
class FavoritesDesk : public QObject
{
    Q_OBJECT

public:
    /// `commandLine` gives a set's whole command line with its options.
    FavoritesDesk(Desktop& desktop, DefaultsController& defaults, Catalogue& catalogue,
                  GameListController& list, std::function<QString(const QString& name)> commandLine,
                  QObject* parent = nullptr);
    ~FavoritesDesk() override;

    /// Made when it is first asked for.
    FavoritesWindow& window();
    bool isVisible() const;
    /// Where it was made, what it looks like goes into the settings.
    void remember();
    UCAppController& controller() { return m_controller; }
    FavouriteEditing& editing() { return m_editing; }
    PlayedController& played() { return m_playing; }
    Favourites& favourites() { return m_favourites; }
    NameSet names() const;

    /// Reads both files.
    void awakeFromNib();

Q_SIGNALS:
    void launchRequested(const QString& game);
    /// The empty window's button, or its own one: back to the game list.
    void mainWanted();
    void miniWanted();
    void statusMessage(const QString& text);
    /// The names of the sets in the list are others now.
    void namesChanged();
    void windowMade(QWidget& window);

private:
    void joinWindow();
    void showSelection();
    void showCount();
    void actOnEmptyList();
    void showRecentlyPlayed(bool only);

    DefaultsController& m_defaults;
    Favourites m_favourites;
    PlayedGames m_played;
    UCAppController m_controller;
    FavouriteEditing m_editing;
    PlayedController m_playing;
    std::unique_ptr<FavoritesWindow> m_window;
};

} // namespace tessera
