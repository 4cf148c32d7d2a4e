#include "launch/storedoptions.h"

#include "launch/growingitems.h"
#include "launch/popupitems.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>

#include <span>

namespace tessera {

namespace {

/// Reads settings the way the controls show them.
struct Reader {
    const DefaultsController& defaults;

    int box(const Key<bool>& key) const { return defaults.flag(key) ? 1 : 0; }

    int position(const Key<float>& key, std::size_t count) const
    {
        const int index = defaults.index(key);
        return index >= 0 && static_cast<std::size_t>(index) < count ? index : -1;
    }

    int popup(const Key<float>& key, std::span<const PopupItem> items) const
    {
        return position(key, items.size());
    }

    PopupState titled(const Key<float>& key, std::span<const PopupItem> items) const
    {
        const int index = popup(key, items);
        if (index < 0)
            return {};
        return {index, QString::fromLatin1(items[static_cast<std::size_t>(index)].title)};
    }
};

constexpr std::size_t movieRows = 3;
constexpr std::size_t replayRows = 2;

void readVideo(LaunchOptions& options, const Reader& read)
{
    options.devicevideoPop = storedState(read.defaults, keys::Videodriver, growingVideoDrivers);
    options.displaymodePop = read.popup(keys::Displaymode, displayModes);
    options.scalingPop = read.titled(keys::Scaling, prescaleFactors);
    options.checkboxMaximize = read.box(keys::Maximize);
    options.checkboxAspect = read.box(keys::Keepaspect);
    options.checkboxStretch = read.box(keys::Unevenstretch);
    options.checkboxResolution = read.box(keys::Resolutionswitc);
    options.checkboxWaitvsync = read.box(keys::Waitvsync);
    options.checkboxMultithread = read.box(keys::Multithreading);
    options.displayframePop = read.popup(keys::Displayframeskip, frameSkips);
    options.displayrotation = read.popup(keys::Displayrotation, rotations);
    options.displayflipPop = read.popup(keys::Displayflip, flips);
}

void readEffects(LaunchOptions& options, const Reader& read)
{
    options.checkboxBilinear = read.box(keys::Bilinear);
    options.checkboxEffect = read.box(keys::Effect);
    options.effectTextField = read.defaults.text(keys::Effectname);
    options.scalemodePop = storedState(read.defaults, keys::ScalemodePop, growingScaleModes);
    options.checkboxArtwork = read.box(keys::Artwork);
    options.checkboxBackdrops = read.box(keys::Backdrops);
    options.checkboxOverlays = read.box(keys::Overlays);
    options.checkboxBezels = read.box(keys::Bezels);
    options.checkboxAntialias = read.box(keys::Antialiased);
    options.beemTextField = read.defaults.text(keys::Displaybeam);
    options.flickerTextField = read.defaults.text(keys::Displayflicker);
}

void readSound(LaunchOptions& options, const Reader& read)
{
    options.popup_Sound = storedState(read.defaults, keys::Soundoutput, growingSoundOutputs);
    options.soundvolumetextField = read.defaults.text(keys::Soundvolume);
    options.soundsampleratePop = read.titled(keys::Soundsmplerate, sampleRates);
    options.soundlatencytextField = read.defaults.text(keys::Audiolatency);
    options.checkboxSoundsamples = read.box(keys::Soundsmples);
}

void readRecording(LaunchOptions& options, const Reader& read)
{
    options.checkMovierecord = read.box(keys::Movierecord);
    options.recordMatrix = read.position(keys::Moviematrix, movieRows);
    options.wavnameTextField = read.defaults.text(keys::Wavfilename);
    options.mngnameTextField = read.defaults.text(keys::Mngfilename);
    options.avinameTextField = read.defaults.text(keys::Avifilename);
    // Position 0 has a label only; the builders send words of their own for it.
    options.biosPop = storedState(read.defaults, keys::Biostype, growingBiosSets);
    options.checkBoxReplay = read.box(keys::Replaymove);
    options.replayMatrix = read.position(keys::Replaymatrix, replayRows);
    options.recordfilePop = read.popup(keys::Recordfilepop, recordNames);
    options.textfildPlayback = read.defaults.text(keys::Playbackfilename);
}

void readRest(LaunchOptions& options, const Reader& read)
{
    options.checkboxCheat = read.box(keys::Cheatsystem);
    options.checkboxGameinfo = read.box(keys::Gameinfo);
    options.checkboxAutosave = read.box(keys::Automaticsavestate);
    // The log pop-up is the one that has no key by its own name; Debugoptions is the index that no other
    // takes.
    options.errorlogPop = read.popup(keys::Debugoptions, logOutputs);
    options.checkboxMouse = read.box(keys::Mousecontrolle);
    options.checkboxJoystick = read.box(keys::Joystickcontrolle);
    options.checkboxLightgun = read.box(keys::Lightguncontrolle);
    options.checkboxOffscreen = read.box(keys::Offscreenreload);
    options.checkboxSteadykey = read.box(keys::Registersimultaneous);
    // Outputserror says nothing of ROMs, but it is the boolean key (besides gamelist_coloring) that nothing
    // else takes.
    options.checkboxRompath = read.box(keys::Outputserror);
    options.romsTextField = read.defaults.text(keys::RomsPath);
    options.romsFolderFound = romsFolderExists(options.romsTextField);
}

} // namespace

LaunchOptions storedOptions(const DefaultsController& defaults, const SelectedGame& selected)
{
    LaunchOptions options;
    const Reader read{defaults};
    readVideo(options, read);
    readEffects(options, read);
    readSound(options, read);
    readRecording(options, read);
    readRest(options, read);
    options.selected = selected;
    return options;
}

bool romsFolderExists(const QString& path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

} // namespace tessera
