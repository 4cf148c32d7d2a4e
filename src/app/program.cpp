// What the rooms tell each other.

#include "app/program.h"

#include "app/windows/emptystate.h"
#include "app/windows/favouriteswindow.h"
#include "app/windows/helpwindow.h"
#include "app/windows/miniwindow.h"
#include "app/windows/sidepanel.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gametableview.h"
#include "favourites/ui/favouriteeditor.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

Program::Look::Look()
{
    theme::applyStyleSheet(*qApp);
}

Program::Program(const Ground& ground)
    : desktop(ground.desktop)
    , settings(ground.settings)
    , recent(ground.recent)
    , catalogue(ground.catalogue)
{
    joinMenus();
    joinStatusLine();
    joinLaunches();
    joinCatalogue();
    joinMainWindow();
    connect(&favorites, &FavouritesDesk::windowMade, this, &Program::joinFavourites);
    connect(&mini, &MiniDesk::windowMade, this, &Program::joinMini);
}

Program::~Program() = default;

QString Program::biosFile() const
{
    return QFileInfo(catalogue.path()).absolutePath() + QStringLiteral("/bioslist.xml");
}

HelpWindow& Program::help()
{
    if (!m_help) {
        m_help = std::make_unique<HelpWindow>(settings, *mainWindow.menuBar());
        windows.places().keep(*m_help, keys::HelpWindowGeometry);
    }
    return *m_help;
}

void Program::joinMenus()
{
    menu.addRecent(recent);
    menu.addColumns(keys);
    menu.addPlayedSwitch(favorites.played());
    artwork.fillMenu(*mainWindow.menuBar());
    commands.addAuditsTo(menu.menu("menu_game"));
    connect(&menu, &MainMenu::openRequested, this, &Program::openRequested);
    connect(&windows, &Windows::dropped, this, &Program::openRequested);
    info.addContextMenu(*mainWindow.gameTable, KeyWindow::Kind::Main);
    artwork.addContextMenu(*mainWindow.gameTable);
}

void Program::joinStatusLine()
{
    const auto say = &StatusLine::say;
    connect(&saving, &CatalogueSaving::statusMessage, &status, say);
    connect(&finding.searches(), &SearchKeeping::statusMessage, &status, say);
    connect(&runs, &RunController::statusMessage, &status, say);
    connect(&launches, &LaunchController::statusMessage, &status, say);
    connect(&paths, &PathChooser::statusMessage, &status, say);
    connect(&tableFont, &TableFont::statusMessage, &status, say);
    connect(&gameList, &ListController::statusMessage, &status, say);
    connect(&finding, &Finding::statusMessage, &status, say);
    connect(&finding, &Finding::statusWithdrawn, &status, &StatusLine::takeBack);
    connect(&favorites.controller(), &ListController::statusMessage, &status, say);
}

void Program::joinLaunches()
{
    connect(&gameList, &GameListController::launchRequested, &launches, &LaunchController::Launchusing);
    connect(&favorites.controller(), &UCAppController::launchRequested, &launches,
            &LaunchController::Launchusing);
    connect(&mini, &MiniDesk::launchRequested, &launches, &LaunchController::runGame);
    connect(&keys, &KeyCommands::runRequested, &launches, &LaunchController::runGame);
    connect(&favorites.editing(), &FavouriteEditing::commandWanted, &launches,
            [this](FavouriteEditor& editor, const QString& name) {
                editor.showCommand(launches.shownCommandLine(name));
            });
    connect(&runs, &RunController::started, &favorites.played(), &PlayedController::notePlayed);
    connect(&launches, &LaunchController::handedOver, &favorites.played(), &PlayedController::notePlayed);
    connect(&launches, &LaunchController::launchModeChanged, &mainWindow, &MainWindow::Setwindowtitle);
    connect(&launches, &LaunchController::launchModeChanged, &mini, &MiniDesk::setEmulator);
    connect(&launches, &LaunchController::launchModeChanged, &modeMenu, &ModeMenu::mark);
    connect(&paths, &PathChooser::chosen, &launches, &LaunchController::prepareProfile);
    connect(&emulatorChoice, &EmulatorChoice::emulatorFound, &launches, &LaunchController::prepareProfile);
    for (QObject* stop : std::initializer_list<QObject*>{&menu.action("menu_stop"), mainWindow.stopButton,
                                                         mainWindow.runningStopButton})
        commands.leaveOpen(*stop);
}

void Program::joinCatalogue()
{
    connect(&rebuild, &CatalogueRebuild::compared, &changes, &ChangesDesk::takeComparison);
    connect(&changes, &ChangesDesk::opened, &opening, &GameOpening::openOrBeep);
    connect(&rebuild, &CatalogueRebuild::runningChanged, &editing, &RecordEditing::setLocked);
    connect(&mainDesk, &MainDesk::catalogueWanted, &rebuild, &CatalogueRebuild::rebuild);
    connect(&mainDesk, &MainDesk::romFolderWanted, &paths, &PathChooser::selectROMfolder);
    connect(&editing, &RecordEditing::windowMade, this, [this](QWidget& editor) {
        windows.watch(editor, KeyWindow::Kind::Editor);
        windows.places().keep(editor, keys::RecordEditorGeometry);
    });
}

void Program::joinMainWindow()
{
    const auto pressed = &QAbstractButton::clicked;
    connect(preferences.resetButton, pressed, &reset, &SettingsReset::resetSettings);
    windows.watch(mainWindow, KeyWindow::Kind::Main);
    windows.openDropped(mainWindow);
    connect(&mainWindow, &MainWindow::closeRequested, this, &Program::quitRequested);
    connect(mainWindow.stopButton, pressed, &launches, &LaunchController::stopProcess);
    connect(mainWindow.runningStopButton, pressed, &launches, &LaunchController::stopProcess);
    connect(mainWindow.favoritesButton, pressed, &switching, &WindowSwitching::windowFavorites);
    connect(mainWindow.logButton, pressed, &runs, &RunController::showLogWindow);
    connect(mainWindow.toolsButton, pressed, &utility, &UtilityDesk::utilityOrderFront);
    connect(mainWindow.preferencesButton, pressed, &menu.action("menu_preferences"), &QAction::trigger);
    connect(mainWindow.rebuildButton, pressed, &rebuild, &CatalogueRebuild::rebuild);
    connect(mainWindow.sidePanel->pageButton, pressed, &info, &InfoDesk::openROMinfo);
    joinSidePanel(*mainWindow.sidePanel);

    windows.watch(logWindow, KeyWindow::Kind::Log);
    windows.places().keep(logWindow, keys::LogWindowGeometry);
    windows.carryMenuKeys(logWindow);
}

void Program::joinSidePanel(SidePanel& panel)
{
    connect(panel.historyButton, &QPushButton::clicked, &info, &InfoDesk::searchHistoryinfo);
    connect(panel.revealButton, &QPushButton::clicked, &artwork, &ArtworkDesk::display_rom_Finder);
    connect(panel.verifyButton, &QPushButton::clicked, &commands, &CommandsDesk::verifySelected);
}

void Program::joinFavourites(FavouritesWindow& window)
{
    status.showIn(window);
    connect(&launches, &LaunchController::runningChanged, &window, [this, &window](bool running) {
        window.setRunning(running);
        if (running)
            window.showMessage(launches.runningText());
    });
    window.setRunning(launches.isRunning());
    info.addContextMenu(*window.favoritesTable, KeyWindow::Kind::Favourites);
    artwork.joinFavourites(window);
    artwork.addFavouritesMenu(*window.favoritesTable);
    window.sidePanel->verifyButton->hide();
    joinSidePanel(*window.sidePanel);
    connect(window.sidePanel->pageButton, &QPushButton::clicked, &info, &InfoDesk::openROMinfo2);
    connect(window.stopButton, &QToolButton::clicked, &launches, &LaunchController::stopProcess);
    commands.leaveOpen(*window.stopButton);
    connect(&favorites, &FavouritesDesk::mainWanted, &switching, &WindowSwitching::windowMain);
    connect(&favorites, &FavouritesDesk::miniWanted, &switching, &WindowSwitching::windowMini);
}

void Program::joinMini(MiniWindow& window)
{
    status.showAnswersIn(window);
    artwork.joinMini(window);
    connect(&mini, &MiniDesk::mainWanted, &switching, &WindowSwitching::windowMain);
}

} // namespace tessera
