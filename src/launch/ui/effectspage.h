#pragma once

#include "launch/ui/optionpage.h"

namespace tessera {

class GrowingPopup;

/// Filters, artwork around the picture, and vector screens.
class EffectsPage : public OptionPage
{
    Q_OBJECT

public:
    explicit EffectsPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QCheckBox* checkboxBilinear;
    QCheckBox* checkboxEffect;
    QLineEdit* effectTextField;
    QComboBox* scalemodePop;
    GrowingPopup* moreScaleModes;
    QCheckBox* checkboxArtwork;
    QCheckBox* checkboxBackdrops;
    QCheckBox* checkboxOverlays;
    QCheckBox* checkboxBezels;
    QCheckBox* checkboxAntialias;
    QLineEdit* beemTextField;
    QLineEdit* flickerTextField;
    QPushButton* effectButton = nullptr; ///< once the page was shown

protected:
    void complete(PathChooser& chooser) override;
};

} // namespace tessera
