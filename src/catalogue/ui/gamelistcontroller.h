#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/ui/listcontroller.h"

namespace tessera {

class DefaultsController;
class GameTableModel;

/// What became of the list's records.
enum class ContentChange : std::uint8_t { Replaced, Removed, PutBack };

/// The game list's commands: what is selected, what a double click does, how the table is sorted.
class GameListController : public ListController
{
    Q_OBJECT

public:
    /// The table can be given later.
    GameListController(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                       GameTableView* table = nullptr, QObject* parent = nullptr);

    void setTable(GameTableView* table);
    GameTableModel* model() { return m_model; }

    // Selection readers: a field of the first selected record, empty where nothing is selected.
    QString tableViewSelectionROM() const { return selectedValue(Field::Name); }
    QString tableViewSelectionParentROM() const { return selectedValue(Field::Cloneof); }
    QString tableViewSelectionTitleE() const { return selectedValue(Field::Title); }
    QString tableViewSelectionTitleJ() const { return selectedValue(Field::Titlejp); }
    /// The first selected record's six fields; asked only while a row is selected.
    RecordDictionary objectDictionary() const;

    QList<RecordDictionary> search_arrangedObjects(Field key, const QStringList& searchstr) const;

    /// Selects the record with this set name alone and scrolls to it; false where the list does not show it.
    bool selectGame(const QString& name);
    /// The row before or after the first selected one.
    void selectNeighbour(int step);

public Q_SLOTS:
    void main_tableViewSort();
    void romStatus() { showMark(); }
    void tableViewDoubleAction();
    void openROMfile();
    /// A random row; of an empty list none.
    void gameShuffle() { selectRandomRow(); }

Q_SIGNALS:
    /// The list has other records now; these were removed or put back.
    void contentChanged(tessera::ContentChange change, const std::vector<std::uint32_t>& records);

private:
    void startSelected() override { tableViewDoubleAction(); }
    void takeOut(const std::vector<std::uint32_t>& records);
    void putBack(const std::vector<std::uint32_t>& records);
    void setContent(ContentChange change, const std::vector<std::uint32_t>& records = {});

    Catalogue& m_catalogue;
    Desktop& m_desktop;
    GameTableModel* m_model;
};

} // namespace tessera
