#include "app/desks/maindesk.h"

#include "app/desks/cataloguerebuild.h"
#include "app/windows/emptystate.h"
#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/searchfield.h"
#include "launch/emulatorchoice.h"
#include "launch/ui/launchcontroller.h"
#include "platform/defaultscontroller.h"

#include <QPushButton>
#include <QToolButton>

namespace tessera {

MainDesk::MainDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    MainWindow& window = m_parts.window;
    GameListController& list = m_parts.list;
    connect(&list, &GameListController::selectionChanged, this, &MainDesk::showSelection);
    connect(&list, &GameListController::markChanged, window.factsPanel, &FactsPanel::showMark);
    connect(&m_parts.catalogue, &Catalogue::recordChanged, this, &MainDesk::showSelection);
    connect(&m_parts.finding.finder(), &GameFinder::changed, this, &MainDesk::showCount);
    connect(&m_parts.finding.finder(), &GameFinder::havesChanged, this, &MainDesk::showSelection);
    connect(&m_parts.launches, &LaunchController::runningChanged, this, &MainDesk::showRunning);
    connect(&m_parts.emulator, &EmulatorChoice::emulatorFound, this, &MainDesk::showEmulator);
    connect(&m_parts.defaults, &DefaultsController::changed, this, &MainDesk::settingChanged);
    connect(&m_parts.rebuild, &CatalogueRebuild::runningChanged, &window, &MainWindow::setRebuilding);
    connect(&m_parts.rebuild, &CatalogueRebuild::runningChanged, this, &MainDesk::offerRebuild);
    connect(&m_parts.rebuild, &CatalogueRebuild::runningChanged, list.model(), &GameTableModel::setLocked);

    connect(window.playButton, &QPushButton::clicked, &list, &GameListController::tableViewDoubleAction);
    connect(window.randomButton, &QToolButton::clicked, &list, &GameListController::gameShuffle);
    connect(window.emptyState, &EmptyState::acted, this, &MainDesk::actOnEmptyList);
}

void MainDesk::showSelection()
{
    FactsPanel& facts = *m_parts.window.factsPanel;
    const GameRecord* record = m_parts.list.selectedRecord();
    facts.showRecord(record, m_parts.list.selectedCount());
    const auto first = m_parts.list.firstSelected();
    facts.showHave(first ? m_parts.finding.finder().haveOf(*first) : std::nullopt, record);
}

void MainDesk::showCount()
{
    const std::size_t shown = m_parts.list.list().size();
    m_parts.window.showCount(shown, m_parts.catalogue.records().size(), m_parts.finding.finder().reasons(),
                             shown == 0 && romsMissing());
}

void MainDesk::showRunning(bool running)
{
    m_parts.window.setRunning(running, running ? m_parts.launches.runningText() : QString());
}

// What was asked for is in no folder, as nobody has chosen one.
bool MainDesk::romsMissing() const
{
    return m_parts.finding.finder().chip() == Chip::HaveRom && m_parts.window.searchField->text().isEmpty()
        && m_parts.defaults.text(keys::RomsPath).isEmpty();
}

// An empty catalogue is built, an empty list shows everything again.
void MainDesk::actOnEmptyList()
{
    if (m_parts.catalogue.records().empty())
        Q_EMIT catalogueWanted();
    else if (romsMissing())
        Q_EMIT romFolderWanted();
    else
        m_parts.finding.showAll();
}

void MainDesk::settingChanged(const QString& name)
{
    if (name.isEmpty() || name == keys::ExecutionPath.name)
        showEmulator();
    if (name == keys::BuiltFrom.name)
        offerRebuild();
}

void MainDesk::showEmulator()
{
    const QString emulator = m_parts.emulator.emulator();
    m_parts.window.showEmulator(emulator.isEmpty() ? qtTrId("main_no_emulator") : emulator);
}

void MainDesk::offerRebuild()
{
    m_parts.window.offerRebuild(!m_parts.rebuild.isRunning() && m_parts.rebuild.isOutdated());
}

} // namespace tessera
