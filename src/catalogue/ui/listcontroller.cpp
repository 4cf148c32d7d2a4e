#include "catalogue/ui/listcontroller.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/statusmark.h"
#include "catalogue/ui/arrangedtablemodel.h"
#include "platform/desktop.h"

#include <QRandomGenerator>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace tessera {

ListController::ListController(Desktop& desktop, const UserDefaults& stored, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_colors(stored)
{
    connect(&m_list, &ArrangedList::arranged, this, [this] {
        m_isArranged = true;
        m_asked.reset();
    });
}

void ListController::showIn(GameTableView* table, ArrangedTableModel* model)
{
    m_table = table;
    m_model = model;
    table->setModel(model);
    selectRecords(std::exchange(m_waiting, {}));
    connect(table, &GameTableView::selectionDidChange, this, &ListController::tableViewSelectionDidChange);
    connect(table, &GameTableView::returnAction, this, &ListController::startByReturn);
}

void ListController::setRomFolders(std::shared_ptr<const RomFolders> folders)
{
    m_colors.setRomFolders(std::move(folders));
    if (m_model != nullptr)
        m_model->recolour();
}

std::vector<RowRange> ListController::selectedRanges() const
{
    return m_table == nullptr ? rangesOf(m_waiting) : m_table->selectedRanges();
}

// Those that the list shows, each run of rows as one range.
std::vector<RowRange> ListController::rangesOf(const std::vector<std::uint32_t>& records) const
{
    std::vector<int> rows;
    for (const std::uint32_t record : records) {
        if (const auto row = m_list.rowOf(record))
            rows.push_back(static_cast<int>(*row));
    }
    std::ranges::sort(rows);
    std::vector<RowRange> ranges;
    for (const int row : rows) {
        if (ranges.empty() || row > ranges.back().last + 1)
            ranges.push_back({row, row});
        else
            ranges.back().last = row;
    }
    return ranges;
}

QItemSelection ListController::itemsOf(const std::vector<std::uint32_t>& records) const
{
    QItemSelection items;
    for (const RowRange& range : rangesOf(records))
        items.append(
            {m_model->index(range.first, 0), m_model->index(range.last, m_model->columnCount() - 1)});
    return items;
}

int ListController::firstRow() const
{
    const std::vector<RowRange> selected = selectedRanges();
    return selected.empty() ? -1 : selected.front().first;
}

std::optional<std::uint32_t> ListController::firstSelected() const
{
    const int row = firstRow();
    return row < 0 ? std::nullopt : std::optional(m_list.rows()[static_cast<std::size_t>(row)]);
}

const GameRecord* ListController::selectedRecord() const
{
    const int row = firstRow();
    return row < 0 ? nullptr : &m_list[static_cast<std::size_t>(row)];
}

std::vector<std::uint32_t> ListController::selectedRecords() const
{
    std::vector<std::uint32_t> records;
    for (const RowRange& range : selectedRanges()) {
        const auto rows = m_list.rows().begin();
        records.insert(records.end(), rows + range.first, rows + range.last + 1);
    }
    return records;
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

void ListController::selectRow(int row)
{
    const int place = std::min(row, static_cast<int>(m_list.size()) - 1);
    if (place < 0)
        return;
    if (m_table == nullptr)
        return selectRecords({m_list.rows()[static_cast<std::size_t>(place)]});
    m_table->selectRowAlone(place);
    m_table->scrollTo(m_model->index(place, 0), QAbstractItemView::PositionAtCenter);
}

void ListController::enterTable()
{
    m_table->setFocus();
    if (firstRow() < 0)
        selectRow(0);
}

// What is only near to what was typed may be another game than the one that is meant.
void ListController::startByReturn()
{
    const auto selected = firstSelected();
    if (!m_list.isNearest() || !selected || m_asked == selected)
        return startSelected();
    m_asked = selected;
    Q_EMIT statusMessage(qtTrId("search_return_again").arg(selectedValue(Field::Title)));
}

void ListController::selectRecords(const std::vector<std::uint32_t>& records)
{
    if (m_table == nullptr) {
        m_waiting = records;
        std::erase_if(m_waiting, [this](std::uint32_t each) { return !m_list.rowOf(each); });
        return;
    }
    const QItemSelection items = itemsOf(records);
    QItemSelectionModel* model = m_table->selectionModel();
    if (items.isEmpty())
        return model->clearSelection();
    const QModelIndex first = items.front().topLeft();
    model->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    model->select(items, QItemSelectionModel::ClearAndSelect);
    m_table->scrollTo(first);
}

void ListController::commitEditing()
{
    if (m_table != nullptr)
        m_table->commitOpenEditor();
}

ListController::Rearranging::Rearranging(ListController& controller)
    : m_controller(controller)
    , m_isWithin(controller.m_isQuiet)
{
    if (m_isWithin)
        return;
    controller.commitEditing();
    m_selected = controller.selectedRecords();
    if (const GameTableView* table = controller.m_table) {
        if (const QModelIndex current = table->currentIndex(); current.isValid())
            m_current = controller.m_list.rows()[static_cast<std::size_t>(current.row())];
        m_scrolled = table->verticalScrollBar()->value();
    }
    controller.m_isArranged = false;
    controller.m_isQuiet = true;
}

ListController::Rearranging::~Rearranging()
{
    if (m_isWithin)
        return;
    if (m_controller.m_isArranged)
        restore();
    m_controller.m_isQuiet = false;
    if (m_controller.selectedRecords() != m_selected)
        m_controller.tableViewSelectionDidChange();
}

// The selection is dropped with the rows and taken up again.
void ListController::Rearranging::restore() const
{
    GameTableView* table = m_controller.m_table;
    if (table == nullptr)
        return m_controller.selectRecords(m_selected);
    const ArrangedTableModel& model = *m_controller.m_model;
    QItemSelectionModel* selection = table->selectionModel();
    if (const auto row = m_current ? m_controller.m_list.rowOf(*m_current) : std::nullopt)
        selection->setCurrentIndex(model.index(static_cast<int>(*row), 0), QItemSelectionModel::NoUpdate);
    selection->select(m_controller.itemsOf(m_selected), QItemSelectionModel::ClearAndSelect);
    table->layOut();
    table->verticalScrollBar()->setValue(m_scrolled);
    if (const int first = m_controller.firstRow(); first >= 0)
        table->scrollTo(model.index(first, 0));
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
    selectRow(row);
    m_desktop.playSound(QStringLiteral("slot_end"));
}

} // namespace tessera
