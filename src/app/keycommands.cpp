#include "app/keycommands.h"

#include "app/mainwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"

#include <QScrollBar>

#include <algorithm>

namespace tessera {

KeyCommands::KeyCommands(MainWindow& mainWindow, QWidget& logWindow, QAbstractScrollArea& log,
                         GameListController& list, RecordEditing& editing, QObject* parent)
    : QObject(parent)
    , m_editing(editing)
{
    using Kind = KeyWindow::Kind;
    m_keyWindow.watch(mainWindow, Kind::Main);
    m_keyWindow.watch(logWindow, Kind::Log);

    const auto page = [bar = log.verticalScrollBar()](QAbstractSlider::SliderAction action) {
        return [bar, action] { bar->triggerAction(action); };
    };
    // Deliberate: in a window with text the commands move by one page only, not to its top or end.
    // clang-format off
    m_rows = {
        {Kind::Main, [&list] { list.gameShuffle(); }, [t = mainWindow.gameTable] { t->scrollToTop(); },  [t = mainWindow.gameTable] { t->scrollToBottom(); }},
        {Kind::Log,  nullptr,                         page(QAbstractSlider::SliderPageStepSub),          page(QAbstractSlider::SliderPageStepAdd)},
    };
    // clang-format on
}

// Any other window: nothing.
void KeyCommands::run(Command Row::* command)
{
    const auto row = std::ranges::find(m_rows, m_keyWindow.kind(), &Row::window);
    if (row != m_rows.end() && (*row).*command)
        ((*row).*command)();
}

void KeyCommands::mameslotAction()
{
    run(&Row::random);
}

void KeyCommands::scrollsHomeAction()
{
    run(&Row::home);
}

void KeyCommands::scrollsEndAction()
{
    run(&Row::end);
}

void KeyCommands::editRecord()
{
    m_editing.editRecord();
}

} // namespace tessera
