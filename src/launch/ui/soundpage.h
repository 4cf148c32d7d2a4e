#pragma once

#include "launch/ui/optionpage.h"

namespace tessera {

class GrowingPopup;

/// Sound output, loudness and quality.
class SoundPage : public OptionPage
{
    Q_OBJECT

public:
    explicit SoundPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* popup_Sound;
    GrowingPopup* moreSoundOutputs;
    QLineEdit* soundvolumetextField;
    QComboBox* soundsampleratePop;
    QLineEdit* soundlatencytextField;
    QCheckBox* checkboxSoundsamples;
};

} // namespace tessera
