#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/ui/arrangedtablemodel.h"

namespace tessera {

class ColorTransformer;
class DefaultsController;

/// A thin model over an arranged list: one row a record, text made only for the rows that are drawn.
class GameTableModel : public ArrangedTableModel
{
    Q_OBJECT

public:
    /// The columns in their first order; the set name is the first and sets the initial sort.
    static constexpr std::array columns{Field::Name,   Field::Title,  Field::Titlejp,
                                        Field::Year,   Field::Maker,  Field::Cloneof,
                                        Field::Device, Field::Status, Field::Type};
    /// Not among the shown ones at first.
    static constexpr std::array hiddenColumns{Field::Status, Field::Type};

    GameTableModel(Catalogue& catalogue, ArrangedList& list, const ColorTransformer& colors,
                   DefaultsController& defaults, QObject* parent = nullptr);

    static int columnOf(Field field);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// An undoable edit of the record; refused while the list is locked.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder order) override;

public Q_SLOTS:
    /// While it is locked, as its records are about to be replaced, nothing is edited.
    void setLocked(bool locked) { m_locked = locked; }

    /// The table is registered for it; nothing that is dragged here is taken yet.
    QStringList mimeTypes() const override;

private:
    QString description(std::size_t row) const;

    Catalogue& m_catalogue;
    const ColorTransformer& m_colors;
    bool m_locked = false;
};

} // namespace tessera
