#pragma once

#include "core/settingskeys.h"

#include <QObject>

#include <array>

class QLineEdit;

namespace tessera {

class DefaultsController;
class Desktop;
class LaunchPages;

/// What a chooser asks the open panel for.
struct PathRequest {
    bool chooseFile = true;
    bool chooseDirect = false;
    QString directory; ///< starting place as a URL; empty for none
};

/// The choosers of emulator and folders, and the alerts that offer them.
class PathChooser : public QObject
{
    Q_OBJECT

public:
    PathChooser(Desktop& desktop, DefaultsController& defaults, const LaunchPages& pages,
                QObject* parent = nullptr);

    /// The chosen path; empty after Cancel.
    QString openPanelpath(const PathRequest& request);

    void exeSelect();
    void romfolSelect();
    void displayAlert1();
    /// Notes a path among the recent documents, whether it exists or not.
    void saveOpenRecent(const QString& path);

public Q_SLOTS:
    void selectExefile();
    void selectROMfolder();

Q_SIGNALS:
    /// A path was chosen and stored under `key`.
    void chosen(const QString& key, const QString& path);
    void statusMessage(const QString& text);

private:
    /// A row of the chooser family.
    struct Member {
        ChosenKey key;
        QLineEdit* field;
        bool chooseFile;
        bool chooseDirect;
    };
    enum Which { Executable, RomFolder };
    void select(Which which);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    std::array<Member, 2> m_members;
};

} // namespace tessera
