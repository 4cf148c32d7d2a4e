#pragma once

#include "core/message.h"

#include <QCoreApplication>

#include <array>

/// The items of every pop-up of the launch options. Settings hold positions, so an item keeps its place for
/// ever; new ones are appended.
namespace tessera {

/// One item: a title that is sent to the emulator as it stands, a label that is looked up by its text key,
/// or a separator, which counts as an item too.
struct PopupItem {
    const char* title = nullptr;
    const char* labelKey = nullptr;

    QString shown() const
    {
        return title ? QString::fromLatin1(title) : labelKey ? qtTrId(labelKey) : QString();
    }
};

inline constexpr PopupItem popupSeparator{};

namespace detail {

template <class... Title>
constexpr auto titles(Title... title)
{
    return std::array<PopupItem, sizeof...(title)>{PopupItem{title, nullptr}...};
}

template <class... TextKey>
constexpr auto labels(TextKey... key)
{
    return std::array<PopupItem, sizeof...(key)>{PopupItem{nullptr, key}...};
}

} // namespace detail

// Log and window titles show them as they stand.
inline constexpr std::array<PopupItem, 3> launchModes{{
    {"SDL MAME"},
    {"MAME OS X"},
    {nullptr, textKey("mode_application")},
}};

// The initial position is 2.
inline constexpr auto videoDrivers = detail::titles("soft", "accel", "opengl", "bgfx", "none");
inline constexpr auto displayModes = detail::labels(textKey("display_window"), textKey("display_fullscreen"));
inline constexpr auto prescaleFactors = detail::titles("1", "2", "3", "4", "5", "6", "7", "8");
// Position n stands for n - 1 skipped frames, position 0 for automatic skipping.
// clang-format off
inline constexpr std::array<PopupItem, 12> frameSkips{{
    {nullptr, textKey("frameskip_automatic")},
    {"0"}, {"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}, {"7"}, {"8"}, {"9"}, {"10"},
}};
// clang-format on
inline constexpr auto rotations = detail::labels(textKey("rotation_none"), textKey("rotation_game"),
                                                 textKey("rotation_right"), textKey("rotation_left"));
inline constexpr auto flips = detail::labels(textKey("flip_none"), textKey("flip_leftright"),
                                             textKey("flip_upsidedown"), textKey("flip_both"));
inline constexpr auto scaleModes
    = detail::titles("none", "hwblit", "hwbest", "yv12", "yuy2", "yv12x2", "yuy2x2");
// Position 0 is silence in both dialects; the initial position is 1.
inline constexpr auto soundOutputs = detail::titles("none", "sdl", "portaudio", "pulse");
// The initial position is 3.
inline constexpr auto sampleRates = detail::titles("11025", "22050", "44100", "48000", "96000");
// Positions 1 and 2 send nothing; a separator cannot be chosen, so 2 is the one that leaves it to the
// emulator.
inline constexpr std::array<PopupItem, 7> logOutputs{{
    {nullptr, textKey("log_off")},
    popupSeparator,
    {nullptr, textKey("log_emulators")},
    {nullptr, textKey("log_file")},
    {nullptr, textKey("log_verbose")},
    {nullptr, textKey("log_debugger")},
    {nullptr, textKey("log_system")},
}};
inline constexpr auto recordNames
    = detail::labels(textKey("recordname_short"), textKey("recordname_title"), textKey("recordname_titlejp"));
// Every BIOS of resources/bioslist.xml, once, in its order. What the user's games have besides is learnt and
// stands behind; see launch/growingitems.h.
// clang-format off
inline constexpr std::array<PopupItem, 26> biosSets{{
    {nullptr, textKey("bios_none")},
    {"euro"}, {"us"}, {"japan"}, {"japan-s2"}, {"unibios40"}, {"unibios33"}, {"unibios23"}, {"v2"}, {"v1"},
    {"jp"}, {"a"}, {"b"}, {"bios0"}, {"bios1"}, {"dual"}, {"single"}, {"ver1"}, {"europe"},
    {"asia"}, {"usa"}, {"export"}, {"korea"}, {"std"}, {"v201"}, {"onep300"},
}};
// clang-format on

} // namespace tessera
