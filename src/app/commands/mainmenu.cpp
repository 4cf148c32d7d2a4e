#include "app/commands/mainmenu.h"

#include "app/commands/keycommands.h"
#include "catalogue/ui/gametableview.h"
#include "core/texts.h"
#include "favourites/ui/playedcontroller.h"
#include "platform/recentdocuments.h"
#include "widgets/plaintooltip.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

namespace tessera {

namespace {

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

QAction* makeAction(const MenuRow& row, QObject* parent)
{
    auto* action = new QAction(qtTrId(row.text), parent);
    action->setObjectName(QLatin1String(row.text));
    if (row.shortcuts != nullptr)
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(row.shortcuts)));
    action->setShortcutContext(isLeftToControls(action->shortcut()) ? Qt::WindowShortcut
                                                                    : Qt::ApplicationShortcut);
    action->setMenuRole(QAction::NoRole);
    return action;
}

} // namespace

MainMenu::MainMenu(QMenuBar& bar, const std::vector<MenuRow>& rows, const KeyCommands& keys, QObject* parent)
    : QObject(parent)
    , m_bar(bar)
{
    for (const MenuRow& row : rows) {
        QMenu* menu = menuOf(bar, row.menu);
        if (row.text == nullptr) {
            menu->addSeparator();
            continue;
        }
        QAction* action = makeAction(row, &bar);
        connect(action, &QAction::triggered, this, [command = row.command] { command(); });
        menu->addAction(action);
        if (row.isEnabled != nullptr) {
            const auto enable
                = [action, &keys, asked = row.isEnabled] { action->setEnabled((keys.*asked)()); };
            connect(&keys, &KeyCommands::changed, action, enable);
            enable();
        }
    }
}

QMenu& MainMenu::menu(const char* key) const
{
    return *menuOf(m_bar, key);
}

QAction& MainMenu::action(const char* key) const
{
    return *m_bar.findChild<QAction*>(QLatin1String(key));
}

void MainMenu::addRecent(const RecentDocuments& recent)
{
    QMenu& files = menu("menu_file");
    auto* submenu = new QMenu(qtTrId("menu_recent"), &files);
    submenu->setToolTipsVisible(true);
    files.insertMenu(files.actions().value(1), submenu);
    connect(submenu, &QMenu::aboutToShow, this, [this, submenu, &recent] { fillRecent(*submenu, recent); });
}

void MainMenu::fillRecent(QMenu& menu, const RecentDocuments& recent)
{
    menu.clear();
    for (const QString& path : recent.paths()) {
        // An ampersand in a file name is no mnemonic.
        QAction* action
            = menu.addAction(QFileInfo(path).fileName().replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(plainToolTip(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT openRequested(path); });
    }
    if (menu.isEmpty())
        menu.addAction(qtTrId("menu_norecent"))->setEnabled(false);
}

void MainMenu::addColumns(const KeyCommands& keys)
{
    QMenu& views = menu("menu_view");
    auto* columns = new QMenu(qtTrId("menu_columns"), &views);
    views.addMenu(columns);
    connect(columns, &QMenu::aboutToShow, this, [columns, &keys] {
        columns->clear();
        if (GameTableView* table = keys.list())
            table->fillColumnsMenu(*columns);
    });
}

void MainMenu::addPlayedSwitch(PlayedController& played)
{
    QMenu& games = menu("menu_game");
    auto* notes = new QAction(qtTrId("menu_notesplayed"), &games);
    notes->setObjectName(QStringLiteral("menu_notesplayed"));
    notes->setCheckable(true);
    notes->setChecked(played.notesPlayed());
    games.insertAction(&action("menu_clearplayed"), notes);
    connect(notes, &QAction::triggered, &played, &PlayedController::setNotesPlayed);
}

} // namespace tessera
