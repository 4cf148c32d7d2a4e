#pragma once

/// What the pages of the launch options say, control by control, and how they read from top to bottom.
namespace tessera::test {

inline constexpr const char* generalWords
    = R"(launchusingPop: SDL MAME / MAME OS X / mode_application / named option_launchusing
: option_launchusing / for launchusingPop
: option_emulator
: named option_emulator
exeTextField: named option_emulator
buttonexe: path_choose / named path_choose: option_emulator
: named path_reveal: option_emulator / tip path_reveal
: option_romfolder
: named option_romfolder
romsTextField: named option_romfolder
buttonroms: path_choose / named path_choose: option_romfolder
: named path_reveal: option_romfolder / tip path_reveal
checkboxRompath: option_useromfolder
: for checkboxRompath
rompathNote: option_romfolderunused
: for romProposal
: roms_proposed
: option_osx
: named option_osx
osxTextField: named option_osx
buttonosx: path_choose / named path_choose: option_osx
: named path_reveal: option_osx / tip path_reveal
: option_application
: named option_application
appTextField: named option_application
buttonapp: path_choose / named path_choose: option_application
: named path_reveal: option_application / tip path_reveal)";

inline constexpr const char* generalRows = R"(option_launchusing: launchusingPop
option_emulator: exeTextField buttonexe
---
option_romfolder: romsTextField buttonroms
: checkboxRompath
option_romfolderunused:
: romProposal
---
option_osx: osxTextField buttonosx
option_application: appTextField buttonapp)";

inline constexpr const char* videoWords
    = R"(devicevideoPop: soft / accel / opengl / bgfx / none / named option_videodriver
displaymodePop: display_window / display_fullscreen / named option_display
scalingPop: 1 / 2 / 3 / 4 / 5 / 6 / 7 / 8 / named option_prescale
displayframePop: frameskip_automatic / 0 / 1 / 2 / 3 / 4 / 5 / 6 / 7 / 8 / 9 / 10 / named option_frameskip
checkboxAspect: option_aspect
checkboxStretch: option_stretch
checkboxMaximize: option_maximize
checkboxResolution: option_resolution
checkboxWaitvsync: option_waitvsync
checkboxMultithread: option_multithread
displayrotation: rotation_none / rotation_game / rotation_right / rotation_left / named option_rotation
displayflipPop: flip_none / flip_leftright / flip_upsidedown / flip_both / named option_flip
: option_videodriver / for devicevideoPop
: option_display / for displaymodePop
: option_prescale / for scalingPop
: option_frameskip / for displayframePop
: option_picture / for checkboxAspect
: for checkboxStretch
: for checkboxMaximize
: for checkboxResolution
: option_timing / for checkboxWaitvsync
: for checkboxMultithread
: option_rotation / for displayrotation
: option_flip / for displayflipPop)";

inline constexpr const char* videoRows = R"(option_videodriver: devicevideoPop
option_display: displaymodePop
option_prescale: scalingPop
option_frameskip: displayframePop
---
option_picture: checkboxAspect
: checkboxStretch
: checkboxMaximize
: checkboxResolution
option_timing: checkboxWaitvsync
: checkboxMultithread
---
option_rotation: displayrotation
option_flip: displayflipPop)";

inline constexpr const char* effectWords = R"(checkboxBilinear: option_bilinear
scalemodePop: none / hwblit / hwbest / yv12 / yuy2 / yv12x2 / yuy2x2 / named option_scalemode
checkboxArtwork: option_artworkcrop
checkboxBackdrops: option_backdrops
checkboxOverlays: option_overlays
checkboxBezels: option_bezels
checkboxAntialias: option_antialias
beemTextField: named option_beam
flickerTextField: named option_flicker
: option_filter / for checkboxBilinear
checkboxEffect: option_effect
effectTextField: named option_effectname
effectTextField_choose: path_choose / named path_choose: option_effectname
: for checkboxEffect
: option_scalemode / for scalemodePop
: option_artwork / for checkboxArtwork
: for checkboxBackdrops
: for checkboxOverlays
: for checkboxBezels
: option_vector / for checkboxAntialias
: option_beam / for beemTextField
: option_flicker / for flickerTextField)";

inline constexpr const char* effectRows = R"(option_filter: checkboxBilinear
: checkboxEffect effectTextField effectTextField_choose
option_scalemode: scalemodePop
---
option_artwork: checkboxArtwork
: checkboxBackdrops
: checkboxOverlays
: checkboxBezels
---
option_vector: checkboxAntialias
option_beam: beemTextField
option_flicker: flickerTextField)";

inline constexpr const char* soundWords
    = R"(popup_Sound: none / sdl / portaudio / pulse / named option_soundoutput
soundvolumetextField: named option_volume
soundsampleratePop: 11025 / 22050 / 44100 / 48000 / 96000 / named option_samplerate
soundlatencytextField: named option_latency
checkboxSoundsamples: option_samples
: option_soundoutput / for popup_Sound
: option_volume / for soundvolumetextField
: option_samplerate / for soundsampleratePop
: option_latency / for soundlatencytextField
: for checkboxSoundsamples)";

inline constexpr const char* soundRows = R"(option_soundoutput: popup_Sound
option_volume: soundvolumetextField
option_samplerate: soundsampleratePop
option_latency: soundlatencytextField
: checkboxSoundsamples)";

inline constexpr const char* inputWords = R"(checkboxMouse: option_mouse
checkboxJoystick: option_joystick
checkboxLightgun: option_lightgun
checkboxOffscreen: option_offscreen
checkboxSteadykey: option_steadykey
: option_devices / for checkboxMouse
: for checkboxJoystick
: for checkboxLightgun
: for checkboxOffscreen
: option_keyboard / for checkboxSteadykey)";

inline constexpr const char* inputRows = R"(option_devices: checkboxMouse
: checkboxJoystick
: checkboxLightgun
: checkboxOffscreen
---
option_keyboard: checkboxSteadykey)";

inline constexpr const char* miscWords
    = R"(biosPop: bios_none / euro / us / japan / japan-s2 / unibios40 / unibios33 / unibios23 / v2 / v1 / jp / a / b / bios0 / bios1 / dual / single / ver1 / europe / asia / usa / export / korea / std / v201 / onep300 / named option_bios
checkboxCheat: option_cheat
checkboxGameinfo: option_skipgameinfo
checkboxAutosave: option_autosave
errorlogPop: log_off / log_emulators / log_file / log_verbose / log_debugger / log_system / named option_log
checkMovierecord: option_movie
checkBoxReplay: option_replay
: option_bios / for biosPop
: option_startup / for checkboxCheat
: for checkboxGameinfo
: for checkboxAutosave
: option_log / for errorlogPop
: option_recording / for checkMovierecord
recordMatrix_0: record_wav
wavnameTextField: named record_wavname
wavnameTextField_choose: path_choose / named path_choose: record_wavname
: for recordMatrix_0
recordMatrix_1: record_mng
mngnameTextField: named record_mngname
mngnameTextField_choose: path_choose / named path_choose: record_mngname
: for recordMatrix_1
recordMatrix_2: record_avi
avinameTextField: named record_aviname
avinameTextField_choose: path_choose / named path_choose: record_aviname
: for recordMatrix_2
: option_inputs / for checkBoxReplay
replayMatrix_0: replay_record
recordfilePop: recordname_short / recordname_title / recordname_titlejp / named replay_recordname
: for replayMatrix_0
replayMatrix_1: replay_playback
textfildPlayback: named replay_playbackname
textfildPlayback_choose: path_choose / named path_choose: replay_playbackname
: for replayMatrix_1)";

inline constexpr const char* miscRows = R"(option_bios: biosPop
option_startup: checkboxCheat
: checkboxGameinfo
: checkboxAutosave
option_log: errorlogPop
---
option_recording: checkMovierecord
: recordMatrix_0 wavnameTextField wavnameTextField_choose
: recordMatrix_1 mngnameTextField mngnameTextField_choose
: recordMatrix_2 avinameTextField avinameTextField_choose
---
option_inputs: checkBoxReplay
: replayMatrix_0 recordfilePop
: replayMatrix_1 textfildPlayback textfildPlayback_choose)";

inline constexpr const char* logWords = R"(logWindow: window log_title
infomationTextView: named log_title
saveButton: log_save
: command_label / for commandPop
commandPop: -help / -validate / -createconfig / -showconfig / -showusage / -listxml / -listfull / -listsource / -listclones / -listbrothers / -listcrc / -listroms / -listsamples / -verifyroms / -verifysamples / -romident / -listdevices / -listslots / -listmedia / named command_label
returnButton: command_run
: command_exportlabel / for exportPop
exportPop: -listfull / -listxml / -listsource / -listclones / -listbrothers / -listcrc / -listroms / -listsamples / -verifyroms / -verifysamples / -listdevices / -listslots / -listmedia / -listsoftware / -verifysoftware / -getsoftlist / -verifysoftlist / named command_exportlabel
exportButton: command_export
progressInd: named command_progress
stopButton: command_stop)";

} // namespace tessera::test
