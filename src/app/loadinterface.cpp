// The hub's start: rooms and windows are built, and joined with each other.

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
#include "app/keytable.h"
#include "app/mainmenu.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/miniwindow.h"
#include "app/modemenu.h"
#include "app/optionsdesk.h"
#include "app/opengame.h"
#include "app/preferenceswindow.h"
#include "app/rebuildstrip.h"
#include "app/scriptjoin.h"
#include "app/sidepanel.h"
#include "app/utilityjoin.h"
#include "app/windowswitching.h"
#include "artwork/ui/imagewindow.h"
#include "bios/ui/bioslist.h"
#include "bios/ui/biospanel.h"
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
#include "favourites/ui/favouritestable.h"
#include "favourites/ui/favouriteeditor.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "launch/emulatorfinder.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/miscpage.h"
#include "launch/ui/optionpage.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/desktop.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"
#include "widgets/calmwheel.h"
#include "widgets/deletionfocusring.h"
#include "widgets/filedrop.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QComboBox>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

void Tessera_AppDelegate::loadInterface()
{
    new CalmWheel(this);
    m_mainWindow = std::make_unique<MainWindow>(m_defaults);
    fillMainMenu(*m_mainWindow->menuBar(), *this);
    // Here it costs least: the main window's widgets take it together, the others when they are first shown.
    theme::applyStyleSheet(*qApp);
    m_logWindow = std::make_unique<LogWindow>();
    m_preferencesWindow = std::make_unique<PreferencesWindow>();
    m_pages = std::make_unique<LaunchPages>(m_defaults, [] { return findEmulator(); });
    m_chooser = std::make_unique<PathChooser>(m_desktop, m_defaults, *m_pages);
    m_pages->setChooser(*m_chooser);
    for (OptionPage* page : m_pages->all())
        m_preferencesWindow->addPage(page->identifier(), page);
    addAppearancePage();

    m_gameList = std::make_unique<GameListController>(m_catalogue, m_desktop, m_defaults);
    m_gameList->setTable(m_mainWindow->gameTable);
    m_task = std::make_unique<EmulatorTask>(m_desktop);
    m_profiles = std::make_unique<ProfileCache>();
    // Before the editing: what a search keeps of the records follows a removal first.
    m_finding = std::make_unique<Finding>(*m_mainWindow, m_catalogue, *m_gameList, m_defaults, *m_profiles,
                                          [this] { return m_pages->general().emulator(); });
    m_editing = std::make_unique<RecordEditing>(m_catalogue, m_desktop, *m_gameList);
    m_runs = std::make_unique<RunController>(m_desktop, m_defaults, *m_logWindow, *m_task);
    m_launch = std::make_unique<LaunchController>(LaunchParts{
        m_desktop, m_defaults, *m_pages, *m_chooser, *m_task, *m_runs, *m_profiles,
        SelectionReaders{[this] { return m_gameList->tableViewSelectionROM(); },
                         [this] { return m_gameList->tableViewSelectionTitleE(); },
                         [this] { return m_gameList->tableViewSelectionTitleJ(); }},
        [this](const QString& name) { return m_favorites->controller().search_priorityOption(name); }});
    m_favorites = std::make_unique<FavoritesDesk>(
        m_desktop, m_defaults, m_catalogue, *m_gameList,
        [this](const QString& name) { return m_launch->shownCommandLine(name); });
    m_mini = std::make_unique<MiniDesk>(m_catalogue, m_finding->finder(), m_defaults);
    m_switching = std::make_unique<WindowSwitching>(
        *m_mainWindow, [this]() -> QWidget& { return m_mini->window(); },
        [this]() -> QWidget& { return m_favorites->window(); },
        [this] { m_gameList->tableViewSelectionDidChange(); });
    m_rebuild = std::make_unique<CatalogueRebuild>(
        m_catalogue, m_desktop, m_defaults, *m_mainWindow->rebuildStrip, [this] { return emulator(); },
        [this] { m_chooser->exeSelect(); }, [this] { return m_favorites->favourites().names(); });
    m_changes = std::make_unique<ChangesDesk>(*m_mainWindow);
    connect(m_rebuild.get(), &CatalogueRebuild::compared, m_changes.get(), &ChangesDesk::take);
    connect(m_changes.get(), &ChangesDesk::opened, this, [this](const QString& name) {
        if (!openGame(*this, name))
            m_desktop.beep();
    });
    m_bios = std::make_unique<BiosDesk>([this](BiosPanel& panel) { return takeBiosPanel(panel); });
    m_keyCommands
        = std::make_unique<KeyCommands>(keyTable(*this), [this](const QString& game) { runGame(game); });
    joinRooms();
    joinViews();
    joinWindows();
    joinCommands();
    joinInfo();
    joinArtwork();
    openCatalogue();
}

void Tessera_AppDelegate::addAppearancePage()
{
    auto* page = new AppearancePage(m_defaults);
    m_preferencesWindow->addPage(QStringLiteral("appearance"), page);
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
    connect(m_launch.get(), &LaunchController::runningChanged, m_mainWindow.get(), [this](bool running) {
        m_mainWindow->setRunning(running, running ? m_launch->runningText() : QString());
    });
    connect(m_chooser.get(), &PathChooser::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(&m_defaults, &DefaultsController::changed, this, &Tessera_AppDelegate::settingChanged);
    connect(m_chooser.get(), &PathChooser::chosen, m_launch.get(), &LaunchController::prepareProfile);
    connect(&m_pages->general(), &GeneralPage::emulatorFound, m_launch.get(),
            &LaunchController::prepareProfile);
    connect(&m_pages->general(), &GeneralPage::emulatorFound, this, &Tessera_AppDelegate::showEmulator);
    connect(m_profiles.get(), &ProfileCache::answered, this, [this] {
        if (m_favorites->editing().isMade())
            offerKnownOptions();
        m_favorites->editing().showSelection();
        m_commands->showLine();
    });
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
    connect(m_mainWindow->runningStopButton, &QPushButton::clicked, this, &Tessera_AppDelegate::stopGame);
    connect(m_mainWindow->logButton, &QToolButton::clicked, this, &Tessera_AppDelegate::showLogWindow);
    connect(m_mainWindow->toolsButton, &QToolButton::clicked, this, &Tessera_AppDelegate::utilityOrderFront);
    connect(m_mainWindow->preferencesButton, &QToolButton::clicked, this,
            &Tessera_AppDelegate::showPrefsWindow);
    connect(m_mainWindow->rebuildButton, &QPushButton::clicked, this, &Tessera_AppDelegate::rebuildCatalogue);
    connect(m_preferencesWindow->resetButton, &QPushButton::clicked, this,
            &Tessera_AppDelegate::resetSettings);
    connect(m_launch.get(), &LaunchController::launchModeChanged, this, &Tessera_AppDelegate::Setwindowtitle);
    connect(m_launch.get(), &LaunchController::launchModeChanged, this,
            [this] { m_modeMenu->mark(m_pages->general().launchusingPop->currentText()); });
}

void Tessera_AppDelegate::joinViews()
{
    connect(m_runs.get(), &RunController::started, &m_favorites->played(), &PlayedController::notePlayed);
    connect(m_launch.get(), &LaunchController::handedOver, &m_favorites->played(),
            &PlayedController::notePlayed);
    connect(&m_finding->roms(), &RomWatcher::changed, &m_favorites->controller(),
            [this] { m_favorites->controller().setRomFolders(m_finding->roms().folders()); });
    connect(m_favorites.get(), &FavoritesDesk::namesChanged, m_finding.get(),
            [this] { m_finding->finder().setFavorites(m_favorites->names()); });
    connect(m_favorites.get(), &FavoritesDesk::launchRequested, m_launch.get(),
            &LaunchController::Launchusing);
    // The favourites can be saved from any window.
    connect(m_favorites.get(), &FavoritesDesk::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_favorites.get(), &FavoritesDesk::mainWanted, this, &Tessera_AppDelegate::windowMain);
    connect(m_favorites.get(), &FavoritesDesk::miniWanted, this, &Tessera_AppDelegate::windowMini);
    connect(m_mainWindow->favoritesButton, &QToolButton::clicked, this,
            &Tessera_AppDelegate::windowFavorites);
    connect(m_mini.get(), &MiniDesk::windowMade, this, &Tessera_AppDelegate::joinMiniWindow);
    connect(m_favorites.get(), &FavoritesDesk::windowMade, this, &Tessera_AppDelegate::joinFavoritesWindow);

    // For as long as there are menus: a stack's own end, too, tells that there is nothing left to undo.
    QObject* keys = m_keyCommands.get();
    const auto follow = [this] { followUndo(); };
    connect(m_keyCommands.get(), &KeyCommands::keyWindowChanged, keys, follow);
    for (QUndoStack* stack :
         {&m_catalogue.undoStack(), &m_favorites->favourites().undoStack(), &m_bios->undoStack()}) {
        connect(stack, &QUndoStack::canUndoChanged, keys, follow);
        connect(stack, &QUndoStack::canRedoChanged, keys, follow);
    }
    followUndo();
}

void Tessera_AppDelegate::joinCommands()
{
    QMenuBar& bar = *m_mainWindow->menuBar();
    m_modeMenu = std::make_unique<ModeMenu>(bar, *m_launch);
    m_commands = std::make_unique<CommandsDesk>(
        CommandsDesk::Parts{m_desktop,
                            m_defaults,
                            *m_logWindow,
                            *m_task,
                            *m_runs,
                            *m_launch,
                            *m_chooser,
                            [this] { return m_gameList->tableViewSelectionROM(); },
                            [this] { return m_gameList->tableViewSelectionTitleE(); },
                            [this] { return m_artwork->pictureFile(); },
                            {bar.findChild<QAction*>(QStringLiteral("menu_stop")), m_mainWindow->stopButton,
                             m_mainWindow->runningStopButton}});
    m_commands->addLineTo(*m_preferencesWindow);
    m_options = std::make_unique<OptionsDesk>(
        OptionsDesk::Parts{m_defaults, *m_pages, *m_launch, *m_profiles, *m_chooser, *m_preferencesWindow});
    connect(m_gameList.get(), &GameListController::selectionChanged, m_commands.get(),
            &CommandsDesk::showLine);
    connect(m_commands.get(), &CommandsDesk::statusMessage, m_mainWindow.get(), &MainWindow::say);
    m_commands->addAuditsTo(*bar.findChild<QMenu*>(QStringLiteral("menu_game")));
}

void Tessera_AppDelegate::joinInfo()
{
    m_info = std::make_unique<InfoDesk>(*this, m_desktop, m_defaults,
                                        [this](HistoryWindow& window) { takeHistoryWindow(window); });
    m_info->addContextMenu(*m_mainWindow->gameTable, KeyWindow::Kind::Main);
    connect(m_info.get(), &InfoDesk::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_chooser.get(), &PathChooser::chosen, m_info.get(), &InfoDesk::pathChosen);
}

void Tessera_AppDelegate::joinArtwork()
{
    m_artwork = std::make_unique<ArtworkDesk>(*this, m_desktop, m_defaults, [this](QWidget& window) {
        carryMenuKeys(*m_mainWindow->menuBar(), window);
        const bool isImage = qobject_cast<ImageWindow*>(&window) != nullptr;
        m_places.keep(window,
                      (isImage ? keys::ImageWindowGeometry : keys::DownloadPanelGeometry).name.data());
    });
    m_artwork->fillMenu(*m_mainWindow->menuBar());
    m_artwork->addContextMenu(*m_mainWindow->gameTable);
    joinSidePanel(*m_mainWindow->sidePanel);
    connect(m_mainWindow->sidePanel->pageButton, &QPushButton::clicked, this,
            &Tessera_AppDelegate::openROMinfo);
    connect(m_artwork.get(), &ArtworkDesk::statusMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_artwork.get(), &ArtworkDesk::commandMessage, m_mainWindow.get(), &MainWindow::say);
    connect(m_chooser.get(), &PathChooser::chosen, m_artwork.get(), &ArtworkDesk::pathChosen);
}

void Tessera_AppDelegate::joinSidePanel(SidePanel& panel)
{
    connect(panel.historyButton, &QPushButton::clicked, this, &Tessera_AppDelegate::searchHistoryinfo);
    connect(panel.revealButton, &QPushButton::clicked, this, &Tessera_AppDelegate::display_rom_Finder);
    connect(panel.verifyButton, &QPushButton::clicked, this, [this] { m_commands->verifySelected(); });
}

void Tessera_AppDelegate::takeHistoryWindow(HistoryWindow& window)
{
    carryMenuKeys(*m_mainWindow->menuBar(), window);
    connect(window.historyButton, &QPushButton::clicked, m_chooser.get(), &PathChooser::selectHistorybat);
    connect(window.mameinfoButton, &QPushButton::clicked, m_chooser.get(), &PathChooser::selectMameinfobat);
    joinWindow(window, KeyWindow::Kind::History, keys::HistoryWindowGeometry.name.data());
}

BiosParts Tessera_AppDelegate::takeBiosPanel(BiosPanel& panel)
{
    m_places.keep(panel, keys::BiosPanelGeometry.name.data());
    m_keyCommands->watch(panel, KeyWindow::Kind::Bios);
    carryMenuKeys(*m_mainWindow->menuBar(), panel);
    return {m_desktop,
            m_defaults,
            panel,
            *m_pages->misc().biosPop,
            m_bios->undoStack(),
            applicationSupportFolder() + QStringLiteral("/bioslist.xml"),
            [this] { return emulator(); },
            [this] { return m_gameList->tableViewSelectionROM(); }};
}

KeyWindow::Kind Tessera_AppDelegate::keyWindow() const
{
    return m_keyCommands->keyWindow();
}

// What the emulator in use lists; before it has answered everything is taken as it is typed.
void Tessera_AppDelegate::offerKnownOptions()
{
    const auto answer = m_profiles->remembered(m_pages->general().emulator());
    KnownOptions known;
    if (answer && answer->profile) {
        for (const EmulatorProfile::Option& option : answer->profile->options())
            known.options << KnownOption{option.name, option.description};
        known.lists = [profile = *answer->profile](QStringView option) { return profile.lists(option); };
    }
    m_favorites->editing().editor().setKnownOptions(std::move(known));
}

// What every window needs that is a key window of its own and comes back where it was left.
void Tessera_AppDelegate::joinWindow(QWidget& window, KeyWindow::Kind kind, const char* place)
{
    m_keyCommands->watch(window, kind);
    m_places.keep(window, place);
    DeletionFocusRing::awakeFromNib(window);
}

// A file that is dropped on one of the list windows is opened.
void Tessera_AppDelegate::openDropped(QWidget& window)
{
    connect(new FileDrop(window), &FileDrop::dropped, this, &Tessera_AppDelegate::application_openFile);
}

void Tessera_AppDelegate::joinWindows()
{
    using Kind = KeyWindow::Kind;
    m_keyCommands->watch(*m_mainWindow, Kind::Main);
    openDropped(*m_mainWindow);
    joinWindow(*m_logWindow, Kind::Log, keys::LogWindowGeometry.name.data());
    // Without a menu bar of its own a window still takes the menus' keys.
    carryMenuKeys(*m_mainWindow->menuBar(), *m_logWindow);
    connect(m_editing.get(), &RecordEditing::windowMade, this, [this](QWidget& editor) {
        joinWindow(editor, Kind::Editor, keys::RecordEditorGeometry.name.data());
    });
    connect(&m_favorites->editing(), &FavouriteEditing::windowMade, this, [this](QWidget& editor) {
        joinWindow(editor, Kind::FavoritesEditor, keys::FavoritesEditorGeometry.name.data());
        offerKnownOptions();
    });
    connect(m_finding.get(), &Finding::windowMade, this,
            [this](QWidget& panel) { m_places.keep(panel, keys::FilterPanelGeometry.name.data()); });
}

void Tessera_AppDelegate::joinFavoritesWindow()
{
    FavoritesWindow& window = m_favorites->window();
    window.takeMenus(*m_mainWindow->menuBar());
    window.setRunning(m_launch->isRunning());
    m_commands->leaveOpen(*window.stopButton);
    m_info->addContextMenu(*window.favoritesTable, KeyWindow::Kind::Favorites);
    m_artwork->joinFavorites(window);
    m_artwork->addFavoritesMenu(*window.favoritesTable);
    connect(m_artwork.get(), &ArtworkDesk::statusMessage, &window, &FavoritesWindow::say);
    connect(m_artwork.get(), &ArtworkDesk::commandMessage, &window, &FavoritesWindow::say);
    connect(m_info.get(), &InfoDesk::statusMessage, &window, &FavoritesWindow::say);
    window.sidePanel->verifyButton->hide();
    joinSidePanel(*window.sidePanel);
    connect(window.sidePanel->pageButton, &QPushButton::clicked, m_info.get(), &InfoDesk::openROMinfo2);
    connect(window.stopButton, &QToolButton::clicked, this, &Tessera_AppDelegate::stopGame);
    connect(m_launch.get(), &LaunchController::runningChanged, &window, [this, &window](bool running) {
        window.setRunning(running);
        if (running)
            window.say(m_launch->runningText());
    });
    connect(m_launch.get(), &LaunchController::statusMessage, &window, &FavoritesWindow::say);
    joinWindow(window, KeyWindow::Kind::Favorites, keys::FavoritesWindowGeometry.name.data());
    openDropped(window);
    // It is shown in the main window's place, if not in its own.
    m_places.restore(window);
}

void Tessera_AppDelegate::joinMiniWindow()
{
    MiniWindow& window = m_mini->window();
    connect(&window, &MiniWindow::playRequested, this, [this] { runGame(m_mini->game()); });
    connect(window.randomButton, &QToolButton::clicked, this, &Tessera_AppDelegate::randomForMini);
    connect(window.mainButton, &QToolButton::clicked, this, &Tessera_AppDelegate::windowMain);
    connect(&window, &TransparentWindow::orderedOut, this, &Tessera_AppDelegate::windowMain);
    m_artwork->joinMini(window);
    connect(m_artwork.get(), &ArtworkDesk::commandMessage, &window, &MiniWindow::say);
    connect(m_info.get(), &InfoDesk::statusMessage, &window, &MiniWindow::say);
    carryMenuKeys(*m_mainWindow->menuBar(), window);
    joinWindow(window, KeyWindow::Kind::Mini, keys::MiniWindowGeometry.name.data());
    openDropped(window);
}

UtilityObject& Tessera_AppDelegate::utility()
{
    if (!m_utility) {
        m_utility = makeUtility(*this, m_desktop, m_defaults);
        m_scripts = joinScripts(*m_utility, *m_gameList, *m_launch, m_defaults);
        connect(m_utility->utilityWindow().scriptPage->button_launcher, &QPushButton::clicked, this,
                &Tessera_AppDelegate::saveLauncher);
        connect(m_utility.get(), &UtilityObject::statusMessage, m_mainWindow.get(), &MainWindow::say);
        connect(m_utility.get(), &UtilityObject::statusWithdrawn, m_mainWindow.get(), &MainWindow::takeBack);
        m_places.keep(m_utility->utilityWindow(), keys::UtilityWindowGeometry.name.data());
    }
    return *m_utility;
}

HelpWindow& Tessera_AppDelegate::helpWindow()
{
    if (!m_help) {
        m_help = std::make_unique<HelpWindow>(m_defaults, *m_mainWindow->menuBar());
        m_places.keep(*m_help, keys::HelpWindowGeometry.name.data());
    }
    return *m_help;
}

// Undo and Redo are dim while there is nothing to undo or redo in the key window.
void Tessera_AppDelegate::followUndo()
{
    const QUndoStack& stack = *m_keyCommands->undoStack();
    const QMenuBar& bar = *m_mainWindow->menuBar();
    bar.findChild<QAction*>(QStringLiteral("menu_undo"))->setEnabled(stack.canUndo());
    bar.findChild<QAction*>(QStringLiteral("menu_redo"))->setEnabled(stack.canRedo());
}

} // namespace tessera
