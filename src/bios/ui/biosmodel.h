#pragma once

#include "bios/biosentry.h"

#include <QStandardItemModel>

namespace tessera {

/// The BIOS list as a tree: name, BIOS, archive. The cells of the real entries can be edited.
class BiosModel : public QStandardItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Bios, Rom, ColumnCount };

    explicit BiosModel(QObject* parent = nullptr);

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

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user changed a cell.
    void edited();

private:
    const QStandardItem& above(const QModelIndex& index) const;

    QString m_chosen;
};

} // namespace tessera
