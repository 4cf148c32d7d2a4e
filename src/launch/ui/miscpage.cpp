#include "launch/ui/miscpage.h"

#include "launch/ui/growingpopup.h"
#include "launch/ui/pathchooser.h"
#include "widgets/boundcontrols.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {
constexpr std::array recordKinds{textKey("record_wav"), textKey("record_mng"), textKey("record_avi")};
constexpr std::array replayKinds{textKey("replay_record"), textKey("replay_playback")};

// What stands behind the buttons stands in a column.
void alignBehind(const QButtonGroup& matrix)
{
    int width = 0;
    for (const QAbstractButton* button : matrix.buttons())
        width = std::max(width, button->sizeHint().width());
    for (QAbstractButton* button : matrix.buttons())
        button->setMinimumWidth(width);
}

}

MiscPage::MiscPage(DefaultsController& defaults, QWidget* parent)
    : OptionPage(QStringLiteral("misc"), parent)
    , biosPop(makePopup("biosPop", biosSets))
    , checkboxCheat(makeBox("checkboxCheat", textKey("option_cheat")))
    , checkboxGameinfo(makeBox("checkboxGameinfo", textKey("option_skipgameinfo")))
    , checkboxAutosave(makeBox("checkboxAutosave", textKey("option_autosave")))
    , errorlogPop(makePopup("errorlogPop", logOutputs))
    , checkMovierecord(makeBox("checkMovierecord", textKey("option_movie")))
    , recordMatrix(makeMatrix("recordMatrix", recordKinds))
    , wavnameTextField(makeField("wavnameTextField", textKey("record_wavname")))
    , mngnameTextField(makeField("mngnameTextField", textKey("record_mngname")))
    , avinameTextField(makeField("avinameTextField", textKey("record_aviname")))
    , checkBoxReplay(makeBox("checkBoxReplay", textKey("option_replay")))
    , replayMatrix(makeMatrix("replayMatrix", replayKinds))
    , recordfilePop(makePopup("recordfilePop", recordNames))
    , textfildPlayback(makeField("textfildPlayback", textKey("replay_playbackname")))
{
    recordfilePop->setAccessibleName(qtTrId("replay_recordname"));
    layOut();
    new GrowingPopup(*biosPop, defaults, growingBiosSets);
    bindControls(defaults);
}

void MiscPage::layOut()
{
    addRow(qtTrId("option_bios"), biosPop);
    addRow(qtTrId("option_startup"), checkboxCheat);
    addRow(QString(), checkboxGameinfo);
    addRow(QString(), checkboxAutosave);
    addRow(qtTrId("option_log"), errorlogPop);
    addLine();
    addRow(qtTrId("option_recording"), checkMovierecord);
    addRow(QString(), {recordMatrix->button(0), wavnameTextField});
    addRow(QString(), {recordMatrix->button(1), mngnameTextField});
    addRow(QString(), {recordMatrix->button(2), avinameTextField});
    addLine();
    addRow(qtTrId("option_inputs"), checkBoxReplay);
    addRow(QString(), {replayMatrix->button(0), recordfilePop});
    addRow(QString(), {replayMatrix->button(1), textfildPlayback});
    addStretch();
}

void MiscPage::bindControls(DefaultsController& defaults)
{
    bind(*biosPop, defaults, keys::Biostype);
    bind(*checkboxCheat, defaults, keys::Cheatsystem);
    bind(*checkboxGameinfo, defaults, keys::Gameinfo);
    bind(*checkboxAutosave, defaults, keys::Automaticsavestate);
    // The log pop-up is the one that has no key by its own name; Debugoptions is the index that no other
    // takes.
    bind(*errorlogPop, defaults, keys::Debugoptions);
    bind(*checkMovierecord, defaults, keys::Movierecord);
    bind(*recordMatrix, defaults, keys::Moviematrix);
    bind(*wavnameTextField, defaults, keys::Wavfilename);
    bind(*mngnameTextField, defaults, keys::Mngfilename);
    bind(*avinameTextField, defaults, keys::Avifilename);
    bind(*checkBoxReplay, defaults, keys::Replaymove);
    bind(*replayMatrix, defaults, keys::Replaymatrix);
    bind(*recordfilePop, defaults, keys::Recordfilepop);
    bind(*textfildPlayback, defaults, keys::Playbackfilename);
}

void MiscPage::complete(PathChooser& chooser)
{
    alignBehind(*recordMatrix);
    alignBehind(*replayMatrix);
    playbackButton = addChooseButton(textfildPlayback);
    connect(playbackButton, &QPushButton::clicked, &chooser, &PathChooser::selectPlaybackfile);
    int tag = 0;
    for (QLineEdit* field : {wavnameTextField, mngnameTextField, avinameTextField}) {
        ++tag;
        connect(addChooseButton(field), &QPushButton::clicked, &chooser,
                [&chooser, tag] { chooser.saveRecordfile(tag); });
    }
}

void MiscPage::switchRecordingOff()
{
    checkMovierecord->setChecked(false);
    checkBoxReplay->setChecked(false);
}

} // namespace tessera
