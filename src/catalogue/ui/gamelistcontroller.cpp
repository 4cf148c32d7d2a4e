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

#include <algorithm>

namespace tessera {

GameListController::GameListController(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                                       QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_colors(defaults.defaults())
    , m_model(new GameTableModel(catalogue, m_list, m_colors, defaults, this))
{
    setContent();
    connect(&catalogue, &Catalogue::replaced, this, &GameListController::setContent);
    connect(&catalogue, &Catalogue::recordChanged, &m_list,
            [this](std::uint32_t, Field field) { m_list.forgetOrder(field); });
    connect(&m_list, &ArrangedList::arranged, this, &GameListController::countChanged);
}

void GameListController::setTable(GameTableView* table)
{
    m_table = table;
    m_table->setModel(m_model);
    connect(table, &GameTableView::selectionDidChange, this,
            &GameListController::tableViewSelectionDidChange);
}

void GameListController::setRomFolders(std::shared_ptr<const RomFolders> folders)
{
    m_colors.setRomFolders(std::move(folders));
    if (m_table != nullptr)
        m_table->viewport()->update();
}

int GameListController::selectedCount() const
{
    return m_table == nullptr ? 0 : static_cast<int>(m_table->selectionModel()->selectedRows().size());
}

int GameListController::firstSelectedRow() const
{
    if (m_table == nullptr)
        return -1;
    // Ranges, not rows: with everything selected there are 45,000 rows but one range.
    int first = -1;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        if (range.isValid() && (first < 0 || range.top() < first))
            first = range.top();
    }
    return first;
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
    if (m_table == nullptr)
        return records;
    for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
        records.push_back(m_list.rows()[static_cast<std::size_t>(row.row())]);
    return records;
}

QString GameListController::selectedValue(Field field) const
{
    const GameRecord* record = selectedRecord();
    return record == nullptr ? QString() : shownValue(*record, field);
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
        m_desktop.log(value + QStringLiteral(" は見つかりませんでした"));
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
    m_table->selectRow(place);
    m_table->scrollTo(m_model->index(place, 0), QAbstractItemView::PositionAtCenter);
}

void GameListController::selectNeighbour(int step)
{
    const int row = firstSelectedRow();
    if (row >= 0)
        selectRow(std::max(0, row + step));
}

void GameListController::selectRecords(const std::vector<std::uint32_t>& records)
{
    QItemSelection selection;
    int first = -1;
    for (const std::uint32_t record : records) {
        const auto row = m_list.rowOf(record);
        if (!row)
            continue;
        const QModelIndex place = m_model->index(static_cast<int>(*row), 0);
        selection.select(place, place);
        first = first < 0 ? place.row() : std::min(first, place.row());
    }
    if (first < 0 || m_table == nullptr)
        return;
    selectRow(first);
    m_table->selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void GameListController::setContent()
{
    m_list.setContent(m_catalogue.records());
    Q_EMIT contentChanged();
}

void GameListController::main_tableViewSort()
{
    // Also arranges the list, by the first column, ascending.
    m_table->sortByColumn(0, Qt::AscendingOrder);
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
