#include "launch/ui/pathchooser.h"

#include "core/failure.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QCoreApplication>
#include <QLineEdit>

namespace tessera {

PathChooser::PathChooser(Desktop& desktop, DefaultsController& defaults, const LaunchPages& pages,
                         QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_members{Member{keys::ExecutionPath, pages.general().exeTextField, true, false},
                Member{keys::RomsPath, pages.general().romsTextField, false, true}}
{
}

QString PathChooser::openPanelpath(const PathRequest& request)
{
    OpenRequest panel;
    panel.files = request.chooseFile;
    panel.folders = request.chooseDirect;
    panel.directory = QUrl(request.directory);
    return m_desktop.openPanel(panel).value_or(QString());
}

void PathChooser::select(Which which)
{
    const Member& member = m_members[which];
    const QString path = openPanelpath({member.chooseFile, member.chooseDirect, QString()});
    if (path.isEmpty())
        return;
    member.field->setText(path);
    m_defaults.setText(member.key, path);
    UserDefaults& defaults = m_defaults.defaults();
    if (!defaults.synchronize())
        Q_EMIT statusMessage(Failure{"failure_settings", {defaults.path()}}.text());
    Q_EMIT chosen(member.key.name, path);
}

void PathChooser::exeSelect()
{
    select(Executable);
}

void PathChooser::romfolSelect()
{
    select(RomFolder);
}

void PathChooser::selectExefile()
{
    exeSelect();
}

void PathChooser::selectROMfolder()
{
    romfolSelect();
}

void PathChooser::displayAlert1()
{
    m_desktop.beep();
    const Alert alert{qtTrId("alert_Message1"), qtTrId("alert_Info1"), {qtTrId("select"), qtTrId("cancel")}};
    if (m_desktop.runAlert(alert) == 0)
        exeSelect();
}

void PathChooser::saveOpenRecent(const QString& path)
{
    m_desktop.noteRecent(path);
}

} // namespace tessera
