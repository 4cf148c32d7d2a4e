#pragma once

#include "launch/ui/optionpage.h"

namespace tessera {

/// BIOS, cheats, the emulator's log, and the recording and replaying of games.
class MiscPage : public OptionPage
{
    Q_OBJECT

public:
    explicit MiscPage(DefaultsController& defaults, QWidget* parent = nullptr);

    /// Recording and replaying never stay switched on from one run of the program to the next.
    void switchRecordingOff();

    QComboBox* biosPop;
    QCheckBox* checkboxCheat;
    QCheckBox* checkboxGameinfo;
    QCheckBox* checkboxAutosave;
    QComboBox* errorlogPop;
    QCheckBox* checkMovierecord;
    QButtonGroup* recordMatrix;
    QLineEdit* wavnameTextField;
    QLineEdit* mngnameTextField;
    QLineEdit* avinameTextField;
    QCheckBox* checkBoxReplay;
    QButtonGroup* replayMatrix;
    QComboBox* recordfilePop;
    QLineEdit* textfildPlayback;

    QPushButton* playbackButton = nullptr; ///< once the page was shown

protected:
    void complete(PathChooser& chooser) override;

private:
    void layOut();
    void bindControls(DefaultsController& defaults);
};

} // namespace tessera
