#pragma once

#include "app/desks/artworkdesk.h"
#include "app/desks/biosdesk.h"
#include "app/desks/cataloguerebuild.h"
#include "app/desks/changesdesk.h"
#include "app/desks/commandsdesk.h"
#include "app/desks/favouritesdesk.h"
#include "app/desks/finding.h"
#include "app/desks/infodesk.h"
#include "app/commands/keycommands.h"
#include "app/desks/maindesk.h"
#include "app/commands/mainmenu.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/commands/modemenu.h"
#include "app/commands/opengame.h"
#include "app/desks/optionsdesk.h"
#include "app/windows/preferenceswindow.h"
#include "app/commands/settingsreset.h"
#include "app/statusline.h"
#include "app/desks/utilitydesk.h"
#include "app/windows.h"
#include "app/commands/windowswitching.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/cataloguesaving.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/tablefont.h"
#include "launch/emulatorchoice.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "widgets/calmwheel.h"

namespace tessera {

class HelpWindow;
class RecentDocuments;
class SidePanel;

/// The plan of the house: every object that lives as long as the windows, each after those that it is made
/// with. What one tells the others is joined in program.cpp, the menus' commands are in programmenus.cpp, and
/// those that go by the key window in programkeys.cpp.
class Program : public QObject
{
    Q_OBJECT

public:
    /// Our style sheet, from its construction on.
    struct Look {
        Look();
    };
    /// What it stands on.
    struct Ground {
        Desktop& desktop;
        DefaultsController& settings;
        RecentDocuments& recent;
        Catalogue& catalogue;
    };
    explicit Program(const Ground& ground);
    ~Program() override;

    Desktop& desktop;
    DefaultsController& settings;
    RecentDocuments& recent;
    Catalogue& catalogue;

    // Windows that are there from the beginning, and what is chosen in the preferences.
    CalmWheel calmWheel;
    MainWindow mainWindow{settings};
    Look look; ///< here it costs least: the main window takes it as a whole, the others when they are first
               ///< shown
    StatusLine status{mainWindow};
    Windows windows{*mainWindow.menuBar(), settings};
    LogWindow logWindow;
    PreferencesWindow preferences;
    EmulatorChoice emulatorChoice{settings};
    PathChooser paths{desktop, settings, emulatorChoice};
    LaunchPages pages{settings, emulatorChoice, paths};
    TableFont tableFont{desktop, settings};

    // The game list, and what finds and changes its records.
    GameListController gameList{catalogue, desktop, settings, mainWindow.gameTable};
    ProfileCache profiles;
    Finding finding{{mainWindow, windows, catalogue, gameList, settings, profiles, emulatorChoice}};
    RecordEditing editing{catalogue, desktop, gameList};
    CatalogueSaving saving{catalogue, desktop, gameList, editing};

    // Favourites, and the launches that heed their options.
    FavouritesDesk favorites{
        {windows, desktop, settings, catalogue, gameList, finding, profiles, emulatorChoice}};
    EmulatorTask task{desktop};
    RunController runs{desktop, settings, logWindow, task};
    LaunchController launches{
        {desktop, settings, emulatorChoice, pages, paths, task, runs, profiles, gameList,
         [this](const QString& name) { return favorites.controller().search_priorityOption(name); }}};

    // Three windows, one of which is shown.
    MiniDesk mini{windows, catalogue, gameList, finding.finder(), settings};
    WindowSwitching switching{mainWindow, mini, favorites, gameList};
    GameOpening opening{desktop, catalogue, gameList, finding, switching};

    // Another catalogue.
    CatalogueRebuild rebuild{{catalogue, saving, desktop, settings, *mainWindow.rebuildStrip, emulatorChoice,
                              paths, favorites.favourites(), status}};
    ChangesDesk changes{mainWindow};
    MainDesk mainDesk{
        {mainWindow, catalogue, settings, gameList, finding, launches, emulatorChoice, rebuild}};

    // What is told of a game, and of the emulator.
    OptionsDesk options{{desktop, settings, emulatorChoice, pages, tableFont, profiles, paths, preferences}};
    ArtworkDesk artwork{
        {windows, desktop, settings, mainWindow, gameList, favorites, mini, paths, preferences, status}};
    InfoDesk info{
        {windows, desktop, settings, mainWindow, gameList, favorites, mini, paths, preferences, status}};
    BiosDesk bios{{windows, desktop, settings, emulatorChoice, gameList, biosFile()}};
    CommandsDesk commands{{desktop, emulatorChoice, settings, logWindow, task, runs, launches, profiles,
                           paths, gameList, artwork, preferences, status}};
    UtilityDesk utility{{desktop, settings, windows, catalogue, saving, rebuild, changes, commands, gameList,
                         finding, opening, emulatorChoice, launches, favorites.controller(), status}};

    // Commands.
    SettingsReset reset{
        {desktop, settings, mainWindow, *logWindow.infomationTextView, launches, artwork.aspect()}};
    KeyCommands keys{windows.key(), keyTable(), rebuild};
    MainMenu menu{*mainWindow.menuBar(), menuRows(), keys};
    ModeMenu modeMenu{*mainWindow.menuBar(), launches};

    /// The guide; made when it is first asked for.
    HelpWindow& help();

Q_SIGNALS:
    void quitRequested();
    /// A file was dropped, or chosen among those that were used last.
    void openRequested(const QString& path);

private:
    QString biosFile() const;
    std::vector<KeyCommands::Row> keyTable();
    std::vector<MenuRow> menuRows();
    void joinMenus();
    void joinStatusLine();
    void joinLaunches();
    void joinCatalogue();
    void joinMainWindow();
    void joinFavourites(FavouritesWindow& window);
    void joinMini(MiniWindow& window);
    void joinSidePanel(SidePanel& panel);

    std::unique_ptr<HelpWindow> m_help;
};

} // namespace tessera
