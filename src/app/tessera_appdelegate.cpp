#include "app/tessera_appdelegate.h"

#include "app/program.h"
#include "launch/storedoptions.h"
#include "platform/desktop.h"
#include "platform/recentdocuments.h"
#include "widgets/deletionfocusring.h"
#include "widgets/firstpaint.h"
#include "widgets/menusearch.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QMenuBar>
#include <QTimer>

namespace tessera {

Tessera_AppDelegate::Tessera_AppDelegate(Desktop& desktop, DefaultsController& defaults,
                                         RecentDocuments& recent, const QString& cataloguePath)
    : m_desktop(desktop)
    , m_defaults(defaults)
    , m_recent(recent)
    , m_catalogue(cataloguePath)
{
    initialize();
    m_catalogue.readAhead();
}

Tessera_AppDelegate::~Tessera_AppDelegate() = default;

bool Tessera_AppDelegate::run(const QString& file)
{
    loadInterface();
    openCatalogue();
    if (m_isEnding)
        return false;
    awakeFromNib();
    m_isRestored = true;
    m_program->mainWindow.show();
    applicationDidFinishLaunching();
    if (m_isEnding)
        return false;
    connect(new FirstPaint(m_program->mainWindow), &FirstPaint::passed, this,
            &Tessera_AppDelegate::beginAfterFirstPaint);
    if (m_buildWanted)
        QTimer::singleShot(0, &m_program->rebuild, &CatalogueRebuild::build);
    application_openFile(file);
    if (const auto wanted = std::exchange(m_wanted, std::nullopt))
        comeForward(*wanted);
    return !m_isEnding;
}

void Tessera_AppDelegate::initialize()
{
    m_defaults.setInitialValues(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                                QDir::homePath());
    m_defaults.flush();
}

void Tessera_AppDelegate::loadInterface()
{
    m_program = std::make_unique<Program>(Program::Ground{m_desktop, m_defaults, m_recent, m_catalogue});
    connect(m_program.get(), &Program::quitRequested, this, &Tessera_AppDelegate::terminate);
    connect(m_program.get(), &Program::openRequested, this, &Tessera_AppDelegate::application_openFile);
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
    Program& program = *m_program;
    program.preferences.centre();
    switchRecordingOff(m_defaults);
    program.launches.LaunchemuPopAction();
    program.mainWindow.restore();
    program.artwork.folder().Setsnapfolder();
    program.gameList.main_tableViewSort();
    program.favorites.awakeFromNib();
    program.artwork.aspect().snapviewAction();
}

void Tessera_AppDelegate::applicationDidFinishLaunching()
{
    m_program->launches.LaunchemuCheck();
    m_program->mainDesk.showEmulator();
    m_program->mainDesk.offerRebuild();
}

void Tessera_AppDelegate::beginAfterFirstPaint()
{
    DeletionFocusRing::awakeFromNib(m_program->mainWindow);
    m_program->artwork.begin();
    m_program->finding.prepare();
    // The emulator's options are asked of it once, so that no launch waits for them.
    m_program->launches.prepareProfile();
}

QString Tessera_AppDelegate::applicationSupportFolder() const
{
    return QFileInfo(m_catalogue.path()).absolutePath();
}

QUndoStack* Tessera_AppDelegate::windowWillReturnUndoManager()
{
    return &m_catalogue.undoStack();
}

QAction* Tessera_AppDelegate::findMenuItemNamed(const QString& title) const
{
    return tessera::findMenuItemNamed(title, m_program->mainWindow.menuBar());
}

bool Tessera_AppDelegate::application_openFile(const QString& path)
{
    if (path.isEmpty())
        return false;
    m_program->launches.Launchusing(path);
    return true;
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
    m_program->switching.comeForward();
    application_openFile(file);
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
    m_program->saving.commitEditing();
    const bool quits = m_program->launches.confirmQuit() && m_program->utility.mayBeAbandoned()
        && m_program->saving.saveBeforeQuitting();
    // Whatever the answer.
    switchRecordingOff(m_defaults);
    m_defaults.flush();
    return quits;
}

void Tessera_AppDelegate::saveForSessionEnd()
{
    if (!m_isRestored)
        return;
    m_program->saving.saveForSessionEnd();
    m_program->favorites.controller().saveFavorites();
}

void Tessera_AppDelegate::endWithSession()
{
    // Told again while a game is still ending; it is waited for once, and to its end.
    if (std::exchange(m_isEnding, true))
        return;
    saveForSessionEnd();
    switchRecordingOff(m_defaults);
    m_defaults.flush();
    // What was not restored yet stays stored as it was.
    if (m_isRestored)
        applicationWillTerminate();
    QCoreApplication::exit(0);
}

void Tessera_AppDelegate::applicationWillTerminate()
{
    m_program->rebuild.cancel();
    m_program->favorites.controller().saveFavorites();
    m_program->mainWindow.remember();
    m_program->favorites.remember();
    m_program->windows.places().remember();
    m_defaults.flush();
    // Before what takes its time: another start need not wait for it, and would find nobody at home.
    Q_EMIT everythingIsSaved();
    m_program->launches.stopAndWait();
}

} // namespace tessera
