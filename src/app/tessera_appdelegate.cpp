#include "app/tessera_appdelegate.h"

#include "app/artworkdesk.h"
#include "app/biosdesk.h"
#include "app/cataloguerebuild.h"
#include "app/changesdesk.h"
#include "app/commandsdesk.h"
#include "app/emptystate.h"
#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/finding.h"
#include "app/helpwindow.h"
#include "app/infodesk.h"
#include "app/keycommands.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/modemenu.h"
#include "app/optionsdesk.h"
#include "app/preferenceswindow.h"
#include "app/scriptjoin.h"
#include "app/utilityjoin.h"
#include "app/windowswitching.h"
#include "bios/ui/bioslist.h"
#include "bios/ui/biospanel.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/rowcolors.h"
#include "catalogue/ui/searchfield.h"
#include "catalogue/ui/tablefont.h"
#include "favourites/ui/favouritestable.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/miscpage.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/desktop.h"
#include "platform/recentdocuments.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/utilityobject.h"
#include "widgets/deletionfocusring.h"
#include "widgets/firstpaint.h"
#include "widgets/menusearch.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>

namespace tessera {

Tessera_AppDelegate::Tessera_AppDelegate(Desktop& desktop, UserDefaults& defaults, RecentDocuments& recent,
                                         const QString& cataloguePath)
    : m_desktop(desktop)
    , m_defaults(defaults)
    , m_recent(recent)
    , m_catalogue(cataloguePath)
    , m_places(defaults)
{
    initialize();
    m_catalogue.readAhead();
}

Tessera_AppDelegate::~Tessera_AppDelegate() = default;

bool Tessera_AppDelegate::run(const QString& file)
{
    loadInterface();
    if (m_isEnding)
        return false;
    awakeFromNib();
    m_isRestored = true;
    m_mainWindow->show();
    applicationDidFinishLaunching();
    if (m_isEnding)
        return false;
    // The emulator's options are asked of it once, so that no launch waits for them.
    afterFirstPaint(*m_mainWindow, [this] {
        DeletionFocusRing::awakeFromNib(*m_mainWindow);
        m_artwork->begin();
        m_finding->prepare();
        m_launch->prepareProfile();
    });
    if (m_buildWanted)
        QTimer::singleShot(0, m_rebuild.get(), &CatalogueRebuild::build);
    application_openFile(file);
    if (const auto wanted = std::exchange(m_wanted, std::nullopt))
        comeForward(*wanted);
    return !m_isEnding;
}

void Tessera_AppDelegate::initialize()
{
    m_defaults.setInitialValues(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                                QDir::homePath());
    m_defaults.defaults().synchronize();
}

void Tessera_AppDelegate::randomForMini()
{
    m_gameList->gameShuffle();
    m_mini->setGame(m_gameList->tableViewSelectionROM());
}

void Tessera_AppDelegate::openCatalogue()
{
    QDir().mkpath(applicationSupportFolder());
    const auto opened = m_catalogue.open();
    if (opened)
        return;
    const Recovery recovery{qtTrId("rebuild_from_mame"), [this] { return m_buildWanted = true; }};
    m_desktop.presentError(opened.error().text(), qtTrId("rebuild_offer"), {recovery});
}

void Tessera_AppDelegate::awakeFromNib()
{
    m_preferencesWindow->centre();
    m_pages->misc().switchRecordingOff();
    m_launch->LaunchemuPopAction();
    m_mainWindow->restore();
    m_artwork->folder().Setsnapfolder();
    m_gameList->main_tableViewSort();
    m_favorites->awakeFromNib();
    m_artwork->aspect().snapviewAction();
}

void Tessera_AppDelegate::applicationDidFinishLaunching()
{
    m_launch->LaunchemuCheck();
    showEmulator();
    m_mainWindow->offerRebuild(m_rebuild->isOutdated());
}

QString Tessera_AppDelegate::applicationSupportFolder() const
{
    return QFileInfo(m_catalogue.path()).absolutePath();
}

QUndoStack* Tessera_AppDelegate::windowWillReturnUndoManager()
{
    return &m_catalogue.undoStack();
}

bool Tessera_AppDelegate::application_openFile(const QString& path)
{
    if (path.isEmpty())
        return false;
    m_launch->Launchusing(path);
    return true;
}

QAction* Tessera_AppDelegate::findMenuItemNamed(const QString& title) const
{
    return tessera::findMenuItemNamed(title, m_mainWindow->menuBar());
}

void Tessera_AppDelegate::comeForward(const QString& file)
{
    if (m_isEnding)
        return;
    if (!m_isRestored) {
        // A file is not forgotten because the program is started once more without one.
        if (!m_wanted || !file.isEmpty())
            m_wanted = file;
        return;
    }
    m_switching->comeForward();
    application_openFile(file);
}

void Tessera_AppDelegate::showSelection()
{
    FactsPanel& facts = *m_mainWindow->factsPanel;
    const GameRecord* record = m_gameList->selectedRecord();
    facts.showRecord(record, m_gameList->selectedCount());
    const auto first = m_gameList->firstSelected();
    facts.showHave(first ? m_finding->finder().haveOf(*first) : std::nullopt, record);
}

void Tessera_AppDelegate::showCount()
{
    m_mainWindow->setRomsMissing(romsMissing());
    m_mainWindow->showCount(m_gameList->list().size(), m_catalogue.records().size(),
                            m_finding->finder().reasons());
}

// What was asked for is in no folder, as nobody has chosen one.
bool Tessera_AppDelegate::romsMissing()
{
    return m_finding->finder().chip() == Chip::HaveRom && m_mainWindow->searchField->text().isEmpty()
        && m_defaults.defaults().string(keys::RomsPath.name).isEmpty();
}

// An empty catalogue is built, an empty list shows everything again.
void Tessera_AppDelegate::actOnEmptyList()
{
    if (m_catalogue.records().empty())
        rebuildCatalogue();
    else if (romsMissing())
        selectROMfolder();
    else
        showAllGames();
}

void Tessera_AppDelegate::settingChanged(const QString& name)
{
    if (name.isEmpty() || name == keys::ExecutionPath.name)
        showEmulator();
    if (name == keys::BuiltFrom.name)
        m_mainWindow->offerRebuild(m_rebuild->isOutdated());
    // Its command line is made from the settings.
    m_favorites->editing().showSelection();
}

void Tessera_AppDelegate::showEmulator()
{
    const QString emulator = m_pages->general().emulator();
    m_mainWindow->showEmulator(emulator.isEmpty() ? qtTrId("main_no_emulator") : emulator);
}

QString Tessera_AppDelegate::emulator()
{
    m_pages->general().lookForEmulator();
    return m_pages->general().emulator();
}

void Tessera_AppDelegate::terminate()
{
    if (!applicationShouldTerminate() || std::exchange(m_isEnding, true))
        return;
    applicationWillTerminate();
    // Not quit(): that would close the windows, which ask for the end of the program again.
    QCoreApplication::exit(0);
}

bool Tessera_AppDelegate::applicationShouldTerminate()
{
    m_editing->commitEditing();
    const bool quits = m_gameList->commitEditing() && m_launch->confirmQuit()
        && (!m_utility || m_utility->mayBeAbandoned()) && saveBeforeQuitting();
    // Whatever the answer.
    forgetRecording();
    return quits;
}

void Tessera_AppDelegate::saveForSessionEnd()
{
    if (!m_isRestored)
        return;
    m_editing->commitEditing();
    m_gameList->commitEditing();
    if (m_catalogue.hasChanges()) {
        const auto saved = m_catalogue.save();
        if (!saved)
            m_desktop.log(saved.error().text());
        else
            logKept(*saved);
    }
    m_favorites->controller().saveFavorites();
}

void Tessera_AppDelegate::endWithSession()
{
    // Told again while a game is still ending; it is waited for once, and to its end.
    if (std::exchange(m_isEnding, true))
        return;
    saveForSessionEnd();
    forgetRecording();
    // What was not restored yet stays stored as it was.
    if (m_isRestored)
        applicationWillTerminate();
    QCoreApplication::exit(0);
}

// Recording and replay never stay switched on into the next run.
void Tessera_AppDelegate::forgetRecording()
{
    m_defaults.setFlag(keys::Movierecord, false);
    m_defaults.setFlag(keys::Replaymove, false);
    m_defaults.defaults().synchronize();
}

// At the end nobody would see it in the status line.
void Tessera_AppDelegate::logKept(const QString& copy)
{
    if (!copy.isEmpty())
        m_desktop.log(Failure{"catalogue_saved_kept", {copy}}.text());
}

bool Tessera_AppDelegate::saveBeforeQuitting()
{
    if (!m_catalogue.hasChanges())
        return true;
    const auto saved = m_catalogue.save();
    if (saved) {
        logKept(*saved);
        return true;
    }
    if (m_desktop.presentError(saved.error().text(), QString(), {}))
        return false;
    Alert alert;
    alert.message = qtTrId("quit_unsaved_message");
    alert.buttons = {qtTrId("quit_anyway"), qtTrId("cancel")};
    alert.style = Alert::Style::Warning;
    return m_desktop.runAlert(alert) == 0;
}

void Tessera_AppDelegate::applicationWillTerminate()
{
    m_rebuild->cancel();
    m_favorites->controller().saveFavorites();
    m_mainWindow->remember();
    m_favorites->remember();
    m_places.remember();
    m_defaults.defaults().synchronize();
    // Before what takes its time: another start need not wait for it, and would find nobody at home.
    Q_EMIT everythingIsSaved();
    m_launch->stopAndWait();
}

} // namespace tessera
