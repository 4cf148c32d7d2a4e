#pragma once

#include "app/keywindow.h"
#include "catalogue/gameselection.h"

#include <memory>
#include <vector>

class QAbstractItemView;

namespace tessera {

class DefaultsController;
class Desktop;
class FavouritesDesk;
class GameListController;
class HistoryObject;
class HistoryWindow;
class InfoSites;
class MainWindow;
class MiniDesk;
class PathChooser;
class PreferencesWindow;
class StatusLine;
class Windows;

/// Which set is meant when its history or its page is asked for: one table of key windows. The window, its
/// files and the sites are made when they are first asked for.
class InfoDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Windows& windows;
        Desktop& desktop;
        DefaultsController& defaults;
        const MainWindow& mainWindow;
        GameListController& list;
        FavouritesDesk& favorites;
        MiniDesk& mini;
        PathChooser& paths;
        PreferencesWindow& preferences;
        StatusLine& status;
    };
    explicit InfoDesk(const Parts& parts, QObject* parent = nullptr);
    ~InfoDesk() override;

    HistoryWindow& window();
    HistoryObject& history();
    InfoSites& sites();
    /// A list's own menu; `window` is the one that it stands in.
    void addContextMenu(QAbstractItemView& list, KeyWindow::Kind window);

public Q_SLOTS:
    void showHistoryinfo();
    void searchHistoryinfo();
    /// For the list whose menu was used: 2 the game list, 3 the favourites; any other tag, nothing.
    void searchHistoryinfo_menu(int tag);
    void openROMinfo();
    /// The page of the selected favourite, by the favourites window's own choice of a site.
    void openROMinfo2();

private:
    struct Subject {
        KeyWindow::Kind window;
        const GameSelection* selection;
        const GameSelection* parent; ///< whose parent is looked up; of a name that was typed that name
        bool hasPage;

        QString name() const { return selection->selected().name; }
        QString key() const { return parent != nullptr ? parent->selected().parent : name(); }
    };

    void addPage();
    void pathChosen(const QString& key);
    std::vector<Subject> subjects();
    const Subject* subject() const;
    void show(const QString& name, const QString& key);
    void follow(KeyWindow::Kind list);
    bool isListShown(KeyWindow::Kind list) const;

    Parts m_parts;
    std::vector<Subject> m_subjects;
    QHash<KeyWindow::Kind, QString> m_names; ///< that each list had selected last
    std::unique_ptr<HistoryWindow> m_window;
    std::unique_ptr<HistoryObject> m_history;
    std::unique_ptr<InfoSites> m_sites;
    bool m_hasPage = false;
};

} // namespace tessera
