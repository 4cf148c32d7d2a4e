#include "app/commands/settingsreset.h"

#include "app/windows/mainwindow.h"
#include "artwork/ui/aspectchoice.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/logview.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

namespace tessera {

SettingsReset::SettingsReset(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
}

void SettingsReset::resetSettings()
{
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("reset_Message");
    alert.informative = qtTrId("reset_Info");
    alert.buttons = {qtTrId("reset_reset"), qtTrId("reset_cancel")};
    if (m_parts.desktop.runAlert(alert) == 0)
        DefaultAction();
}

void SettingsReset::DefaultAction()
{
    m_parts.window.setBusy(true);
    m_parts.defaults.revertToInitialValues();
    Q_EMIT defaultAction();
    m_parts.launches.LaunchemuPopAction();
    m_parts.aspect.snapviewAction();
    m_parts.log.replace(qtTrId("preferences_ini"));
    m_parts.window.setBusy(false);
    m_parts.desktop.playSound(QStringLiteral("Tink"));
}

} // namespace tessera
