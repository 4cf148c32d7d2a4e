#pragma once

#include <QObject>

namespace tessera {

class CatalogueRebuild;
class DefaultsController;
class Finding;
class GameListController;
class Catalogue;
class EmulatorChoice;
class LaunchController;
class MainWindow;

/// Shows in the main window what the rooms say: the selected game, how many there are, what runs, and which
/// emulator it is.
class MainDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        MainWindow& window;
        Catalogue& catalogue;
        DefaultsController& defaults;
        GameListController& list;
        Finding& finding;
        LaunchController& launches;
        EmulatorChoice& emulator;
        const CatalogueRebuild& rebuild;
    };
    explicit MainDesk(const Parts& parts, QObject* parent = nullptr);

    void showEmulator();
    /// Where the catalogue was built from another one.
    void offerRebuild();

Q_SIGNALS:
    /// By the button of the empty list.
    void catalogueWanted();
    void romFolderWanted();

private:
    void showSelection();
    void showCount();
    void showRunning(bool running);
    bool romsMissing() const;
    void actOnEmptyList();
    void settingChanged(const QString& name);

    Parts m_parts;
};

} // namespace tessera
