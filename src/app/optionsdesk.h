#pragma once

#include <QObject>
#include <QStringList>
#include <QThreadPool>

namespace tessera {

class DefaultsController;
class EmulatorChoice;
class EmulatorProfile;
class FilesPage;
class LaunchPages;
class PathChooser;
class PreferencesWindow;
class ProfileCache;

/// What the preferences show of the emulator in use: options that it does not know, values that it takes
/// besides, and where it looks for ROMs. Nothing of it is asked or made before they are shown.
class OptionsDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        DefaultsController& defaults;
        EmulatorChoice& emulator;
        LaunchPages& pages;
        ProfileCache& profiles;
        PathChooser& paths;
        PreferencesWindow& preferences;
    };
    explicit OptionsDesk(Parts parts, QObject* parent = nullptr);

private:
    void addPages();
    void show();
    void proposeFolders(const QStringList& roms, const QStringList& snapshots);

    Parts m_parts;
    FilesPage* m_files = nullptr; ///< the preferences' own
    QStringList m_lookedFor; ///< only what is still asked for is taken
    QThreadPool m_pool; ///< ends first, while everything else still stands
};

} // namespace tessera
