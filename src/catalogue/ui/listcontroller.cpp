#include "catalogue/ui/listcontroller.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "catalogue/ui/arrangedtablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "platform/desktop.h"

#include <QRandomGenerator>

namespace tessera {

ListController::ListController(Desktop& desktop, const UserDefaults& stored, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_colors(stored)
    , m_selection(m_list)
{
}

void ListController::showIn(GameTableView* table, ArrangedTableModel* model)
{
    m_table = table;
    m_model = model;
    table->setModel(model);
    m_selection.setTable(table);
    connect(table, &GameTableView::selectionDidChange, this, &ListController::tableViewSelectionDidChange);
}

void ListController::setRomFolders(std::shared_ptr<const RomFolders> folders)
{
    m_colors.setRomFolders(std::move(folders));
    if (m_model != nullptr)
        m_model->recolour();
}

const GameRecord* ListController::selectedRecord() const
{
    const int row = m_selection.firstRow();
    return row < 0 ? nullptr : &m_list[static_cast<std::size_t>(row)];
}

QString ListController::selectedValue(Field field) const
{
    const GameRecord* record = selectedRecord();
    return record == nullptr ? QString() : shownValue(*record, field);
}

SelectedGame ListController::selected() const
{
    return {selectedValue(Field::Name), selectedValue(Field::Title), selectedValue(Field::Titlejp),
            selectedValue(Field::Cloneof)};
}

void ListController::commitEditing()
{
    if (m_table != nullptr)
        m_table->commitOpenEditor();
}

void ListController::quietly(const std::function<void()>& change)
{
    m_isQuiet = true;
    change();
    m_isQuiet = false;
}

// The selection is dropped with the rows and taken up again.
void ListController::rearrange(const std::function<void()>& change)
{
    if (m_isQuiet)
        return change();
    commitEditing();
    const ListSelection::State before = m_selection.state();
    bool arranged = false;
    const auto watch = connect(&m_list, &ArrangedList::arranged, this, [&arranged] { arranged = true; });
    quietly([&] {
        change();
        if (arranged)
            m_selection.restore(before);
    });
    disconnect(watch);
    if (m_selection.records() != before.records)
        tableViewSelectionDidChange();
}

void ListController::tableViewSelectionDidChange()
{
    if (m_isQuiet)
        return;
    Q_EMIT selectionChanged();
    showMark();
}

void ListController::showMark()
{
    const GameRecord* record = selectedRecord();
    const auto mark = record == nullptr ? statusMark(std::nullopt) : statusMark((*record)[Field::Status]);
    if (mark)
        Q_EMIT markChanged(fieldText(*mark));
}

void ListController::selectRandomRow()
{
    // The number is drawn before the list is looked at; of none it is 0.
    const int count = static_cast<int>(m_list.size());
    const int row = count == 0 ? 0 : QRandomGenerator::global()->bounded(count);
    if (count == 0) {
        m_desktop.beep();
        return;
    }
    m_selection.selectRow(row);
    m_desktop.playSound(QStringLiteral("slot_end"));
}

} // namespace tessera
