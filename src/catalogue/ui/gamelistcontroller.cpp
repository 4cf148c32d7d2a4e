#include "catalogue/ui/gamelistcontroller.h"

#include "catalogue/lookup.h"
#include "catalogue/statusmark.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QRandomGenerator>
#include <QScrollBar>

#include <algorithm>

namespace tessera {

GameListController::GameListController(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                                       GameTableView* table, QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_colors(defaults.stored())
    , m_model(new GameTableModel(catalogue, m_list, m_colors, defaults, this))
{
    setContent();
    connect(&catalogue, &Catalogue::replaced, this, &GameListController::setContent);
    connect(&catalogue, &Catalogue::recordChanged, &m_list,
            [this](std::uint32_t, Field field) { m_list.forgetOrder(field); });
    connect(&catalogue, &Catalogue::recordChanged, this, [this](std::uint32_t record, Field field) {
        if (field == Field::Status && firstSelected() == record)
            romStatus();
    });
    connect(&m_list, &ArrangedList::arranged, this, &GameListController::countChanged);
    if (table != nullptr)
        setTable(table);
}

void GameListController::setTable(GameTableView* table)
{
    m_table = table;
    m_table->setModel(m_model);
    connect(table, &GameTableView::selectionDidChange, this, [this] {
        if (!m_isRearranging)
            tableViewSelectionDidChange();
    });
}

void GameListController::setRomFolders(std::shared_ptr<const RomFolders> folders)
{
    m_colors.setRomFolders(std::move(folders));
    if (m_table != nullptr)
        m_table->viewport()->update();
}

int GameListController::selectedCount() const
{
    int count = 0;
    for (const RowRange& range : selectedRanges())
        count += range.last - range.first + 1;
    return count;
}

// In the order of the rows. The model's own list of rows takes a time that grows with the square of its
// ranges.
std::vector<GameListController::RowRange> GameListController::selectedRanges() const
{
    std::vector<RowRange> ranges;
    if (m_table == nullptr)
        return ranges;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        if (range.isValid())
            ranges.push_back({range.top(), range.bottom()});
    }
    std::ranges::sort(ranges, {}, &RowRange::first);
    return ranges;
}

int GameListController::firstSelectedRow() const
{
    const std::vector<RowRange> ranges = selectedRanges();
    return ranges.empty() ? -1 : ranges.front().first;
}

std::optional<std::uint32_t> GameListController::firstSelected() const
{
    const int row = firstSelectedRow();
    return row < 0 ? std::nullopt : std::optional(m_list.rows()[static_cast<std::size_t>(row)]);
}

const GameRecord* GameListController::selectedRecord() const
{
    const int row = firstSelectedRow();
    return row < 0 ? nullptr : &m_list[static_cast<std::size_t>(row)];
}

std::vector<std::uint32_t> GameListController::selectedRecords() const
{
    std::vector<std::uint32_t> records;
    for (const RowRange& range : selectedRanges()) {
        const auto rows = m_list.rows().begin();
        records.insert(records.end(), rows + range.first, rows + range.last + 1);
    }
    return records;
}

QString GameListController::selectedValue(Field field) const
{
    const GameRecord* record = selectedRecord();
    return record == nullptr ? QString() : shownValue(*record, field);
}

SelectedGame GameListController::selected() const
{
    return {tableViewSelectionROM(), tableViewSelectionTitleE(), tableViewSelectionTitleJ(),
            tableViewSelectionParentROM()};
}

QString GameListController::tableViewSelectionROM() const
{
    return selectedValue(Field::Name);
}

QString GameListController::tableViewSelectionParentROM() const
{
    return selectedValue(Field::Cloneof);
}

QString GameListController::tableViewSelectionTitleE() const
{
    return selectedValue(Field::Title);
}

QString GameListController::tableViewSelectionTitleJ() const
{
    return selectedValue(Field::Titlejp);
}

RecordDictionary GameListController::objectDictionary() const
{
    return tessera::objectDictionary(*selectedRecord());
}

QList<RecordDictionary> GameListController::search_arrangedObjects(Field key,
                                                                   const QStringList& searchstr) const
{
    const LookupResult result = lookUp(m_list, key, searchstr);
    for (const QString& value : result.notFound)
        m_desktop.log(notFoundLine(value));
    return result.found;
}

bool GameListController::commitEditing()
{
    if (m_table != nullptr)
        m_table->commitOpenEditor();
    return true;
}

bool GameListController::selectGame(const QString& name)
{
    const auto row = m_list.find(Field::Name, name.toStdString());
    if (!row || m_table == nullptr)
        return false;
    selectRow(static_cast<int>(*row));
    return true;
}

void GameListController::selectRow(int row)
{
    const int place = std::min(row, m_model->rowCount() - 1);
    if (m_table == nullptr || place < 0)
        return;
    m_table->selectRowAlone(place);
    m_table->scrollTo(m_model->index(place, 0), QAbstractItemView::PositionAtCenter);
}

void GameListController::selectNeighbour(int step)
{
    const int row = firstSelectedRow();
    if (row >= 0)
        selectRow(std::max(0, row + step));
}

// Those that the list shows, each run of rows as one range.
QItemSelection GameListController::selectionOf(const std::vector<std::uint32_t>& records) const
{
    std::vector<int> rows;
    for (const std::uint32_t record : records) {
        if (const auto row = m_list.rowOf(record))
            rows.push_back(static_cast<int>(*row));
    }
    std::ranges::sort(rows);
    QItemSelection selection;
    for (auto from = rows.begin(); from != rows.end();) {
        const auto end = std::adjacent_find(from, rows.end(), [](int a, int b) { return b > a + 1; });
        const auto last = end == rows.end() ? end - 1 : end;
        selection.append({m_model->index(*from, 0), m_model->index(*last, m_model->columnCount() - 1)});
        from = last + 1;
    }
    return selection;
}

void GameListController::selectRecords(const std::vector<std::uint32_t>& records)
{
    const QItemSelection selection = selectionOf(records);
    if (selection.isEmpty() || m_table == nullptr)
        return;
    const QModelIndex first = m_model->index(selection.front().top(), 0);
    m_table->setCurrentIndex(first);
    m_table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_table->scrollTo(first);
}

// The selection is dropped with the rows and taken up again: nobody hears of it unless it became another one.
void GameListController::rearrange(const std::function<void()>& change)
{
    if (m_table == nullptr || m_isRearranging)
        return change();
    commitEditing();
    const std::vector<std::uint32_t> before = selectedRecords();
    const QModelIndex at = m_table->currentIndex();
    const auto current
        = at.isValid() ? std::optional(m_list.rows()[static_cast<std::size_t>(at.row())]) : std::nullopt;
    QScrollBar* bar = m_table->verticalScrollBar();
    const int scrolled = bar->value();
    bool arranged = false;
    const auto watch = connect(&m_list, &ArrangedList::arranged, this, [&arranged] { arranged = true; });
    m_isRearranging = true;
    change();
    disconnect(watch);
    if (arranged) {
        restore(before, current);
        m_table->layOut();
        bar->setValue(scrolled);
        if (const int first = firstSelectedRow(); first >= 0)
            m_table->scrollTo(m_model->index(first, 0));
    }
    m_isRearranging = false;
    if (selectedRecords() != before)
        tableViewSelectionDidChange();
}

void GameListController::restore(const std::vector<std::uint32_t>& records,
                                 std::optional<std::uint32_t> current)
{
    const auto row = current ? m_list.rowOf(*current) : std::nullopt;
    if (row)
        m_table->selectionModel()->setCurrentIndex(m_model->index(static_cast<int>(*row), 0),
                                                   QItemSelectionModel::NoUpdate);
    m_table->selectionModel()->select(selectionOf(records), QItemSelectionModel::ClearAndSelect);
}

void GameListController::setContent()
{
    m_list.setContent(m_catalogue.records(), m_catalogue.takeByName());
    Q_EMIT contentChanged();
}

void GameListController::main_tableViewSort()
{
    // Registered for the model's drag type.
    m_table->setDragDropMode(QAbstractItemView::DropOnly);
    // Also arranges the list, by the first column, ascending.
    m_table->sortByColumn(m_table->firstColumn(), Qt::AscendingOrder);
}

void GameListController::tableViewSelectionDidChange()
{
    Q_EMIT selectionChanged();
    romStatus();
}

void GameListController::romStatus()
{
    const GameRecord* record = selectedRecord();
    const auto mark = record == nullptr ? statusMark(std::nullopt) : statusMark((*record)[Field::Status]);
    if (mark)
        Q_EMIT markChanged(QString::fromUtf8(mark->data(), static_cast<qsizetype>(mark->size())));
}

void GameListController::tableViewDoubleAction()
{
    const QString name = tableViewSelectionROM();
    if (name.isEmpty())
        m_desktop.beep();
    else
        Q_EMIT launchRequested(name);
}

void GameListController::openROMfile()
{
    OpenRequest request;
    request.extensions = {QStringLiteral("zip")};
    request.title = qtTrId("choose_archive");
    if (const auto path = m_desktop.openPanel(request))
        Q_EMIT launchRequested(*path);
}

void GameListController::gameShuffle()
{
    // The number is drawn before the list is looked at; of none it is 0.
    const int count = m_model->rowCount();
    const int row = count == 0 ? 0 : QRandomGenerator::global()->bounded(count);
    if (count == 0) {
        m_desktop.beep();
        return;
    }
    selectRow(row);
    m_desktop.playSound(QStringLiteral("slot_end"));
}

} // namespace tessera
