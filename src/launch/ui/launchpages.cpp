#include "launch/ui/launchpages.h"

#include "launch/storedoptions.h"
#include "launch/ui/generalpage.h"

namespace tessera {

LaunchPages::LaunchPages(DefaultsController& defaults, EmulatorChoice& emulator, PathChooser& chooser)
    : m_defaults(defaults)
    , m_emulator(emulator)
    , m_chooser(chooser)
{
}

LaunchPages::~LaunchPages()
{
    for (const OptionPage* page : m_pages) {
        if (page && !page->parent())
            delete page;
    }
}

void LaunchPages::make()
{
    if (!m_pages.isEmpty())
        return;
    m_general = new GeneralPage(m_defaults, m_emulator, m_chooser);
    m_pages << m_general.data();
    for (const Page page : {Page::Video, Page::Effects, Page::Sound, Page::Input, Page::Misc})
        m_pages << new OptionPage(page, m_defaults, m_chooser);
}

QList<OptionPage*> LaunchPages::all()
{
    make();
    return {m_pages.begin(), m_pages.end()};
}

GeneralPage& LaunchPages::general()
{
    make();
    return *m_general;
}

LaunchOptions LaunchPages::options(const SelectedGame& selected) const
{
    LaunchOptions options = storedOptions(m_defaults, selected);
    const QString stored = options.romsTextField;
    for (const OptionPage* page : m_pages)
        page->read(options);
    if (options.romsTextField != stored)
        options.romsFolderFound = romsFolderExists(options.romsTextField);
    return options;
}

} // namespace tessera
