#pragma once

#include "favourites/favourites.h"
#include "favourites/playedgames.h"
#include "favourites/ui/favouriteediting.h"
#include "favourites/ui/playedcontroller.h"
#include "favourites/ui/ucappcontroller.h"

#include <QObject>

#include <memory>

namespace tessera {

class Catalogue;
class DefaultsController;
class Desktop;
class FavouritesWindow;
class Finding;
class GameListController;
class EmulatorChoice;
class ProfileCache;
class Windows;

/// Joins the favourites and what was played to their window and to the game list.
class FavouritesDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Windows& windows;
        Desktop& desktop;
        DefaultsController& defaults;
        Catalogue& catalogue;
        GameListController& list;
        Finding& finding;
        ProfileCache& profiles;
        const EmulatorChoice& emulator;
    };
    explicit FavouritesDesk(const Parts& parts, QObject* parent = nullptr);
    ~FavouritesDesk() override;

    /// Made when it is first asked for.
    FavouritesWindow& window();
    bool isVisible() const;
    /// Where it was made, what it looks like goes into the settings.
    void remember();
    UCAppController& controller() { return m_controller; }
    FavouriteEditing& editing() { return m_editing; }
    PlayedController& played() { return m_playing; }
    Favourites& favourites() { return m_favourites; }

    void focusSearch();
    /// Reads both files.
    void awakeFromNib();

Q_SIGNALS:
    /// The empty window's button, or its own one: back to the game list.
    void mainWanted();
    void miniWanted();
    void windowMade(tessera::FavouritesWindow& window);

private:
    void joinEditor();
    void offerKnownOptions();
    void tellNames();
    void joinWindow();
    void showSelection();
    void showCount();
    void actOnEmptyList();
    void showRecentlyPlayed(bool only);
    void joinField();
    void search(const QString& text);
    void showFound();

    Parts m_parts;
    Favourites m_favourites;
    PlayedGames m_played;
    UCAppController m_controller;
    FavouriteEditing m_editing;
    PlayedController m_playing;
    std::unique_ptr<FavouritesWindow> m_window;
    QString m_complaint; ///< of what is searched
};

} // namespace tessera
