#pragma once

#include <QObject>
#include <QStringList>
#include <QThreadPool>

namespace tessera {

class DefaultsController;
class Desktop;
class EmulatorChoice;
class EmulatorProfile;
class FilesPage;
class LaunchPages;
class PathChooser;
class PreferencesWindow;
class ProfileCache;
class TableFont;

/// Fills the preferences when they are first shown, and shows in them what the emulator in use says of
/// itself: options that it does not know, values that it takes besides, and where it looks for ROMs.
class OptionsDesk : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Desktop& desktop;
        DefaultsController& defaults;
        EmulatorChoice& emulator;
        LaunchPages& pages;
        TableFont& font;
        ProfileCache& profiles;
        PathChooser& paths;
        PreferencesWindow& preferences;
    };
    explicit OptionsDesk(Parts parts, QObject* parent = nullptr);

private:
    void addPages();
    void addAppearance();
    void show();
    void proposeFolders(const QStringList& roms, const QStringList& snapshots);

    Parts m_parts;
    FilesPage* m_files = nullptr; ///< the preferences' own
    QStringList m_lookedFor; ///< only what is still asked for is taken
    QThreadPool m_pool; ///< ends first, while everything else still stands
};

} // namespace tessera
