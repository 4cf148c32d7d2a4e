#include "catalogue/ui/gametablemodel.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/ui/familydelegate.h"

#include <algorithm>

namespace tessera {

namespace {

// In their first order; the set name is the first and sets the initial sort.
constexpr std::array columns{
    TableColumn{textKey("column_name"), Field::Name},
    TableColumn{textKey("column_title"), Field::Title},
    TableColumn{textKey("column_titlejp"), Field::Titlejp},
    TableColumn{textKey("column_year"), Field::Year},
    TableColumn{textKey("column_maker"), Field::Maker},
    TableColumn{textKey("column_cloneof"), Field::Cloneof},
    TableColumn{textKey("column_device"), Field::Device},
    TableColumn{textKey("column_status"), Field::Status},
    TableColumn{textKey("column_type"), Field::Type},
};

} // namespace

GameTableModel::GameTableModel(Catalogue& catalogue, ArrangedList& list, const ColorTransformer& colors,
                               DefaultsController& defaults, QObject* parent)
    : ArrangedTableModel(list, columns, colors, defaults, keys::TablefontName, parent)
    , m_catalogue(catalogue)
{
    connect(&m_catalogue, &Catalogue::recordChanged, this, &GameTableModel::showRecord);
}

int GameTableModel::columnOf(Field field)
{
    return static_cast<int>(std::ranges::find(columns, field, &TableColumn::field) - columns.begin());
}

QVariant GameTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case Qt::AccessibleDescriptionRole:
        return column(index).field == Field::Name ? description(row) : QVariant();
    case FamilyDelegate::ClonesRole:
        return list().clones(row);
    case FamilyDelegate::IsOpenRole:
        return list().isOpen(row);
    case FamilyDelegate::IsCloneRole:
        return list().isBeneath(row);
    default:
        return ArrangedTableModel::data(index, role);
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

Qt::ItemFlags GameTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = ArrangedTableModel::flags(index);
    return m_locked ? flags & ~Qt::ItemFlags(Qt::ItemIsEditable) : flags;
}

void GameTableModel::setText(const QModelIndex& index, const QString& text)
{
    if (const auto field = column(index).field)
        m_catalogue.setValue(recordAt(index), *field, text);
}

void GameTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount())
        return;
    if (const auto field = columns[static_cast<std::size_t>(column)].field)
        list().setSort(*field, order == Qt::AscendingOrder);
    showSecondSort();
}

std::optional<ColumnSort> GameTableModel::secondSort() const
{
    const auto sort = list().secondSort();
    return sort ? std::optional(ColumnSort{columnOf(sort->field), sort->ascending}) : std::nullopt;
}

} // namespace tessera
