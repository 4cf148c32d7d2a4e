// The menus, from the first to the last.

#include "app/program.h"

#include "app/windows/helpwindow.h"
#include "widgets/bringforward.h"

namespace tessera {

namespace {

constexpr const char* file = textKey("menu_file");
constexpr const char* edit = textKey("menu_edit");
constexpr const char* view = textKey("menu_view");
constexpr const char* game = textKey("menu_game");
constexpr const char* emulator = textKey("menu_emulator");
constexpr const char* pictures = textKey("menu_artwork");
constexpr const char* window = textKey("menu_window");
constexpr const char* helpMenu = textKey("menu_help");

template <class Object, class Owner>
std::function<void()> run(Object& object, void (Owner::*command)())
{
    return [&object, command] { (object.*command)(); };
}

} // namespace

std::vector<MenuRow> Program::menuRows()
{
    UCAppController& favourites = favorites.controller();
    // clang-format off
    return {
        {file,     textKey("menu_openrom"),         "Ctrl+O",         run(gameList, &GameListController::openROMfile)},
        {file,     textKey("menu_save"),            "Ctrl+S",         run(keys, &KeyCommands::save)},
        {file,     textKey("menu_savefavorites"),   nullptr,          run(favourites, &UCAppController::saveFavouritesNow)},
        {file},
        {file,     textKey("menu_rebuild"),         nullptr,          run(rebuild, &CatalogueRebuild::rebuild)},
        {file,     textKey("menu_tools"),           "Ctrl+T",         run(utility, &UtilityDesk::utilityOrderFront)},
        {file,     textKey("menu_savelog"),         nullptr,          run(runs, &RunController::saveLogAction)},
        {file},
        {file,     textKey("menu_quit"),            "Ctrl+Q",         run(*this, &Program::quitRequested)},
        {edit,     textKey("menu_undo"),            "Ctrl+Z",         run(keys, &KeyCommands::undo), &KeyCommands::canUndo},
        {edit,     textKey("menu_redo"),            "Ctrl+Shift+Z",   run(keys, &KeyCommands::redo), &KeyCommands::canRedo},
        {edit},
        {edit,     textKey("menu_find"),            "Ctrl+F",         run(keys, &KeyCommands::find)},
        {edit,     textKey("menu_copy"),            "Ctrl+C",         run(keys, &KeyCommands::copySelection)},
        {edit,     textKey("menu_editcell"),        nullptr,          run(keys, &KeyCommands::editCell)},
        {edit,     textKey("menu_editrecord"),      "Ctrl+E",         run(keys, &KeyCommands::edit)},
        {edit,     textKey("menu_removerecord"),    "Delete",         run(keys, &KeyCommands::remove)},
        {edit},
        {edit,     textKey("menu_preferences"),     "Ctrl+,",         [this] { toggle(preferences); }},
        {edit,     textKey("menu_reset"),           nullptr,          run(reset, &SettingsReset::resetSettings)},
        {view,     textKey("menu_filter"),          "Ctrl+Shift+F",   run(finding, &Finding::showPredicatePanel)},
        {view,     textKey("menu_showall"),         "Ctrl+Shift+A",   run(finding, &Finding::showAll)},
        {view,     textKey("menu_home"),            "Home",           run(keys, &KeyCommands::scrollsHomeAction)},
        {view,     textKey("menu_end"),             "End",            run(keys, &KeyCommands::scrollsEndAction)},
        {view},
        {view,     textKey("menu_bigger"),          "Ctrl++; Ctrl+=", run(keys, &KeyCommands::makeTextBigger)},
        {view,     textKey("menu_smaller"),         "Ctrl+-",         run(keys, &KeyCommands::makeTextSmaller)},
        {view,     textKey("menu_font"),            nullptr,          run(tableFont, &TableFont::showFontPanel1)},
        {game,     textKey("menu_play"),            "Ctrl+R",         run(keys, &KeyCommands::menuRun)},
        {game,     textKey("menu_stop"),            "Ctrl+.",         run(launches, &LaunchController::stopProcess)},
        {game,     textKey("menu_random"),          "Ctrl+G",         run(keys, &KeyCommands::mameslotAction)},
        {game},
        {game,     textKey("menu_addfavorite"),     "Ctrl+D",         run(favourites, &UCAppController::addFavorite)},
        {game,     textKey("menu_clearplayed"),     nullptr,          run(favorites.played(), &PlayedController::clearPlayed)},
        {game,     textKey("menu_launcher"),        nullptr,          run(commands, &CommandsDesk::saveLauncher)},
        {game},
        {game,     textKey("menu_history"),         "Ctrl+I",         run(info, &InfoDesk::searchHistoryinfo)},
        {game,     textKey("menu_rominfo"),         "Ctrl+Shift+I",   run(info, &InfoDesk::openROMinfo)},
        {emulator, textKey("menu_emulatorfile"),    nullptr,          run(paths, &PathChooser::selectExefile)},
        {emulator, textKey("menu_romfolder"),       nullptr,          run(paths, &PathChooser::selectROMfolder)},
        {emulator, textKey("menu_currentdir"),      nullptr,          run(paths, &PathChooser::openCurrentdir)},
        {emulator, textKey("menu_openroms"),        nullptr,          run(paths, &PathChooser::openROMfolder)},
        {emulator},
        {emulator, textKey("menu_bioslist"),        "Ctrl+B",         run(bios, &BiosDesk::ViewBiosList)},
        {pictures, textKey("menu_showpicture"),     "Ctrl+P",         run(artwork, &ArtworkDesk::snappreview)},
        {pictures, textKey("menu_nextkind"),        "Ctrl+K",         run(artwork.folder(), &SnapFolder::ChangesnapPop)},
        {pictures, textKey("menu_downloadpicture"), "Ctrl+Shift+D",   run(artwork, &ArtworkDesk::snapdownload)},
        {pictures},
        {pictures, textKey("menu_revealpicture"),   nullptr,          run(artwork, &ArtworkDesk::display_image_Finder)},
        {pictures, textKey("menu_revealrom"),       nullptr,          run(artwork, &ArtworkDesk::display_rom_Finder)},
        {pictures},
        {window,   textKey("menu_main"),            "Ctrl+1",         run(switching, &WindowSwitching::windowMain)},
        {window,   textKey("menu_favorites"),       "Ctrl+2",         run(switching, &WindowSwitching::windowFavorites)},
        {window,   textKey("menu_mini"),            "Ctrl+3",         run(switching, &WindowSwitching::windowMini)},
        {window},
        {window,   textKey("menu_historywindow"),   "Ctrl+H",         run(info, &InfoDesk::showHistoryinfo)},
        {window,   textKey("menu_log"),             "Ctrl+L",         run(runs, &RunController::showLogWindow)},
        {window,   textKey("menu_logfront"),        nullptr,          run(runs, &RunController::windowLog)},
        {helpMenu, textKey("menu_showhelp"),        "F1",             [this] { toggle(help()); }},
    };
    // clang-format on
}

} // namespace tessera
