#include "bios/ui/biosmodel.h"

#include "widgets/theme.h"

#include <QIcon>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

using Kept = std::optional<PropertyList>;

constexpr std::array fixedNames{textKey("bios_blank"), textKey("bios_default")};
constexpr int keptRole = Qt::UserRole; // of a row's first cell: what a file held besides

void fill(QStandardItem& above, const BiosEntries& entries)
{
    for (const BiosEntry& entry : entries) {
        auto* name = new QStandardItem(entry.name);
        name->setData(QVariant::fromValue(entry.kept), keptRole);
        fill(*name, entry.children);
        above.appendRow({name, new QStandardItem(entry.bios), new QStandardItem(entry.rom)});
    }
}

// Without its children.
BiosEntry entryOf(const QStandardItem& above, int row)
{
    const auto text = [&](BiosModel::Column column) { return above.child(row, column)->text(); };
    return {text(BiosModel::Bios),
            text(BiosModel::Rom),
            text(BiosModel::Name),
            {},
            above.child(row)->data(keptRole).value<Kept>()};
}

// What a file held is never blank.
bool isBlankRow(const QStandardItem& above, int row)
{
    const BiosEntry entry = entryOf(above, row);
    return !entry.kept && !above.child(row)->hasChildren() && entry == BiosEntry();
}

BiosEntries entriesOf(const QStandardItem& above)
{
    BiosEntries entries;
    for (int row = 0; row < above.rowCount(); ++row) {
        if (isBlankRow(above, row))
            continue;
        entries.push_back(entryOf(above, row));
        entries.back().children = entriesOf(*above.child(row));
    }
    return entries;
}

} // namespace

BiosModel::BiosModel(QObject* parent)
    : QStandardItemModel(parent)
{
    setHorizontalHeaderLabels(
        {qtTrId("bios_column_name"), qtTrId("bios_column_bios"), qtTrId("bios_column_rom")});
}

void BiosModel::setEntries(const BiosEntries& entries)
{
    beginResetModel();
    {
        // The reset tells of all that changes in between.
        const QSignalBlocker quiet(this);
        removeRows(0, rowCount());
        fill(*invisibleRootItem(), entries);
    }
    endResetModel();
}

BiosEntries BiosModel::entries() const
{
    return entriesOf(*invisibleRootItem());
}

std::optional<BiosEntry> BiosModel::entry(const QModelIndex& index) const
{
    return index.isValid() ? std::optional(entryOf(above(index), index.row())) : std::nullopt;
}

const QStandardItem& BiosModel::above(const QModelIndex& index) const
{
    return index.parent().isValid() ? *itemFromIndex(index.parent()) : *invisibleRootItem();
}

std::optional<int> BiosModel::fixedRow(const QModelIndex& index) const
{
    const bool isFixed = index.isValid() && !index.parent().isValid() && index.row() < fixedRows;
    return isFixed ? std::optional(index.row()) : std::nullopt;
}

QModelIndex BiosModel::at(const std::vector<int>& place) const
{
    QModelIndex found;
    for (const int row : place) {
        if (const int rows = rowCount(found); rows > 0)
            found = index(std::min(row, rows - 1), Name, found);
    }
    return found;
}

bool BiosModel::isBlank(const QModelIndex& index) const
{
    return index.isValid() && isBlankRow(above(index), index.row());
}

void BiosModel::setChosen(const QString& bios)
{
    // Any number of rows, anywhere in the tree.
    Q_EMIT layoutAboutToBeChanged();
    m_chosen = bios;
    Q_EMIT layoutChanged();
}

QModelIndex BiosModel::add(const BiosEntry& entry)
{
    fill(*invisibleRootItem(), {entry});
    return index(rowCount() - 1, Name);
}

bool BiosModel::remove(const QModelIndex& index)
{
    return index.isValid() && !fixedRow(index) && removeRow(index.row(), index.parent());
}

QVariant BiosModel::data(const QModelIndex& index, int role) const
{
    const QVariant value = QStandardItemModel::data(index, role);
    if (index.column() == Bios && !m_chosen.isEmpty() && itemFromIndex(index)->text() == m_chosen) {
        if (role == Qt::DecorationRole)
            return theme::icon(QStringLiteral("chosen"), "accent");
        if (role == Qt::AccessibleDescriptionRole)
            return qtTrId("bios_set_now").arg(m_chosen.trimmed());
    }
    // What the file calls these two is in no language of ours.
    const auto fixed = fixedRow(index);
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return fixed && index.column() == Name && isText ? qtTrId(fixedNames[static_cast<std::size_t>(*fixed)])
                                                     : value;
}

bool BiosModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || fixedRow(index))
        return false;
    if (itemFromIndex(index)->text() == value.toString())
        return true;
    const bool isSet = QStandardItemModel::setData(index, value, role);
    Q_EMIT edited();
    return isSet;
}

Qt::ItemFlags BiosModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() && !fixedRow(index) ? flags | Qt::ItemIsEditable : flags;
}

} // namespace tessera
