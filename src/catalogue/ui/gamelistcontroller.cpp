#include "catalogue/ui/gamelistcontroller.h"

#include "catalogue/lookup.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <algorithm>

namespace tessera {

GameListController::GameListController(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                                       GameTableView* table, QObject* parent)
    : ListController(desktop, defaults.stored(), parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_model(new GameTableModel(catalogue, list(), colors(), defaults, this))
{
    setContent(ContentChange::Replaced);
    connect(&catalogue, &Catalogue::replaced, this, [this] { setContent(ContentChange::Replaced); });
    connect(&catalogue, &Catalogue::removed, this, &GameListController::takeOut);
    connect(&catalogue, &Catalogue::putBackAt, this, &GameListController::putBack);
    connect(&catalogue, &Catalogue::recordChanged, &list(),
            [this](std::uint32_t, Field field) { list().forgetOrder(field); });
    connect(&catalogue, &Catalogue::recordChanged, this, [this](std::uint32_t record, Field field) {
        if (field == Field::Status && firstSelected() == record)
            romStatus();
    });
    if (table != nullptr)
        setTable(table);
}

void GameListController::setTable(GameTableView* table)
{
    showIn(table, m_model);
    connect(table, &GameTableView::doubleAction, this, &GameListController::tableViewDoubleAction);
}

RecordDictionary GameListController::objectDictionary() const
{
    return tessera::objectDictionary(*selectedRecord());
}

QList<RecordDictionary> GameListController::search_arrangedObjects(Field key,
                                                                   const QStringList& searchstr) const
{
    const LookupResult result = lookUp(list(), key, searchstr);
    for (const QString& value : result.notFound)
        m_desktop.log(notFoundLine(value));
    return result.found;
}

bool GameListController::selectGame(const QString& name)
{
    const auto row = list().find(Field::Name, name.toStdString());
    if (row)
        selectRow(static_cast<int>(*row));
    return row.has_value();
}

void GameListController::selectNeighbour(int step)
{
    const int row = firstRow();
    if (row >= 0)
        selectRow(std::max(0, row + step));
}

// The row that took the place of the first one is selected, so that several can be removed in a row.
void GameListController::takeOut(const std::vector<std::uint32_t>& records)
{
    const int row = firstRow();
    setContent(ContentChange::Removed, records);
    selectRow(row);
}

void GameListController::putBack(const std::vector<std::uint32_t>& records)
{
    setContent(ContentChange::PutBack, records);
    selectRecords(records);
}

void GameListController::setContent(ContentChange change, const std::vector<std::uint32_t>& records)
{
    list().setContent(m_catalogue.records(), m_catalogue.takeByName());
    Q_EMIT contentChanged(change, records);
}

void GameListController::main_tableViewSort()
{
    // Registered for the model's drag type.
    table()->setDragDropMode(QAbstractItemView::DropOnly);
    // Also arranges the list, by the first column, ascending.
    table()->sortByColumn(table()->firstColumn(), Qt::AscendingOrder);
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

} // namespace tessera
