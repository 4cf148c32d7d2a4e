#include "catalogue/ui/gametablemodel.h"

#include "catalogue/colortransformer.h"
#include "catalogue/gametypetransformer.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "catalogue/ui/familydelegate.h"
#include "platform/defaultscontroller.h"
#include "widgets/fontname.h"
#include "widgets/theme.h"

#include <algorithm>

namespace tessera {

namespace {

struct Heading {
    Field field;
    const char* text;
};

constexpr std::array headings{
    Heading{Field::Name, textKey("column_name")},       Heading{Field::Title, textKey("column_title")},
    Heading{Field::Titlejp, textKey("column_titlejp")}, Heading{Field::Year, textKey("column_year")},
    Heading{Field::Maker, textKey("column_maker")},     Heading{Field::Cloneof, textKey("column_cloneof")},
    Heading{Field::Device, textKey("column_device")},   Heading{Field::Status, textKey("column_status")},
    Heading{Field::Type, textKey("column_type")},
};

static_assert(headings.size() == GameTableModel::columns.size());

// The settings that a row's look depends on.
constexpr std::array looks{
    keys::TablefontName.name,       keys::fontSize.name,
    keys::GamelistColoring.name,    keys::TableViewTextColor.name,
    keys::TableViewTextColor2.name, keys::RomsPath.name,
};

QIcon markIcon(std::string_view status)
{
    static const QIcon none = theme::mark(QStringLiteral("plovermark_none"));
    static QHash<QString, QIcon> icons;
    const auto name = statusMark(status);
    if (!name)
        return none;
    const QString key = fieldText(*name);
    auto found = icons.find(key);
    return found != icons.end() ? *found : *icons.insert(key, theme::mark(key));
}

} // namespace

GameTableModel::GameTableModel(Catalogue& catalogue, ArrangedList& list, const ColorTransformer& colors,
                               DefaultsController& defaults, QObject* parent)
    : QAbstractTableModel(parent)
    , m_catalogue(catalogue)
    , m_list(list)
    , m_colors(colors)
    , m_defaults(defaults)
{
    readFont();
    connect(&m_list, &ArrangedList::aboutToArrange, this, [this] {
        if (!m_sorting)
            beginResetModel();
    });
    connect(&m_list, &ArrangedList::arranged, this, [this] {
        if (!m_sorting)
            endResetModel();
    });
    connect(&m_catalogue, &Catalogue::recordChanged, this, &GameTableModel::showRecord);
    connect(&m_defaults, &DefaultsController::changed, this, &GameTableModel::settingChanged);
}

void GameTableModel::readFont()
{
    m_font = namedFont(m_defaults.text(keys::TablefontName));
    m_font.setPixelSize(qBound(4, m_defaults.index(keys::fontSize), 200));
}

void GameTableModel::settingChanged(const QString& name)
{
    if (!name.isEmpty() && std::ranges::find(looks, name) == looks.end())
        return;
    readFont();
    if (const int rows = static_cast<int>(m_list.size()))
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, static_cast<int>(columns.size()) - 1),
                           {Qt::FontRole, Qt::ForegroundRole});
}

void GameTableModel::showRecord(std::uint32_t record)
{
    if (const auto row = m_list.rowOf(record)) {
        const int shown = static_cast<int>(*row);
        Q_EMIT dataChanged(index(shown, 0), index(shown, columnCount() - 1));
    }
}

int GameTableModel::columnOf(Field field)
{
    return static_cast<int>(std::ranges::find(columns, field) - columns.begin());
}

int GameTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.size());
}

int GameTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant GameTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const GameRecord& record = m_list[static_cast<std::size_t>(index.row())];
    const Field field = columns[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return field == Field::Type ? GameTypeTransformer::transformedValue(record[field])
                                    : fieldText(record[field]);
    case Qt::EditRole:
        return fieldText(record[field]);
    case Qt::FontRole:
        return m_font;
    case Qt::DecorationRole:
        return field == Field::Name ? QVariant(markIcon(record[Field::Status])) : QVariant();
    case Qt::ToolTipRole:
        if (field != Field::Name)
            return QVariant();
        return QString(fieldText(record[Field::Name]) + QStringLiteral(" · ")
                       + fieldText(record[Field::Status]));
    case Qt::ForegroundRole:
        if (!record.has(Field::Name))
            return QVariant();
        if (const auto color = m_colors.transformedValue(fieldText(record[Field::Name])))
            return *color;
        return QVariant();
    case Qt::AccessibleDescriptionRole:
        return field == Field::Name ? description(static_cast<std::size_t>(index.row())) : QVariant();
    case FamilyDelegate::ClonesRole:
        return m_list.clones(static_cast<std::size_t>(index.row()));
    case FamilyDelegate::IsOpenRole:
        return m_list.isOpen(static_cast<std::size_t>(index.row()));
    case FamilyDelegate::IsCloneRole:
        return m_list.isBeneath(static_cast<std::size_t>(index.row()));
    default:
        return QVariant();
    }
}

// What the first column draws besides its text.
QString GameTableModel::description(std::size_t row) const
{
    QStringList parts{fieldText(m_list[row][Field::Status])};
    if (m_list.clones(row) > 0)
        parts << qtTrId(m_list.isOpen(row) ? textKey("row_clones_shown") : textKey("row_clones_folded"),
                        static_cast<int>(m_list.clones(row)));
    if (m_list.isBeneath(row))
        parts << qtTrId("row_clone");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QStringList GameTableModel::mimeTypes() const
{
    return {QStringLiteral("CoreDataDragType")};
}

QVariant GameTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (role == Qt::DisplayRole)
        return qtTrId(headings[static_cast<std::size_t>(section)].text);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return QVariant();
}

Qt::ItemFlags GameTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return m_locked ? flags : flags | Qt::ItemIsEditable;
}

bool GameTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const auto row = static_cast<std::size_t>(index.row());
    if (m_locked || role != Qt::EditRole || !index.isValid() || data(index, Qt::EditRole) == value)
        return false;
    m_catalogue.setValue(m_list.rows()[row], columns[static_cast<std::size_t>(index.column())],
                         value.toString());
    return true;
}

void GameTableModel::sort(int column, Qt::SortOrder order)
{
    if (column >= 0 && column < columnCount())
        resort(columns[static_cast<std::size_t>(column)], order == Qt::AscendingOrder);
}

// The same records in another order: what is selected stays selected.
void GameTableModel::resort(Field field, bool ascending)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> records;
    records.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& place : before)
        records.push_back(m_list.rows()[static_cast<std::size_t>(place.row())]);
    m_sorting = true;
    m_list.setSort(field, ascending);
    m_sorting = false;
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto row = m_list.rowOf(records[static_cast<std::size_t>(i)]);
        after << (row ? index(static_cast<int>(*row), before[i].column()) : QModelIndex());
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace tessera
