#pragma once

#include "core/settingskeys.h"

#include <QObject>

class QLineEdit;

namespace tessera {

class DefaultsController;
class Desktop;
class EmulatorChoice;

/// What a chooser asks the open panel for.
struct PathRequest {
    bool chooseFile = true;
    bool chooseDirect = false;
    QString directory = {}; ///< starting place, read as a URL; empty for none
    QString title = {};
    QStringList kind = {}; ///< extensions that are offered as a filter
    bool chooseApplication = false; ///< a folder that is an application bundle, too
};

/// The choosers of emulators, folders and files, the alerts that offer them, and the commands that show what
/// was chosen in the file manager.
class PathChooser : public QObject
{
    Q_OBJECT

public:
    // Of the files that show_file_in_finder() shows.
    static constexpr int emulatorTag = 0;
    static constexpr int osxTag = 1;
    static constexpr int applicationTag = 2;
    static constexpr int historyTag = 3;
    static constexpr int mameinfoTag = 4;

    PathChooser(Desktop& desktop, DefaultsController& defaults, const EmulatorChoice& emulator,
                QObject* parent = nullptr);

    /// What is chosen for the setting takes the place of what is being typed into the field; without this
    /// it would not, as it does not follow its setting then.
    void putInto(QLineEdit& field, QLatin1StringView key);

    /// The chosen path; empty after Cancel.
    QString openPanelpath(const PathRequest& request);

    void exeSelect() { select(keys::ExecutionPath.name); }
    void osxSelect() { select(keys::MameosxPath.name); }
    void appSelect() { select(keys::ApplicationPath.name); }
    void romfolSelect() { select(keys::RomsPath.name); }
    void snapfolSelect() { select(keys::SnapPath.name); }
    void titlefolSelect() { select(keys::TitlesnapPath.name); }
    void fryerfolSelect() { select(keys::GameflyersPath.name); }
    void historybatSelect() { select(keys::HistoryPath.name); }
    void mameinfobatSelect() { select(keys::MameinfoPath.name); }
    void playbackfileSelect() { select(keys::Playbackfilename.name); }
    void effectfileSelect() { select(keys::Effectname.name); }
    void displayAlert1() { displayAlert(1); }
    void displayAlert2() { displayAlert(2); }
    void displayAlert3() { displayAlert(3); }
    void displayAlert4() { displayAlert(4); }
    void displayAlert5() { displayAlert(5); }
    /// Notes a path among the recent documents, whether it exists or not.
    void saveOpenRecent(const QString& path);

public Q_SLOTS:
    void selectExefile() { exeSelect(); }
    void selectOSXfile() { osxSelect(); }
    void selectAppfile() { appSelect(); }
    void selectROMfolder() { romfolSelect(); }
    void selectSnapfolder() { snapfolSelect(); }
    void selectTitlefolder() { titlefolSelect(); }
    void selectFryerfolder() { fryerfolSelect(); }
    void selectHistorybat() { historybatSelect(); }
    void selectMameinfobat() { mameinfobatSelect(); }
    void selectPlaybackfile() { playbackfileSelect(); }
    void selectEffectfile() { effectfileSelect(); }
    /// Where a recording goes: tag 1 sound, 2 and 3 movies.
    void saveRecordfile(int tag);
    /// The folder of the emulator that the launch mode starts.
    void openCurrentdir();
    /// This one, without a panel.
    void takeROMfolder(const QString& folder);
    void openROMfolder();
    void openFolder(const QString& path);
    /// Tags 0 to 4: the three emulators, history and info file.
    void show_file_in_finder(int tag);

Q_SIGNALS:
    /// A path was chosen and stored under `key`.
    void chosen(const QString& key, const QString& path);
    void statusMessage(const QString& text);

private:
    QString pathAt(QLatin1StringView key) const;
    QString besideEmulator(const char* folder) const;
    void select(QLatin1StringView key);
    void store(QLatin1StringView key, const QString& path);
    void displayAlert(int number);
    void flush();

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    const EmulatorChoice& m_emulator;
};

} // namespace tessera
