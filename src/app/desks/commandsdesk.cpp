#include "app/desks/commandsdesk.h"

#include "app/desks/artworkdesk.h"
#include "app/windows/preferenceswindow.h"
#include "app/statusline.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "core/atomicfile.h"
#include "launch/profilecache.h"
#include "launch/ui/commandbar.h"
#include "launch/ui/commandcontroller.h"
#include "launch/ui/commandlinefoot.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/logwindow.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "platform/desktopentry.h"

#include <QFile>
#include <QFileInfo>
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

CommandsDesk::CommandsDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    connect(&m_parts.logWindow, &LogWindow::aboutToShow, this, &CommandsDesk::make);
    connect(&m_parts.preferences, &PreferencesWindow::aboutToShow, this, &CommandsDesk::addLine);
    connect(&m_parts.list, &GameListController::selectionChanged, this, &CommandsDesk::showLine);
    connect(&m_parts.profiles, &ProfileCache::answered, this, &CommandsDesk::showLine);
}

CommandsDesk::~CommandsDesk() = default;

void CommandsDesk::make()
{
    if (m_controller)
        return;
    m_bar = new CommandBar(m_parts.defaults);
    m_parts.logWindow.setCommands(m_bar);
    m_controller = std::make_unique<CommandController>(
        CommandParts{m_parts.desktop, m_parts.emulator, *m_bar, m_parts.task, m_parts.runs, m_parts.launches,
                     m_parts.paths, m_parts.list});
    connect(m_controller.get(), &CommandController::statusMessage, &m_parts.status, &StatusLine::say);
    for (QObject* stop : m_stops)
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

void CommandsDesk::verifySelected()
{
    controller().MiniAudit(audits.front().tag);
}

void CommandsDesk::addLine()
{
    if (!m_foot) {
        m_foot = new CommandLineFoot;
        m_parts.preferences.setFoot(m_foot);
        connect(&m_parts.defaults, &DefaultsController::changed, this, &CommandsDesk::showLine);
    }
    showLine();
}

void CommandsDesk::showLine()
{
    if (!m_foot || !m_foot->window()->isVisible())
        return;
    const ShownLine shown = m_parts.launches.shownLine(m_parts.list.tableViewSelectionROM());
    m_foot->showLine(shown.executable, shown.line);
}

void CommandsDesk::saveLauncher()
{
    const QString game = m_parts.list.tableViewSelectionROM();
    if (game.isEmpty())
        return m_parts.desktop.beep();
    const auto path = m_parts.desktop.savePanel(
        {qtTrId("launcher_save"), game + QStringLiteral(".desktop"), {QStringLiteral("desktop")}});
    if (!path)
        return;
    const ShownLine shown = m_parts.launches.shownLine(game);
    const QString title = m_parts.list.tableViewSelectionTitleE();
    const QByteArray entry
        = desktopEntry(title.isEmpty() ? game : title, QStringList{shown.executable} + shown.line.arguments,
                       QFileInfo(shown.executable).path(), m_parts.artwork.pictureFile());
    if (const auto written = writeAtomically(*path, entry); !written)
        return m_parts.status.say(written.error().text());
    // Desktops start what may be executed.
    QFile file(*path);
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
    m_parts.status.say(qtTrId("launcher_saved").replace(QStringLiteral("%1"), *path));
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

void CommandsDesk::leaveOpen(QObject& stop)
{
    if (m_controller)
        m_controller->leaveOpen(stop);
    else
        m_stops << &stop;
}

} // namespace tessera
