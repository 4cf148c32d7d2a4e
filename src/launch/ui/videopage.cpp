#include "launch/ui/videopage.h"

#include "launch/ui/growingpopup.h"
#include "widgets/boundcontrols.h"

#include <QCheckBox>
#include <QComboBox>

namespace tessera {

VideoPage::VideoPage(DefaultsController& defaults, QWidget* parent)
    : OptionPage(QStringLiteral("video"), parent)
    , devicevideoPop(makePopup("devicevideoPop", videoDrivers))
    , moreVideoDrivers(new GrowingPopup(*devicevideoPop, defaults, growingVideoDrivers))
    , displaymodePop(makePopup("displaymodePop", displayModes))
    , scalingPop(makePopup("scalingPop", prescaleFactors))
    , displayframePop(makePopup("displayframePop", frameSkips))
    , checkboxAspect(makeBox("checkboxAspect", textKey("option_aspect")))
    , checkboxStretch(makeBox("checkboxStretch", textKey("option_stretch")))
    , checkboxMaximize(makeBox("checkboxMaximize", textKey("option_maximize")))
    , checkboxResolution(makeBox("checkboxResolution", textKey("option_resolution")))
    , checkboxWaitvsync(makeBox("checkboxWaitvsync", textKey("option_waitvsync")))
    , checkboxMultithread(makeBox("checkboxMultithread", textKey("option_multithread")))
    , displayrotation(makePopup("displayrotation", rotations))
    , displayflipPop(makePopup("displayflipPop", flips))
{
    addRow(qtTrId("option_videodriver"), devicevideoPop);
    addRow(qtTrId("option_display"), displaymodePop);
    addRow(qtTrId("option_prescale"), scalingPop);
    addRow(qtTrId("option_frameskip"), displayframePop);
    addLine();
    addRow(qtTrId("option_picture"), checkboxAspect);
    addRow(QString(), checkboxStretch);
    addRow(QString(), checkboxMaximize);
    addRow(QString(), checkboxResolution);
    addRow(qtTrId("option_timing"), checkboxWaitvsync);
    addRow(QString(), checkboxMultithread);
    addLine();
    addRow(qtTrId("option_rotation"), displayrotation);
    addRow(qtTrId("option_flip"), displayflipPop);
    addStretch();

    bind(*devicevideoPop, defaults, keys::Videodriver);
    bind(*displaymodePop, defaults, keys::Displaymode);
    bind(*scalingPop, defaults, keys::Scaling);
    bind(*displayframePop, defaults, keys::Displayframeskip);
    bind(*checkboxAspect, defaults, keys::Keepaspect);
    bind(*checkboxStretch, defaults, keys::Unevenstretch);
    bind(*checkboxMaximize, defaults, keys::Maximize);
    bind(*checkboxResolution, defaults, keys::Resolutionswitc);
    bind(*checkboxWaitvsync, defaults, keys::Waitvsync);
    bind(*checkboxMultithread, defaults, keys::Multithreading);
    bind(*displayrotation, defaults, keys::Displayrotation);
    bind(*displayflipPop, defaults, keys::Displayflip);
}

} // namespace tessera
