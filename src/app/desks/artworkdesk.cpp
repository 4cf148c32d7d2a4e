#include "app/desks/artworkdesk.h"

#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/sidepanel.h"
#include "app/statusline.h"
#include "app/windows/supportpage.h"
#include "app/windows.h"
#include "artwork/artworkkinds.h"
#include "artwork/ui/aspectview.h"
#include "artwork/ui/downloadpanel.h"
#include "artwork/ui/downloadprocessing.h"
#include "artwork/ui/imagewindow.h"
#include "artwork/ui/picturepane.h"
#include "artwork/ui/picturespage.h"
#include "artwork/ui/snapsites.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "launch/ui/pathchooser.h"
#include "platform/defaultscontroller.h"
#include "widgets/bringforward.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace tessera {

ArtworkDesk::ArtworkDesk(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_folder(parts.desktop, parts.defaults)
    , m_aspect(parts.defaults)
{
    GameListController& list = m_parts.list;
    PicturePane& pane = *m_parts.mainWindow.sidePanel->picturePane;
    m_aspect.setPopup(*pane.aspectPop);
    makeSnapshot(m_main, pane, list);
    m_main->setHeld(true);
    connect(m_main.get(), &SnapshotController::statusMessage, &m_parts.mainWindow, &MainWindow::showMessage);
    connect(&list, &GameListController::selectionChanged, m_main.get(), &SnapshotController::showSelection);
    connect(&m_parts.paths, &PathChooser::chosen, this, &ArtworkDesk::pathChosen);
    connect(&m_parts.preferences, &PreferencesWindow::aboutToShow, this, &ArtworkDesk::addPage);
    connect(&m_preview, &PictureLoader::loaded, this,
            [this](const QString&, const QImage& image) { imageWindow().show(image, m_previewName); });
    connect(&m_preview, &PictureLoader::failed, &m_parts.status,
            [this](const QString&, const QString& reason) { m_parts.status.answer(reason); });
}

ArtworkDesk::~ArtworkDesk() = default;

void ArtworkDesk::makeSnapshot(Snapshot& snapshot, PicturePane& pane, const GameSelection& selection)
{
    fillKinds(*pane.buttonShot->menu());
    connect(pane.buttonShot, &QToolButton::clicked, &m_folder, &SnapFolder::ChangesnapPop);
    connect(&m_folder, &SnapFolder::labelChanged, pane.shotTextField, &QLabel::setText);
    pane.shotTextField->setText(m_folder.label());
    makeSnapshot(snapshot, *pane.imageView, selection);
}

void ArtworkDesk::makeSnapshot(Snapshot& snapshot, AspectView& view, const GameSelection& selection)
{
    snapshot = std::make_unique<SnapshotController>(
        SnapshotParts{m_parts.desktop, m_parts.defaults, m_folder, view, selection});
    connect(snapshot.get(), &SnapshotController::previewRequested, this, &ArtworkDesk::imagepreview);
}

void ArtworkDesk::joinFavourites(FavouritesWindow& window)
{
    UCAppController& favorites = m_parts.favorites.controller();
    PicturePane& pane = *window.sidePanel->picturePane;
    m_aspect.addPopup(*pane.aspectPop);
    makeSnapshot(m_favourites, pane, favorites);
    connect(m_favourites.get(), &SnapshotController::statusMessage, &window, &FavouritesWindow::showMessage);
    connect(&favorites, &UCAppController::selectionChanged, m_favourites.get(),
            &SnapshotController::showSelection);
    m_favourites->showSelection();
}

void ArtworkDesk::joinMini(MiniWindow& window)
{
    connect(&m_folder, &SnapFolder::labelChanged, window.shotTextField2, &QLabel::setText);
    window.shotTextField2->setText(m_folder.label());
    makeSnapshot(m_mini, *window.imageView, m_parts.mini);
    connect(m_mini.get(), &SnapshotController::statusMessage, &window, &MiniWindow::showMessage);
    connect(window.setnameTextField2, &QLineEdit::textChanged, m_mini.get(),
            &SnapshotController::showSelection);
    m_mini->showSelection();
}

// Deliberate: where the mini window is key, its set is shown in the file manager, opened and downloaded, not
// the hidden list's: what a command acts on is what is seen.
ArtworkDesk::Snapshot& ArtworkDesk::keySnapshot()
{
    using Kind = KeyWindow::Kind;
    const Kind key = m_parts.windows.key().kind();
    if (m_favourites && (key == Kind::Favourites || key == Kind::FavouritesEditor))
        return m_favourites;
    return m_mini && key == Kind::Mini ? m_mini : m_main;
}

SnapshotController& ArtworkDesk::snapshot()
{
    return *keySnapshot();
}

void ArtworkDesk::snap_change()
{
    m_parts.list.tableViewSelectionDidChange();
    m_parts.favorites.controller().tableViewSelectionDidChange();
    if (m_mini)
        m_mini->showSelection();
}

void ArtworkDesk::snappreview()
{
    snapshot().snappreview();
}

void ArtworkDesk::display_rom_Finder()
{
    snapshot().display_rom_Finder();
}

void ArtworkDesk::display_image_Finder()
{
    snapshot().display_image_Finder();
}

void ArtworkDesk::snapdownload()
{
    download().snapdownload_url(snapshot().name());
}

void ArtworkDesk::snappreview2()
{
    m_favourites->snappreview();
}

void ArtworkDesk::snapdownload2()
{
    download().snapdownload_url(m_favourites->name());
}

void ArtworkDesk::display_rom_Finder2()
{
    m_favourites->display_rom_Finder();
}

void ArtworkDesk::display_image_Finder2()
{
    m_favourites->display_image_Finder();
}

// The picture that stands for a missing one is no file.
QString ArtworkDesk::pictureFile() const
{
    const QString path = m_main->snapimag();
    return path.startsWith(QLatin1Char(':')) ? QString() : path;
}

// Read beside the windows; the one that was asked for last is shown.
void ArtworkDesk::imagepreview(const ImagePreview& preview)
{
    m_previewName = preview.image_name;
    m_preview.load(preview.image_path);
}

ImageWindow& ArtworkDesk::imageWindow()
{
    if (!m_imageWindow) {
        m_imageWindow = std::make_unique<ImageWindow>();
        m_parts.windows.carryMenuKeys(*m_imageWindow);
        m_parts.windows.places().keep(*m_imageWindow, keys::ImageWindowGeometry);
    }
    return *m_imageWindow;
}

SnapSites& ArtworkDesk::sites()
{
    if (!m_sites)
        m_sites = std::make_unique<SnapSites>(m_parts.defaults);
    return *m_sites;
}

DownloadProcessing& ArtworkDesk::download()
{
    if (!m_download) {
        m_download = std::make_unique<DownloadProcessing>(m_parts.desktop, m_folder, sites());
        connect(m_download.get(), &DownloadProcessing::panelMade, this, &ArtworkDesk::takePanel);
        connect(m_download.get(), &DownloadProcessing::SnapChange, this, &ArtworkDesk::snap_change);
        connect(m_download.get(), &DownloadProcessing::statusMessage, &m_parts.status, &StatusLine::answer);
        connect(m_download.get(), &DownloadProcessing::began, this, &ArtworkDesk::showDownload);
    }
    return *m_download;
}

// The list stays key: the next game is chosen while this one's picture comes.
void ArtworkDesk::showDownload()
{
    showBesides(m_download->panel());
}

void ArtworkDesk::takePanel(DownloadPanel& panel)
{
    m_parts.windows.carryMenuKeys(panel);
    m_parts.windows.places().keep(panel, keys::DownloadPanelGeometry);
}

void ArtworkDesk::addPage()
{
    if (m_page != nullptr)
        return;
    m_page = new PicturesPage(m_parts.defaults);
    sites().setPage(*m_page);
    m_parts.preferences.supportPage().addPage(qtTrId("support_pictures"), m_page);
}

void ArtworkDesk::pathChosen(const QString& key)
{
    const bool isFolder = std::ranges::any_of(
        artworkKinds, [&](const ArtworkKind& kind) { return key == kind.folder->name; });
    if (isFolder)
        m_folder.Setsnapfolder();
}

} // namespace tessera
