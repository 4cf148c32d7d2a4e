#include "app/desks/utilitydesk.h"

#include "app/desks/cataloguerebuild.h"
#include "app/desks/changesdesk.h"
#include "app/desks/commandsdesk.h"
#include "app/desks/finding.h"
#include "app/commands/opengame.h"
#include "app/statusline.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/cataloguesaving.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "favourites/ui/ucappcontroller.h"
#include "launch/emulatorchoice.h"
#include "launch/ui/launchcontroller.h"
#include "platform/defaultscontroller.h"
#include "tools/ui/favouritestool.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"
#include "tools/ui/workbench.h"

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
    m_utility = std::make_unique<UtilityObject>(m_parts.desktop, m_parts.defaults, *this);
    UtilityWindow& window = m_utility->utilityWindow();
    connect(window.scriptPage->button_launcher, &QPushButton::clicked, &m_parts.commands,
            &CommandsDesk::saveLauncher);
    FavouritesTool* favourites = &m_utility->favourites();
    connect(&m_parts.finding.finder(), &GameFinder::changed, favourites, &FavouritesTool::showHidden);
    connect(m_utility.get(), &UtilityObject::statusMessage, &m_parts.status, &StatusLine::say);
    connect(m_utility.get(), &UtilityObject::statusWithdrawn, &m_parts.status, &StatusLine::takeBack);
    m_parts.windows.places().keep(window, keys::UtilityWindowGeometry);
    return *m_utility;
}

bool UtilityDesk::mayBeAbandoned()
{
    return !m_utility || m_utility->workbench().mayBeAbandoned();
}

void UtilityDesk::utilityOrderFront()
{
    utility().utilityOrderFront();
}

SelectedGame UtilityDesk::selectedGame() const
{
    return m_parts.list.selected();
}

QList<RecordDictionary> UtilityDesk::search_arrangedObjects(const QStringList& names)
{
    return m_parts.list.search_arrangedObjects(Field::Name, names);
}

std::size_t UtilityDesk::hiddenRecords() const
{
    const std::size_t all = m_parts.catalogue.records().size();
    return all - std::min(all, m_parts.list.list().size());
}

void UtilityDesk::showAllRecords()
{
    m_parts.finding.showAll();
}

bool UtilityDesk::openGame(const QString& name)
{
    return m_parts.opening.openGame(name);
}

QString UtilityDesk::emulator()
{
    return m_parts.emulator.emulatorNow();
}

QString UtilityDesk::emulatorPath(ScriptEmulator emulator) const
{
    if (emulator == ScriptEmulator::CommandLine)
        return m_parts.emulator.emulator();
    return m_parts.defaults.text(emulator == ScriptEmulator::MameOsx ? keys::MameosxPath
                                                                     : keys::ApplicationPath);
}

QStringList UtilityDesk::argumentsArray()
{
    return m_parts.launches.shellOptions();
}

QStringList UtilityDesk::argumentsArray2()
{
    return m_parts.launches.osxOptions();
}

QString UtilityDesk::romFolder() const
{
    return m_parts.defaults.text(keys::RomsPath);
}

std::optional<QString> UtilityDesk::useAsCatalogue(const QString& path)
{
    m_parts.saving.commitEditing();
    return m_parts.rebuild.useFile(path);
}

void UtilityDesk::showChanges()
{
    m_parts.changes.showChanges();
}

QString UtilityDesk::pathOfDataFile() const
{
    return m_parts.favorites.pathOfDataFile();
}

void UtilityDesk::dir_make(const QString& path)
{
    m_parts.favorites.dir_make(path);
}

void UtilityDesk::set_favorites()
{
    m_parts.favorites.set_favorites();
}

std::expected<QString, Failure> UtilityDesk::keepUnsavedFavourites()
{
    return m_parts.favorites.keepUnsaved();
}

} // namespace tessera
