#include "launch/ui/soundpage.h"

#include "launch/ui/growingpopup.h"
#include "widgets/boundcontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace tessera {

SoundPage::SoundPage(DefaultsController& defaults, QWidget* parent)
    : OptionPage(QStringLiteral("av"), parent)
    , popup_Sound(makePopup("popup_Sound", soundOutputs))
    , moreSoundOutputs(new GrowingPopup(*popup_Sound, defaults, growingSoundOutputs))
    , soundvolumetextField(makeField("soundvolumetextField"))
    , soundsampleratePop(makePopup("soundsampleratePop", sampleRates))
    , soundlatencytextField(makeField("soundlatencytextField"))
    , checkboxSoundsamples(makeBox("checkboxSoundsamples", textKey("option_samples")))
{
    addRow(qtTrId("option_soundoutput"), popup_Sound);
    addRow(qtTrId("option_volume"), soundvolumetextField);
    addRow(qtTrId("option_samplerate"), soundsampleratePop);
    addRow(qtTrId("option_latency"), soundlatencytextField);
    addRow(QString(), checkboxSoundsamples);
    addStretch();

    bind(*popup_Sound, defaults, keys::Soundoutput);
    bind(*soundvolumetextField, defaults, keys::Soundvolume);
    bind(*soundsampleratePop, defaults, keys::Soundsmplerate);
    bind(*soundlatencytextField, defaults, keys::Audiolatency);
    bind(*checkboxSoundsamples, defaults, keys::Soundsmples);
}

} // namespace tessera
