#pragma once

#include "launch/launchoptions.h"

#include <QList>
#include <QPointer>

#include <functional>

namespace tessera {

class DefaultsController;
class EffectsPage;
class GeneralPage;
class InputPage;
class MiscPage;
class OptionPage;
class PathChooser;
class SoundPage;
class VideoPage;

/// The pages of the launch options. A window takes them over; what no window took is deleted here.
class LaunchPages
{
public:
    /// `findEmulator` finds the emulator that launches use as long as none was chosen.
    LaunchPages(DefaultsController& defaults, std::function<QString()> findEmulator);
    ~LaunchPages();
    LaunchPages(const LaunchPages&) = delete;
    LaunchPages& operator=(const LaunchPages&) = delete;

    void setChooser(PathChooser& chooser);
    /// In the order of the preferences window.
    QList<OptionPage*> all() const;

    GeneralPage& general() const;
    VideoPage& video() const;
    EffectsPage& effects() const;
    SoundPage& sound() const;
    InputPage& input() const;
    MiscPage& misc() const;

private:
    QPointer<GeneralPage> m_general;
    QPointer<VideoPage> m_video;
    QPointer<EffectsPage> m_effects;
    QPointer<SoundPage> m_sound;
    QPointer<InputPage> m_input;
    QPointer<MiscPage> m_misc;
};

/// The launch options as the controls stand now.
LaunchOptions liveOptions(const LaunchPages& pages, const SelectedGame& selected);

} // namespace tessera
