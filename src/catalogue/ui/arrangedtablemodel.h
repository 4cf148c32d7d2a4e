#pragma once

#include "catalogue/arrangedlist.h"
#include "core/settingskeys.h"

#include <QAbstractTableModel>
#include <QFont>

namespace tessera {

class DefaultsController;

/// What the models over an arranged list share: its rows, their font and colours, and that other rows reset
/// the model, while the same ones in another order stay selected.
class ArrangedTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// The rows' colours are others now.
    void recolour() { showEverything({Qt::ForegroundRole}); }

protected:
    /// `font` is the setting that names the rows' font.
    ArrangedTableModel(ArrangedList& list, DefaultsController& defaults, const Key<QLatin1StringView>& font,
                       QObject* parent);

    ArrangedList& list() const { return m_list; }
    const QFont& font() const { return m_font; }
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
    DefaultsController& m_defaults;
    const Key<QLatin1StringView>& m_fontKey;
    QFont m_font;
    // While the rows change places: what is kept by its place, and the record in each.
    QModelIndexList m_places;
    std::vector<std::uint32_t> m_recordsThere;
};

} // namespace tessera
