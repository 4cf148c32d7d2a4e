#pragma once

#include "artwork/ui/aspectchoice.h"
#include "artwork/ui/snapfolder.h"
#include "artwork/ui/snapshotcontroller.h"

#include <QObject>

#include <memory>

class QAbstractItemView;
class QMenu;
class QMenuBar;
class QWidget;

namespace tessera {

class DownloadPanel;
class DownloadProcessing;
class FavouritesDesk;
class FavouritesWindow;
class GameListController;
class ImageWindow;
class MainWindow;
class MiniDesk;
class MiniWindow;
class PathChooser;
class PicturePane;
class PicturesPage;
class PreferencesWindow;
class SnapSites;
class StatusLine;
class Windows;

/// Joins the pictures to the lists whose selection they follow, and to menus and preferences. Windows, page
/// and download are made when they are first asked for.
class ArtworkDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Windows& windows;
        Desktop& desktop;
        DefaultsController& defaults;
        MainWindow& mainWindow;
        GameListController& list;
        FavouritesDesk& favorites;
        MiniDesk& mini;
        PathChooser& paths;
        PreferencesWindow& preferences;
        StatusLine& status;
    };
    explicit ArtworkDesk(const Parts& parts, QObject* parent = nullptr);
    ~ArtworkDesk() override;

    SnapFolder& folder() { return m_folder; }
    AspectChoice& aspect() { return m_aspect; }
    /// Of the window that is key: the main list's, the favourites' or the mini window's.
    SnapshotController& snapshot();
    /// Pictures are read from now on: the first list does not wait for them.
    void begin() { m_main->setHeld(false); }
    /// The file of the main list's picture; empty where there is none.
    QString pictureFile() const;
    ImageWindow& imageWindow();
    DownloadProcessing& download();
    SnapSites& sites();

    void fillMenu(QMenuBar& bar);
    /// The main list's own menu: the menu bar's commands.
    void addContextMenu(QAbstractItemView& list);
    /// That of the favourites, with commands of its own.
    void addFavouritesMenu(QAbstractItemView& list);
    void joinFavourites(FavouritesWindow& window);
    void joinMini(MiniWindow& window);

public Q_SLOTS:
    /// The lists' selection handlers again: a download has ended.
    void snap_change();
    void snappreview();
    void imagepreview(const tessera::ImagePreview& preview);
    void snapdownload();
    void display_rom_Finder();
    void display_image_Finder();
    /// The same of the selected favourite, whatever window is key.
    void snappreview2();
    void snapdownload2();
    void display_rom_Finder2();
    void display_image_Finder2();

private:
    using Snapshot = std::unique_ptr<SnapshotController>;

    void makeSnapshot(Snapshot& snapshot, PicturePane& pane, const GameSelection& selection);
    void makeSnapshot(Snapshot& snapshot, AspectView& view, const GameSelection& selection);
    Snapshot& keySnapshot();
    void addPage();
    void pathChosen(const QString& key);
    void fillKinds(QMenu& menu);
    void fillFolders(QMenu& menu);
    void takePanel(DownloadPanel& panel);
    void showDownload();

    Parts m_parts;
    SnapFolder m_folder;
    AspectChoice m_aspect;
    Snapshot m_main;
    Snapshot m_favourites;
    Snapshot m_mini;
    PictureLoader m_preview;
    QString m_previewName;
    std::unique_ptr<ImageWindow> m_imageWindow;
    std::unique_ptr<SnapSites> m_sites;
    std::unique_ptr<DownloadProcessing> m_download;
    PicturesPage* m_page = nullptr; ///< of the preferences
};

} // namespace tessera
