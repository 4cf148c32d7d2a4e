#include "launch/ui/effectspage.h"

#include "launch/ui/growingpopup.h"
#include "launch/ui/pathchooser.h"
#include "widgets/boundcontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

EffectsPage::EffectsPage(DefaultsController& defaults, QWidget* parent)
    : OptionPage(QStringLiteral("effect"), parent)
    , checkboxBilinear(makeBox("checkboxBilinear", textKey("option_bilinear")))
    , checkboxEffect(makeBox("checkboxEffect", textKey("option_effect")))
    , effectTextField(makeField("effectTextField", textKey("option_effectname")))
    , scalemodePop(makePopup("scalemodePop", scaleModes))
    , moreScaleModes(new GrowingPopup(*scalemodePop, defaults, growingScaleModes))
    , checkboxArtwork(makeBox("checkboxArtwork", textKey("option_artworkcrop")))
    , checkboxBackdrops(makeBox("checkboxBackdrops", textKey("option_backdrops")))
    , checkboxOverlays(makeBox("checkboxOverlays", textKey("option_overlays")))
    , checkboxBezels(makeBox("checkboxBezels", textKey("option_bezels")))
    , checkboxAntialias(makeBox("checkboxAntialias", textKey("option_antialias")))
    , beemTextField(makeField("beemTextField"))
    , flickerTextField(makeField("flickerTextField"))
{
    addRow(qtTrId("option_filter"), checkboxBilinear);
    addRow(QString(), {checkboxEffect, effectTextField});
    addRow(qtTrId("option_scalemode"), scalemodePop);
    addLine();
    addRow(qtTrId("option_artwork"), checkboxArtwork);
    addRow(QString(), checkboxBackdrops);
    addRow(QString(), checkboxOverlays);
    addRow(QString(), checkboxBezels);
    addLine();
    addRow(qtTrId("option_vector"), checkboxAntialias);
    addRow(qtTrId("option_beam"), beemTextField);
    addRow(qtTrId("option_flicker"), flickerTextField);
    addStretch();

    bind(*checkboxBilinear, defaults, keys::Bilinear);
    bind(*checkboxEffect, defaults, keys::Effect);
    bind(*effectTextField, defaults, keys::Effectname);
    bind(*scalemodePop, defaults, keys::ScalemodePop);
    bind(*checkboxArtwork, defaults, keys::Artwork);
    bind(*checkboxBackdrops, defaults, keys::Backdrops);
    bind(*checkboxOverlays, defaults, keys::Overlays);
    bind(*checkboxBezels, defaults, keys::Bezels);
    bind(*checkboxAntialias, defaults, keys::Antialiased);
    bind(*beemTextField, defaults, keys::Displaybeam);
    bind(*flickerTextField, defaults, keys::Displayflicker);
}

void EffectsPage::complete(PathChooser& chooser)
{
    effectButton = addChooseButton(effectTextField);
    connect(effectButton, &QPushButton::clicked, &chooser, &PathChooser::selectEffectfile);
}

} // namespace tessera
