#pragma once

#include "launch/launchoptions.h"

#include <QList>
#include <QPointer>

namespace tessera {

class DefaultsController;
class EmulatorChoice;
class GeneralPage;
class OptionPage;
class PathChooser;

/// The pages of the launch options, made when they are first asked for. A window takes them over; what no
/// window took is deleted here.
class LaunchPages
{
public:
    LaunchPages(DefaultsController& defaults, EmulatorChoice& emulator, PathChooser& chooser);
    ~LaunchPages();
    LaunchPages(const LaunchPages&) = delete;
    LaunchPages& operator=(const LaunchPages&) = delete;

    /// In the order of the preferences window.
    QList<OptionPage*> all();
    GeneralPage& general();
    /// The launch options as the controls stand now; as they are stored, as long as there are none.
    LaunchOptions options(const SelectedGame& selected) const;

private:
    void make();

    DefaultsController& m_defaults;
    EmulatorChoice& m_emulator;
    PathChooser& m_chooser;
    QPointer<GeneralPage> m_general;
    QList<QPointer<OptionPage>> m_pages;
};

} // namespace tessera
