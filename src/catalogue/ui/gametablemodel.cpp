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

QIcon markIcon(std::string_view status)
{
    return theme::mark(fieldText(statusMark(status).value_or(noStatusMark)));
}

} // namespace

GameTableModel::GameTableModel(Catalogue& catalogue, ArrangedList& list, const ColorTransformer& colors,
                               DefaultsController& defaults, QObject* parent)
    : ArrangedTableModel(list, defaults, keys::TablefontName, parent)
    , m_catalogue(catalogue)
    , m_colors(colors)
{
    connect(&m_catalogue, &Catalogue::recordChanged, this, &GameTableModel::showRecord);
}

int GameTableModel::columnOf(Field field)
{
    return static_cast<int>(std::ranges::find(columns, field) - columns.begin());
}

int GameTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant GameTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const GameRecord& record = list()[static_cast<std::size_t>(index.row())];
    const Field field = columns[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return field == Field::Type ? GameTypeTransformer::transformedValue(record[field])
                                    : fieldText(record[field]);
    case Qt::EditRole:
        return fieldText(record[field]);
    case Qt::FontRole:
        return font();
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
        return list().clones(static_cast<std::size_t>(index.row()));
    case FamilyDelegate::IsOpenRole:
        return list().isOpen(static_cast<std::size_t>(index.row()));
    case FamilyDelegate::IsCloneRole:
        return list().isBeneath(static_cast<std::size_t>(index.row()));
    default:
        return QVariant();
    }
}

// What the first column draws besides its text.
QString GameTableModel::description(std::size_t row) const
{
    QStringList parts{fieldText(list()[row][Field::Status])};
    if (list().clones(row) > 0)
        parts << qtTrId(list().isOpen(row) ? textKey("row_clones_shown") : textKey("row_clones_folded"),
                        static_cast<int>(list().clones(row)));
    if (list().isBeneath(row))
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
    m_catalogue.setValue(list().rows()[row], columns[static_cast<std::size_t>(index.column())],
                         value.toString());
    return true;
}

void GameTableModel::sort(int column, Qt::SortOrder order)
{
    if (column >= 0 && column < columnCount())
        list().setSort(columns[static_cast<std::size_t>(column)], order == Qt::AscendingOrder);
}

} // namespace tessera
