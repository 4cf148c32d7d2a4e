#pragma once

#include "catalogue/arrangedlist.h"
#include "catalogue/catalogue.h"
#include "catalogue/colortransformer.h"
#include "catalogue/gameselection.h"
#include "catalogue/recorddictionary.h"

#include <QItemSelection>
#include <QObject>

#include <functional>

#include <optional>

namespace tessera {

class DefaultsController;
class Desktop;
class GameTableModel;
class GameTableView;

/// The game list's commands: what is selected, what a double click does, how the table is sorted.
class GameListController : public QObject, public GameSelection
{
    Q_OBJECT

public:
    /// The table can be given later.
    GameListController(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                       GameTableView* table = nullptr, QObject* parent = nullptr);

    void setTable(GameTableView* table);
    ArrangedList& list() { return m_list; }
    GameTableModel* model() { return m_model; }

    SelectedGame selected() const override;
    // Selection readers: a field of the first selected record, empty where nothing is selected.
    QString tableViewSelectionROM() const;
    QString tableViewSelectionParentROM() const;
    QString tableViewSelectionTitleE() const;
    QString tableViewSelectionTitleJ() const;
    /// The first selected record's six fields; asked only while a row is selected.
    RecordDictionary objectDictionary() const;
    /// Nothing selected: nothing.
    const GameRecord* selectedRecord() const;
    int selectedCount() const;
    /// The first selected row, or -1; and the record in it.
    int firstSelectedRow() const;
    std::optional<std::uint32_t> firstSelected() const;
    std::vector<std::uint32_t> selectedRecords() const;

    QList<RecordDictionary> search_arrangedObjects(Field key, const QStringList& searchstr) const;
    /// False where an open editor would not give its text up.
    bool commitEditing();

    /// Selects the record with this set name alone and scrolls to it; false where the list does not show it.
    bool selectGame(const QString& name);
    /// Selects a row alone and scrolls to it; the last one where there are not so many.
    void selectRow(int row);
    /// The row before or after the first selected one.
    void selectNeighbour(int step);
    /// Those that the list shows.
    void selectRecords(const std::vector<std::uint32_t>& records);
    /// Runs what changes the rows; what is selected, edited and in view stays so where the rows allow it.
    void rearrange(const std::function<void()>& change);
    /// Whose archives are there, for the colours of the rows.
    void setRomFolders(std::shared_ptr<const RomFolders> folders);
    /// After the catalogue's records became others.
    void setContent();

public Q_SLOTS:
    void main_tableViewSort();
    void tableViewSelectionDidChange();
    void romStatus();
    void tableViewDoubleAction();
    void openROMfile();
    /// A random row; of an empty list none.
    void gameShuffle();

Q_SIGNALS:
    void launchRequested(const QString& game);
    void selectionChanged();
    /// The status mark to show; a status without one leaves the mark that was shown before.
    void markChanged(const QString& imageName);
    /// The list has other records now.
    void contentChanged();
    /// "41 of 45,294", or an edit.
    void countChanged();

private:
    void restore(const std::vector<std::uint32_t>& records, std::optional<std::uint32_t> current);
    struct RowRange {
        int first;
        int last;
    };

    std::vector<RowRange> selectedRanges() const;
    QItemSelection selectionOf(const std::vector<std::uint32_t>& records) const;
    QString selectedValue(Field field) const;

    Catalogue& m_catalogue;
    Desktop& m_desktop;
    ArrangedList m_list;
    ColorTransformer m_colors;
    GameTableModel* m_model;
    GameTableView* m_table = nullptr;
    bool m_isRearranging = false;
};

} // namespace tessera
