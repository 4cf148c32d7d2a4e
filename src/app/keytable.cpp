#include "app/keytable.h"

#include "app/biosdesk.h"
#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/infodesk.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "favourites/ui/favouritestable.h"
#include "info/ui/historywindow.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"

#include <QScrollBar>

namespace tessera {

namespace {

// Deliberate: in a window with text Home and End move by one page only, not to its top or end.
KeyCommands::Command page(const std::function<LogView*()>& text, QAbstractSlider::SliderAction action)
{
    return [text, action] { text()->verticalScrollBar()->triggerAction(action); };
}

} // namespace

std::vector<KeyCommands::Row> keyTable(Tessera_AppDelegate& hub)
{
    using Kind = KeyWindow::Kind;
    GameListController& list = hub.gameList();
    UCAppController& favorites = hub.favorites().controller();
    GameTableView& table = *hub.mainWindow().gameTable;
    // The window is there when it is key, and not before.
    const auto table2 = [&hub] { return hub.favorites().window().favoritesTable; };
    QUndoStack* edits = &hub.catalogue().undoStack();
    QUndoStack* edits2 = &hub.favorites().favourites().undoStack();
    const auto log = [&hub] { return hub.logWindow().infomationTextView; };
    const auto history = [&hub] { return hub.info().window().historyinfoTextView; };
    const auto game = [&list] { return list.tableViewSelectionROM(); };
    const auto favorite = [&favorites] { return favorites.tableViewSelectionROM2(); };
    const auto save = [&hub] { hub.saveAction(); };
    const auto save2 = [&favorites] { favorites.saveFavoritesNow(); };
    const auto remove = [&hub] { hub.removeRecord(); };
    const auto remove2 = [&favorites] { favorites.removeFavoritesTable(); };
    // clang-format off
    return {
        {Kind::Main,            [&list] { list.gameShuffle(); },            [&table] { table.scrollToTop(); },        [&table] { table.scrollToBottom(); },        game,                                 remove,  save,  edits},
        {Kind::Mini,            [&hub] { hub.randomForMini(); },            nullptr,                                  nullptr,                                     [&hub] { return hub.mini().game(); }, nullptr, save,  edits},
        {Kind::Favorites,       [&favorites] { favorites.gameShuffle2(); }, [table2] { table2()->scrollToTop(); },    [table2] { table2()->scrollToBottom(); },    favorite,                             remove2, save2, edits2},
        {Kind::Log,             nullptr,                                    page(log, QAbstractSlider::SliderPageStepSub), page(log, QAbstractSlider::SliderPageStepAdd),    nullptr,                              nullptr, save,  edits},
        {Kind::History,         nullptr,                                    page(history, QAbstractSlider::SliderPageStepSub), page(history, QAbstractSlider::SliderPageStepAdd), nullptr,                    nullptr, save,  edits},
        {Kind::Editor,          nullptr,                                    nullptr,                                  nullptr,                                     game,                                 nullptr, save,  edits},
        {Kind::FavoritesEditor, nullptr,                                    nullptr,                                  nullptr,                                     favorite,                             nullptr, save2, edits2},
        {Kind::Bios,            nullptr,                                    nullptr,                                  nullptr,                                     nullptr,                              nullptr, save,  &hub.bios().undoStack()},
        {Kind::Other,           nullptr,                                    nullptr,                                  nullptr,                                     nullptr,                              nullptr, save,  edits},
    };
    // clang-format on
}

} // namespace tessera
