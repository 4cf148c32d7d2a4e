#include "favourites/ui/favouritestablemodel.h"

#include "catalogue/colortransformer.h"
#include "catalogue/gametypetransformer.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "favourites/favouriteorder.h"
#include "favourites/playedgames.h"
#include "platform/defaultscontroller.h"
#include "widgets/fontname.h"
#include "widgets/theme.h"

#include <QLocale>

#include <algorithm>

namespace tessera {

namespace {

struct Column {
    const char* heading;
    std::optional<FavouriteKey> key; ///< nothing for what was played
};

// clang-format off
constexpr std::array<Column, FavouritesTableModel::columns> table{
    Column{textKey("column_name"),    FavouriteKey::Name},
    Column{textKey("column_title"),   FavouriteKey::Title},
    Column{textKey("column_titlejp"), FavouriteKey::Titlejp},
    Column{textKey("column_year"),    FavouriteKey::Year},
    Column{textKey("column_maker"),   FavouriteKey::Maker},
    Column{textKey("column_option"),  FavouriteKey::Option},
    Column{textKey("column_cloneof"), FavouriteKey::Cloneof},
    Column{textKey("column_device"),  FavouriteKey::Device},
    Column{textKey("column_status"),  FavouriteKey::Status},
    Column{textKey("column_type"),    FavouriteKey::Type},
    Column{textKey("column_times"),   std::nullopt},
    Column{textKey("column_last"),    std::nullopt},
};
// clang-format on

const Column& row(FavouriteColumn column)
{
    return table[static_cast<std::size_t>(column)];
}

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
    : ArrangedTableModel(list, defaults, keys::FavoritefontName, parent)
    , m_favourites(favourites)
    , m_played(played)
    , m_colors(colors)
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

int FavouritesTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QString FavouritesTableModel::edited(std::uint32_t favourite, FavouriteColumn column) const
{
    const auto& key = row(column).key;
    return key ? m_favourites.value(favourite, *key) : QString();
}

QVariant FavouritesTableModel::shown(std::uint32_t favourite, FavouriteColumn column) const
{
    if (column == FavouriteColumn::Type)
        return GameTypeTransformer::transformedValue(m_favourites.records()[favourite][Field::Type]);
    if (row(column).key)
        return edited(favourite, column);
    const auto played = m_played.played(edited(favourite, FavouriteColumn::Name));
    if (!played)
        return QString();
    return column == FavouriteColumn::Times
        ? QLocale().toString(played->times)
        : QLocale().toString(played->last.toLocalTime(), QLocale::ShortFormat);
}

QVariant FavouritesTableModel::icon(std::uint32_t favourite) const
{
    if (m_gone.contains(favourite))
        return theme::icon(QStringLiteral("warning"), "imperfect");
    const auto mark = statusMark(m_favourites.records()[favourite][Field::Status]);
    return theme::mark(fieldText(mark.value_or(noStatusMark)));
}

QVariant FavouritesTableModel::toolTip(std::uint32_t favourite) const
{
    const QString name = edited(favourite, FavouriteColumn::Name);
    if (m_gone.contains(favourite))
        return Message{"favourite_gone", {name}}.text();
    return QString(name + QStringLiteral(" · ") + edited(favourite, FavouriteColumn::Status));
}

QVariant FavouritesTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const std::uint32_t place = recordAt(index);
    const FavouriteColumn column = columnAt(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return shown(place, column);
    case Qt::EditRole:
        return row(column).key ? QVariant(edited(place, column)) : shown(place, column);
    case Qt::FontRole:
        return font();
    case Qt::DecorationRole:
        return column == FavouriteColumn::Name ? icon(place) : QVariant();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return column == FavouriteColumn::Name ? toolTip(place) : QVariant();
    case Qt::ForegroundRole:
        if (m_gone.contains(place))
            return theme::color("faint");
        if (const auto color = m_colors.transformedValue(edited(place, FavouriteColumn::Name)))
            return *color;
        return QVariant();
    default:
        return QVariant();
    }
}

QVariant FavouritesTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columns)
        return QVariant();
    if (role == Qt::DisplayRole)
        return qtTrId(row(columnAt(section)).heading);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return QVariant();
}

Qt::ItemFlags FavouritesTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return row(columnAt(index.column())).key ? flags | Qt::ItemIsEditable : flags;
}

bool FavouritesTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || data(index, Qt::EditRole) == value)
        return false;
    const auto key = row(columnAt(index.column())).key;
    if (!key)
        return false;
    m_favourites.setValue(recordAt(index), *key, value.toString());
    return true;
}

void FavouritesTableModel::arrange(const Sort& sort)
{
    const auto key = sort.column ? row(*sort.column).key : std::nullopt;
    if (const auto field = key ? fieldOf(*key) : std::nullopt)
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
}

} // namespace tessera
