#include "launch/ui/inputpage.h"

#include "widgets/boundcontrols.h"

#include <QCheckBox>

namespace tessera {

InputPage::InputPage(DefaultsController& defaults, QWidget* parent)
    : OptionPage(QStringLiteral("ioport"), parent)
    , checkboxMouse(makeBox("checkboxMouse", textKey("option_mouse")))
    , checkboxJoystick(makeBox("checkboxJoystick", textKey("option_joystick")))
    , checkboxLightgun(makeBox("checkboxLightgun", textKey("option_lightgun")))
    , checkboxOffscreen(makeBox("checkboxOffscreen", textKey("option_offscreen")))
    , checkboxSteadykey(makeBox("checkboxSteadykey", textKey("option_steadykey")))
{
    addRow(qtTrId("option_devices"), checkboxMouse);
    addRow(QString(), checkboxJoystick);
    addRow(QString(), checkboxLightgun);
    addRow(QString(), checkboxOffscreen);
    addLine();
    addRow(qtTrId("option_keyboard"), checkboxSteadykey);
    addStretch();

    bind(*checkboxMouse, defaults, keys::Mousecontrolle);
    bind(*checkboxJoystick, defaults, keys::Joystickcontrolle);
    bind(*checkboxLightgun, defaults, keys::Lightguncontrolle);
    bind(*checkboxOffscreen, defaults, keys::Offscreenreload);
    bind(*checkboxSteadykey, defaults, keys::Registersimultaneous);
}

} // namespace tessera
