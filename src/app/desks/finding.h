#pragma once

#include "catalogue/search/makernames.h"
#include "catalogue/ui/gamefinder.h"
#include "catalogue/ui/romwatcher.h"
#include "catalogue/ui/searchkeeping.h"

#include <QObject>

#include <memory>

namespace tessera {

class FilterPanel;
class EmulatorChoice;
class MainWindow;
class ProfileCache;
class Windows;
struct ProfileAnswer;

/// Joins what the user searches with (field, chips, filter panel) and what is known of the ROM folders to the
/// finder, and the finder to the main window.
class Finding : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        MainWindow& window;
        Windows& windows;
        Catalogue& catalogue;
        GameListController& list;
        DefaultsController& defaults;
        ProfileCache& profiles;
        const EmulatorChoice& emulator;
    };
    explicit Finding(const Parts& parts, QObject* parent = nullptr);
    ~Finding() override;

    GameFinder& finder() { return m_finder; }
    /// Made when it is first asked for.
    FilterPanel& panel();
    RomWatcher& roms() { return m_roms; }
    SearchKeeping& searches() { return m_searches; }
    /// After the first paint: what a search needs, and the ROM folders.
    void prepare();

public Q_SLOTS:
    void showPredicatePanel();
    void focusSearch();
    void showAll();

Q_SIGNALS:
    void statusMessage(const QString& sentence);
    /// It holds no more.
    void statusWithdrawn(const QString& sentence);

private:
    void joinField();
    void completeMakers();
    QStringList makers(const QString& begun);
    void showQuery();
    void complain();
    void showMatches();
    void sayHidden();
    QString hidden();
    void showSort();
    void takeProfile(const QString& executable, const ProfileAnswer& answer);
    void readRomFolders();

    Parts m_parts;
    QStringList m_emulatorFolders;
    bool m_isPrepared = false;
    QString m_said; // of what is hidden
    GameFinder m_finder;
    SearchKeeping m_searches;
    std::optional<MakerNames> m_makers; ///< of what the list holds, once one was typed
    std::unique_ptr<FilterPanel> m_panel;
    RomWatcher m_roms;
};

} // namespace tessera
