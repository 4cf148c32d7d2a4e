#pragma once

#include <QByteArray>

namespace tessera::test {

// Two -showusage texts in the layout of emulators: names padded to 20 columns, a longer one runs into its
// description. The old program has every option that we send, and sound as a switch.
inline QByteArray oldUsage()
{
    return "Usage: old64 [game] [options]\n"
           "\n"
           "Options:\n"
           "\n"
           "#\n"
           "# SEARCH PATHS\n"
           "#\n"
           "-rompath             path to ROM sets\n"
           "-autosave            restore at start, save at exit\n"
           "-playback            play back an input file\n"
           "-record              record an input file\n"
           "-mngwrite            write a MNG movie\n"
           "-aviwrite            write an AVI movie\n"
           "-wavwrite            write a WAV file\n"
           "-autoframeskip       skip frames by itself\n"
           "-frameskip           skip a fixed number of frames, 0-10\n"
           "-rotate              rotate as the game needs\n"
           "-ror                 rotate clockwise\n"
           "-rol                 rotate counterclockwise\n"
           "-flipx               flip left-right\n"
           "-flipy               flip upside-down\n"
           "-artwork_crop        crop artwork to the screen\n"
           "-use_backdrops       show backdrops\n"
           "-use_overlays        show overlays\n"
           "-use_bezels          show bezels\n"
           "-effect              name of an effect, or 'none'\n"
           "-antialias           smooth vector lines\n"
           "-beam                width of the vector beam\n"
           "-flicker             flicker of vectors\n"
           "-sound               enable sound output\n"
           "-samplerate          set sound output sample rate\n"
           "-samples             use samples if there are any\n"
           "-volume              volume in decibels\n"
           "-mouse               listen to the mouse\n"
           "-joystick            listen to the joystick\n"
           "-joystick_saturation range at the end of an axis\n"
           "-lightgun            listen to the light gun\n"
           "-steadykey           steady keys\n"
           "-offscreen_reload    second button reloads\n"
           "-log                 write error.log\n"
           "-verbose             say more\n"
           "-debug               start the debugger\n"
           "-oslog               write to the system log\n"
           "-bios                choose the BIOS\n"
           "-cheat               enable cheats\n"
           "-skip_gameinfo       no information screen\n"
           "-multithreading      draw on a thread of its own\n"
           "-video               video output method: soft or opengl\n"
           "-window              run in a window\n"
           "-maximize            start maximized\n"
           "-keepaspect          keep the aspect ratio\n"
           "-unevenstretch       allow uneven stretch\n"
           "-waitvsync           wait for the vertical blank\n"
           "-scalemode           Scale mode: none, async, yv12\n"
           "-filter              bilinear filter\n"
           "-prescale            scale by this amount\n"
           "-switchres           switch the resolution\n"
           "-audio_latency       latency of sound\n"
           "-showusage           show this help\n";
}

// The new program has lost multithreading, antialias, beam and the three use_ options; sound names an output.
inline QByteArray newUsage()
{
    QByteArray text = oldUsage();
    for (const char* gone :
         {"-use_backdrops       show backdrops\n", "-use_overlays        show overlays\n",
          "-use_bezels          show bezels\n", "-antialias           smooth vector lines\n",
          "-multithreading      draw on a thread of its own\n"})
        text.replace(gone, "");
    text.replace("-beam                width of the vector beam\n",
                 "-beam_width_min      smallest width of the beam\n"
                 "-beam_intensity_weightset weight of the intensity \n");
    text.replace("-sound               enable sound output\n",
                 "-sound               sound output method: sdl, portaudio or none\n");
    return text;
}

} // namespace tessera::test
