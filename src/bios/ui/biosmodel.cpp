#include "bios/ui/biosmodel.h"

#include "widgets/theme.h"

#include <QIcon>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr std::array<const char*, BiosModel::ColumnCount> headers{
    textKey("bios_column_name"), textKey("bios_column_bios"), textKey("bios_column_rom")};
constexpr std::array fixedNames{textKey("bios_blank"), textKey("bios_default")};

} // namespace

struct BiosModel::Node {
    Node* parent = nullptr;
    BiosEntry entry; ///< without its children
    std::vector<std::unique_ptr<Node>> children;

    // What a file held is never blank.
    bool isBlank() const { return !entry.kept && children.empty() && entry == BiosEntry(); }
    int row() const
    {
        const auto own = std::ranges::find(parent->children, this, &std::unique_ptr<Node>::get);
        return static_cast<int>(own - parent->children.begin());
    }
};

BiosModel::BiosModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>())
{
}

BiosModel::~BiosModel() = default;

void BiosModel::fill(Node& node, const BiosEntries& entries)
{
    for (const BiosEntry& entry : entries) {
        auto child = std::make_unique<Node>();
        child->parent = &node;
        child->entry = entry;
        child->entry.children.clear();
        fill(*child, entry.children);
        node.children.push_back(std::move(child));
    }
}

BiosEntries BiosModel::entriesOf(const Node& node)
{
    BiosEntries entries;
    for (const auto& child : node.children) {
        if (child->isBlank())
            continue;
        entries.push_back(child->entry);
        entries.back().children = entriesOf(*child);
    }
    return entries;
}

BiosModel::Node* BiosModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : m_root.get();
}

void BiosModel::setEntries(const BiosEntries& entries)
{
    beginResetModel();
    m_root = std::make_unique<Node>();
    fill(*m_root, entries);
    endResetModel();
}

BiosEntries BiosModel::entries() const
{
    return entriesOf(*m_root);
}

std::optional<BiosEntry> BiosModel::entry(const QModelIndex& index) const
{
    return index.isValid() ? std::optional(nodeAt(index)->entry) : std::nullopt;
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
    return index.isValid() && nodeAt(index)->isBlank();
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
    const auto row = static_cast<int>(m_root->children.size());
    beginInsertRows({}, row, row);
    fill(*m_root, {entry});
    endInsertRows();
    return index(row, Name);
}

bool BiosModel::remove(const QModelIndex& index)
{
    if (!index.isValid() || fixedRow(index))
        return false;
    Node* above = nodeAt(index)->parent;
    beginRemoveRows(index.parent(), index.row(), index.row());
    above->children.erase(above->children.begin() + index.row());
    endRemoveRows();
    return true;
}

QModelIndex BiosModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeAt(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex BiosModel::parent(const QModelIndex& child) const
{
    Node* above = child.isValid() ? nodeAt(child)->parent : nullptr;
    if (above == nullptr || above == m_root.get())
        return {};
    return createIndex(above->row(), 0, above);
}

int BiosModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

int BiosModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant BiosModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const BiosEntry& entry = nodeAt(index)->entry;
    if (index.column() == Bios && !m_chosen.isEmpty() && entry.bios == m_chosen) {
        if (role == Qt::DecorationRole)
            return theme::icon(QStringLiteral("chosen"), "accent");
        if (role == Qt::AccessibleDescriptionRole)
            return qtTrId("bios_set_now").arg(entry.bios.trimmed());
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    switch (index.column()) {
    case Name:
        // The file's names for these two are no one's language.
        if (const auto fixed = fixedRow(index))
            return qtTrId(fixedNames[static_cast<std::size_t>(*fixed)]);
        return entry.name;
    case Bios:
        return entry.bios;
    case Rom:
        return entry.rom;
    default:
        return {};
    }
}

bool BiosModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || fixedRow(index))
        return false;
    BiosEntry& entry = nodeAt(index)->entry;
    QString& text = index.column() == Name ? entry.name : index.column() == Bios ? entry.bios : entry.rom;
    if (text == value.toString())
        return true;
    text = value.toString();
    Q_EMIT dataChanged(index, index);
    Q_EMIT edited();
    return true;
}

QVariant BiosModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return qtTrId(headers[static_cast<std::size_t>(section)]);
}

Qt::ItemFlags BiosModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() && !fixedRow(index) ? flags | Qt::ItemIsEditable : flags;
}

} // namespace tessera
