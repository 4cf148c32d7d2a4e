#include "app/desks/infodesk.h"

#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/preferenceswindow.h"
#include "app/statusline.h"
#include "app/windows/supportpage.h"
#include "app/windows.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "info/ui/infopage.h"
#include "info/ui/infosites.h"
#include "info/ui/sitechoice.h"
#include "launch/ui/pathchooser.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/bringforward.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace tessera {

namespace {

using Kind = KeyWindow::Kind;

// What stands for the parent of a name that was typed.
constexpr QLatin1StringView unknownParent("????");

struct ListMenu {
    int tag;
    Kind window;
};

constexpr std::array listMenus{ListMenu{2, Kind::Main}, ListMenu{3, Kind::Favourites}};

void addToMenu(QAbstractItemView& list, InfoDesk& desk, int tag)
{
    auto* history = new QAction(qtTrId("menu_history"), &list);
    QObject::connect(history, &QAction::triggered, &desk, [&desk, tag] { desk.searchHistoryinfo_menu(tag); });
    auto* page = new QAction(qtTrId("menu_rominfo"), &list);
    const bool isFavourites = tag == listMenus.back().tag;
    QObject::connect(page, &QAction::triggered, &desk,
                     isFavourites ? &InfoDesk::openROMinfo2 : &InfoDesk::openROMinfo);
    list.addActions({history, page});
    list.setContextMenuPolicy(Qt::ActionsContextMenu);
}

} // namespace

InfoDesk::InfoDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_subjects(subjects())
{
    connect(&m_parts.list, &GameListController::selectionChanged, this, [this] { follow(Kind::Main); });
    connect(&m_parts.favorites.controller(), &UCAppController::selectionChanged, this,
            [this] { follow(Kind::Favourites); });
    connect(&m_parts.paths, &PathChooser::chosen, this, &InfoDesk::pathChosen);
    connect(&m_parts.preferences, &PreferencesWindow::aboutToShow, this, &InfoDesk::addPage);
}

InfoDesk::~InfoDesk() = default;

std::vector<InfoDesk::Subject> InfoDesk::subjects()
{
    const GameSelection* game = &m_parts.list;
    const GameSelection* favorite = &m_parts.favorites.controller();
    const GameSelection* typed = &m_parts.mini;
    // Deliberate: the record editor shows the game list's name, and looks up the favourites' parent.
    // clang-format off
    return {
        {Kind::Main,            game,     game,     true},
        {Kind::Favourites,       favorite, favorite, true},
        {Kind::FavouritesEditor, favorite, favorite, false},
        {Kind::Mini,            typed,    nullptr,  true},
        {Kind::Editor,          game,     favorite, true},
    };
    // clang-format on
}

const InfoDesk::Subject* InfoDesk::subject() const
{
    const auto found = std::ranges::find(m_subjects, m_parts.windows.key().kind(), &Subject::window);
    return found == m_subjects.end() ? nullptr : &*found;
}

HistoryWindow& InfoDesk::window()
{
    if (!m_window) {
        m_window = std::make_unique<HistoryWindow>();
        m_history = std::make_unique<HistoryObject>(m_parts.desktop, m_parts.defaults, *m_window);
        m_parts.windows.carryMenuKeys(*m_window);
        m_parts.windows.watch(*m_window, Kind::History);
        m_parts.windows.places().keep(*m_window, keys::HistoryWindowGeometry);
        connect(m_window->historyButton, &QPushButton::clicked, &m_parts.paths,
                &PathChooser::selectHistorybat);
        connect(m_window->mameinfoButton, &QPushButton::clicked, &m_parts.paths,
                &PathChooser::selectMameinfobat);
        m_history->awakeFromNib();
    }
    return *m_window;
}

HistoryObject& InfoDesk::history()
{
    window();
    return *m_history;
}

InfoSites& InfoDesk::sites()
{
    if (!m_sites) {
        m_sites = std::make_unique<InfoSites>(m_parts.desktop, m_parts.defaults);
        connect(m_sites.get(), &InfoSites::statusMessage, &m_parts.status, &StatusLine::answer);
    }
    return *m_sites;
}

void InfoDesk::addPage()
{
    if (!std::exchange(m_hasPage, true))
        m_parts.preferences.supportPage().addPage(qtTrId("support_sites"), sites().makePage());
}

void InfoDesk::addContextMenu(QAbstractItemView& list, Kind window)
{
    if (const auto menu = std::ranges::find(listMenus, window, &ListMenu::window); menu != listMenus.end())
        addToMenu(list, *this, menu->tag);
}

// What was never loaded is read when its window is first asked for.
void InfoDesk::pathChosen(const QString& key)
{
    if (!m_history)
        return;
    if (key == keys::HistoryPath.name)
        m_history->set_histryString();
    else if (key == keys::MameinfoPath.name)
        m_history->set_infoString();
}

void InfoDesk::showHistoryinfo()
{
    toggle(window());
}

void InfoDesk::searchHistoryinfo()
{
    const Subject* asked = subject();
    if (asked == nullptr)
        return;
    show(asked->name(), asked->key());
    if (asked->window == Kind::Mini && !asked->key().isEmpty())
        m_window->showParent(unknownParent);
}

void InfoDesk::searchHistoryinfo_menu(int tag)
{
    const auto* menu = std::ranges::find(listMenus, tag, &ListMenu::tag);
    if (menu == listMenus.end())
        return;
    const auto asked = std::ranges::find(m_subjects, menu->window, &Subject::window);
    show(asked->name(), asked->key());
}

// To the front, but the list stays key.
void InfoDesk::show(const QString& name, const QString& key)
{
    if (key.isEmpty())
        return;
    HistoryWindow& shown = window();
    shown.historySearchField->setText(name);
    shown.showParent(key);
    m_history->searchHistoryInfo(key);
    if (!isShown(shown))
        showBesides(shown);
}

// Lists tell of their selection again when their window is shown or a picture has come, and the hidden one
// of the two does so too: neither is a step of the user's.
void InfoDesk::follow(KeyWindow::Kind list)
{
    const auto asked = std::ranges::find(m_subjects, list, &Subject::window);
    const QString name = asked->name();
    if (std::exchange(m_names[list], name) == name || !isListShown(list))
        return;
    if (m_window && m_window->isVisible() && m_parts.defaults.stored().flag(keys::HistoryFollows.name))
        m_history->followTo(name, asked->key());
}

bool InfoDesk::isListShown(KeyWindow::Kind list) const
{
    return list == Kind::Main ? m_parts.mainWindow.isVisible() : m_parts.favorites.isVisible();
}

// No set is meant in any other window.
void InfoDesk::openROMinfo()
{
    const Subject* asked = subject();
    sites().openROMinfo(asked != nullptr && asked->hasPage ? asked->name() : QString());
}

// Deliberate: the favourites window's own commands go by its own choice of a site, the menu bar's by that of
// the preferences.
void InfoDesk::openROMinfo2()
{
    FavouritesDesk& favorites = m_parts.favorites;
    const QString name = favorites.controller().tableViewSelectionROM2();
    const SiteChoice& choice = *favorites.window().siteChoice;
    if (const QString why = choice.hindrance(); !name.isEmpty() && !why.isEmpty())
        m_parts.status.answer(why);
    const auto page = name.isEmpty() ? std::nullopt : choice.page(name);
    if (!page || !m_parts.desktop.openUrl(*page))
        m_parts.desktop.beep();
}

} // namespace tessera
