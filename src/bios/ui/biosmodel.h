#pragma once

#include "bios/biosentry.h"

#include <QAbstractItemModel>

#include <memory>

namespace tessera {

/// The BIOS list as a tree: name, BIOS, archive. The cells of the real entries can be edited.
class BiosModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Bios, Rom, ColumnCount };

    explicit BiosModel(QObject* parent = nullptr);
    ~BiosModel() override;

    void setEntries(const BiosEntries& entries);
    BiosEntries entries() const;
    /// The values of a row; nothing where there is none. Its children are left out.
    std::optional<BiosEntry> entry(const QModelIndex& index) const;
    /// The row among the fixed ones, counted from 0, or nothing for a real entry.
    std::optional<int> fixedRow(const QModelIndex& index) const;
    /// The row at a place, or the last one before it where there are fewer; see firstDifference().
    QModelIndex at(const std::vector<int>& place) const;
    /// A row that is to be filled in; while it is blank it is in no list.
    QModelIndex add(const BiosEntry& entry);
    bool isBlank(const QModelIndex& index) const;
    /// How the BIOS reads that is set now; its rows are marked.
    void setChosen(const QString& bios);
    /// False for a fixed row.
    bool remove(const QModelIndex& index);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user changed a cell.
    void edited();

private:
    /// An entry in its place: what is above it, and what is beneath it.
    struct Node;

    static void fill(Node& node, const BiosEntries& entries);
    static BiosEntries entriesOf(const Node& node);
    Node* nodeAt(const QModelIndex& index) const;

    std::unique_ptr<Node> m_root;
    QString m_chosen;
};

} // namespace tessera
