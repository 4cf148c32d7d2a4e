#include "launch/ui/launchpages.h"

#include "launch/storedoptions.h"
#include "launch/ui/effectspage.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/inputpage.h"
#include "launch/ui/miscpage.h"
#include "launch/ui/soundpage.h"
#include "launch/ui/videopage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace tessera {

namespace {

int state(const QCheckBox* box)
{
    const Qt::CheckState shown = box->checkState();
    return shown == Qt::Checked ? 1 : shown == Qt::Unchecked ? 0 : -1;
}

PopupState titled(const QComboBox* popup)
{
    return {popup->currentIndex(), popup->currentText()};
}

void readVideo(LaunchOptions& options, const VideoPage& page)
{
    options.devicevideoPop = titled(page.devicevideoPop);
    options.displaymodePop = page.displaymodePop->currentIndex();
    options.scalingPop = titled(page.scalingPop);
    options.checkboxMaximize = state(page.checkboxMaximize);
    options.checkboxAspect = state(page.checkboxAspect);
    options.checkboxStretch = state(page.checkboxStretch);
    options.checkboxResolution = state(page.checkboxResolution);
    options.checkboxWaitvsync = state(page.checkboxWaitvsync);
    options.checkboxMultithread = state(page.checkboxMultithread);
    options.displayframePop = page.displayframePop->currentIndex();
    options.displayrotation = page.displayrotation->currentIndex();
    options.displayflipPop = page.displayflipPop->currentIndex();
}

void readEffects(LaunchOptions& options, const EffectsPage& page)
{
    options.checkboxBilinear = state(page.checkboxBilinear);
    options.checkboxEffect = state(page.checkboxEffect);
    options.effectTextField = page.effectTextField->text();
    options.scalemodePop = titled(page.scalemodePop);
    options.checkboxArtwork = state(page.checkboxArtwork);
    options.checkboxBackdrops = state(page.checkboxBackdrops);
    options.checkboxOverlays = state(page.checkboxOverlays);
    options.checkboxBezels = state(page.checkboxBezels);
    options.checkboxAntialias = state(page.checkboxAntialias);
    options.beemTextField = page.beemTextField->text();
    options.flickerTextField = page.flickerTextField->text();
}

void readSound(LaunchOptions& options, const SoundPage& page)
{
    options.popup_Sound = titled(page.popup_Sound);
    options.soundvolumetextField = page.soundvolumetextField->text();
    options.soundsampleratePop = titled(page.soundsampleratePop);
    options.soundlatencytextField = page.soundlatencytextField->text();
    options.checkboxSoundsamples = state(page.checkboxSoundsamples);
}

void readMisc(LaunchOptions& options, const MiscPage& page)
{
    options.checkMovierecord = state(page.checkMovierecord);
    options.recordMatrix = page.recordMatrix->checkedId();
    options.wavnameTextField = page.wavnameTextField->text();
    options.mngnameTextField = page.mngnameTextField->text();
    options.avinameTextField = page.avinameTextField->text();
    // Position 0 has a label only; the builders send words of their own for it.
    options.biosPop = titled(page.biosPop);
    if (options.biosPop.index == 0)
        options.biosPop.title.clear();
    options.checkBoxReplay = state(page.checkBoxReplay);
    options.replayMatrix = page.replayMatrix->checkedId();
    options.recordfilePop = page.recordfilePop->currentIndex();
    options.textfildPlayback = page.textfildPlayback->text();
    options.checkboxCheat = state(page.checkboxCheat);
    options.checkboxGameinfo = state(page.checkboxGameinfo);
    options.checkboxAutosave = state(page.checkboxAutosave);
    options.errorlogPop = page.errorlogPop->currentIndex();
}

void readInput(LaunchOptions& options, const InputPage& page)
{
    options.checkboxMouse = state(page.checkboxMouse);
    options.checkboxJoystick = state(page.checkboxJoystick);
    options.checkboxLightgun = state(page.checkboxLightgun);
    options.checkboxOffscreen = state(page.checkboxOffscreen);
    options.checkboxSteadykey = state(page.checkboxSteadykey);
}

void readGeneral(LaunchOptions& options, const GeneralPage& page)
{
    options.checkboxRompath = state(page.checkboxRompath);
    options.romsTextField = page.romsTextField->text();
    options.romsFolderFound = romsFolderExists(options.romsTextField);
}

} // namespace

LaunchPages::LaunchPages(DefaultsController& defaults, std::function<QString()> findEmulator)
    : m_general(new GeneralPage(defaults, std::move(findEmulator)))
    , m_video(new VideoPage(defaults))
    , m_effects(new EffectsPage(defaults))
    , m_sound(new SoundPage(defaults))
    , m_input(new InputPage(defaults))
    , m_misc(new MiscPage(defaults))
{
}

LaunchPages::~LaunchPages()
{
    for (const OptionPage* page : all()) {
        if (page && !page->parent())
            delete page;
    }
}

void LaunchPages::setChooser(PathChooser& chooser)
{
    for (OptionPage* page : all())
        page->setChooser(chooser);
}

QList<OptionPage*> LaunchPages::all() const
{
    return {m_general.data(), m_video.data(), m_effects.data(),
            m_sound.data(),   m_input.data(), m_misc.data()};
}

GeneralPage& LaunchPages::general() const
{
    return *m_general;
}

VideoPage& LaunchPages::video() const
{
    return *m_video;
}

EffectsPage& LaunchPages::effects() const
{
    return *m_effects;
}

SoundPage& LaunchPages::sound() const
{
    return *m_sound;
}

InputPage& LaunchPages::input() const
{
    return *m_input;
}

MiscPage& LaunchPages::misc() const
{
    return *m_misc;
}

LaunchOptions liveOptions(const LaunchPages& pages, const SelectedGame& selected)
{
    LaunchOptions options;
    readVideo(options, pages.video());
    readEffects(options, pages.effects());
    readSound(options, pages.sound());
    readMisc(options, pages.misc());
    readInput(options, pages.input());
    readGeneral(options, pages.general());
    options.selected = selected;
    return options;
}

} // namespace tessera
