#include "app/desks/optionsdesk.h"

#include "app/windows/languagechoice.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/supportpage.h"
#include "catalogue/ui/appearancepage.h"
#include "catalogue/ui/rowcolors.h"
#include "catalogue/ui/tablefont.h"
#include "launch/emulatorprofile.h"
#include "launch/profilecache.h"
#include "launch/emulatorchoice.h"
#include "app/windows/filespage.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/pathchooser.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>
#include <QLineEdit>

namespace tessera {

namespace {

QStringList foldersThatThereAre(const QStringList& folders)
{
    QStringList found;
    for (const QString& folder : folders) {
        if (QFileInfo(folder).isDir())
            found << folder;
    }
    return found;
}

} // namespace

OptionsDesk::OptionsDesk(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    m_pool.setMaxThreadCount(1);
    connect(&m_parts.preferences, &PreferencesWindow::aboutToShow, this, &OptionsDesk::show);
}

void OptionsDesk::addPages()
{
    if (m_files != nullptr)
        return;
    for (OptionPage* page : m_parts.pages.all())
        m_parts.preferences.addPage(page->identifier(), page);
    addAppearance();
    m_files = new FilesPage(m_parts.defaults, m_parts.paths);
    m_parts.preferences.supportPage().addPage(qtTrId("support_files"), m_files);
    const auto follow = [this] {
        if (m_parts.preferences.isVisible())
            show();
    };
    connect(&m_parts.profiles, &ProfileCache::answered, this, follow);
    connect(&m_parts.emulator, &EmulatorChoice::modeChanged, this, follow);
    connect(&m_parts.defaults, &DefaultsController::changed, this, [follow](const QString& name) {
        if (name.isEmpty())
            follow();
    });
    connect(&m_parts.paths, &PathChooser::chosen, this, follow);
    connect(&m_parts.emulator, &EmulatorChoice::emulatorFound, this, follow);
    // Not at every key: half a path may be another program's.
    connect(m_parts.pages.general().exeTextField, &QLineEdit::editingFinished, this, follow);
}

void OptionsDesk::addAppearance()
{
    auto* page = new AppearancePage(m_parts.defaults);
    m_parts.font.setPage(*page);
    new RowColors(m_parts.desktop, m_parts.defaults, *page, page);
    page->addLine();
    page->addRow(qtTrId("appearance_language"), new LanguageChoice(m_parts.defaults, page));
    page->addNote(qtTrId("appearance_language_note"));
    page->addStretch();
    m_parts.preferences.addPage(QStringLiteral("appearance"), page);
}

// The profile is the command-line emulator's; the other modes start something else.
void OptionsDesk::show()
{
    addPages();
    const QString emulator = m_parts.emulator.emulator();
    const auto answer = m_parts.profiles.remembered(emulator);
    if (!answer)
        m_parts.profiles.request(emulator);
    const bool isUsed = m_parts.emulator.mode() == EmulatorChoice::CommandLineMame;
    const EmulatorProfile* profile = isUsed && answer && answer->profile ? &*answer->profile : nullptr;
    for (OptionPage* page : m_parts.pages.all())
        page->fitTo(profile);
    if (profile == nullptr)
        return proposeFolders({}, {});
    const QString home = QFileInfo(emulator).path();
    proposeFolders(profile->romFolderList(home), profile->snapshotFolderList(home));
}

// Folders may lie on disks that answer late.
void OptionsDesk::proposeFolders(const QStringList& roms, const QStringList& snapshots)
{
    const QStringList all = roms + snapshots;
    if (std::exchange(m_lookedFor, all) == all)
        return;
    m_pool.start([this, all, roms, snapshots] {
        QMetaObject::invokeMethod(
            this,
            [this, all, foundRoms = foldersThatThereAre(roms), foundSnaps = foldersThatThereAre(snapshots)] {
                if (all != m_lookedFor)
                    return;
                m_parts.pages.general().romProposal->setFolders(foundRoms);
                if (m_files != nullptr)
                    m_files->snapProposal->setFolders(foundSnaps);
            },
            Qt::QueuedConnection);
    });
}

} // namespace tessera
