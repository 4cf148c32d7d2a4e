#pragma once

#include "catalogue/colortransformer.h"
#include "catalogue/gameselection.h"
#include "favourites/favourites.h"
#include "favourites/ui/favouriteselection.h"

#include <functional>

namespace tessera {

class Catalogue;
class DefaultsController;
class Desktop;
class FavouritesTable;
class FavouritesTableModel;
class PlayedGames;
class RomFolders;

/// What the favourites need; all of it outlives the controller.
struct FavouritesParts {
    Desktop& desktop;
    DefaultsController& defaults;
    Favourites& favourites;
    PlayedGames& played;
    Catalogue& catalogue;
    /// The first selected record of the game list, or none.
    std::function<const GameRecord*()> selectedGame;
};

/// The favourites' commands.
class UCAppController : public QObject, public GameSelection
{
    Q_OBJECT

public:
    explicit UCAppController(FavouritesParts parts, QObject* parent = nullptr);

    void setTable(FavouritesTable* table);
    ArrangedList& list() { return m_list; }
    FavouritesTableModel* model() { return m_model; }
    FavouriteSelection& selection() { return m_selection; }

    QString pathOfDataFile() const;
    /// True once the list has been changed in this run: only then the file is rewritten at quit.
    bool favoritesUpdate() const { return m_favoritesUpdate; }

    // Selection readers: a value of the first selected favourite, empty where nothing is selected.
    SelectedGame selected() const override;
    QString tableViewSelectionROM2() const;
    QString tableViewSelectionParentROM2() const;
    QString tableViewSelectionCloneof() const;
    QString tableViewSelectionYEAR() const;
    QString tableViewSelectionMaker() const;

    /// The extra options of the first favourite of that name, as they are arranged; empty where there is
    /// none.
    QString search_priorityOption(const QString& name) const;

    void dir_make(const QString& path);
    /// Takes over what stands in open editors.
    void commitEditing();
    /// Writes what is not saved yet into a dated file of its own beside the other, and gives its path; an
    /// empty one where everything is saved.
    std::expected<QString, Failure> keepUnsaved();
    void addFavoritesTable(const GameRecord& game);
    /// Only what was played in the last days, or everything.
    void showRecentlyPlayed(bool only);
    /// Whose archives are there, for the colours of the rows.
    void setRomFolders(std::shared_ptr<const RomFolders> folders);

public Q_SLOTS:
    void awakeFromNib();
    void set_favorites();
    void saveFavorites();
    /// Writes at once, edits included, and says how it went.
    void saveFavoritesNow();
    void addFavorite();
    void removeFavoritesTable();
    /// The first of the selected ones alone, which is what the editor shows.
    void removeShown();
    void tableViewSelectionDidChange();
    void romStatus2();
    void tableViewDoubleAction2();
    void favorites_tableViewSort();
    /// A random row; of an empty list none.
    void gameShuffle2();

Q_SIGNALS:
    void launchRequested(const QString& game);
    void selectionChanged();
    /// The status mark to show; a status without one leaves the mark that was shown before.
    void markChanged(const QString& imageName);
    void statusMessage(const QString& text);
    /// Something differs from the file.
    void unsavedChanged(bool unsaved);
    /// The list shows other favourites, or another number of them.
    void countChanged();
    /// Texts that stand in open editors are to be taken over now.
    void commitRequested();

private:
    void joinFavourites();
    void removeAfterAsking(std::vector<std::uint32_t> favourites);
    void showAgain(const std::vector<std::uint32_t>& selected, int row = -1);
    void showAfterRemoval(const std::vector<std::uint32_t>& gone);
    void markGone();
    void applyRecent();
    std::expected<void, Failure> writeFile();
    QString selectedValue(Field field) const;

    FavouritesParts m_parts;
    ArrangedList m_list;
    ColorTransformer m_colors;
    FavouritesTableModel* m_model;
    FavouriteSelection m_selection;
    FavouritesTable* m_table = nullptr;
    bool m_favoritesUpdate = false;
    bool m_onlyRecent = false;
    bool m_quiet = false; ///< while the table is made anew
};

} // namespace tessera
