#include "launch/optiontable.h"

#include <algorithm>

namespace tessera {

namespace {

using O = LaunchOptions;
using Row = OptionRow;

constexpr std::array movieKinds{textKey("record_wav"), textKey("record_mng"), textKey("record_avi")};
constexpr std::array replayKinds{textKey("replay_record"), textKey("replay_playback")};

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// A mixed state leaves it to the emulator.
void maximize(const O& options, QStringList& list)
{
    if (options.checkboxMaximize == 1)
        list << QStringLiteral("-maximize");
    else if (options.checkboxMaximize == 0)
        list << QStringLiteral("-nomaximize");
}

// Position n stands for n - 1 skipped frames.
void frameSkip(const O& options, QStringList& list)
{
    const int position = options.displayframePop;
    if (position == 0)
        list << QStringLiteral("-autoframeskip");
    else if (position > 0 && position < static_cast<int>(frameSkips.size()))
        list << QStringLiteral("-noautoframeskip") << QStringLiteral("-frameskip")
             << QString::number(position - 1);
}

void effect(const O& options, QStringList& list)
{
    if (options.checkboxEffect)
        list << QStringLiteral("-effect") << quoted(options.effectTextField);
}

void movie(const O& options, QStringList& list)
{
    if (!options.checkMovierecord)
        return;
    if (options.recordMatrix == 0)
        list << QStringLiteral("-wavwrite") << options.wavnameTextField;
    else if (options.recordMatrix == 1)
        list << QStringLiteral("-mngwrite") << options.mngnameTextField;
    else if (options.recordMatrix == 2)
        list << QStringLiteral("-aviwrite") << options.avinameTextField;
}

void bios(const O& options, QStringList& list)
{
    // Deliberate: no BIOS is sent as an empty value in quotes, not left out.
    list << QStringLiteral("-bios")
         << (options.biosPop.index == 0 ? QStringLiteral("\"\"") : options.biosPop.title);
}

// Deliberate: the short name goes bare, the titles in quotes.
QStringList recordFile(const O& options)
{
    const QString format = QStringLiteral("%1.inp");
    switch (options.recordfilePop) {
    case 0:
        return {format.arg(options.selected.name)};
    case 1:
        return {quoted(format.arg(options.selected.title))};
    case 2:
        return {quoted(format.arg(options.selected.titlejp))};
    default:
        return {};
    }
}

void replay(const O& options, QStringList& list)
{
    if (!options.checkBoxReplay)
        return;
    if (options.replayMatrix == 1)
        list << QStringLiteral("-playback") << quoted(options.textfildPlayback);
    else if (options.replayMatrix == 0)
        list << QStringLiteral("-record") << recordFile(options);
}

void lightgun(const O& options, QStringList& list)
{
    if (!options.checkboxLightgun)
        list << QStringLiteral("-nolightgun");
    else
        list << QStringLiteral("-lightgun")
             << (options.checkboxOffscreen ? QStringLiteral("-offscreen_reload")
                                           : QStringLiteral("-nooffscreen_reload"));
}

void romPath(const O& options, QStringList& list)
{
    if (options.checkboxRompath && options.romsFolderFound)
        list << QStringLiteral("-rompath") << quoted(options.romsTextField);
}

QString soundEnabled(const O& options)
{
    return options.popup_Sound.index != 0 ? QStringLiteral("1") : QStringLiteral("0");
}

QString biosName(const O& options)
{
    return options.biosPop.index == 0 ? QStringLiteral("default") : options.biosPop.title;
}

// The kinds of control.

constexpr OptionControl box(const char* text)
{
    return {.text = text};
}

constexpr OptionControl field(const char* accessibleName = nullptr)
{
    return {.text = accessibleName};
}

constexpr OptionControl radios(std::span<const char* const> texts)
{
    return {.buttons = texts};
}

constexpr OptionControl popup(std::span<const PopupItem> items, const char* accessibleName = nullptr)
{
    return {.text = accessibleName, .items = items};
}

constexpr OptionControl popup(const GrowingItems& items)
{
    return {.items = items.shipped, .growing = &items};
}

// Each: name, what the builders read, its setting, the control; where it stands; what the command-line
// emulator and MAME OS X are sent.
// clang-format off
constexpr std::array rows{
    Row{"devicevideoPop", &O::devicevideoPop, &keys::Videodriver, popup(growingVideoDrivers),
        {Page::Video, 1, textKey("option_videodriver")}, {1, "-video="}},
    Row{"displaymodePop", &O::displaymodePop, &keys::Displaymode, popup(displayModes),
        {Page::Video, 2, textKey("option_display")}, {2, "-window", {"+", "-"}}, {9, "-FullScreen"}},
    Row{"scalingPop", &O::scalingPop, &keys::Scaling, popup(prescaleFactors),
        {Page::Video, 3, textKey("option_prescale")}, {3, "-prescale="}},
    Row{"checkboxMaximize", &O::checkboxMaximize, &keys::Maximize, box(textKey("option_maximize")),
        {Page::Video, 7}, {4, "-maximize", {}, &maximize}},
    Row{"checkboxAspect", &O::checkboxAspect, &keys::Keepaspect, box(textKey("option_aspect")),
        {Page::Video, 5, textKey("option_picture"), true}, {5, "-keepaspect"}, {11, "-KeepAspect"}},
    Row{"checkboxStretch", &O::checkboxStretch, &keys::Unevenstretch, box(textKey("option_stretch")),
        {Page::Video, 6}, {6, "-unevenstretch"}},
    Row{"checkboxResolution", &O::checkboxResolution, &keys::Resolutionswitc,
        box(textKey("option_resolution")),
        {Page::Video, 8}, {7, "-switchres"}, {10, "-SwitchResolutions"}},
    Row{"checkboxWaitvsync", &O::checkboxWaitvsync, &keys::Waitvsync, box(textKey("option_waitvsync")),
        {Page::Video, 9, textKey("option_timing")}, {8, "-waitvsync"}, {12, "-SyncToRefresh"}},
    Row{"checkboxMultithread", &O::checkboxMultithread, &keys::Multithreading, box(textKey("option_multithread")),
        {Page::Video, 10}, {9, "-multithreading"}},
    Row{"displayframePop", &O::displayframePop, &keys::Displayframeskip, popup(frameSkips),
        {Page::Video, 4, textKey("option_frameskip")}, {10, "-autoframeskip -frameskip=", {}, &frameSkip}},
    Row{"displayrotation", &O::displayrotation, &keys::Displayrotation, popup(rotations),
        {Page::Video, 11, textKey("option_rotation"), true},
        {11, "-rotate -ror -rol", {"---", "+--", "++-", "+-+"}}},
    Row{"displayflipPop", &O::displayflipPop, &keys::Displayflip, popup(flips),
        {Page::Video, 12, textKey("option_flip")}, {12, "-flipx -flipy", {"--", "+-", "-+", "++"}}},

    Row{"checkboxBilinear", &O::checkboxBilinear, &keys::Bilinear, box(textKey("option_bilinear")),
        {Page::Effects, 1, textKey("option_filter")}, {13, "-filter"}, {13, "-LinearFilter"}},
    Row{"checkboxEffect", &O::checkboxEffect, &keys::Effect, box(textKey("option_effect")),
        {Page::Effects, 2}, {14, "-effect=", {}, &effect}},
    Row{"effectTextField", &O::effectTextField, &keys::Effectname, field(textKey("option_effectname")),
        {Page::Effects, 2}, {0, "-effect="}},
    Row{"scalemodePop", &O::scalemodePop, &keys::ScalemodePop, popup(growingScaleModes),
        {Page::Effects, 3, textKey("option_scalemode")}, {15, "-scalemode="}},
    Row{"checkboxArtwork", &O::checkboxArtwork, &keys::Artwork, box(textKey("option_artworkcrop")),
        {Page::Effects, 4, textKey("option_artwork"), true}, {16, "-artwork_crop"}},
    Row{"checkboxBackdrops", &O::checkboxBackdrops, &keys::Backdrops, box(textKey("option_backdrops")),
        {Page::Effects, 5}, {17, "-use_backdrops"}},
    Row{"checkboxOverlays", &O::checkboxOverlays, &keys::Overlays, box(textKey("option_overlays")),
        {Page::Effects, 6}, {18, "-use_overlays"}},
    Row{"checkboxBezels", &O::checkboxBezels, &keys::Bezels, box(textKey("option_bezels")),
        {Page::Effects, 7}, {19, "-use_bezels"}},
    Row{"checkboxAntialias", &O::checkboxAntialias, &keys::Antialiased, box(textKey("option_antialias")),
        {Page::Effects, 8, textKey("option_vector"), true}, {20, "-antialias"}, {14, "-AntialiasBeam"}},
    Row{"beemTextField", &O::beemTextField, &keys::Displaybeam, field(),
        {Page::Effects, 9, textKey("option_beam")}, {21, "-beam="}, {15, "-BeamWidth"}},
    Row{"flickerTextField", &O::flickerTextField, &keys::Displayflicker, field(),
        {Page::Effects, 10, textKey("option_flicker")}, {22, "-flicker="}, {16, "-VectorFlicker"}},

    Row{"popup_Sound", &O::popup_Sound, &keys::Soundoutput, popup(growingSoundOutputs),
        {Page::Sound, 1, textKey("option_soundoutput")}, {23, "-sound="}, {3, "-SoundEnabled", &soundEnabled}},
    Row{"soundvolumetextField", &O::soundvolumetextField, &keys::Soundvolume, field(),
        {Page::Sound, 2, textKey("option_volume")}, {24, "-volume="}},
    Row{"soundsampleratePop", &O::soundsampleratePop, &keys::Soundsmplerate, popup(sampleRates),
        {Page::Sound, 3, textKey("option_samplerate")},
        {25, "-samplerate="}, {4, "-SampleRate", nullptr, true}},
    Row{"soundlatencytextField", &O::soundlatencytextField, &keys::Audiolatency, field(),
        {Page::Sound, 4, textKey("option_latency")}, {26, "-audio_latency="}},
    Row{"checkboxSoundsamples", &O::checkboxSoundsamples, &keys::Soundsmples, box(textKey("option_samples")),
        {Page::Sound, 5}, {27, "-samples"}, {5, "-UseSamples", nullptr, true}},

    Row{"checkMovierecord", &O::checkMovierecord, &keys::Movierecord, box(textKey("option_movie")),
        {Page::Misc, 6, textKey("option_recording"), true},
        {28, "-wavwrite= -mngwrite= -aviwrite=", {}, &movie}},
    Row{"recordMatrix", &O::recordMatrix, &keys::Moviematrix, radios(movieKinds),
        {Page::Misc, 7}, {0, "-wavwrite= -mngwrite= -aviwrite="}},
    Row{"wavnameTextField", &O::wavnameTextField, &keys::Wavfilename, field(textKey("record_wavname")),
        {Page::Misc, 7}, {0, "-wavwrite="}},
    Row{"mngnameTextField", &O::mngnameTextField, &keys::Mngfilename, field(textKey("record_mngname")),
        {Page::Misc, 8}, {0, "-mngwrite="}},
    Row{"avinameTextField", &O::avinameTextField, &keys::Avifilename, field(textKey("record_aviname")),
        {Page::Misc, 9}, {0, "-aviwrite="}},
    Row{"biosPop", &O::biosPop, &keys::Biostype, popup(growingBiosSets),
        {Page::Misc, 1, textKey("option_bios")}, {29, "-bios=", {}, &bios}, {17, "-Bios", &biosName}},
    Row{"checkBoxReplay", &O::checkBoxReplay, &keys::Replaymove, box(textKey("option_replay")),
        {Page::Misc, 10, textKey("option_inputs"), true}, {30, "-record= -playback=", {}, &replay}},
    Row{"replayMatrix", &O::replayMatrix, &keys::Replaymatrix, radios(replayKinds),
        {Page::Misc, 11}, {0, "-record= -playback="}},
    Row{"recordfilePop", &O::recordfilePop, &keys::Recordfilepop,
        popup(recordNames, textKey("replay_recordname")),
        {Page::Misc, 11}, {0, "-record="}},
    Row{"textfildPlayback", &O::textfildPlayback, &keys::Playbackfilename,
        field(textKey("replay_playbackname")),
        {Page::Misc, 12}, {0, "-playback="}},
    Row{"checkboxCheat", &O::checkboxCheat, &keys::Cheatsystem, box(textKey("option_cheat")),
        {Page::Misc, 2, textKey("option_startup")}, {31, "-cheat"}, {1, "-Cheat"}},
    Row{"checkboxGameinfo", &O::checkboxGameinfo, &keys::Gameinfo, box(textKey("option_skipgameinfo")),
        {Page::Misc, 3}, {32, "-skip_gameinfo"}, {8, "-SkipGameInfo"}},
    Row{"checkboxAutosave", &O::checkboxAutosave, &keys::Automaticsavestate, box(textKey("option_autosave")),
        {Page::Misc, 4}, {33, "-autosave"}, {2, "-AutoSave"}},
    // The log pop-up is the one that has no key by its own name; Debugoptions is the index that no other
    // takes. Deliberate: positions 1 and 2 send nothing at all.
    Row{"errorlogPop", &O::errorlogPop, &keys::Debugoptions, popup(logOutputs),
        {Page::Misc, 5, textKey("option_log")},
        {34, "-log -verbose -debug -oslog", {"----", nullptr, nullptr, "+---", "-+--", "--+-", "---+"}}},

    Row{"checkboxMouse", &O::checkboxMouse, &keys::Mousecontrolle, box(textKey("option_mouse")),
        {Page::Input, 1, textKey("option_devices")}, {35, "-mouse"}, {6, "-Mouse"}},
    Row{"checkboxJoystick", &O::checkboxJoystick, &keys::Joystickcontrolle, box(textKey("option_joystick")),
        {Page::Input, 2}, {36, "-joystick"}, {7, "-Joystick"}},
    Row{"checkboxLightgun", &O::checkboxLightgun, &keys::Lightguncontrolle, box(textKey("option_lightgun")),
        {Page::Input, 3}, {37, "-lightgun", {}, &lightgun}},
    Row{"checkboxOffscreen", &O::checkboxOffscreen, &keys::Offscreenreload, box(textKey("option_offscreen")),
        {Page::Input, 4}, {0, "-offscreen_reload"}},
    Row{"checkboxSteadykey", &O::checkboxSteadykey, &keys::Registersimultaneous,
        box(textKey("option_steadykey")),
        {Page::Input, 5, textKey("option_keyboard"), true}, {38, "-steadykey"}},

    // Outputserror says nothing of ROMs, but it is the boolean key (besides gamelist_coloring) that nothing
    // else takes.
    Row{"checkboxRompath", &O::checkboxRompath, &keys::Outputserror, box(textKey("option_useromfolder")),
        {Page::General}, {39, "-rompath=", {}, &romPath}},
    Row{"romsTextField", &O::romsTextField, &keys::RomsPath, field(),
        {Page::General}, {0, "-rompath="}},
};
// clang-format on

// What is sent first stands first, and nothing is left out.
static_assert([] {
    int last = 0;
    for (const Row& row : rows) {
        if (row.sdl.row != 0 && row.sdl.row != ++last)
            return false;
    }
    return last == 39;
}());
static_assert([] {
    for (int number = 1; number <= 17; ++number) {
        if (std::ranges::count(rows, number, [](const Row& row) { return row.osx.row; }) != 1)
            return false;
    }
    return true;
}());

} // namespace

std::span<const OptionRow> optionRows()
{
    return rows;
}

const OptionRow& optionRow(const char* name)
{
    return *std::ranges::find(rows, QLatin1StringView(name),
                              [](const Row& row) { return QLatin1StringView(row.name); });
}

} // namespace tessera
