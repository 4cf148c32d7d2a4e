#include "app/optionsdesk.h"

#include "app/preferenceswindow.h"
#include "app/supportpage.h"
#include "launch/emulatorprofile.h"
#include "launch/profilecache.h"
#include "launch/ui/effectspage.h"
#include "launch/ui/filespage.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/growingpopup.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/soundpage.h"
#include "launch/ui/unknownoptions.h"
#include "launch/ui/videopage.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>

namespace tessera {

OptionsDesk::OptionsDesk(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_pool.setMaxThreadCount(1);
    connect(&m_parts.preferences, &PreferencesWindow::aboutToShow, this, &OptionsDesk::show);
}

void OptionsDesk::addPages()
{
    if (std::exchange(m_hasPages, true))
        return;
    m_parts.preferences.supportPage().addPage(qtTrId("support_files"),
                                              new FilesPage(m_parts.defaults, m_parts.paths));
    const auto follow = [this] {
        if (m_parts.preferences.isVisible())
            show();
    };
    connect(&m_parts.profiles, &ProfileCache::answered, this, follow);
    connect(&m_parts.launches, &LaunchController::launchModeChanged, this, follow);
    connect(&m_parts.paths, &PathChooser::chosen, this, follow);
    connect(&m_parts.pages.general(), &GeneralPage::emulatorFound, this, follow);
    // Not at every key: half a path may be another program's.
    connect(m_parts.pages.general().exeTextField, &QLineEdit::editingFinished, this, follow);
}

// The profile is the command-line emulator's; the other modes start something else.
void OptionsDesk::show()
{
    const QString emulator = m_parts.launches.executable();
    const auto answer = m_parts.profiles.remembered(emulator);
    if (!answer)
        m_parts.profiles.request(emulator);
    const bool isUsed = m_parts.pages.general().launchusingPop->currentIndex() == 0;
    const EmulatorProfile* profile = isUsed && answer && answer->profile ? &*answer->profile : nullptr;
    offer(profile);
    proposeFolders(profile != nullptr ? profile->romFolderList(QFileInfo(emulator).path()) : QStringList());
}

void OptionsDesk::offer(const EmulatorProfile* profile)
{
    const LaunchPages& pages = m_parts.pages;
    for (OptionPage* page : pages.all())
        markUnknownOptions(*page, profile);
    const auto values = [profile](const char* option) {
        return profile != nullptr ? profile->valuesOf(QLatin1String(option)) : QStringList();
    };
    pages.video().moreVideoDrivers->offer(values("-video"));
    pages.effects().moreScaleModes->offer(values("-scalemode"));
    pages.sound().moreSoundOutputs->offer(values("-sound"));
}

// Folders may lie on disks that answer late.
void OptionsDesk::proposeFolders(const QStringList& folders)
{
    if (std::exchange(m_lookedFor, folders) == folders)
        return;
    m_pool.start([this, folders] {
        QStringList found;
        for (const QString& folder : folders) {
            if (QFileInfo(folder).isDir())
                found << folder;
        }
        QMetaObject::invokeMethod(
            this, [this, folders, found] { take(folders, found); }, Qt::QueuedConnection);
    });
}

void OptionsDesk::take(const QStringList& folders, const QStringList& found)
{
    if (folders == m_lookedFor)
        m_parts.pages.general().proposeRomFolders(found);
}

} // namespace tessera
