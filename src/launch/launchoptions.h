#pragma once

#include "catalogue/gameselection.h"

namespace tessera {

/// A pop-up whose title is sent. Without a selection the position is -1 and the title empty.
struct PopupState {
    int index = -1;
    QString title;

    bool operator==(const PopupState&) const = default;
};

/// What the argument builders read, each under its control's name: a check box is 1, 0 or -1 (mixed), a
/// pop-up or a group of radio buttons a position (-1 for none), a field its text.
struct LaunchOptions {
    PopupState devicevideoPop;
    int displaymodePop = -1;
    PopupState scalingPop;
    int checkboxMaximize = 0;
    int checkboxAspect = 0;
    int checkboxStretch = 0;
    int checkboxResolution = 0;
    int checkboxWaitvsync = 0;
    int checkboxMultithread = 0;
    int displayframePop = -1;
    int displayrotation = -1;
    int displayflipPop = -1;

    int checkboxBilinear = 0;
    int checkboxEffect = 0;
    QString effectTextField;
    PopupState scalemodePop;
    int checkboxArtwork = 0;
    int checkboxBackdrops = 0;
    int checkboxOverlays = 0;
    int checkboxBezels = 0;
    int checkboxAntialias = 0;
    QString beemTextField;
    QString flickerTextField;

    PopupState popup_Sound;
    QString soundvolumetextField;
    PopupState soundsampleratePop;
    QString soundlatencytextField;
    int checkboxSoundsamples = 0;

    int checkMovierecord = 0;
    int recordMatrix = -1;
    QString wavnameTextField;
    QString mngnameTextField;
    QString avinameTextField;

    PopupState biosPop;
    int checkBoxReplay = 0;
    int replayMatrix = -1;
    int recordfilePop = -1;
    QString textfildPlayback;

    int checkboxCheat = 0;
    int checkboxGameinfo = 0;
    int checkboxAutosave = 0;
    int errorlogPop = -1;

    int checkboxMouse = 0;
    int checkboxJoystick = 0;
    int checkboxLightgun = 0;
    int checkboxOffscreen = 0;
    int checkboxSteadykey = 0;

    int checkboxRompath = 0;
    QString romsTextField;
    bool romsFolderFound = false;

    SelectedGame selected;

    bool operator==(const LaunchOptions&) const = default;
};

} // namespace tessera
