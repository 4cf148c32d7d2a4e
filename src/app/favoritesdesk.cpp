#include "app/favoritesdesk.h"

#include "app/emptystate.h"
#include "app/favoriteswindow.h"
#include "app/finding.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "favourites/favouritespath.h"
#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/favouritestable.h"
#include "launch/profilecache.h"
#include "launch/emulatorchoice.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

// Beside our own folder in the user's application support.
QString pathBeside(const Catalogue& catalogue)
{
    return favouritesPath(QFileInfo(QFileInfo(catalogue.path()).absolutePath()).absolutePath());
}

} // namespace

FavoritesDesk::FavoritesDesk(Parts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
    , m_favourites(pathBeside(m_parts.catalogue))
    , m_played(playedPath(m_favourites.path()))
    , m_controller({m_parts.desktop, m_parts.defaults, m_favourites, m_played, m_parts.catalogue,
                    [this] { return m_parts.list.selectedRecord(); }})
    , m_editing(m_favourites, m_controller)
    , m_playing(m_played, m_parts.desktop, m_parts.defaults)
{
    connect(&m_controller, &UCAppController::launchRequested, this, &FavoritesDesk::launchRequested);
    for (const auto& changed : {&Favourites::replaced, &Favourites::appended})
        connect(&m_favourites, changed, this, &FavoritesDesk::tellNames);
    connect(&m_favourites, &Favourites::removed, this, &FavoritesDesk::tellNames);
    connect(&m_favourites, &Favourites::putBackAt, this, &FavoritesDesk::tellNames);
    connect(&m_favourites, &Favourites::valueChanged, this, &FavoritesDesk::tellNames);
    const RomWatcher& roms = m_parts.finding.roms();
    connect(&roms, &RomWatcher::changed, this, [this, &roms] { m_controller.setRomFolders(roms.folders()); });
    joinEditor();
}

void FavoritesDesk::joinEditor()
{
    connect(&m_editing, &FavouriteEditing::windowMade, this, [this](QWidget& editor) {
        m_parts.windows.watch(editor, KeyWindow::Kind::FavoritesEditor);
        m_parts.windows.places().keep(editor, keys::FavoritesEditorGeometry);
        offerKnownOptions();
    });
    connect(&m_parts.profiles, &ProfileCache::answered, this, [this] {
        if (m_editing.isMade())
            offerKnownOptions();
    });
    // Its command line is made from the settings and from what the emulator understands.
    connect(&m_parts.profiles, &ProfileCache::answered, &m_editing, &FavouriteEditing::showSelection);
    connect(&m_parts.defaults, &DefaultsController::changed, &m_editing, &FavouriteEditing::showSelection);
}

// What the emulator in use lists; before it has answered everything is taken as it is typed.
void FavoritesDesk::offerKnownOptions()
{
    const auto answer = m_parts.profiles.remembered(m_parts.emulator.emulator());
    KnownOptions known;
    if (answer && answer->profile) {
        for (const EmulatorProfile::Option& option : answer->profile->options())
            known.options << KnownOption{option.name, option.description};
        known.lists = [profile = *answer->profile](QStringView option) { return profile.lists(option); };
    }
    m_editing.editor().setKnownOptions(std::move(known));
}

// Searches ask which sets are favourites.
void FavoritesDesk::tellNames()
{
    NameSet names;
    for (const QString& name : m_favourites.names())
        names.insert(name.toStdString());
    m_parts.finding.finder().setFavorites(names);
}

FavoritesDesk::~FavoritesDesk() = default;

bool FavoritesDesk::isVisible() const
{
    return m_window && m_window->isVisible();
}

FavoritesWindow& FavoritesDesk::window()
{
    if (m_window)
        return *m_window;
    m_window = std::make_unique<FavoritesWindow>(m_parts.defaults);
    joinWindow();
    m_controller.setTable(m_window->favoritesTable);
    m_window->restore();
    // What the header was sorted by comes back with its columns.
    m_controller.favorites_tableViewSort();
    m_window->showUnsaved(!m_favourites.undoStack().isClean());
    showCount();
    showSelection();
    m_controller.romStatus2();
    m_window->takeMenus(m_parts.windows.menus());
    m_parts.windows.watch(*m_window, KeyWindow::Kind::Favorites);
    m_parts.windows.openDropped(*m_window);
    Q_EMIT windowMade(*m_window);
    m_parts.windows.places().keep(*m_window, keys::FavoritesWindowGeometry);
    // It is shown in the main window's place, if not in its own.
    m_parts.windows.places().restore(*m_window);
    return *m_window;
}

void FavoritesDesk::remember()
{
    if (m_window)
        m_window->remember();
}

void FavoritesDesk::joinWindow()
{
    FavoritesWindow& window = *m_window;
    connect(&m_controller, &UCAppController::selectionChanged, this, &FavoritesDesk::showSelection);
    connect(&m_controller, &UCAppController::markChanged, window.factsPanel, &FactsPanel::showMark);
    connect(&m_controller, &UCAppController::unsavedChanged, &window, &FavoritesWindow::showUnsaved);
    connect(&m_controller, &UCAppController::countChanged, this, &FavoritesDesk::showCount);
    connect(window.playButton, &QPushButton::clicked, &m_controller,
            &UCAppController::tableViewDoubleAction2);
    connect(window.randomButton, &QToolButton::clicked, &m_controller, &UCAppController::gameShuffle2);
    connect(window.editButton, &QToolButton::clicked, &m_editing, &FavouriteEditing::editRecord);
    connect(window.removeButton, &QToolButton::clicked, &m_controller,
            &UCAppController::removeFavoritesTable);
    connect(window.saveButton, &QPushButton::clicked, &m_controller, &UCAppController::saveFavoritesNow);
    connect(window.recentChip, &QAbstractButton::clicked, this, &FavoritesDesk::showRecentlyPlayed);
    connect(window.emptyState, &EmptyState::acted, this, &FavoritesDesk::actOnEmptyList);
    connect(window.mainButton, &QToolButton::clicked, this, &FavoritesDesk::mainWanted);
    connect(window.miniButton, &QToolButton::clicked, this, &FavoritesDesk::miniWanted);
    connect(&window, &FavoritesWindow::closeRequested, this, &FavoritesDesk::mainWanted);
}

void FavoritesDesk::awakeFromNib()
{
    m_playing.open();
    m_controller.awakeFromNib();
}

void FavoritesDesk::showSelection()
{
    const auto first = m_controller.selection().first();
    const auto count = static_cast<int>(m_controller.selection().records().size());
    m_window->factsPanel->showRecord(first ? &m_favourites.records()[*first] : nullptr, count);
}

void FavoritesDesk::showCount()
{
    m_window->showCount(m_controller.list().size(), m_favourites.records().size());
}

// Without favourites some are found in the game list; without recently played ones all are shown.
void FavoritesDesk::actOnEmptyList()
{
    if (m_favourites.records().empty())
        Q_EMIT mainWanted();
    else
        showRecentlyPlayed(false);
}

void FavoritesDesk::showRecentlyPlayed(bool only)
{
    window().recentChip->setChecked(only);
    m_controller.showRecentlyPlayed(only);
    showCount();
}

} // namespace tessera
