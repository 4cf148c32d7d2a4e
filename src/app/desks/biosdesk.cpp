#include "app/desks/biosdesk.h"

#include "app/windows.h"
#include "bios/ui/bioslist.h"
#include "bios/ui/biospanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "launch/emulatorchoice.h"

namespace tessera {

BiosDesk::BiosDesk(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
}

BiosDesk::~BiosDesk() = default;

BiosPanel& BiosDesk::panel()
{
    if (!m_panel) {
        m_panel = std::make_unique<BiosPanel>();
        m_parts.windows.places().keep(*m_panel, keys::BiosPanelGeometry);
        m_parts.windows.watch(*m_panel, KeyWindow::Kind::Bios);
        m_parts.windows.carryMenuKeys(*m_panel);
        m_list = std::make_unique<Bioslist>(BiosParts{m_parts.desktop, m_parts.defaults, *m_panel, m_undo,
                                                      m_parts.ownFile, m_parts.emulator, m_parts.list});
        m_list->awakeFromNib();
    }
    return *m_panel;
}

Bioslist& BiosDesk::list()
{
    panel();
    return *m_list;
}

void BiosDesk::ViewBiosList()
{
    list().ViewBiosList();
}

} // namespace tessera
