#include "favourites/ui/favouritestablemodel.h"

#include "core/message.h"
#include "favourites/favouriteorder.h"
#include "favourites/playedgames.h"
#include "widgets/theme.h"

#include <QLocale>

#include <algorithm>

namespace tessera {

namespace {

// clang-format off
constexpr std::array<TableColumn, FavouritesTableModel::columns> table{
    TableColumn{textKey("column_name"),    Field::Name},
    TableColumn{textKey("column_title"),   Field::Title},
    TableColumn{textKey("column_titlejp"), Field::Titlejp},
    TableColumn{textKey("column_year"),    Field::Year},
    TableColumn{textKey("column_maker"),   Field::Maker},
    TableColumn{textKey("column_option"),  std::nullopt},
    TableColumn{textKey("column_cloneof"), Field::Cloneof},
    TableColumn{textKey("column_device"),  Field::Device},
    TableColumn{textKey("column_status"),  Field::Status},
    TableColumn{textKey("column_type"),    Field::Type},
    TableColumn{textKey("column_times"),   std::nullopt, false},
    TableColumn{textKey("column_last"),    std::nullopt, false},
};
// clang-format on

FavouriteColumn columnAt(int section)
{
    return static_cast<FavouriteColumn>(section);
}

// Of the columns that show no attribute of the game.
FavouriteOrder orderOf(std::optional<FavouriteColumn> column)
{
    if (column == FavouriteColumn::Times)
        return FavouriteOrder::Times;
    if (column == FavouriteColumn::Last)
        return FavouriteOrder::Last;
    return column ? FavouriteOrder::Option : FavouriteOrder::AsTheyStand;
}

} // namespace

FavouritesTableModel::FavouritesTableModel(Favourites& favourites, ArrangedList& list,
                                           const PlayedGames& played, const ColorTransformer& colors,
                                           DefaultsController& defaults, QObject* parent)
    : ArrangedTableModel(list, table, colors, defaults, keys::FavoritefontName, parent)
    , m_favourites(favourites)
    , m_played(played)
{
    connect(&favourites, &Favourites::valueChanged, this, &FavouritesTableModel::showFavourite);
    connect(&played, &PlayedGames::changed, this, &FavouritesTableModel::showPlayed);
}

void FavouritesTableModel::showPlayed()
{
    const Sort& sort = m_sorts.back();
    if (sort.column == FavouriteColumn::Times || sort.column == FavouriteColumn::Last)
        arrange(sort);
    showEverything();
}

void FavouritesTableModel::reload()
{
    m_gone = RecordSet(m_favourites.records().size());
    list().setContent(m_favourites.records());
    // As when each of them were asked for again: those that are equal by the last one keep their order.
    for (const Sort& sort : m_sorts)
        arrange(sort);
}

void FavouritesTableModel::setGone(RecordSet gone)
{
    if (gone == m_gone)
        return;
    m_gone = std::move(gone);
    showEverything();
}

void FavouritesTableModel::showFavourite(std::uint32_t favourite, FavouriteKey key)
{
    if (const auto field = fieldOf(key))
        list().forgetOrder(*field);
    showRecord(favourite);
}

// Of the columns that show no attribute of the game.
QString FavouritesTableModel::shown(std::uint32_t favourite, FavouriteColumn column) const
{
    if (column == FavouriteColumn::Option)
        return m_favourites.value(favourite, FavouriteKey::Option);
    const auto played = m_played.played(m_favourites.value(favourite, FavouriteKey::Name));
    if (!played)
        return QString();
    return column == FavouriteColumn::Times
        ? QLocale().toString(played->times)
        : QLocale().toString(played->last.toLocalTime(), QLocale::ShortFormat);
}

// What tells a favourite whose set is gone from others; nothing where it is like them.
QVariant FavouritesTableModel::goneData(std::uint32_t favourite, FavouriteColumn column, int role) const
{
    if (role == Qt::ForegroundRole)
        return theme::color("faint");
    if (column == FavouriteColumn::Name && role == Qt::DecorationRole)
        return theme::icon(QStringLiteral("warning"), "imperfect");
    if (column == FavouriteColumn::Name && role == Qt::ToolTipRole)
        return Message{"favourite_gone", {m_favourites.value(favourite, FavouriteKey::Name)}}.text();
    return QVariant();
}

QVariant FavouritesTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const std::uint32_t favourite = recordAt(index);
    const FavouriteColumn place = columnAt(index.column());
    if (role == Qt::AccessibleDescriptionRole)
        return data(index, Qt::ToolTipRole);
    if (!column(index).field && (role == Qt::DisplayRole || role == Qt::EditRole))
        return shown(favourite, place);
    if (m_gone.contains(favourite)) {
        if (QVariant gone = goneData(favourite, place, role); gone.isValid())
            return gone;
    }
    return ArrangedTableModel::data(index, role);
}

void FavouritesTableModel::setText(const QModelIndex& index, const QString& text)
{
    const auto field = column(index).field;
    m_favourites.setValue(recordAt(index), field ? keyOf(*field) : FavouriteKey::Option, text);
}

void FavouritesTableModel::arrange(const Sort& sort)
{
    if (const auto field = sort.column ? table[static_cast<std::size_t>(*sort.column)].field : std::nullopt)
        list().setSort(*field, sort.ascending);
    else
        list().setSort(SortedRecords(orderNumbers(m_favourites, m_played, orderOf(sort.column))),
                       sort.ascending);
}

void FavouritesTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columns)
        return;
    const Sort sort{columnAt(column), order == Qt::AscendingOrder};
    std::erase_if(m_sorts, [&](const Sort& each) { return each.column == sort.column; });
    m_sorts.push_back(sort);
    arrange(sort);
    showSecondSort();
}

std::optional<ColumnSort> FavouritesTableModel::secondSort() const
{
    const Sort* second = m_sorts.size() < 2 ? nullptr : &m_sorts[m_sorts.size() - 2];
    return second != nullptr && second->column
        ? std::optional(ColumnSort{static_cast<int>(*second->column), second->ascending})
        : std::nullopt;
}

} // namespace tessera
