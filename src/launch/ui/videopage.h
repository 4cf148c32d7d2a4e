#pragma once

#include "launch/ui/optionpage.h"

namespace tessera {

class GrowingPopup;

/// How the emulator draws: driver, window, size, timing and rotation.
class VideoPage : public OptionPage
{
    Q_OBJECT

public:
    explicit VideoPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* devicevideoPop;
    GrowingPopup* moreVideoDrivers;
    QComboBox* displaymodePop;
    QComboBox* scalingPop;
    QComboBox* displayframePop;
    QCheckBox* checkboxAspect;
    QCheckBox* checkboxStretch;
    QCheckBox* checkboxMaximize;
    QCheckBox* checkboxResolution;
    QCheckBox* checkboxWaitvsync;
    QCheckBox* checkboxMultithread;
    QComboBox* displayrotation;
    QComboBox* displayflipPop;
};

} // namespace tessera
