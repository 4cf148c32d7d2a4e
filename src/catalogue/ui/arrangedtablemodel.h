#pragma once

#include "catalogue/arrangedlist.h"
#include "core/settingskeys.h"

#include <QAbstractTableModel>
#include <QFont>

namespace tessera {

class DefaultsController;

/// What the models over an arranged list share: its rows, their font and colours, and that an arrangement of
/// the list resets the model.
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

    /// Other records: nothing stays selected.
    void replace(const std::function<void()>& change);
    /// The same records in another order: what is selected stays selected.
    void resort(const std::function<void()>& change);
    void showEverything(const QList<int>& roles = {});
    void showRecord(std::uint32_t record);

private:
    void readFont();
    void settingChanged(const QString& name);
    void quietly(const std::function<void()>& change);

    ArrangedList& m_list;
    DefaultsController& m_defaults;
    const Key<QLatin1StringView>& m_fontKey;
    QFont m_font;
    bool m_isChanging = false;
};

} // namespace tessera
