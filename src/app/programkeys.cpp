// What each command does while this or that window is key.

#include "app/program.h"

#include "app/windows/favouriteswindow.h"
#include "catalogue/ui/gametableview.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"

#include <QLineEdit>
#include <QScrollBar>

namespace tessera {

namespace {

// Deliberate: in a window with text Home and End move by one page only, not to its top or end.
KeyCommands::Command page(const std::function<LogView*()>& text, QAbstractSlider::SliderAction action)
{
    return [text, action] { text()->verticalScrollBar()->triggerAction(action); };
}

} // namespace

std::vector<KeyCommands::Row> Program::keyTable()
{
    using Kind = KeyWindow::Kind;
    using Command = KeyCommands::Command;
    constexpr auto up = QAbstractSlider::SliderPageStepSub;
    constexpr auto down = QAbstractSlider::SliderPageStepAdd;
    GameTableView* table = mainWindow.gameTable;
    UCAppController* favourites = &favorites.controller();
    const auto list = [table] { return table; };
    // The window is there when it is key, and not before.
    const auto list2 = [this] { return favorites.window().favoritesTable; };
    const auto log = [this] { return logWindow.infomationTextView; };
    const auto history = [this] { return info.window().historyinfoTextView; };
    const GameSelection* game = &gameList;
    const GameSelection* favorite = favourites;
    const GameSelection* typed = &mini;

    const Command random = [this] { gameList.gameShuffle(); };
    const Command random2 = [favourites] { favourites->gameShuffle2(); };
    const Command random3 = [this] { mini.random(); };
    const Command top = [table] { table->scrollToTop(); };
    const Command top2 = [list2] { list2()->scrollToTop(); };
    const Command bottom = [table] { table->scrollToBottom(); };
    const Command bottom2 = [list2] { list2()->scrollToBottom(); };
    const Command remove = [this] {
        saving.commitEditing();
        editing.removeRecord();
    };
    const Command remove2 = [favourites] { favourites->removeFavoritesTable(); };
    const Command save = [this] { saving.saveAction(); };
    const Command save2 = [favourites] { favourites->saveFavouritesNow(); };
    const Command edit = [this] { editing.editRecord(); };
    const Command edit2 = [this] { favorites.editing().editRecord(); };
    const Command find = [this] {
        if (!mainWindow.isVisible())
            switching.windowMain();
        finding.focusSearch();
    };
    const Command findText = [this] { info.window().findField->setFocus(Qt::ShortcutFocusReason); };
    const Command bigger = [this] { tableFont.makeTextBigger(); };
    const Command smaller = [this] { tableFont.makeTextSmaller(); };
    const Command bigger2 = [this] { info.history().makeTextBigger(); };
    const Command smaller2 = [this] { info.history().makeTextSmaller(); };
    QUndoStack* undo = &catalogue.undoStack();
    QUndoStack* undo2 = &favorites.favourites().undoStack();
    QUndoStack* undo3 = &bios.undoStack();
    // clang-format off
    return {
        {Kind::Main,            random,  top,               bottom,              game,     remove,  save,  edit,  find,     bigger,  smaller,  list,    undo},
        {Kind::Mini,            random3, nullptr,           nullptr,             typed,    nullptr, save,  edit,  find,     bigger,  smaller,  nullptr, undo},
        {Kind::Favourites,       random2, top2,              bottom2,             favorite, remove2, save2, edit2, find,     bigger,  smaller,  list2,   undo2},
        {Kind::Log,             nullptr, page(log, up),     page(log, down),     nullptr,  nullptr, save,  edit,  find,     bigger,  smaller,  nullptr, undo},
        {Kind::History,         nullptr, page(history, up), page(history, down), nullptr,  nullptr, save,  edit,  findText, bigger2, smaller2, nullptr, undo},
        {Kind::Editor,          nullptr, nullptr,           nullptr,             game,     nullptr, save,  edit,  find,     bigger,  smaller,  nullptr, undo},
        {Kind::FavouritesEditor, nullptr, nullptr,           nullptr,             favorite, nullptr, save2, edit,  find,     bigger,  smaller,  nullptr, undo2},
        {Kind::Bios,            nullptr, nullptr,           nullptr,             nullptr,  nullptr, save,  edit,  find,     bigger,  smaller,  nullptr, undo3},
        {Kind::Other,           nullptr, nullptr,           nullptr,             nullptr,  nullptr, save,  edit,  find,     bigger,  smaller,  nullptr, undo},
    };
    // clang-format on
}

} // namespace tessera
