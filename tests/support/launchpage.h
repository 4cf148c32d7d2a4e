#pragma once

#include "launch/emulatorchoice.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/pathchooser.h"
#include "support/scripteddesktop.h"

namespace tessera::test {

inline OptionPage& pageOf(LaunchPages& pages, Page page)
{
    return *pages.all()[static_cast<int>(page)];
}

/// The control of that name on any of the pages.
template <class Control>
Control* control(LaunchPages& pages, const char* name)
{
    for (const OptionPage* page : pages.all()) {
        if (auto* found = page->findChild<Control*>(QLatin1StringView(name)))
            return found;
    }
    qFatal("no control %s", name);
}

/// The pages of the launch options with nothing around them.
struct StagedPages {
    ScriptedDesktop desktop;
    EmulatorChoice emulator;
    PathChooser chooser;
    LaunchPages pages;

    explicit StagedPages(
        DefaultsController& defaults, std::function<QString()> find = [] { return QString(); })
        : emulator(defaults, std::move(find))
        , chooser(desktop, defaults, emulator)
        , pages(defaults, emulator, chooser)
    {
    }
};

} // namespace tessera::test
