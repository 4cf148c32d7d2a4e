#include "app/utilitydesk.h"

#include "app/cataloguerebuild.h"
#include "app/changesdesk.h"
#include "app/commandsdesk.h"
#include "app/finding.h"
#include "app/opengame.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/cataloguesaving.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "favourites/ui/ucappcontroller.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchcontroller.h"
#include "platform/defaultscontroller.h"
#include "tools/ui/favouritestool.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QPushButton>

#include <algorithm>

namespace tessera {

UtilityDesk::UtilityDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
}

UtilityDesk::~UtilityDesk() = default;

UtilityObject& UtilityDesk::utility()
{
    if (m_utility)
        return *m_utility;
    m_utility = std::make_unique<UtilityObject>(m_parts.desktop, m_parts.defaults, hooks());
    UtilityWindow& window = m_utility->utilityWindow();
    m_scripts = std::make_unique<ScriptTool>(*window.scriptPage, m_utility->workbench(), scriptSources());
    connect(window.scriptPage->button_launcher, &QPushButton::clicked, &m_parts.commands,
            &CommandsDesk::saveLauncher);
    FavouritesTool* favourites = &m_utility->favourites();
    connect(&m_parts.finding, &Finding::changed, favourites, &FavouritesTool::showHidden);
    connect(&m_parts.list, &GameListController::countChanged, favourites, &FavouritesTool::showHidden);
    connect(m_utility.get(), &UtilityObject::statusMessage, this, &UtilityDesk::statusMessage);
    connect(m_utility.get(), &UtilityObject::statusWithdrawn, this, &UtilityDesk::statusWithdrawn);
    m_parts.windows.places().keep(window, keys::UtilityWindowGeometry);
    return *m_utility;
}

UtilityHooks UtilityDesk::hooks()
{
    UtilityHooks hooks;
    hooks.search_arrangedObjects = [this](const QStringList& names) {
        return m_parts.list.search_arrangedObjects(Field::Name, names);
    };
    hooks.hiddenRecords = [this] {
        const std::size_t all = m_parts.catalogue.records().size();
        return all - std::min(all, m_parts.list.list().size());
    };
    hooks.showAllRecords = [this] { m_parts.finding.showAll(); };
    hooks.openGame = [this](const QString& name) { return m_parts.opening.openGame(name); };
    hooks.emulator = [this] { return m_parts.general.emulatorNow(); };
    hooks.romFolder = [this] { return m_parts.defaults.text(keys::RomsPath); };
    hooks.useAsCatalogue = [this](const QString& path) {
        m_parts.saving.commitEditing();
        return m_parts.rebuild.useFile(path);
    };
    hooks.showChanges = [this] { m_parts.changes.showChanges(); };
    hooks.pathOfDataFile = [this] { return m_parts.favorites.pathOfDataFile(); };
    hooks.dir_make = [this](const QString& path) { m_parts.favorites.dir_make(path); };
    hooks.set_favorites = [this] { m_parts.favorites.set_favorites(); };
    hooks.keepUnsavedFavorites = [this] { return m_parts.favorites.keepUnsaved(); };
    return hooks;
}

ScriptSources UtilityDesk::scriptSources()
{
    ScriptSources sources;
    sources.tableViewSelectionROM = [this] { return m_parts.list.tableViewSelectionROM(); };
    sources.tableViewSelectionTitleE = [this] { return m_parts.list.tableViewSelectionTitleE(); };
    sources.tableViewSelectionTitleJ = [this] { return m_parts.list.tableViewSelectionTitleJ(); };
    sources.emulatorPath = [this](ScriptEmulator emulator) {
        if (emulator == ScriptEmulator::CommandLine)
            return m_parts.launches.executable();
        return m_parts.defaults.text(emulator == ScriptEmulator::MameOsx ? keys::MameosxPath
                                                                         : keys::ApplicationPath);
    };
    sources.argumentsArray = [this] { return m_parts.launches.shellOptions(); };
    sources.argumentsArray2 = [this] { return m_parts.launches.osxOptions(); };
    return sources;
}

bool UtilityDesk::mayBeAbandoned()
{
    return !m_utility || m_utility->mayBeAbandoned();
}

void UtilityDesk::utilityOrderFront()
{
    utility().utilityOrderFront();
}

} // namespace tessera
