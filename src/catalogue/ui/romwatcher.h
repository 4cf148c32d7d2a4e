#pragma once

#include "catalogue/romfolders.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>

namespace tessera {

/// Keeps what is known of the ROM folders true: they are read beside the windows, and read again when one of
/// them changes.
class RomWatcher : public QObject
{
    Q_OBJECT

public:
    explicit RomWatcher(QObject* parent = nullptr);

    void setFolders(const std::optional<QString>& romFolder, const QStringList& emulatorFolders);
    /// Null until the folders were read once.
    std::shared_ptr<const RomFolders> folders() const { return m_folders; }

Q_SIGNALS:
    void changed();

private:
    void read();
    void watch();
    void takeFolders(int question, std::shared_ptr<const RomFolders> folders);

    std::optional<QString> m_romFolder;
    QStringList m_emulatorFolders;
    std::shared_ptr<const RomFolders> m_folders;
    QFileSystemWatcher m_watcher;
    QTimer m_rest; ///< a copy of many files changes a folder many times
    int m_question = 0; ///< only the newest one is answered
    QThreadPool m_pool; ///< ends first, while everything else still stands
};

} // namespace tessera
