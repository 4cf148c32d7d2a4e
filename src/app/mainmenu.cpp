#include "app/mainmenu.h"

#include "app/mainwindow.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/ui/gametableview.h"
#include "platform/recentdocuments.h"
#include "widgets/plaintooltip.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

#include <array>

namespace tessera {

namespace {

using Command = void (Tessera_AppDelegate::*)();
using Hub = Tessera_AppDelegate;

struct MenuRow {
    const char* menu;
    const char* text; ///< nullptr is a separator
    const char* shortcuts; ///< apart by "; ", the one that is shown first
    Command command;
};

constexpr const char* file = textKey("menu_file");
constexpr const char* edit = textKey("menu_edit");
constexpr const char* view = textKey("menu_view");
constexpr const char* game = textKey("menu_game");
constexpr const char* emulator = textKey("menu_emulator");
constexpr const char* artwork = textKey("menu_artwork");
constexpr const char* window = textKey("menu_window");
constexpr const char* help = textKey("menu_help");

// clang-format off
constexpr std::array rows{
    MenuRow{file,     textKey("menu_openrom"),     "Ctrl+O",       &Hub::openROMfile},
    MenuRow{file,     textKey("menu_save"),        "Ctrl+S",       &Hub::saveOfKeyWindow},
    MenuRow{file,     textKey("menu_savefavorites"), nullptr,      &Hub::saveFavoritesNow},
    MenuRow{file,     nullptr,                     nullptr,        nullptr},
    MenuRow{file,     textKey("menu_rebuild"),     nullptr,        &Hub::rebuildCatalogue},
    MenuRow{file,     textKey("menu_tools"),       "Ctrl+T",       &Hub::utilityOrderFront},
    MenuRow{file,     textKey("menu_savelog"),     nullptr,        &Hub::saveLogAction},
    MenuRow{file,     nullptr,                     nullptr,        nullptr},
    MenuRow{file,     textKey("menu_quit"),        "Ctrl+Q",       &Hub::terminate},
    MenuRow{edit,     textKey("menu_undo"),        "Ctrl+Z",       &Hub::undo},
    MenuRow{edit,     textKey("menu_redo"),        "Ctrl+Shift+Z", &Hub::redo},
    MenuRow{edit,     nullptr,                     nullptr,        nullptr},
    MenuRow{edit,     textKey("menu_find"),        "Ctrl+F",       &Hub::focusSearch},
    MenuRow{edit,     textKey("menu_copy"),        "Ctrl+C",       &Hub::copySelection},
    MenuRow{edit,     textKey("menu_editcell"),    nullptr,        &Hub::editCell},
    MenuRow{edit,     textKey("menu_editrecord"),  "Ctrl+E",       &Hub::editRecord},
    MenuRow{edit,     textKey("menu_removerecord"), "Delete", &Hub::removeOfKeyWindow},
    MenuRow{edit,     nullptr,                     nullptr,        nullptr},
    MenuRow{edit,     textKey("menu_preferences"), "Ctrl+,",       &Hub::showPrefsWindow},
    MenuRow{edit,     textKey("menu_reset"),       nullptr,        &Hub::resetSettings},
    MenuRow{view,     textKey("menu_filter"),      "Ctrl+Shift+F", &Hub::showPredicatePanel},
    MenuRow{view,     textKey("menu_showall"),     "Ctrl+Shift+A", &Hub::showAllGames},
    MenuRow{view,     textKey("menu_home"),        "Home",         &Hub::scrollsHomeAction},
    MenuRow{view,     textKey("menu_end"),         "End",          &Hub::scrollsEndAction},
    MenuRow{view,     nullptr,                     nullptr,        nullptr},
    MenuRow{view,     textKey("menu_bigger"),      "Ctrl++; Ctrl+=", &Hub::makeTextBigger},
    MenuRow{view,     textKey("menu_smaller"),     "Ctrl+-",       &Hub::makeTextSmaller},
    MenuRow{view,     textKey("menu_font"),        nullptr,        &Hub::showFontPanel1},
    MenuRow{game,     textKey("menu_play"),        "Ctrl+R",       &Hub::menuRun},
    MenuRow{game,     textKey("menu_stop"),        "Ctrl+.",       &Hub::stopGame},
    MenuRow{game,     textKey("menu_random"),      "Ctrl+G",       &Hub::mameslotAction},
    MenuRow{game,     nullptr,                     nullptr,        nullptr},
    MenuRow{game,     textKey("menu_addfavorite"), "Ctrl+D",       &Hub::addFavorite},
    MenuRow{game,     textKey("menu_clearplayed"), nullptr,        &Hub::clearPlayed},
    MenuRow{game,     textKey("menu_launcher"),    nullptr,        &Hub::saveLauncher},
    MenuRow{game,     nullptr,                     nullptr,        nullptr},
    MenuRow{game,     textKey("menu_history"),     "Ctrl+I",       &Hub::searchHistoryinfo},
    MenuRow{game,     textKey("menu_rominfo"),     "Ctrl+Shift+I", &Hub::openROMinfo},
    MenuRow{emulator, textKey("menu_emulatorfile"), nullptr,       &Hub::selectExefile},
    MenuRow{emulator, textKey("menu_romfolder"),   nullptr,        &Hub::selectROMfolder},
    MenuRow{emulator, textKey("menu_currentdir"),  nullptr,        &Hub::openCurrentdir},
    MenuRow{emulator, textKey("menu_openroms"),    nullptr,        &Hub::openROMfolder},
    MenuRow{emulator, nullptr,                     nullptr,        nullptr},
    MenuRow{emulator, textKey("menu_bioslist"),    "Ctrl+B",       &Hub::ViewBiosList},
    MenuRow{artwork,  textKey("menu_showpicture"), "Ctrl+P",       &Hub::snappreview},
    MenuRow{artwork,  textKey("menu_nextkind"),    "Ctrl+K",       &Hub::ChangesnapPop},
    MenuRow{artwork,  textKey("menu_downloadpicture"), "Ctrl+Shift+D", &Hub::snapdownload},
    MenuRow{artwork,  nullptr,                     nullptr,        nullptr},
    MenuRow{artwork,  textKey("menu_revealpicture"), nullptr,      &Hub::display_image_Finder},
    MenuRow{artwork,  textKey("menu_revealrom"),   nullptr,        &Hub::display_rom_Finder},
    MenuRow{artwork,  nullptr,                     nullptr,        nullptr},
    MenuRow{window,   textKey("menu_main"),        "Ctrl+1",       &Hub::windowMain},
    MenuRow{window,   textKey("menu_favorites"),   "Ctrl+2",       &Hub::windowFavorites},
    MenuRow{window,   textKey("menu_mini"),        "Ctrl+3",       &Hub::windowMini},
    MenuRow{window,   nullptr,                     nullptr,        nullptr},
    MenuRow{window,   textKey("menu_historywindow"), "Ctrl+H",     &Hub::showHistoryinfo},
    MenuRow{window,   textKey("menu_log"),         "Ctrl+L",       &Hub::showLogWindow},
    MenuRow{window,   textKey("menu_logfront"),    nullptr,        &Hub::windowLog},
    MenuRow{help,     textKey("menu_showhelp"),    "F1",           &Hub::showHelpWindow},
};
// clang-format on

QMenu* menuOf(QMenuBar& bar, const char* key)
{
    const QString name = QLatin1String(key);
    if (auto* menu = bar.findChild<QMenu*>(name))
        return menu;
    QMenu* menu = bar.addMenu(qtTrId(key));
    menu->setObjectName(name);
    return menu;
}

// A plain key belongs to the controls of the other windows, but for the function keys.
bool isLeftToControls(const QKeySequence& shortcut)
{
    return shortcut.count() == 1 && shortcut[0].keyboardModifiers() == Qt::NoModifier
        && (shortcut[0].key() < Qt::Key_F1 || shortcut[0].key() > Qt::Key_F35);
}

void fillRecent(QMenu& menu, Tessera_AppDelegate& delegate)
{
    menu.clear();
    for (const QString& path : delegate.recentDocuments().paths()) {
        // An ampersand in a file name is no mnemonic.
        QAction* action
            = menu.addAction(QFileInfo(path).fileName().replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(plainToolTip(path));
        QObject::connect(action, &QAction::triggered, &delegate,
                         [&delegate, path] { delegate.application_openFile(path); });
    }
    if (menu.isEmpty())
        menu.addAction(qtTrId("menu_norecent"))->setEnabled(false);
}

void addRecentMenu(QMenu& fileMenu, Tessera_AppDelegate& delegate)
{
    auto* recent = new QMenu(qtTrId("menu_recent"), &fileMenu);
    recent->setToolTipsVisible(true);
    fileMenu.insertMenu(fileMenu.actions().value(1), recent);
    QObject::connect(recent, &QMenu::aboutToShow, &delegate,
                     [recent, &delegate] { fillRecent(*recent, delegate); });
}

void addColumnsMenu(QMenu& viewMenu, Tessera_AppDelegate& delegate)
{
    auto* columns = new QMenu(qtTrId("menu_columns"), &viewMenu);
    viewMenu.addMenu(columns);
    QObject::connect(columns, &QMenu::aboutToShow, &delegate, [columns, &delegate] {
        columns->clear();
        if (GameTableView* table = delegate.listOfKeyWindow())
            table->fillColumnsMenu(*columns);
    });
}

void addPlayedSwitch(QMenu& gameMenu, Tessera_AppDelegate& delegate)
{
    auto* notes = new QAction(qtTrId("menu_notesplayed"), &gameMenu);
    notes->setObjectName(QStringLiteral("menu_notesplayed"));
    notes->setCheckable(true);
    notes->setChecked(delegate.notesPlayed());
    gameMenu.insertAction(gameMenu.actions().constLast(), notes);
    QObject::connect(notes, &QAction::triggered, &delegate, &Tessera_AppDelegate::setNotesPlayed);
}

} // namespace

void fillMainMenu(QMenuBar& bar, Tessera_AppDelegate& delegate)
{
    for (const MenuRow& row : rows) {
        QMenu* menu = menuOf(bar, row.menu);
        if (row.text == nullptr) {
            menu->addSeparator();
            continue;
        }
        auto* action = new QAction(qtTrId(row.text), &bar);
        action->setObjectName(QLatin1String(row.text));
        if (row.shortcuts != nullptr)
            action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.shortcuts)));
        action->setShortcutContext(isLeftToControls(action->shortcut()) ? Qt::WindowShortcut
                                                                        : Qt::ApplicationShortcut);
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, &delegate, row.command);
        menu->addAction(action);
    }
    addRecentMenu(*menuOf(bar, file), delegate);
    addColumnsMenu(*menuOf(bar, view), delegate);
    addPlayedSwitch(*menuOf(bar, game), delegate);
}

void carryMenuKeys(const QMenuBar& bar, QWidget& other)
{
    for (QAction* action : bar.findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty())
            other.addAction(action);
    }
}

} // namespace tessera
