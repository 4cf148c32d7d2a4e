#pragma once

#include "catalogue/colortransformer.h"
#include "catalogue/gameselection.h"
#include "catalogue/ui/listselection.h"

#include <functional>

namespace tessera {

class ArrangedTableModel;
class Desktop;
class GameTableView;
class RomFolders;
class UserDefaults;

/// What the commands of the game list and of the favourites share: what is selected in a list of games, the
/// mark that is shown of it, a random game.
class ListController : public QObject, public GameSelection
{
    Q_OBJECT

public:
    ArrangedList& list() { return m_list; }
    const ArrangedList& list() const { return m_list; }
    ListSelection& selection() { return m_selection; }
    /// Null until the list is shown.
    GameTableView* table() const { return m_table; }

    /// Of the first selected record.
    SelectedGame selected() const override;
    /// Nothing selected: nothing.
    const GameRecord* selectedRecord() const;
    /// Whose archives are there, for the colours of the rows.
    void setRomFolders(std::shared_ptr<const RomFolders> folders);
    /// Takes over what stands in an open editor.
    virtual void commitEditing();
    /// Runs what changes the rows; what is selected, edited and in view stays so where the rows allow it.
    /// Nobody hears of the selection unless it became another one.
    void rearrange(const std::function<void()>& change);

public Q_SLOTS:
    void tableViewSelectionDidChange();

Q_SIGNALS:
    void launchRequested(const QString& game);
    void selectionChanged();
    /// The status mark to show; a status without one leaves the mark that was shown before.
    void markChanged(const QString& imageName);

protected:
    ListController(Desktop& desktop, const UserDefaults& stored, QObject* parent);

    void showIn(GameTableView* table, ArrangedTableModel* model);
    const ColorTransformer& colors() const { return m_colors; }
    /// Runs what selects rows; nobody hears of it.
    void quietly(const std::function<void()>& change);
    /// A field of the first selected record, empty where nothing is selected.
    QString selectedValue(Field field) const;
    void showMark();
    /// Of an empty list none.
    void selectRandomRow();

private:
    Desktop& m_desktop;
    ArrangedList m_list;
    ColorTransformer m_colors;
    ListSelection m_selection;
    GameTableView* m_table = nullptr;
    ArrangedTableModel* m_model = nullptr; ///< of the table
    bool m_isQuiet = false;
};

} // namespace tessera
