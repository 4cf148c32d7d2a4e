#include "app/commands/opengame.h"

#include "app/desks/finding.h"
#include "app/commands/windowswitching.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "platform/desktop.h"

#include <algorithm>

namespace tessera {

GameOpening::GameOpening(Desktop& desktop, const Catalogue& catalogue, GameListController& list,
                         Finding& finding, WindowSwitching& switching, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_catalogue(catalogue)
    , m_list(list)
    , m_finding(finding)
    , m_switching(switching)
{
}

// Nothing that hides it stands in the way.
bool GameOpening::openGame(const QString& name)
{
    if (!m_list.selectGame(name)) {
        const auto records = m_catalogue.records();
        const std::string bytes = name.toStdString();
        if (std::ranges::none_of(records,
                                 [&](const GameRecord& record) { return record[Field::Name] == bytes; }))
            return false;
        m_finding.showAll();
        m_list.selectGame(name);
    }
    m_switching.windowMain();
    return true;
}

void GameOpening::openOrBeep(const QString& name)
{
    if (!openGame(name))
        m_desktop.beep();
}

} // namespace tessera
