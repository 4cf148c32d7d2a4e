#pragma once

#include "catalogue/arrangedlist.h"
#include "catalogue/filterrules.h"
#include "catalogue/search/gamesearch.h"
#include "catalogue/search/hiddenset.h"
#include "catalogue/romfolders.h"

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <set>
#include <stop_token>
#include <string>

namespace tessera {

class Catalogue;
class DefaultsController;
class GameListController;
enum class ContentChange : std::uint8_t;

/// Decides what the game list shows: the search, the chips, the maker filter, the filter panel's rules, and
/// whether clones are folded beneath their parents.
class GameFinder : public QObject
{
    Q_OBJECT

public:
    GameFinder(Catalogue& catalogue, GameListController& list, DefaultsController& defaults,
               QObject* parent = nullptr);
    /// What is prepared beside the windows is given up.
    ~GameFinder() override { m_folding.request_stop(); }

    /// Prepares what a search needs; afterwards the first letter is found at once.
    void prepare();
    /// The chip and the switch for families as they were left.
    void restore();

    const Query& query() const { return m_query; }
    Chip chip() const { return m_chip; }
    bool showsFamilies() const { return m_foldsFamilies; }
    const std::optional<QString>& maker() const { return m_maker; }

    /// The machine that is typed, but hidden by another term.
    std::optional<HiddenSet> hidden() { return hiddenSet(search(), m_query); }
    /// Some records may be hidden; what hides them, each in a few words.
    QStringList reasons() const;
    /// What the ROM folders hold of a record; nothing while they are not known.
    std::optional<Have> haveOf(std::uint32_t record) const;

    /// The records that fit a text best, whatever the list shows; at most so many.
    std::vector<std::uint32_t> suggestions(const QString& text, std::size_t most);

public Q_SLOTS:
    void setQuery(const QString& text);
    void setChip(tessera::Chip chip);
    /// Only the records with exactly this maker; the empty text is a maker, too.
    void setPredicate(const QString& maker);
    void clearPredicate();
    void setRules(const tessera::FilterRules& rules);
    void setFamilies(bool folded);
    /// Shows the clones beneath a row's record, or folds them again.
    void toggleFamily(int row);
    /// Nothing hides records any more.
    void showAll();
    void setRomFolders(const std::shared_ptr<const tessera::RomFolders>& folders);
    void setFavourites(const tessera::NameSet& favorites);

Q_SIGNALS:
    /// What the list shows, or why.
    void changed();
    /// Whose ROMs are there is known, or known anew.
    void havesChanged();
    void countsChanged(const tessera::ChipCounts& counts);

private:
    GameSearch& search();
    void forget();
    void follow(std::uint32_t record, Field field);
    void takeOut(const std::vector<std::uint32_t>& records);
    void putBack(const std::vector<std::uint32_t>& records);
    void takeContent(ContentChange change, const std::vector<std::uint32_t>& records);
    void showContent();
    void foldTexts(GameSearch& search);
    void refresh();
    void rearrange(auto&& change);
    void find(ArrangedList::Ranking ranking = ArrangedList::Ranking::AsBefore);
    Found found();
    Chip effectiveChip() const;
    const std::optional<RecordSet>& filtered();
    void filter();
    void tellCounts();
    void applyFamilies();
    const std::vector<std::uint32_t>& heads();
    void askHaves();
    void askHavesAgain();
    void takeHaves(int question, std::vector<Have> haves);

    Catalogue& m_catalogue;
    GameListController& m_list;
    DefaultsController& m_defaults;
    std::optional<GameSearch> m_search;
    Query m_query;
    Chip m_chip = Chip::All;
    std::optional<QString> m_maker;
    FilterRules m_rules;
    std::shared_ptr<const RomFolders> m_roms;
    NameSet m_favourites;
    std::vector<Have> m_haves; ///< none while the ROM folders are not known
    std::optional<RecordSet> m_filtered; ///< what maker filter and rules let through, once it is known
    std::vector<std::uint32_t> m_heads; ///< of the families, once they are known
    bool m_foldsFamilies = false;
    bool m_isRearranging = false;
    int m_havesQuestion = 0; ///< only the newest one is answered
    int m_havesAnswered = 0; ///< the question that was answered last
    std::set<std::string, std::less<>> m_open; ///< set names of the heads of open families
    int m_generation = 0; ///< of the content that is searched
    std::stop_source m_folding;
    QThreadPool m_pool; ///< ends first, while everything else still stands
};

} // namespace tessera
