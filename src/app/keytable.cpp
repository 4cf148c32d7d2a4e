#include "app/keytable.h"

#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/miniwindow.h"
#include "app/preferenceswindow.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/favouritestable.h"
#include "info/ui/historywindow.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"

#include <QScrollBar>

namespace tessera {

namespace {

// Deliberate: in a window with text Home and End move by one page only, not to its top or end.
KeyCommands::Command page(const LogView& text, QAbstractSlider::SliderAction action)
{
    return [bar = text.verticalScrollBar(), action] { bar->triggerAction(action); };
}

} // namespace

std::vector<KeyCommands::Row> keyTable(Tessera_AppDelegate& hub)
{
    using Kind = KeyWindow::Kind;
    GameListController& list = hub.gameList();
    UCAppController& favorites = hub.favorites().controller();
    GameTableView& table = *hub.mainWindow().gameTable;
    GameTableView& table2 = *hub.favorites().window().favoritesTable;
    QUndoStack* edits = &hub.catalogue().undoStack();
    QUndoStack* edits2 = &hub.favorites().favourites().undoStack();
    const LogView& log = *hub.logWindow().infomationTextView;
    const auto game = [&list] { return list.tableViewSelectionROM(); };
    const auto favorite = [&favorites] { return favorites.tableViewSelectionROM2(); };
    const auto save = [&hub] { hub.saveAction(); };
    const auto save2 = [&favorites] { favorites.saveFavoritesNow(); };
    const auto remove = [&hub] { hub.removeRecord(); };
    const auto remove2 = [&favorites] { favorites.removeFavoritesTable(); };
    // clang-format off
    return {
        {Kind::Main,      &hub.mainWindow(),           [&list] { list.gameShuffle(); },            [&table] { table.scrollToTop(); },          [&table] { table.scrollToBottom(); },       game,                            remove,  save,  edits},
        {Kind::Mini,      &hub.mini().window(),            [&hub] { hub.randomForMini(); },                nullptr,                                    nullptr,                                    [&hub] { return hub.mini().game(); }, nullptr, save,  edits},
        {Kind::Favorites, &hub.favorites().window(),       [&favorites] { favorites.gameShuffle2(); }, [&table2] { table2.scrollToTop(); },        [&table2] { table2.scrollToBottom(); },     favorite,                        remove2, save2, edits2},
        {Kind::Log,       &hub.logWindow(),            nullptr,                                    page(log, QAbstractSlider::SliderPageStepSub), page(log, QAbstractSlider::SliderPageStepAdd),   nullptr,                         nullptr, save,  edits},
        {Kind::Editor,    &hub.editing().editor(),         nullptr,                                    nullptr,                                    nullptr,                                    game,                            nullptr, save,  edits},
        {Kind::FavoritesEditor, &hub.favorites().editing().editor(), nullptr,                          nullptr,                                    nullptr,                                    favorite,                        nullptr, save2, edits2},
        {Kind::Other,     &hub.preferencesWindow(),    nullptr,                                    nullptr,                                    nullptr,                                    nullptr,                         nullptr, save,  edits},
    };
    // clang-format on
}

KeyCommands::Row historyRow(Tessera_AppDelegate& hub, HistoryWindow& window)
{
    const LogView& text = *window.historyinfoTextView;
    return {KeyWindow::Kind::History,
            &window,
            nullptr,
            page(text, QAbstractSlider::SliderPageStepSub),
            page(text, QAbstractSlider::SliderPageStepAdd),
            nullptr,
            nullptr,
            [&hub] { hub.saveAction(); },
            &hub.catalogue().undoStack()};
}

} // namespace tessera
