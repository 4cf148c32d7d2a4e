// The program's commands, one line each where it goes.

#include "app/tessera_appdelegate.h"

#include "app/artworkdesk.h"
#include "app/biosdesk.h"
#include "app/cataloguerebuild.h"
#include "app/commandsdesk.h"
#include "app/favoritesdesk.h"
#include "app/favoriteswindow.h"
#include "app/finding.h"
#include "app/helpwindow.h"
#include "app/infodesk.h"
#include "app/keycommands.h"
#include "app/mainwindow.h"
#include "app/minidesk.h"
#include "app/optionsdesk.h"
#include "app/preferenceswindow.h"
#include "app/windowswitching.h"
#include "bios/ui/bioslist.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/tablefont.h"
#include "favourites/ui/favouritestable.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/desktop.h"
#include "tools/ui/utilityobject.h"
#include "widgets/bringforward.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace tessera {

void Tessera_AppDelegate::saveAction()
{
    commitEditing();
    // Nothing is written then: another program may have put a newer catalogue there meanwhile.
    if (!m_catalogue.hasChanges()) {
        m_mainWindow->say(qtTrId("catalogue_save_nothing"));
        return;
    }
    const auto saved = m_catalogue.save();
    if (!saved)
        m_desktop.presentError(saved.error().text(), QString(), {});
    else if (saved->isEmpty())
        m_mainWindow->say(qtTrId("catalogue_saved"));
    else
        m_mainWindow->say(Failure{"catalogue_saved_kept", {*saved}}.text());
}

// While a catalogue is built, edits of the old one stay as they are.
QUndoStack* Tessera_AppDelegate::editedStack()
{
    QUndoStack* stack = m_keyCommands->undoStack();
    return stack == &m_catalogue.undoStack() && m_rebuild->isRunning() ? nullptr : stack;
}

// What is being typed in a list is an edit like the others, and the last one.
void Tessera_AppDelegate::undo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->undo();
}

void Tessera_AppDelegate::redo()
{
    commitCells();
    if (QUndoStack* stack = editedStack())
        stack->redo();
}

void Tessera_AppDelegate::commitCells()
{
    m_favorites->controller().commitEditing();
    m_gameList->commitEditing();
}

void Tessera_AppDelegate::editCell()
{
    if (GameTableView* table = listOfKeyWindow(); table != nullptr && !m_rebuild->isRunning())
        table->edit(table->currentIndex());
}

void Tessera_AppDelegate::copySelection()
{
    QWidget* focused = QApplication::focusWidget();
    if (auto* text = qobject_cast<QPlainTextEdit*>(focused))
        text->copy();
    else if (auto* label = qobject_cast<QLabel*>(focused); label != nullptr && label->hasSelectedText())
        QGuiApplication::clipboard()->setText(label->selectedText());
    else if (const GameTableView* table = listOfKeyWindow())
        table->copySelection();
}

GameTableView* Tessera_AppDelegate::listOfKeyWindow()
{
    switch (keyWindow()) {
    case KeyWindow::Kind::Main:
        return m_mainWindow->gameTable;
    case KeyWindow::Kind::Favorites:
        return m_favorites->window().favoritesTable;
    default:
        return nullptr;
    }
}

void Tessera_AppDelegate::showPredicatePanel()
{
    m_finding->showPredicatePanel();
}

void Tessera_AppDelegate::focusSearch()
{
    if (m_info->isKey()) {
        m_info->window().findField->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    if (!m_mainWindow->isVisible())
        windowMain();
    m_finding->focusSearch();
}

void Tessera_AppDelegate::showAllGames()
{
    m_finding->showAll();
}

void Tessera_AppDelegate::editRecord()
{
    if (m_keyCommands->keyWindow() == KeyWindow::Kind::Favorites)
        m_favorites->editing().editRecord();
    else
        m_editing->editRecord();
}

void Tessera_AppDelegate::removeRecord()
{
    m_gameList->commitEditing();
    m_editing->commitEditing();
    m_editing->removeRecord();
}

void Tessera_AppDelegate::mameslotAction()
{
    m_keyCommands->mameslotAction();
}

void Tessera_AppDelegate::scrollsHomeAction()
{
    m_keyCommands->scrollsHomeAction();
}

void Tessera_AppDelegate::scrollsEndAction()
{
    m_keyCommands->scrollsEndAction();
}

void Tessera_AppDelegate::openROMfile()
{
    m_gameList->openROMfile();
}

void Tessera_AppDelegate::commitEditing()
{
    m_gameList->commitEditing();
    m_editing->commitEditing();
}

void Tessera_AppDelegate::rebuildCatalogue()
{
    commitEditing();
    m_rebuild->rebuild();
}

void Tessera_AppDelegate::menuRun()
{
    m_keyCommands->menuRun();
}

void Tessera_AppDelegate::runGame(const QString& game)
{
    if (game.isEmpty())
        m_desktop.beep();
    else
        m_launch->Launchusing(game);
}

void Tessera_AppDelegate::removeOfKeyWindow()
{
    m_keyCommands->remove();
}

void Tessera_AppDelegate::saveOfKeyWindow()
{
    m_keyCommands->save();
}

void Tessera_AppDelegate::saveFavoritesNow()
{
    m_favorites->controller().saveFavoritesNow();
}

void Tessera_AppDelegate::addFavorite()
{
    m_favorites->controller().addFavorite();
}

void Tessera_AppDelegate::clearPlayed()
{
    m_favorites->played().clearPlayed();
}

void Tessera_AppDelegate::setNotesPlayed(bool notes)
{
    m_defaults.defaults().setValue(keys::PlayedIsOff.name, !notes);
}

void Tessera_AppDelegate::playSelected()
{
    m_gameList->tableViewDoubleAction();
}

void Tessera_AppDelegate::stopGame()
{
    m_launch->stopProcess();
}

void Tessera_AppDelegate::selectExefile()
{
    m_chooser->selectExefile();
}

void Tessera_AppDelegate::selectROMfolder()
{
    m_chooser->selectROMfolder();
}

void Tessera_AppDelegate::saveLauncher()
{
    m_commands->saveLauncher();
}

void Tessera_AppDelegate::openCurrentdir()
{
    m_chooser->openCurrentdir();
}

void Tessera_AppDelegate::openROMfolder()
{
    m_chooser->openROMfolder();
}

void Tessera_AppDelegate::saveLogAction()
{
    m_runs->saveLogAction();
}

void Tessera_AppDelegate::windowMain()
{
    m_switching->windowMain();
}

void Tessera_AppDelegate::windowFavorites()
{
    m_switching->windowFavorites();
}

void Tessera_AppDelegate::windowMini()
{
    m_switching->windowMini();
}

void Tessera_AppDelegate::showLogWindow()
{
    m_runs->showLogWindow();
}

void Tessera_AppDelegate::windowLog()
{
    m_runs->windowLog();
}

void Tessera_AppDelegate::showPrefsWindow()
{
    m_options->addPages();
    m_artwork->addPage(*m_preferencesWindow);
    m_info->addPage(*m_preferencesWindow);
    toggle(*m_preferencesWindow);
}

void Tessera_AppDelegate::showHelpWindow()
{
    toggle(helpWindow());
}

void Tessera_AppDelegate::utilityOrderFront()
{
    utility().utilityOrderFront();
}

void Tessera_AppDelegate::showHistoryinfo()
{
    m_info->showHistoryinfo();
}

void Tessera_AppDelegate::searchHistoryinfo()
{
    m_info->searchHistoryinfo();
}

void Tessera_AppDelegate::openROMinfo()
{
    m_info->openROMinfo();
}

void Tessera_AppDelegate::ViewBiosList()
{
    m_bios->list().ViewBiosList();
}

void Tessera_AppDelegate::snappreview()
{
    m_artwork->snappreview();
}

void Tessera_AppDelegate::ChangesnapPop()
{
    m_artwork->folder().ChangesnapPop();
}

void Tessera_AppDelegate::snapdownload()
{
    m_artwork->snapdownload();
}

void Tessera_AppDelegate::display_image_Finder()
{
    m_artwork->display_image_Finder();
}

void Tessera_AppDelegate::display_rom_Finder()
{
    m_artwork->display_rom_Finder();
}

void Tessera_AppDelegate::makeTextBigger()
{
    if (m_info->isKey())
        m_info->history().makeTextBigger();
    else
        m_tableFont->makeTextBigger();
}

void Tessera_AppDelegate::makeTextSmaller()
{
    if (m_info->isKey())
        m_info->history().makeTextSmaller();
    else
        m_tableFont->makeTextSmaller();
}

void Tessera_AppDelegate::showFontPanel1()
{
    m_tableFont->showFontPanel1();
}

void Tessera_AppDelegate::resetSettings()
{
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("reset_Message");
    alert.informative = qtTrId("reset_Info");
    alert.buttons = {qtTrId("reset_reset"), qtTrId("reset_cancel")};
    if (m_desktop.runAlert(alert) == 0)
        DefaultAction();
}

void Tessera_AppDelegate::DefaultAction()
{
    m_mainWindow->setBusy(true);
    m_defaults.revertToInitialValues();
    Q_EMIT defaultAction();
    m_launch->LaunchemuPopAction();
    m_artwork->aspect().snapviewAction();
    m_logWindow->infomationTextView->replace(qtTrId("preferences_ini"));
    m_mainWindow->setBusy(false);
    m_desktop.playSound(QStringLiteral("Tink"));
}

void Tessera_AppDelegate::Setwindowtitle()
{
    m_mainWindow->setWindowTitle(QStringLiteral("Tessera  |  ")
                                 + m_pages->general().launchusingPop->currentText());
    m_mini->setEmulator(m_pages->general().launchusingPop->currentText());
}

} // namespace tessera
