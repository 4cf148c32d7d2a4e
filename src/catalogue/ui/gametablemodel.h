#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/ui/arrangedtablemodel.h"

namespace tessera {

/// The game list's records, one a row, with their families.
class GameTableModel : public ArrangedTableModel
{
    Q_OBJECT

public:
    /// Not among the shown ones at first.
    static constexpr std::array hiddenColumns{Field::Status, Field::Type};

    GameTableModel(Catalogue& catalogue, ArrangedList& list, const ColorTransformer& colors,
                   DefaultsController& defaults, QObject* parent = nullptr);

    static int columnOf(Field field);

    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

public Q_SLOTS:
    /// While it is locked, as its records are about to be replaced, nothing is edited.
    void setLocked(bool locked) { m_locked = locked; }

    /// The table is registered for it; nothing that is dragged here is taken yet.
    QStringList mimeTypes() const override;

private:
    std::optional<ColumnSort> secondSort() const override;
    void setText(const QModelIndex& index, const QString& text) override;
    QString description(std::size_t row) const;

    Catalogue& m_catalogue;
    bool m_locked = false;
};

} // namespace tessera
