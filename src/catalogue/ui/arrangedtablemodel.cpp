#include "catalogue/ui/arrangedtablemodel.h"

#include "catalogue/colortransformer.h"
#include "catalogue/gametypetransformer.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "catalogue/ui/matchdelegate.h"
#include "core/message.h"
#include "platform/defaultscontroller.h"
#include "widgets/fontname.h"
#include "widgets/sortheader.h"
#include "widgets/theme.h"

#include <algorithm>

namespace tessera {

namespace {

// The settings that a row's look depends on, besides the one that names its font.
constexpr std::array looks{
    keys::fontSize.name,           keys::GamelistColoring.name,
    keys::TableViewTextColor.name, keys::TableViewTextColor2.name,
    keys::RomsPath.name,
};

} // namespace

ArrangedTableModel::ArrangedTableModel(ArrangedList& list, std::span<const TableColumn> columns,
                                       const ColorTransformer& colors, DefaultsController& defaults,
                                       const Key<QLatin1StringView>& font, QObject* parent)
    : QAbstractTableModel(parent)
    , m_list(list)
    , m_columns(columns)
    , m_colors(colors)
    , m_defaults(defaults)
    , m_fontKey(font)
{
    readFont();
    connect(&m_list, &ArrangedList::aboutToArrange, this, &ArrangedTableModel::beginArranging);
    connect(&m_list, &ArrangedList::arranged, this, &ArrangedTableModel::endArranging);
    connect(&m_defaults, &DefaultsController::changed, this, &ArrangedTableModel::settingChanged);
}

void ArrangedTableModel::readFont()
{
    m_font = namedFont(m_defaults.text(m_fontKey));
    m_font.setPixelSize(qBound(4, m_defaults.index(keys::fontSize), 200));
}

void ArrangedTableModel::settingChanged(const QString& name)
{
    if (!name.isEmpty() && name != m_fontKey.name && std::ranges::find(looks, name) == looks.end())
        return;
    readFont();
    showEverything({Qt::FontRole, Qt::ForegroundRole});
}

int ArrangedTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.size());
}

int ArrangedTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ArrangedTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const GameRecord& record = m_list[static_cast<std::size_t>(index.row())];
    const std::optional<Field> field = column(index).field;
    switch (role) {
    case Qt::DisplayRole:
        if (field == Field::Type)
            return GameTypeTransformer::transformedValue(record[Field::Type]);
        [[fallthrough]];
    case Qt::EditRole:
        return field ? fieldText(record[*field]) : QVariant();
    case Qt::FontRole:
        return m_font;
    case Qt::DecorationRole:
        if (field == Field::Name)
            return theme::mark(fieldText(statusMark(record[Field::Status]).value_or(noStatusMark)));
        return QVariant();
    case Qt::ToolTipRole:
        if (field == Field::Name)
            return QString(fieldText(record[Field::Name]) + QStringLiteral(" · ")
                           + fieldText(record[Field::Status]));
        return QVariant();
    case MatchDelegate::FieldRole:
        return field ? QVariant(static_cast<int>(*field)) : QVariant();
    case Qt::ForegroundRole:
        if (const auto color = m_colors.transformedValue(fieldText(record[Field::Name])))
            return *color;
        return QVariant();
    default:
        return QVariant();
    }
}

QVariant ArrangedTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QVariant();
    if (role == Qt::DisplayRole)
        return qtTrId(m_columns[static_cast<std::size_t>(section)].heading);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (!m_secondSort || m_secondSort->column != section)
        return QVariant();
    const bool ascending = m_secondSort->ascending;
    if (role == SortHeader::SecondSortRole)
        return int{ascending ? Qt::AscendingOrder : Qt::DescendingOrder};
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return qtTrId(ascending ? textKey("column_second_up") : textKey("column_second_down"));
    return QVariant();
}

void ArrangedTableModel::showSecondSort()
{
    const std::optional<ColumnSort> now = secondSort();
    if (now == m_secondSort)
        return;
    m_secondSort = now;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

Qt::ItemFlags ArrangedTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return column(index).isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool ArrangedTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable) || data(index, Qt::EditRole) == value)
        return false;
    setText(index, value.toString());
    return true;
}

void ArrangedTableModel::showEverything(const QList<int>& roles)
{
    if (const int rows = static_cast<int>(m_list.size()))
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1), roles);
}

void ArrangedTableModel::showRecord(std::uint32_t record)
{
    if (const auto row = m_list.rowOf(record)) {
        const int shown = static_cast<int>(*row);
        Q_EMIT dataChanged(index(shown, 0), index(shown, columnCount() - 1));
    }
}

void ArrangedTableModel::beginArranging(ArrangedList::Change change)
{
    if (change != ArrangedList::Change::Order)
        return beginResetModel();
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    m_places = persistentIndexList();
    m_recordsThere.clear();
    for (const QModelIndex& place : m_places)
        m_recordsThere.push_back(recordAt(place));
}

void ArrangedTableModel::endArranging(ArrangedList::Change change)
{
    if (change != ArrangedList::Change::Order) {
        endResetModel();
        return showSecondSort();
    }
    QModelIndexList now;
    now.reserve(m_places.size());
    for (qsizetype i = 0; i < m_places.size(); ++i) {
        const auto row = m_list.rowOf(m_recordsThere[static_cast<std::size_t>(i)]);
        now << (row ? index(static_cast<int>(*row), m_places[i].column()) : QModelIndex());
    }
    changePersistentIndexList(m_places, now);
    Q_EMIT layoutChanged({}, VerticalSortHint);
    showSecondSort();
}

} // namespace tessera
