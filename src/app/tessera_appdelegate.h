#pragma once

#include "app/keywindow.h"
#include "app/windowplaces.h"
#include "catalogue/catalogue.h"
#include "platform/defaultscontroller.h"

#include <QObject>

#include <memory>
#include <optional>

class QAction;

namespace tessera {

class ArtworkDesk;
class BiosDesk;
class BiosPanel;
struct BiosParts;
class CatalogueRebuild;
class ChangesDesk;
class CommandsDesk;
class Desktop;
class EmulatorTask;
class FavoritesDesk;
class GameListController;
class GameTableView;
class Finding;
class HelpWindow;
class HistoryWindow;
class InfoDesk;
class KeyCommands;
class LaunchController;
class LaunchPages;
class LogWindow;
class MainWindow;
class MiniDesk;
class ModeMenu;
class OptionsDesk;
class PathChooser;
class PreferencesWindow;
class ProfileCache;
class RecentDocuments;
class RecordEditing;
class RowColors;
class RunController;
class ScriptTool;
class SidePanel;
class TableFont;
class UtilityObject;
class WindowSwitching;

/// The hub: builds the rooms, hands each what it needs, and joins them. Its slots are the program's commands,
/// one line each.
class Tessera_AppDelegate : public QObject
{
    Q_OBJECT

public:
    Tessera_AppDelegate(Desktop& desktop, UserDefaults& defaults, RecentDocuments& recent,
                        const QString& cataloguePath);
    ~Tessera_AppDelegate() override;

    /// Start-up in its order, then the file that the program was opened with. False where it was told
    /// meanwhile, during an alert, to end: then there is nothing to go on with.
    bool run(const QString& file);

    // The catalogue
    QString applicationSupportFolder() const;
    QUndoStack* windowWillReturnUndoManager();
    bool notesPlayed() { return !m_defaults.defaults().flag(keys::PlayedIsOff.name); }
    /// True for "terminate now".
    bool applicationShouldTerminate();
    void applicationWillTerminate();
    /// Saves what quitting saves, without a question: nobody may be there to answer.
    void saveForSessionEnd();

    bool application_openFile(const QString& path);

    MainWindow& mainWindow() { return *m_mainWindow; }
    LogWindow& logWindow() { return *m_logWindow; }
    PreferencesWindow& preferencesWindow() { return *m_preferencesWindow; }
    GameListController& gameList() { return *m_gameList; }
    Finding& finding() { return *m_finding; }
    RecordEditing& editing() { return *m_editing; }
    LaunchController& launcher() { return *m_launch; }
    CommandsDesk& commands() { return *m_commands; }
    CatalogueRebuild& rebuild() { return *m_rebuild; }
    ChangesDesk& changes() { return *m_changes; }
    /// Made when it is asked for first: a start of the program needs none of its pages.
    UtilityObject& utility();
    HelpWindow& helpWindow();
    FavoritesDesk& favorites() { return *m_favorites; }
    BiosDesk& bios() { return *m_bios; }
    InfoDesk& info() { return *m_info; }
    ArtworkDesk& artwork() { return *m_artwork; }
    MiniDesk& mini() { return *m_mini; }
    KeyWindow::Kind keyWindow() const;
    /// The list of the key window; null where it has none.
    GameTableView* listOfKeyWindow();
    Catalogue& catalogue() { return m_catalogue; }
    /// The path of the emulator that is used; empty where none is chosen or found.
    QString emulator();
    /// Takes over what stands in open editors of the catalogue.
    void commitEditing();
    RecentDocuments& recentDocuments() { return m_recent; }

public Q_SLOTS:
    void saveAction();
    void saveOfKeyWindow();
    void saveFavoritesNow();
    void addFavorite();
    void clearPlayed();
    void setNotesPlayed(bool notes);
    void removeOfKeyWindow();
    void menuRun();
    /// A random game's set name into the mini window's field.
    void randomForMini();
    void undo();
    void redo();
    void editCell();
    void copySelection();
    void showPredicatePanel();
    void focusSearch();
    void showAllGames();
    void editRecord();
    void removeRecord();
    void mameslotAction();
    void scrollsHomeAction();
    void scrollsEndAction();
    void openROMfile();
    void rebuildCatalogue();
    void terminate();
    void endWithSession();
    void playSelected();
    void stopGame();
    void selectExefile();
    void selectROMfolder();
    void saveLauncher();
    void openCurrentdir();
    void openROMfolder();
    void saveLogAction();
    void windowMain();
    void windowFavorites();
    void windowMini();
    void showLogWindow();
    void windowLog();
    void showPrefsWindow();
    void showHelpWindow();
    void utilityOrderFront();
    void showHistoryinfo();
    void searchHistoryinfo();
    void openROMinfo();
    void ViewBiosList();
    void snappreview();
    void ChangesnapPop();
    void snapdownload();
    void display_image_Finder();
    void display_rom_Finder();
    void makeTextBigger();
    void makeTextSmaller();
    void showFontPanel1();
    /// Asks first.
    void resetSettings();
    void DefaultAction();
    void Setwindowtitle();
    /// The main menu's item with this title, or nothing; see widgets/menusearch.h.
    QAction* findMenuItemNamed(const QString& title) const;
    /// Another start of the program: come to the front and open its file.
    void comeForward(const QString& file);

Q_SIGNALS:
    /// Posted by the reset, so that other controllers can reset their own state.
    void defaultAction();
    /// The program ends, and nothing is left to do but to wait for a game.
    void everythingIsSaved();

private:
    void initialize();
    void loadInterface();
    void addAppearancePage();
    void joinRooms();
    void joinViews();
    void joinCommands();
    void joinWindow(QWidget& window, KeyWindow::Kind kind, const char* place);
    void openDropped(QWidget& window);
    void joinWindows();
    void offerKnownOptions();
    void joinFavoritesWindow();
    void joinMiniWindow();
    void joinInfo();
    void joinArtwork();
    void joinSidePanel(SidePanel& panel);
    void takeHistoryWindow(HistoryWindow& window);
    BiosParts takeBiosPanel(BiosPanel& panel);
    void followUndo();
    void runGame(const QString& game);
    void openCatalogue();
    void awakeFromNib();
    void applicationDidFinishLaunching();
    void showSelection();
    void showCount();
    bool romsMissing();
    void actOnEmptyList();
    void showEmulator();
    void settingChanged(const QString& name);
    bool saveBeforeQuitting();
    void logKept(const QString& copy);
    QUndoStack* editedStack();
    void commitCells();
    void forgetRecording();

    Desktop& m_desktop;
    DefaultsController m_defaults;
    RecentDocuments& m_recent;
    Catalogue m_catalogue;
    std::unique_ptr<MainWindow> m_mainWindow;
    std::unique_ptr<LogWindow> m_logWindow;
    std::unique_ptr<PreferencesWindow> m_preferencesWindow;
    std::unique_ptr<GameListController> m_gameList;
    std::unique_ptr<Finding> m_finding;
    std::unique_ptr<RecordEditing> m_editing;
    std::unique_ptr<FavoritesDesk> m_favorites;
    std::unique_ptr<MiniDesk> m_mini;
    std::unique_ptr<WindowSwitching> m_switching;
    std::unique_ptr<KeyCommands> m_keyCommands;
    std::unique_ptr<InfoDesk> m_info;
    std::unique_ptr<BiosDesk> m_bios;
    std::unique_ptr<ArtworkDesk> m_artwork;
    WindowPlaces m_places;
    std::unique_ptr<LaunchPages> m_pages;
    std::unique_ptr<PathChooser> m_chooser;
    std::unique_ptr<EmulatorTask> m_task;
    std::unique_ptr<ProfileCache> m_profiles;
    std::unique_ptr<RunController> m_runs;
    std::unique_ptr<LaunchController> m_launch;
    std::unique_ptr<CommandsDesk> m_commands;
    std::unique_ptr<OptionsDesk> m_options;
    std::unique_ptr<ModeMenu> m_modeMenu;
    std::unique_ptr<UtilityObject> m_utility;
    std::unique_ptr<HelpWindow> m_help;
    std::unique_ptr<ScriptTool> m_scripts;
    std::unique_ptr<TableFont> m_tableFont;
    std::unique_ptr<RowColors> m_rowColors;
    std::unique_ptr<CatalogueRebuild> m_rebuild;
    std::unique_ptr<ChangesDesk> m_changes;
    bool m_buildWanted = false;
    bool m_isRestored = false; ///< the windows and lists stand as they were left
    bool m_isEnding = false;
    std::optional<QString> m_wanted; ///< by another start, before this one had come so far
};

} // namespace tessera
