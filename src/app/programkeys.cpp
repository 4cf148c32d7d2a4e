// What each command does while this or that window is key.

#include "app/program.h"

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
    // Its table is there when it is key, and not before.
    UCAppController* favourites = &favorites.controller();
    GameListController* games = &gameList;
    const auto log = [this] { return logWindow.infomationTextView; };
    const auto history = [this] { return info.window().historyinfoTextView; };
    const GameSelection* typed = &mini;

    const Command random = [games] { games->gameShuffle(); };
    const Command random2 = [favourites] { favourites->gameShuffle2(); };
    const Command random3 = [this] { mini.random(); };
    const Command top = [games] { games->table()->scrollToTop(); };
    const Command top2 = [favourites] { favourites->table()->scrollToTop(); };
    const Command bottom = [games] { games->table()->scrollToBottom(); };
    const Command bottom2 = [favourites] { favourites->table()->scrollToBottom(); };
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
    const Command find2 = [this] { favorites.focusSearch(); };
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
        {Kind::Main,             random,  top,               bottom,              games,      remove,  save,  edit,  find,     bigger,  smaller,  games,      undo},
        {Kind::Mini,             random3, nullptr,           nullptr,             typed,      nullptr, save,  edit,  find,     bigger,  smaller,  nullptr,    undo},
        {Kind::Favourites,       random2, top2,              bottom2,             favourites, remove2, save2, edit2, find2,    bigger,  smaller,  favourites, undo2},
        {Kind::Log,              nullptr, page(log, up),     page(log, down),     nullptr,    nullptr, save,  edit,  find,     bigger,  smaller,  nullptr,    undo},
        {Kind::History,          nullptr, page(history, up), page(history, down), nullptr,    nullptr, save,  edit,  findText, bigger2, smaller2, nullptr,    undo},
        {Kind::Editor,           nullptr, nullptr,           nullptr,             games,      nullptr, save,  edit,  find,     bigger,  smaller,  nullptr,    undo},
        {Kind::FavouritesEditor, nullptr, nullptr,           nullptr,             favourites, nullptr, save2, edit,  find,     bigger,  smaller,  nullptr,    undo2},
        {Kind::Bios,             nullptr, nullptr,           nullptr,             nullptr,    nullptr, save,  edit,  find,     bigger,  smaller,  nullptr,    undo3},
        {Kind::Other,            nullptr, nullptr,           nullptr,             nullptr,    nullptr, save,  edit,  find,     bigger,  smaller,  nullptr,    undo},
    };
    // clang-format on
}

} // namespace tessera
