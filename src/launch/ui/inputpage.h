#pragma once

#include "launch/ui/optionpage.h"

namespace tessera {

/// Which input devices the emulator listens to.
class InputPage : public OptionPage
{
    Q_OBJECT

public:
    explicit InputPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QCheckBox* checkboxMouse;
    QCheckBox* checkboxJoystick;
    QCheckBox* checkboxLightgun;
    QCheckBox* checkboxOffscreen;
    QCheckBox* checkboxSteadykey;
};

} // namespace tessera
