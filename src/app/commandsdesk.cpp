#include "app/commandsdesk.h"

#include "core/failure.h"
#include "launch/ui/commandbar.h"
#include "launch/ui/commandcontroller.h"
#include "launch/ui/logwindow.h"

#include <QMenu>

#include <utility>

namespace tessera {

namespace {

struct Audit {
    int tag; ///< the command's position
    const char* text;
};

constexpr std::array audits{
    Audit{17, textKey("audit_roms")},
    Audit{18, textKey("audit_samples")},
    Audit{14, textKey("audit_listroms")},
    Audit{20, textKey("audit_romident")},
};

} // namespace

CommandsDesk::CommandsDesk(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
    connect(&m_parts.logWindow, &LogWindow::aboutToShow, this, &CommandsDesk::make);
}

CommandsDesk::~CommandsDesk() = default;

void CommandsDesk::make()
{
    if (m_controller)
        return;
    m_bar = new CommandBar(m_parts.defaults);
    m_parts.logWindow.setCommands(m_bar);
    m_controller = std::make_unique<CommandController>(CommandParts{m_parts.desktop, *m_bar, m_parts.task,
                                                                    m_parts.runs, m_parts.launches,
                                                                    m_parts.paths, m_parts.selectedGame});
    for (QObject* stop : m_parts.stops)
        m_controller->leaveOpen(*stop);
}

CommandBar& CommandsDesk::bar()
{
    make();
    return *m_bar;
}

CommandController& CommandsDesk::controller()
{
    make();
    return *m_controller;
}

void CommandsDesk::addAuditsTo(QMenu& menu)
{
    const auto once = static_cast<Qt::ConnectionType>(Qt::AutoConnection | Qt::SingleShotConnection);
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { addAudits(menu); }, once);
}

void CommandsDesk::addAudits(QMenu& menu)
{
    auto* submenu = new QMenu(qtTrId("menu_audit"), &menu);
    submenu->setObjectName(QStringLiteral("menu_audit"));
    for (const Audit& audit : audits) {
        QAction* action = submenu->addAction(qtTrId(audit.text));
        action->setData(audit.tag);
        connect(action, &QAction::triggered, this, [this, tag = audit.tag] { controller().MiniAudit(tag); });
    }
    menu.addSeparator();
    menu.addMenu(submenu);
}

} // namespace tessera
