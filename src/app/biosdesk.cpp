#include "app/biosdesk.h"

#include "bios/ui/bioslist.h"
#include "bios/ui/biospanel.h"

namespace tessera {

BiosDesk::BiosDesk(std::function<BiosParts(BiosPanel& panel)> parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
}

BiosDesk::~BiosDesk() = default;

BiosPanel& BiosDesk::panel()
{
    if (!m_panel) {
        m_panel = std::make_unique<BiosPanel>();
        m_list = std::make_unique<Bioslist>(m_parts(*m_panel));
        m_list->awakeFromNib();
    }
    return *m_panel;
}

Bioslist& BiosDesk::list()
{
    panel();
    return *m_list;
}

} // namespace tessera
