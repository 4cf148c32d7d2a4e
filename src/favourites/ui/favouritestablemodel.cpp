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

// The settings that a row's look depends on.
constexpr std::array looks{
    keys::FavoritefontName.name,    keys::fontSize.name,
    keys::GamelistColoring.name,    keys::TableViewTextColor.name,
    keys::TableViewTextColor2.name, keys::RomsPath.name,
};

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
    : QAbstractTableModel(parent)
    , m_favourites(favourites)
    , m_list(list)
    , m_played(played)
    , m_colors(colors)
    , m_defaults(defaults)
{
    readFont();
    connect(&m_list, &ArrangedList::aboutToArrange, this, [this] {
        if (!m_arranging)
            beginResetModel();
    });
    connect(&m_list, &ArrangedList::arranged, this, [this] {
        if (!m_arranging)
            endResetModel();
    });
    connect(&favourites, &Favourites::valueChanged, this, &FavouritesTableModel::showFavourite);
    connect(&played, &PlayedGames::changed, this, [this] { showEverything(); });
    connect(&defaults, &DefaultsController::changed, this, &FavouritesTableModel::settingChanged);
}

void FavouritesTableModel::reload()
{
    beginResetModel();
    m_arranging = true;
    m_gone = RecordSet(m_favourites.records().size());
    m_list.setContent(m_favourites.records());
    arrange();
    m_arranging = false;
    endResetModel();
}

void FavouritesTableModel::setGone(RecordSet gone)
{
    if (gone == m_gone)
        return;
    m_gone = std::move(gone);
    showEverything();
}

void FavouritesTableModel::readFont()
{
    m_font = namedFont(m_defaults.text(keys::FavoritefontName));
    m_font.setPixelSize(qBound(4, m_defaults.index(keys::fontSize), 200));
}

void FavouritesTableModel::settingChanged(const QString& name)
{
    if (!name.isEmpty() && std::ranges::find(looks, name) == looks.end())
        return;
    readFont();
    showEverything({Qt::FontRole, Qt::ForegroundRole});
}

void FavouritesTableModel::showEverything(const QList<int>& roles)
{
    if (const int rows = rowCount())
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columns - 1), roles);
}

void FavouritesTableModel::showFavourite(std::uint32_t favourite, FavouriteKey key)
{
    if (const auto field = fieldOf(key))
        m_list.forgetOrder(*field);
    if (const auto place = m_list.rowOf(favourite)) {
        const int shown = static_cast<int>(*place);
        Q_EMIT dataChanged(index(shown, 0), index(shown, columns - 1));
    }
}

int FavouritesTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.size());
}

int FavouritesTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QString FavouritesTableModel::edited(std::uint32_t favourite, FavouriteColumn column) const
{
    return m_favourites.value(favourite, *row(column).key);
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
        return Failure{"favourite_gone", {name}}.text();
    return QString(name + QStringLiteral(" · ") + edited(favourite, FavouriteColumn::Status));
}

QVariant FavouritesTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const std::uint32_t place = favourite(index);
    const FavouriteColumn column = columnAt(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return shown(place, column);
    case Qt::EditRole:
        return row(column).key ? QVariant(edited(place, column)) : shown(place, column);
    case Qt::FontRole:
        return m_font;
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
    m_favourites.setValue(favourite(index), *key, value.toString());
    return true;
}

void FavouritesTableModel::arrange()
{
    const auto key = m_sorted ? row(*m_sorted).key : std::nullopt;
    if (const auto field = key ? fieldOf(*key) : std::nullopt)
        m_list.setSort(*field, m_ascending);
    else
        m_list.setSort(SortedRecords(orderNumbers(m_favourites, m_played, orderOf(m_sorted))), m_ascending);
}

// The same favourites in another order: what is selected stays selected.
void FavouritesTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columns)
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> favourites;
    favourites.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& place : before)
        favourites.push_back(favourite(place));
    m_sorted = columnAt(column);
    m_ascending = order == Qt::AscendingOrder;
    m_arranging = true;
    arrange();
    m_arranging = false;
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto place = m_list.rowOf(favourites[static_cast<std::size_t>(i)]);
        after << (place ? index(static_cast<int>(*place), before[i].column()) : QModelIndex());
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace tessera
