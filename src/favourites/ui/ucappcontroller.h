#pragma once

#include "catalogue/ui/listcontroller.h"
#include "favourites/favouritefinder.h"
#include "favourites/favourites.h"

namespace tessera {

class Catalogue;
class DefaultsController;
class FavouritesTableModel;
class PlayedGames;

/// What the favourites need; all of it outlives the controller.
struct FavouritesParts {
    Desktop& desktop;
    DefaultsController& defaults;
    Favourites& favourites;
    PlayedGames& played;
    Catalogue& catalogue;
    /// What is added is the game that is selected here.
    const ListController& games;
};

/// The favourites' commands.
class UCAppController : public ListController
{
    Q_OBJECT

public:
    explicit UCAppController(const FavouritesParts& parts, QObject* parent = nullptr);

    /// With a header of its own height; some columns are not among the shown ones at first.
    void setTable(GameTableView* table);
    FavouritesTableModel* model() { return m_model; }

    QString pathOfDataFile() const;
    /// True once the list has been changed in this run: only then the file is rewritten at quit.
    bool favoritesUpdate() const { return m_favoritesUpdate; }

    // Selection readers: a value of the first selected favourite, empty where nothing is selected.
    QString tableViewSelectionROM2() const { return selectedValue(Field::Name); }
    QString tableViewSelectionParentROM2() const { return selectedValue(Field::Cloneof); }
    QString tableViewSelectionCloneof() const { return selectedValue(Field::Cloneof); }
    QString tableViewSelectionYEAR() const { return selectedValue(Field::Year); }
    QString tableViewSelectionMaker() const { return selectedValue(Field::Maker); }

    /// The extra options of the first favourite of that name, as they are arranged; empty where there is
    /// none.
    QString search_priorityOption(const QString& name) const;

    void dir_make(const QString& path);
    void commitEditing() override;
    /// Writes what is not saved yet into a dated file of its own beside the other, and gives its path; an
    /// empty one where everything is saved.
    std::expected<QString, Failure> keepUnsaved();
    void addFavoritesTable(const GameRecord& game);
    /// Only those that a search finds, in the order that the list has; of them the best is selected. Empty
    /// finds everything.
    void search(const QString& text);
    FavouriteFinder& finder() { return m_finder; }
    /// Only what was played in the last days, or everything.
    void showRecentlyPlayed(bool only);

public Q_SLOTS:
    void awakeFromNib();
    void set_favorites();
    void saveFavorites();
    /// Writes at once, edits included, and says how it went.
    void saveFavouritesNow();
    void addFavorite();
    void removeFavoritesTable();
    /// The first of the selected ones alone, which is what the editor shows.
    void removeShown();
    void romStatus2() { showMark(); }
    void tableViewDoubleAction2();
    void favorites_tableViewSort();
    /// A random row; of an empty list none.
    void gameShuffle2() { selectRandomRow(); }

Q_SIGNALS:
    /// The list shows other records, or another number of them.
    void countChanged();
    /// Something differs from the file.
    void unsavedChanged(bool unsaved);
    /// Texts that stand in open editors are to be taken over now.
    void commitRequested();

private:
    void startSelected() override { tableViewDoubleAction2(); }
    void joinFavourites();
    void removeAfterAsking(std::vector<std::uint32_t> favourites);
    void showAgain(const std::vector<std::uint32_t>& selected, int row = -1);
    void showAfterRemoval(const std::vector<std::uint32_t>& gone);
    void markGone();
    void applyRecent();
    std::vector<std::uint32_t> showFound();
    std::expected<void, Failure> writeFile();

    FavouritesParts m_parts;
    FavouriteFinder m_finder;
    FavouritesTableModel* m_model;
    bool m_favoritesUpdate = false;
    bool m_onlyRecent = false;
};

} // namespace tessera
