#include "app/tessera_appdelegate.h"

#include "app/biosdesk.h"
#include "app/cataloguerebuild.h"
#include "bios/ui/bioslist.h"
#include "bios/ui/biospanel.h"
#include "app/emptystate.h"
#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/finding.h"
#include "app/infodesk.h"
#include "app/keycommands.h"
#include "app/keytable.h"
#include "app/mainmenu.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/miniwindow.h"
#include "app/preferenceswindow.h"
#include "app/rebuildstrip.h"
#include "app/windowswitching.h"
#include "catalogue/ui/appearancepage.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "catalogue/ui/rowcolors.h"
#include "catalogue/ui/tablefont.h"
#include "favourites/ui/favouriteeditor.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/miscpage.h"
#include "launch/ui/optionpage.h"
#include "launch/ui/pathchooser.h"
#include "platform/desktop.h"
#include "platform/recentdocuments.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"
#include "widgets/bringforward.h"
#include "widgets/menusearch.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

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

void Tessera_AppDelegate::run(const QString& file)
{
    loadInterface();
    awakeFromNib();
    m_mainWindow->show();
    applicationDidFinishLaunching();
    // After the first paint: the emulator's options, asked of it once, so that no launch waits for them.
    QTimer::singleShot(0, m_finding.get(), &Finding::prepare);
    QTimer::singleShot(0, m_launch.get(), &LaunchController::prepareProfile);
    if (m_buildWanted)
        QTimer::singleShot(0, m_rebuild.get(), &CatalogueRebuild::build);
    application_openFile(file);
}

void Tessera_AppDelegate::initialize()
{
    m_defaults.setInitialValues(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(),
                                QDir::homePath());
    m_defaults.defaults().synchronize();
}

void Tessera_AppDelegate::loadInterface()
{
    m_mainWindow = std::make_unique<MainWindow>(m_defaults);
    fillMainMenu(*m_mainWindow->menuBar(), *this);
    // Here it costs least: the main window's widgets take it together, the others when they are first shown.
    theme::applyStyleSheet(*qApp);
    m_logWindow = std::make_unique<LogWindow>();
    m_preferencesWindow = std::make_unique<PreferencesWindow>();
    m_pages = std::make_unique<LaunchPages>(m_defaults, [] { return findEmulator(); });
    m_chooser = std::make_unique<PathChooser>(m_desktop, m_defaults, *m_pages);
    m_pages->general().setChooser(*m_chooser);
    for (OptionPage* page : m_pages->all())
        m_preferencesWindow->addPage(page, page->title(), page->icon());
    addAppearancePage();

    m_gameList = std::make_unique<GameListController>(m_catalogue, m_desktop, m_defaults);
    m_gameList->setTable(m_mainWindow->gameTable);
    m_task = std::make_unique<EmulatorTask>();
    m_profiles = std::make_unique<ProfileCache>();
    // Before the editing: what a search keeps of the records follows a removal first.
    m_finding = std::make_unique<Finding>(*m_mainWindow, m_catalogue, *m_gameList, m_defaults, *m_profiles,
                                          [this] { return m_pages->general().emulator(); });
    m_editing = std::make_unique<RecordEditing>(m_catalogue, m_desktop, *m_gameList);
    m_launch = std::make_unique<LaunchController>(LaunchParts{
        m_desktop, m_defaults, *m_pages, *m_chooser, *m_logWindow, *m_task, *m_profiles,
        SelectionReaders{[this] { return m_gameList->tableViewSelectionROM(); },
                         [this] { return m_gameList->tableViewSelectionTitleE(); },
                         [this] { return m_gameList->tableViewSelectionTitleJ(); }},
        [this](const QString& name) { return m_favorites->controller().search_priorityOption(name); }});
    m_favorites = std::make_unique<FavoritesDesk>(
        m_desktop, m_defaults, m_catalogue, *m_gameList,
        [this](const QString& name) { return m_launch->shownCommandLine(name); });
    m_mini = std::make_unique<MiniDesk>(m_catalogue, m_finding->finder(), m_defaults);
    m_switching = std::make_unique<WindowSwitching>(*m_mainWindow, m_mini->window(), m_favorites->window(),
                                                    [this] { m_gameList->tableViewSelectionDidChange(); });
    m_rebuild = std::make_unique<CatalogueRebuild>(
        m_catalogue, m_desktop, m_defaults, *m_mainWindow->rebuildStrip, [this] { return emulator(); },
        [this] { m_chooser->exeSelect(); });
    m_keyCommands
        = std::make_unique<KeyCommands>(keyTable(*this), [this](const QString& game) { runGame(game); });
    keepWindowPlaces();
    joinRooms();
    joinViews();
    joinInfo();
    openCatalogue();
}

void Tessera_AppDelegate::addAppearancePage()
{
    auto* page = new AppearancePage(m_defaults);
    m_preferencesWindow->addPage(page, qtTrId("page_appearance"), QStringLiteral("appearance"));
    m_tableFont = std::make_unique<TableFont>(m_desktop, m_defaults, *page);
    m_rowColors = std::make_unique<RowColors>(m_desktop, m_defaults, *page);
}

void Tessera_AppDelegate::joinRooms()
{
    connect(m_gameList.get(), &GameListController::launchRequested, m_launch.get(),
            &LaunchController::Launchusing);
    connect(m_gameList.get(), &GameListController::selectionChanged, this,
            &Tessera_AppDelegate::showSelection);
    connect(m_gameList.get(), &GameListController::markChanged, m_mainWindow->factsPanel,
            &FactsPanel::showMark);
    connect(m_gameList.get(), &GameListController::countChanged, this, &Tessera_AppDelegate::showCount);
    connect(&m_catalogue, &Catalogue::recordChanged, this, &Tessera_AppDelegate::showSelection);
    connect(m_launch.get(), &LaunchController::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_launch.get(), &LaunchController::runningChanged, m_mainWindow.get(), &MainWindow::setRunning);
    connect(m_chooser.get(), &PathChooser::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(&m_defaults, &DefaultsController::changed, this, &Tessera_AppDelegate::settingChanged);
    connect(m_chooser.get(), &PathChooser::chosen, m_launch.get(), &LaunchController::prepareProfile);
    connect(&m_pages->general(), &GeneralPage::emulatorFound, m_launch.get(),
            &LaunchController::prepareProfile);
    connect(&m_pages->general(), &GeneralPage::emulatorFound, this, &Tessera_AppDelegate::showEmulator);
    connect(m_tableFont.get(), &TableFont::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_rebuild.get(), &CatalogueRebuild::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_rebuild.get(), &CatalogueRebuild::runningChanged, m_mainWindow.get(),
            &MainWindow::setRebuilding);
    connect(m_rebuild.get(), &CatalogueRebuild::runningChanged, m_editing.get(),
            [this](bool running) { m_editing->setEnabled(!running); });
    connect(m_rebuild.get(), &CatalogueRebuild::runningChanged, m_gameList->model(),
            &GameTableModel::setLocked);
    connect(m_rebuild.get(), &CatalogueRebuild::runningChanged, m_mainWindow.get(),
            [this](bool running) { m_mainWindow->offerRebuild(!running && m_rebuild->isOutdated()); });

    connect(m_mainWindow.get(), &MainWindow::closeRequested, this, &Tessera_AppDelegate::terminate);
    connect(m_mainWindow->gameTable, &GameTableView::doubleAction, m_gameList.get(),
            &GameListController::tableViewDoubleAction);
    connect(m_finding.get(), &Finding::changed, this, &Tessera_AppDelegate::showCount);
    connect(m_finding.get(), &Finding::changed, this, &Tessera_AppDelegate::showSelection);
    connect(m_mainWindow->randomButton, &QToolButton::clicked, m_gameList.get(),
            &GameListController::gameShuffle);
    connect(m_mainWindow->emptyState, &EmptyState::acted, this, &Tessera_AppDelegate::actOnEmptyList);
    connect(m_mainWindow->playButton, &QPushButton::clicked, this, &Tessera_AppDelegate::playSelected);
    connect(m_mainWindow->stopButton, &QToolButton::clicked, this, &Tessera_AppDelegate::stopGame);
    connect(m_mainWindow->logButton, &QToolButton::clicked, this, &Tessera_AppDelegate::showLogWindow);
    connect(m_mainWindow->toolsButton, &QToolButton::clicked, this, &Tessera_AppDelegate::utilityOrderFront);
    connect(m_mainWindow->preferencesButton, &QToolButton::clicked, this,
            &Tessera_AppDelegate::showPrefsWindow);
    connect(m_mainWindow->rebuildButton, &QPushButton::clicked, this, &Tessera_AppDelegate::rebuildCatalogue);
    connect(m_preferencesWindow->resetButton, &QPushButton::clicked, this,
            &Tessera_AppDelegate::DefaultAction);
    connect(m_launch.get(), &LaunchController::launchModeChanged, this, &Tessera_AppDelegate::Setwindowtitle);
}

void Tessera_AppDelegate::joinViews()
{
    connect(m_launch.get(), &LaunchController::started, &m_favorites->played(),
            &PlayedController::notePlayed);
    connect(&m_finding->roms(), &RomWatcher::changed, &m_favorites->controller(),
            [this] { m_favorites->controller().setRomFolders(m_finding->roms().folders()); });
    connect(m_favorites.get(), &FavoritesDesk::launchRequested, m_launch.get(),
            &LaunchController::Launchusing);
    connect(m_favorites.get(), &FavoritesDesk::mainWanted, this, &Tessera_AppDelegate::windowMain);
    connect(m_favorites.get(), &FavoritesDesk::miniWanted, this, &Tessera_AppDelegate::windowMini);
    connect(m_mainWindow->favoritesButton, &QToolButton::clicked, this,
            &Tessera_AppDelegate::windowFavorites);
    FavoritesWindow& favorites = m_favorites->window();
    favorites.takeMenus(*m_mainWindow->menuBar());
    connect(favorites.stopButton, &QToolButton::clicked, this, &Tessera_AppDelegate::stopGame);
    connect(m_launch.get(), &LaunchController::runningChanged, &favorites, &FavoritesWindow::setRunning);
    connect(m_launch.get(), &LaunchController::statusMessage, &favorites, &FavoritesWindow::say);

    MiniWindow& mini = m_mini->window();
    connect(&mini, &MiniWindow::playRequested, this, [this] { runGame(m_mini->game()); });
    connect(mini.randomButton, &QToolButton::clicked, this, &Tessera_AppDelegate::randomForMini);
    connect(mini.mainButton, &QToolButton::clicked, this, &Tessera_AppDelegate::windowMain);
    connect(&mini, &TransparentWindow::orderedOut, this, &Tessera_AppDelegate::windowMain);
    // Without a menu bar of its own a window still takes the menus' keys.
    for (QWidget* window : std::initializer_list<QWidget*>{&mini, m_logWindow.get()})
        carryMenuKeys(*m_mainWindow->menuBar(), *window);

    // For as long as there are menus: a stack's own end, too, tells that there is nothing left to undo.
    QObject* keys = m_keyCommands.get();
    const auto follow = [this] { followUndo(); };
    connect(m_keyCommands.get(), &KeyCommands::keyWindowChanged, keys, follow);
    for (QUndoStack* stack : {&m_catalogue.undoStack(), &m_favorites->favourites().undoStack()}) {
        connect(stack, &QUndoStack::canUndoChanged, keys, follow);
        connect(stack, &QUndoStack::canRedoChanged, keys, follow);
    }
    followUndo();
}

void Tessera_AppDelegate::joinInfo()
{
    m_info = std::make_unique<InfoDesk>(*this, m_desktop, m_defaults,
                                        [this](HistoryWindow& window) { takeHistoryWindow(window); });
    m_info->addContextMenus();
    connect(m_info.get(), &InfoDesk::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_chooser.get(), &PathChooser::chosen, m_info.get(), &InfoDesk::pathChosen);
    m_bios = std::make_unique<BiosDesk>([this](BiosPanel& panel) { return takeBiosPanel(panel); });
}

void Tessera_AppDelegate::takeHistoryWindow(HistoryWindow& window)
{
    m_places.keep(window, keys::HistoryWindowGeometry.name.data());
    carryMenuKeys(*m_mainWindow->menuBar(), window);
    m_keyCommands->add(historyRow(*this, window));
}

BiosParts Tessera_AppDelegate::takeBiosPanel(BiosPanel& panel)
{
    m_places.keep(panel, keys::BiosPanelGeometry.name.data());
    carryMenuKeys(*m_mainWindow->menuBar(), panel);
    return {m_desktop,
            m_defaults,
            panel,
            *m_pages->misc().biosPop,
            applicationSupportFolder() + QStringLiteral("/bioslist.xml"),
            [this] { return emulator(); },
            [this] { return m_gameList->tableViewSelectionROM(); }};
}

KeyWindow::Kind Tessera_AppDelegate::keyWindow() const
{
    return m_keyCommands->keyWindow();
}

// Undo and Redo are dim while there is nothing to undo or redo in the key window.
void Tessera_AppDelegate::followUndo()
{
    const QUndoStack& stack = *m_keyCommands->undoStack();
    const QMenuBar& bar = *m_mainWindow->menuBar();
    bar.findChild<QAction*>(QStringLiteral("menu_undo"))->setEnabled(stack.canUndo());
    bar.findChild<QAction*>(QStringLiteral("menu_redo"))->setEnabled(stack.canRedo());
}

void Tessera_AppDelegate::randomForMini()
{
    m_gameList->gameShuffle();
    m_mini->setGame(m_gameList->tableViewSelectionROM());
}

UtilityObject& Tessera_AppDelegate::utility()
{
    if (!m_utility) {
        m_utility = std::make_unique<UtilityObject>(m_desktop, m_defaults);
        connect(m_utility.get(), &UtilityObject::statusMessage, m_mainWindow.get(), &MainWindow::say);
        m_places.keep(m_utility->utilityWindow(), keys::UtilityWindowGeometry.name.data());
    }
    return *m_utility;
}

void Tessera_AppDelegate::keepWindowPlaces()
{
    m_places.keep(m_favorites->window(), keys::FavoritesWindowGeometry.name.data());
    m_places.keep(m_mini->window(), keys::MiniWindowGeometry.name.data());
    m_places.keep(*m_logWindow, keys::LogWindowGeometry.name.data());
    m_places.keep(m_editing->editor(), keys::RecordEditorGeometry.name.data());
    m_places.keep(m_favorites->editing().editor(), keys::FavoritesEditorGeometry.name.data());
    m_places.keep(m_finding->panel(), keys::FilterPanelGeometry.name.data());
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
    m_gameList->main_tableViewSort();
    m_favorites->awakeFromNib();
    m_mini->awakeFromNib();
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
    windowMain();
    application_openFile(file);
}

void Tessera_AppDelegate::showSelection()
{
    FactsPanel& facts = *m_mainWindow->factsPanel;
    const GameRecord* record = m_gameList->selectedRecord();
    facts.showRecord(record, m_gameList->selectedCount());
    facts.showHave(
        record != nullptr ? m_finding->finder().haveOf(*m_gameList->firstSelected()) : std::nullopt, record);
}

void Tessera_AppDelegate::showCount()
{
    m_mainWindow->showCount(m_gameList->list().size(), m_catalogue.records().size(),
                            m_finding->finder().reasons());
}

// An empty catalogue is built, an empty list shows everything again.
void Tessera_AppDelegate::actOnEmptyList()
{
    if (m_catalogue.records().empty())
        rebuildCatalogue();
    else
        showAllGames();
}

void Tessera_AppDelegate::settingChanged(const QString& name)
{
    if (name.isEmpty() || name == keys::ExecutionPath.name)
        showEmulator();
    if (name == keys::BuiltFrom.name)
        m_mainWindow->offerRebuild(m_rebuild->isOutdated());
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

// The commands

void Tessera_AppDelegate::saveAction()
{
    if (const auto saved = m_catalogue.save(); !saved)
        m_desktop.presentError(saved.error().text(), QString(), {});
}

void Tessera_AppDelegate::undo()
{
    if (m_rebuild->isRunning())
        return;
    m_favorites->controller().commitEditing();
    m_keyCommands->undoStack()->undo();
}

void Tessera_AppDelegate::redo()
{
    if (m_rebuild->isRunning())
        return;
    m_favorites->controller().commitEditing();
    m_keyCommands->undoStack()->redo();
}

void Tessera_AppDelegate::editCell()
{
    if (!m_rebuild->isRunning())
        m_mainWindow->gameTable->edit(m_mainWindow->gameTable->currentIndex());
}

void Tessera_AppDelegate::copySelection()
{
    QWidget* focused = QApplication::focusWidget();
    if (auto* text = qobject_cast<QPlainTextEdit*>(focused))
        text->copy();
    else if (auto* label = qobject_cast<QLabel*>(focused); label != nullptr && label->hasSelectedText())
        QGuiApplication::clipboard()->setText(label->selectedText());
    else if (m_mainWindow->isActiveWindow())
        m_mainWindow->gameTable->copySelection();
}

void Tessera_AppDelegate::showPredicatePanel()
{
    m_finding->showPredicatePanel();
}

void Tessera_AppDelegate::focusSearch()
{
    if (m_info->isKey())
        m_info->window().findField->setFocus(Qt::ShortcutFocusReason);
    else
        m_finding->focusSearch();
}

void Tessera_AppDelegate::showAllGames()
{
    m_finding->showAll();
}

void Tessera_AppDelegate::editRecord()
{
    if (m_keyCommands->keyWindow() == KeyWindow::Kind::Favorites)
        m_favorites->editing().editRecord();
    else
        m_editing->editRecord();
}

void Tessera_AppDelegate::removeRecord()
{
    m_gameList->commitEditing();
    m_editing->commitEditing();
    m_editing->removeRecord();
}

void Tessera_AppDelegate::mameslotAction()
{
    m_keyCommands->mameslotAction();
}

void Tessera_AppDelegate::scrollsHomeAction()
{
    m_keyCommands->scrollsHomeAction();
}

void Tessera_AppDelegate::scrollsEndAction()
{
    m_keyCommands->scrollsEndAction();
}

void Tessera_AppDelegate::openROMfile()
{
    m_gameList->openROMfile();
}

void Tessera_AppDelegate::rebuildCatalogue()
{
    m_gameList->commitEditing();
    m_editing->commitEditing();
    m_rebuild->rebuild();
}

void Tessera_AppDelegate::menuRun()
{
    m_keyCommands->menuRun();
}

void Tessera_AppDelegate::runGame(const QString& game)
{
    if (game.isEmpty())
        m_desktop.beep();
    else
        m_launch->Launchusing(game);
}

void Tessera_AppDelegate::removeOfKeyWindow()
{
    m_keyCommands->remove();
}

void Tessera_AppDelegate::saveOfKeyWindow()
{
    m_keyCommands->save();
}

void Tessera_AppDelegate::saveFavoritesNow()
{
    m_favorites->controller().saveFavoritesNow();
}

void Tessera_AppDelegate::addFavorite()
{
    m_favorites->controller().addFavorite();
}

void Tessera_AppDelegate::clearPlayed()
{
    m_favorites->played().clearPlayed();
}

void Tessera_AppDelegate::playSelected()
{
    m_gameList->tableViewDoubleAction();
}

void Tessera_AppDelegate::stopGame()
{
    m_launch->stopProcess();
}

void Tessera_AppDelegate::selectExefile()
{
    m_chooser->selectExefile();
}

void Tessera_AppDelegate::selectROMfolder()
{
    m_chooser->selectROMfolder();
}

void Tessera_AppDelegate::saveLogAction()
{
    m_launch->saveLogAction();
}

void Tessera_AppDelegate::windowMain()
{
    m_switching->windowMain();
}

void Tessera_AppDelegate::windowFavorites()
{
    m_switching->windowFavorites();
}

void Tessera_AppDelegate::windowMini()
{
    m_switching->windowMini();
}

void Tessera_AppDelegate::showLogWindow()
{
    m_launch->showLogWindow();
}

void Tessera_AppDelegate::windowLog()
{
    m_launch->windowLog();
}

void Tessera_AppDelegate::showPrefsWindow()
{
    if (m_preferencesWindow->isVisible()) {
        m_preferencesWindow->close();
        return;
    }
    m_info->addPage(*m_preferencesWindow);
    bringForward(*m_preferencesWindow);
}

void Tessera_AppDelegate::utilityOrderFront()
{
    utility().utilityOrderFront();
}

void Tessera_AppDelegate::showHistoryinfo()
{
    m_info->showHistoryinfo();
}

void Tessera_AppDelegate::searchHistoryinfo()
{
    m_info->searchHistoryinfo();
}

void Tessera_AppDelegate::openROMinfo()
{
    m_info->openROMinfo();
}

void Tessera_AppDelegate::ViewBiosList()
{
    m_bios->list().ViewBiosList();
}

void Tessera_AppDelegate::makeTextBigger()
{
    if (m_info->isKey())
        m_info->history().makeTextBigger();
    else
        m_tableFont->makeTextBigger();
}

void Tessera_AppDelegate::makeTextSmaller()
{
    if (m_info->isKey())
        m_info->history().makeTextSmaller();
    else
        m_tableFont->makeTextSmaller();
}

void Tessera_AppDelegate::showFontPanel1()
{
    m_tableFont->showFontPanel1();
}

void Tessera_AppDelegate::DefaultAction()
{
    m_mainWindow->setBusy(true);
    m_defaults.revertToInitialValues();
    Q_EMIT defaultAction();
    m_launch->LaunchemuPopAction();
    m_logWindow->infomationTextView->replace(qtTrId("preferences_ini"));
    m_mainWindow->setBusy(false);
    m_desktop.playSound(QStringLiteral("Tink"));
}

void Tessera_AppDelegate::Setwindowtitle()
{
    m_mainWindow->setWindowTitle(QStringLiteral("Tessera  |  ")
                                 + m_pages->general().launchusingPop->currentText());
    m_mini->window().setEmulator(m_pages->general().launchusingPop->currentText());
}

void Tessera_AppDelegate::terminate()
{
    if (!applicationShouldTerminate())
        return;
    applicationWillTerminate();
    // Not quit(): that would close the windows, which ask for the end of the program again.
    QCoreApplication::exit(0);
}

bool Tessera_AppDelegate::applicationShouldTerminate()
{
    m_editing->commitEditing();
    const bool quits = m_gameList->commitEditing() && m_launch->confirmQuit() && saveBeforeQuitting();
    // Whatever the answer: recording and replay never stay switched on into the next run.
    m_defaults.setFlag(keys::Movierecord, false);
    m_defaults.setFlag(keys::Replaymove, false);
    m_defaults.defaults().synchronize();
    return quits;
}

bool Tessera_AppDelegate::saveBeforeQuitting()
{
    if (!m_catalogue.hasChanges())
        return true;
    const auto saved = m_catalogue.save();
    if (saved)
        return true;
    if (m_desktop.presentError(saved.error().text(), QString(), {}))
        return false;
    Alert alert;
    alert.message = QStringLiteral("Could not save changes while quitting. Quit anyway?");
    alert.buttons = {QStringLiteral("Quit anyway"), QStringLiteral("Cancel")};
    alert.style = Alert::Style::Warning;
    return m_desktop.runAlert(alert) == 0;
}

void Tessera_AppDelegate::applicationWillTerminate()
{
    m_rebuild->cancel();
    m_launch->stopProcess();
    m_favorites->controller().saveFavorites();
    m_mainWindow->remember();
    m_favorites->window().remember();
    m_places.remember();
    m_defaults.defaults().synchronize();
}

} // namespace tessera
