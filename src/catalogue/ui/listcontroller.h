#pragma once

#include "catalogue/arrangedlist.h"
#include "catalogue/colortransformer.h"
#include "catalogue/gameselection.h"
#include "catalogue/ui/gametableview.h"

namespace tessera {

class ArrangedTableModel;
class Desktop;
class RomFolders;
class UserDefaults;

/// What the commands of the game list and of the favourites share: what is selected in a list of games, the
/// mark that is shown of it, a random game. What is selected is known before there is a table.
class ListController : public QObject, public GameSelection
{
    Q_OBJECT

public:
    ArrangedList& list() { return m_list; }
    const ArrangedList& list() const { return m_list; }
    /// Null until the list is shown.
    GameTableView* table() const { return m_table; }

    /// Of the first selected record.
    SelectedGame selected() const override;
    /// Nothing selected: nothing.
    const GameRecord* selectedRecord() const;
    /// Its row; -1 where nothing is selected.
    int firstRow() const;
    /// Its index.
    std::optional<std::uint32_t> firstSelected() const;
    /// Indexes of records, in the order of the rows.
    std::vector<std::uint32_t> selectedRecords() const;
    int selectedCount() const { return static_cast<int>(selectedRecords().size()); }

    /// Selects a row alone and scrolls to it; the last one where there are not so many.
    void selectRow(int row);
    /// Those that the list shows, and nothing else.
    void selectRecords(const std::vector<std::uint32_t>& records);

    /// Whose archives are there, for the colours of the rows.
    void setRomFolders(std::shared_ptr<const RomFolders> folders);
    /// Something else is searched: what Return was pressed for once is forgotten.
    void forgetReturn() { m_asked.reset(); }
    /// Takes over what stands in an open editor.
    virtual void commitEditing();

    /// While one lives the rows become others; what is selected, edited and in view stays so where they allow
    /// it. Nobody hears of the selection unless it became another one.
    class Rearranging
    {
    public:
        explicit Rearranging(ListController& controller);
        ~Rearranging();
        Q_DISABLE_COPY_MOVE(Rearranging)

    private:
        void restore() const;

        ListController& m_controller;
        bool m_isWithin; ///< another one, which sees to it
        std::vector<std::uint32_t> m_selected;
        std::optional<std::uint32_t> m_current;
        int m_scrolled = 0;
    };

public Q_SLOTS:
    /// The keys go to the table, and its first row is selected where none was.
    void enterTable();
    /// As by a double click; a row that is only the nearest to what was searched needs a second press.
    void startByReturn();
    void tableViewSelectionDidChange();

Q_SIGNALS:
    void launchRequested(const QString& game);
    void selectionChanged();
    /// The status mark to show; a status without one leaves the mark that was shown before.
    void markChanged(const QString& imageName);
    void statusMessage(const QString& sentence);

protected:
    ListController(Desktop& desktop, const UserDefaults& stored, QObject* parent);

    /// The table takes the selection over.
    void showIn(GameTableView* table, ArrangedTableModel* model);
    virtual void startSelected() = 0;
    const ColorTransformer& colors() const { return m_colors; }
    /// A field of the first selected record, empty where nothing is selected.
    QString selectedValue(Field field) const;
    void showMark();
    /// Of an empty list none.
    void selectRandomRow();

    bool m_isQuiet = false; ///< nobody hears of the selection

private:
    std::vector<RowRange> selectedRanges() const;
    std::vector<RowRange> rangesOf(const std::vector<std::uint32_t>& records) const;
    QItemSelection itemsOf(const std::vector<std::uint32_t>& records) const;

    Desktop& m_desktop;
    ArrangedList m_list;
    ColorTransformer m_colors;
    GameTableView* m_table = nullptr;
    ArrangedTableModel* m_model = nullptr; ///< of the table
    std::vector<std::uint32_t> m_waiting; ///< selected, as long as there is no table
    std::optional<std::uint32_t> m_asked; ///< starts when Return is pressed once more
    bool m_isArranged = false; ///< anew, since a rearrangement began
};

} // namespace tessera
