#pragma once

#include "catalogue/arrangedlist.h"
#include "core/settingskeys.h"

#include <QAbstractTableModel>
#include <QFont>

namespace tessera {

class ColorTransformer;
class DefaultsController;

/// A column of a list of games, and the field of its records that it shows; nothing where what it shows
/// stands elsewhere.
struct TableColumn {
    const char* heading;
    std::optional<Field> field;
    bool isEditable = true;
};

/// A column that the rows are sorted by.
struct ColumnSort {
    int column;
    bool ascending;

    bool operator==(const ColumnSort&) const = default;
};

/// What the models over an arranged list share: texts, marks and colours of its records, made only for the
/// rows that are drawn, and that other rows reset the model, while the same ones in another order stay
/// selected.
class ArrangedTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// An undoable edit of the record.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    /// The rows' colours are others now.
    void recolour() { showEverything({Qt::ForegroundRole}); }

protected:
    /// `font` is the setting that names the rows' font; the columns outlive the model.
    ArrangedTableModel(ArrangedList& list, std::span<const TableColumn> columns,
                       const ColorTransformer& colors, DefaultsController& defaults,
                       const Key<QLatin1StringView>& font, QObject* parent);

    ArrangedList& list() const { return m_list; }
    const TableColumn& column(const QModelIndex& index) const
    {
        return m_columns[static_cast<std::size_t>(index.column())];
    }
    /// What decides among rows that are equal by the sorted column, if that is a column.
    virtual std::optional<ColumnSort> secondSort() const = 0;
    /// After each sort, also one that leaves the rows as they are.
    void showSecondSort();
    virtual void setText(const QModelIndex& index, const QString& text) = 0;
    std::uint32_t recordAt(const QModelIndex& index) const
    {
        return m_list.rows()[static_cast<std::size_t>(index.row())];
    }

    void showEverything(const QList<int>& roles = {});
    void showRecord(std::uint32_t record);

private:
    void readFont();
    void settingChanged(const QString& name);
    void beginArranging(ArrangedList::Change change);
    void endArranging(ArrangedList::Change change);

    ArrangedList& m_list;
    std::span<const TableColumn> m_columns;
    const ColorTransformer& m_colors;
    DefaultsController& m_defaults;
    const Key<QLatin1StringView>& m_fontKey;
    QFont m_font;
    std::optional<ColumnSort> m_secondSort; // as the header shows it
    // While the rows change places: what is kept by its place, and the record in each.
    QModelIndexList m_places;
    std::vector<std::uint32_t> m_recordsThere;
};

} // namespace tessera
