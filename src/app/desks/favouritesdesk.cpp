#include "app/desks/favouritesdesk.h"

#include "app/windows/emptystate.h"
#include "app/windows/favouriteswindow.h"
#include "app/desks/finding.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/search/matches.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "favourites/favouritespath.h"
#include "favourites/ui/favouriteeditor.h"
#include "launch/profilecache.h"
#include "launch/emulatorchoice.h"
#include "platform/defaultscontroller.h"

#include <QFileInfo>
#include <QPushButton>
#include <QToolButton>

#include <utility>

namespace tessera {

namespace {

// Beside our own folder in the user's application support.
QString pathBeside(const Catalogue& catalogue)
{
    return favouritesPath(QFileInfo(QFileInfo(catalogue.path()).absolutePath()).absolutePath());
}

} // namespace

FavouritesDesk::FavouritesDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_favourites(pathBeside(m_parts.catalogue))
    , m_played(playedPath(m_favourites.path()))
    , m_controller(
          {m_parts.desktop, m_parts.defaults, m_favourites, m_played, m_parts.catalogue, m_parts.list})
    , m_editing(m_favourites, m_controller)
    , m_playing(m_played, m_parts.desktop, m_parts.defaults)
{
    for (const auto& changed : {&Favourites::replaced, &Favourites::appended})
        connect(&m_favourites, changed, this, &FavouritesDesk::tellNames);
    connect(&m_favourites, &Favourites::removed, this, &FavouritesDesk::tellNames);
    connect(&m_favourites, &Favourites::putBackAt, this, &FavouritesDesk::tellNames);
    connect(&m_favourites, &Favourites::valueChanged, this, &FavouritesDesk::tellNames);
    const RomWatcher& roms = m_parts.finding.roms();
    connect(&roms, &RomWatcher::changed, this, [this, &roms] {
        m_controller.setRomFolders(roms.folders());
        m_controller.finder().setRomFolders(roms.folders());
    });
    joinEditor();
}

void FavouritesDesk::joinEditor()
{
    connect(&m_editing, &FavouriteEditing::windowMade, this, [this](QWidget& editor) {
        m_parts.windows.watch(editor, KeyWindow::Kind::FavouritesEditor);
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
void FavouritesDesk::offerKnownOptions()
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
void FavouritesDesk::tellNames()
{
    NameSet names;
    for (const QString& name : m_favourites.names())
        names.insert(name.toStdString());
    m_parts.finding.finder().setFavourites(names);
}

FavouritesDesk::~FavouritesDesk() = default;

bool FavouritesDesk::isVisible() const
{
    return m_window && m_window->isVisible();
}

FavouritesWindow& FavouritesDesk::window()
{
    if (m_window)
        return *m_window;
    m_window = std::make_unique<FavouritesWindow>(m_parts.defaults);
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
    m_parts.windows.watch(*m_window, KeyWindow::Kind::Favourites);
    m_parts.windows.openDropped(*m_window);
    Q_EMIT windowMade(*m_window);
    m_parts.windows.places().keep(*m_window, keys::FavoritesWindowGeometry);
    // It is shown in the main window's place, if not in its own.
    m_parts.windows.places().restore(*m_window);
    return *m_window;
}

void FavouritesDesk::remember()
{
    if (m_window)
        m_window->remember();
}

void FavouritesDesk::joinWindow()
{
    FavouritesWindow& window = *m_window;
    connect(&m_controller, &UCAppController::selectionChanged, this, &FavouritesDesk::showSelection);
    connect(&m_controller, &UCAppController::markChanged, window.factsPanel, &FactsPanel::showMark);
    connect(&m_controller, &UCAppController::unsavedChanged, &window, &FavouritesWindow::showUnsaved);
    connect(&m_controller, &UCAppController::countChanged, this, &FavouritesDesk::showCount);
    connect(window.playButton, &QPushButton::clicked, &m_controller,
            &UCAppController::tableViewDoubleAction2);
    connect(window.randomButton, &QToolButton::clicked, &m_controller, &UCAppController::gameShuffle2);
    connect(window.editButton, &QToolButton::clicked, &m_editing, &FavouriteEditing::editRecord);
    connect(window.removeButton, &QToolButton::clicked, &m_controller,
            &UCAppController::removeFavoritesTable);
    connect(window.saveButton, &QPushButton::clicked, &m_controller, &UCAppController::saveFavouritesNow);
    connect(window.recentChip, &QAbstractButton::clicked, this, &FavouritesDesk::showRecentlyPlayed);
    connect(window.emptyState, &EmptyState::acted, this, &FavouritesDesk::actOnEmptyList);
    connect(window.mainButton, &QToolButton::clicked, this, &FavouritesDesk::mainWanted);
    connect(window.miniButton, &QToolButton::clicked, this, &FavouritesDesk::miniWanted);
    connect(&window, &FavouritesWindow::closeRequested, this, &FavouritesDesk::mainWanted);
    joinField();
}

void FavouritesDesk::joinField()
{
    SearchField* field = m_window->searchField;
    connect(field, &QLineEdit::textChanged, this, &FavouritesDesk::search);
    connect(&m_controller, &UCAppController::countChanged, this, &FavouritesDesk::showFound);
    connect(field, &QLineEdit::returnPressed, &m_controller, &ListController::startByReturn);
    connect(field, &SearchField::leftDownwards, &m_controller, &ListController::enterTable);
}

void FavouritesDesk::search(const QString& text)
{
    m_window->setSearching(!text.isEmpty());
    m_controller.search(text);
    m_window->searchField->markTerms(m_controller.finder().query());
}

// What is wrong, and that nothing but what is near was found, is said in the status line.
void FavouritesDesk::showFound()
{
    const Query& query = m_controller.finder().query();
    const ArrangedList& list = m_controller.list();
    m_window->favoritesTable->showMatches(list.isNearest() ? Matches() : Matches(query));
    QStringList sentences = query.complaints();
    if (list.isNearest() && list.size() > 0)
        sentences << qtTrId("search_nearest");
    if (QString complaint = sentences.join(u' '); complaint != m_complaint) {
        m_window->takeBack(std::exchange(m_complaint, std::move(complaint)));
        if (!m_complaint.isEmpty())
            m_window->showMessage(m_complaint);
    }
}

void FavouritesDesk::focusSearch()
{
    window().searchField->beginSearch();
}

void FavouritesDesk::awakeFromNib()
{
    m_playing.open();
    m_controller.awakeFromNib();
}

void FavouritesDesk::showSelection()
{
    const auto first = m_controller.firstSelected();
    m_window->factsPanel->showRecord(first ? &m_favourites.records()[*first] : nullptr,
                                     m_controller.selectedCount());
}

void FavouritesDesk::showCount()
{
    m_window->showCount(m_controller.list().size(), m_favourites.records().size());
}

// Without favourites some are found in the game list; where others are hidden all are shown.
void FavouritesDesk::actOnEmptyList()
{
    if (m_favourites.records().empty())
        Q_EMIT mainWanted();
    else {
        m_window->searchField->clear();
        showRecentlyPlayed(false);
    }
}

void FavouritesDesk::showRecentlyPlayed(bool only)
{
    window().recentChip->setChecked(only);
    m_controller.showRecentlyPlayed(only);
    showCount();
}

} // namespace tessera
