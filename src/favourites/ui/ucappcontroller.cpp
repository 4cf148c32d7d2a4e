#include "favourites/ui/ucappcontroller.h"

#include "catalogue/catalogue.h"
#include "catalogue/recorddictionary.h"
#include "favourites/gonefavourites.h"
#include "favourites/playedgames.h"
#include "favourites/ui/favouritestablemodel.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

constexpr int recentDays = 30;
constexpr int headerHeight = 22;

} // namespace

UCAppController::UCAppController(const FavouritesParts& parts, QObject* parent)
    : ListController(parts.desktop, parts.defaults.stored(), parent)
    , m_parts(parts)
    , m_finder(parts.favourites)
    , m_model(new FavouritesTableModel(m_parts.favourites, list(), m_parts.played, colors(), m_parts.defaults,
                                       this))
{
    joinFavourites();
}

void UCAppController::joinFavourites()
{
    const Favourites* favourites = &m_parts.favourites;
    connect(favourites, &Favourites::replaced, this, [this] { showAgain({}); });
    connect(favourites, &Favourites::appended, this, [this] { showAgain(selectedRecords()); });
    connect(favourites, &Favourites::putBackAt, this,
            [this](const std::vector<std::uint32_t>& places) { showAgain(places); });
    connect(favourites, &Favourites::removed, this, &UCAppController::showAfterRemoval);
    connect(favourites, &Favourites::valueChanged, this, [this] {
        // Rows stay until something else is searched.
        m_finder.forget();
        tableViewSelectionDidChange();
    });
    connect(&m_parts.favourites.undoStack(), &QUndoStack::cleanChanged, this,
            [this](bool clean) { Q_EMIT unsavedChanged(!clean); });

    const Catalogue* catalogue = &m_parts.catalogue;
    connect(catalogue, &Catalogue::replaced, this, &UCAppController::markGone);
    connect(catalogue, &Catalogue::removed, this, &UCAppController::markGone);
    connect(catalogue, &Catalogue::putBackAt, this, &UCAppController::markGone);
    connect(catalogue, &Catalogue::recordChanged, this, [this](std::uint32_t, Field field) {
        if (field == Field::Name)
            markGone();
    });
    connect(&m_parts.played, &PlayedGames::changed, this, [this] {
        if (m_onlyRecent)
            applyRecent();
    });
}

void UCAppController::setTable(GameTableView* table)
{
    showIn(table, m_model);
    table->horizontalHeader()->setFixedHeight(headerHeight);
    for (const FavouriteColumn column : FavouritesTableModel::hiddenColumns)
        table->setColumnHidden(static_cast<int>(column), true);
    connect(table, &GameTableView::doubleAction, this, &UCAppController::tableViewDoubleAction2);
}

void UCAppController::awakeFromNib()
{
    m_favoritesUpdate = false;
    set_favorites();
    favorites_tableViewSort();
}

// What is left of the selection stays selected. Of nothing, the row that took the place of the first one is
// selected, so that several can be removed in a row.
void UCAppController::showAfterRemoval(const std::vector<std::uint32_t>& gone)
{
    const int row = firstRow();
    std::vector<std::uint32_t> left;
    for (const std::uint32_t each : selectedRecords()) {
        const auto before = std::ranges::lower_bound(gone, each);
        if (before == gone.end() || *before != each)
            left.push_back(each - static_cast<std::uint32_t>(before - gone.begin()));
    }
    showAgain(left, left.empty() ? row : -1);
}

// The list as it is now, with these favourites selected, or else a row or the last one.
void UCAppController::showAgain(const std::vector<std::uint32_t>& selected, int row)
{
    {
        const QScopedValueRollback quiet(m_isQuiet, true);
        m_finder.forget();
        m_model->reload();
        showFound();
        selectRecords(selected);
        selectRow(row);
    }
    markGone();
    tableViewSelectionDidChange();
    Q_EMIT countChanged();
}

void UCAppController::markGone()
{
    m_model->setGone(goneFavourites(m_parts.favourites.records(), m_parts.catalogue.records()));
}

void UCAppController::addFavorite()
{
    const GameRecord* game = m_parts.games.selectedRecord();
    if (game == nullptr) {
        m_parts.desktop.beep();
        return;
    }
    addFavoritesTable(*game);
    m_parts.desktop.playSound(QStringLiteral("shutter"));
}

void UCAppController::addFavoritesTable(const GameRecord& game)
{
    commitEditing();
    m_parts.favourites.append(game);
    m_favoritesUpdate = true;
}

void UCAppController::removeFavoritesTable()
{
    commitEditing();
    removeAfterAsking(selectedRecords());
}

void UCAppController::removeShown()
{
    commitEditing();
    const auto shown = firstSelected();
    removeAfterAsking(shown ? std::vector{*shown} : std::vector<std::uint32_t>());
}

void UCAppController::removeAfterAsking(std::vector<std::uint32_t> favourites)
{
    // Deliberate: also when nothing is selected.
    m_parts.desktop.beep();
    if (favourites.empty())
        return;
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("favorites_remove_message");
    alert.informative = qtTrId("favorites_remove_info");
    alert.buttons = {qtTrId("remove"), qtTrId("cancel")};
    // Shows the selection anew as well.
    if (m_parts.desktop.runAlert(alert) == 0)
        m_parts.favourites.remove(std::move(favourites));
    // Deliberate: the file is rewritten at quit after a cancel too.
    m_favoritesUpdate = true;
}

// Deliberate: no beep with nothing selected, unlike the game list.
void UCAppController::tableViewDoubleAction2()
{
    const QString name = tableViewSelectionROM2();
    if (!name.isEmpty())
        Q_EMIT launchRequested(name);
}

void UCAppController::favorites_tableViewSort()
{
    if (table() != nullptr)
        table()->sortByColumn(table()->firstColumn(), Qt::AscendingOrder);
    else
        m_model->sort(0, Qt::AscendingOrder);
}

void UCAppController::search(const QString& text)
{
    m_finder.setQuery(text);
    forgetReturn();
    std::vector<std::uint32_t> ranks;
    {
        const Rearranging keeping(*this);
        ranks = showFound();
    }
    const std::span<const std::uint32_t> rows = list().rows();
    if (!ranks.empty() && !rows.empty())
        selectRecords(
            {*std::ranges::min_element(rows, {}, [&](std::uint32_t favourite) { return ranks[favourite]; })});
    Q_EMIT countChanged();
}

// Gives how well each fits; the rows keep their order all the same.
std::vector<std::uint32_t> UCAppController::showFound()
{
    std::optional<Found> found = m_finder.find();
    std::vector<std::uint32_t> ranks = found ? std::exchange(found->ranks, {}) : std::vector<std::uint32_t>();
    list().setFound(std::move(found));
    return ranks;
}

void UCAppController::showRecentlyPlayed(bool only)
{
    if (m_onlyRecent == only)
        return;
    m_onlyRecent = only;
    applyRecent();
}

void UCAppController::applyRecent()
{
    Predicate predicate;
    if (m_onlyRecent) {
        const QStringList names = m_parts.played.recent(m_parts.desktop.now().addDays(-recentDays));
        predicate = [recent = QSet<QString>(names.begin(), names.end())](const GameRecord& record) {
            return recent.contains(fieldText(record[Field::Name]));
        };
    }
    {
        const Rearranging keeping(*this);
        list().setPredicate(std::move(predicate));
    }
    Q_EMIT countChanged();
}

QString UCAppController::search_priorityOption(const QString& name) const
{
    // What the list does not show has its options all the same.
    const auto first = list().firstOf(Field::Name, name.toStdString());
    return first ? m_parts.favourites.value(*first, FavouriteKey::Option) : QString();
}

} // namespace tessera
