#pragma once

#include "app/program.h"
#include "app/tessera_appdelegate.h"
#include "platform/recentdocuments.h"
#include "support/scripteddesktop.h"

#include <QAction>
#include <QPushButton>
#include <QTemporaryDir>

namespace tessera::test {

/// The program with its commands, as the menus and windows give them.
class App : public Tessera_AppDelegate
{
public:
    using Tessera_AppDelegate::Tessera_AppDelegate;

    MainWindow& mainWindow() { return program().mainWindow; }
    LogWindow& logWindow() { return program().logWindow; }
    PreferencesWindow& preferencesWindow() { return program().preferences; }
    GameListController& gameList() { return program().gameList; }
    Finding& finding() { return program().finding; }
    RecordEditing& editing() { return program().editing; }
    LaunchController& launcher() { return program().launches; }
    CommandsDesk& commands() { return program().commands; }
    CatalogueRebuild& rebuild() { return program().rebuild; }
    ChangesDesk& changes() { return program().changes; }
    UtilityObject& utility() { return program().utility.utility(); }
    HelpWindow& helpWindow() { return program().help(); }
    FavouritesDesk& favorites() { return program().favorites; }
    BiosDesk& bios() { return program().bios; }
    InfoDesk& info() { return program().info; }
    ArtworkDesk& artwork() { return program().artwork; }
    MiniDesk& mini() { return program().mini; }
    Catalogue& catalogue() { return program().catalogue; }
    KeyWindow::Kind keyWindow() { return program().windows.key().kind(); }

    void saveAction() { program().saving.saveAction(); }
    void saveOfKeyWindow() { choose("menu_save"); }
    void saveFavouritesNow() { choose("menu_savefavorites"); }
    void addFavorite() { choose("menu_addfavorite"); }
    void menuRun() { choose("menu_play"); }
    void mameslotAction() { choose("menu_random"); }
    void undo() { program().keys.undo(); }
    void redo() { program().keys.redo(); }
    void editCell() { choose("menu_editcell"); }
    void copySelection() { choose("menu_copy"); }
    void showPredicatePanel() { choose("menu_filter"); }
    void focusSearch() { choose("menu_find"); }
    void editRecord() { choose("menu_editrecord"); }
    void removeRecord()
    {
        program().saving.commitEditing();
        editing().removeRecord();
    }
    void removeOfKeyWindow() { choose("menu_removerecord"); }
    void scrollsHomeAction() { choose("menu_home"); }
    void scrollsEndAction() { choose("menu_end"); }
    void rebuildCatalogue() { choose("menu_rebuild"); }
    void playSelected() { mainWindow().playButton->click(); }
    void stopGame() { choose("menu_stop"); }
    void windowMain() { choose("menu_main"); }
    void windowFavorites() { choose("menu_favorites"); }
    void windowMini() { choose("menu_mini"); }
    void showLogWindow() { choose("menu_log"); }
    void windowLog() { choose("menu_logfront"); }
    void showPrefsWindow() { choose("menu_preferences"); }
    void showHelpWindow() { choose("menu_showhelp"); }
    void utilityOrderFront() { choose("menu_tools"); }
    void showHistoryinfo() { choose("menu_historywindow"); }
    void searchHistoryinfo() { choose("menu_history"); }
    void openROMinfo() { choose("menu_rominfo"); }
    void ViewBiosList() { choose("menu_bioslist"); }
    void display_image_Finder() { choose("menu_revealpicture"); }
    void saveLauncher() { choose("menu_launcher"); }
    void showFontPanel1() { choose("menu_font"); }
    void snappreview() { choose("menu_showpicture"); }
    void ChangesnapPop() { choose("menu_nextkind"); }
    void snapdownload() { choose("menu_downloadpicture"); }
    void makeTextBigger() { choose("menu_bigger"); }
    void makeTextSmaller() { choose("menu_smaller"); }
    void DefaultAction() { program().reset.DefaultAction(); }

private:
    void choose(const char* item) { program().menu.action(item).trigger(); }
};

/// The whole program on a scripted desktop, with a catalogue and settings of its own. The emulator is the
/// stand-in program unless a test chooses another.
class StagedApp
{
public:
    StagedApp();

    /// Writes a catalogue of four machines: 1943, galaga (a clone with no driver status of the three), pong,
    /// qix.
    void writeCatalogue();
    void writeStore(const QByteArray& bytes);
    QByteArray store() const;

    /// Start-up as main() does it.
    void start(const QString& file = QString());
    /// What a first start asks when there is no catalogue.
    void expectMissingStore(int recovery);

    QString path(const QString& name) const { return folder.filePath(name); }
    QString storePath() const { return path(QStringLiteral("data/Tessera.xml")); }
    QString settingsPath() const { return path(QStringLiteral("settings.ini")); }
    /// Stores ExecutionPath.
    void useEmulator(const QString& executable);

    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults defaults;
    DefaultsController controller;
    RecentDocuments recent;
    std::unique_ptr<App> app;
};

} // namespace tessera::test
