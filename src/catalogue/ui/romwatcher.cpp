#include "catalogue/ui/romwatcher.h"

#include <QFileInfo>

namespace tessera {

namespace {

constexpr std::chrono::milliseconds restTime(400);

// Where a folder is not there yet, the one in which it would be tells when it comes.
QString watchedFor(const QString& folder)
{
    return folder.isEmpty() || QFileInfo::exists(folder) ? folder : QFileInfo(folder).absolutePath();
}

} // namespace

RomWatcher::RomWatcher(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] { m_rest.start(); });
    connect(&m_rest, &QTimer::timeout, this, &RomWatcher::read);
}

void RomWatcher::setFolders(const std::optional<QString>& romFolder, const QStringList& emulatorFolders)
{
    if (m_question > 0 && romFolder == m_romFolder && emulatorFolders == m_emulatorFolders)
        return;
    m_romFolder = romFolder;
    m_emulatorFolders = emulatorFolders;
    read();
}

void RomWatcher::read()
{
    const int question = ++m_question;
    m_pool.start([this, question, rom = m_romFolder, emulator = m_emulatorFolders] {
        auto folders = std::make_shared<const RomFolders>(rom, emulator);
        QMetaObject::invokeMethod(
            this, [this, question, folders] { take(question, folders); }, Qt::QueuedConnection);
    });
}

void RomWatcher::take(int question, std::shared_ptr<const RomFolders> folders)
{
    if (question != m_question)
        return;
    m_folders = std::move(folders);
    // A folder that has come is watched from now on, one that went away no longer is.
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    QStringList watched;
    for (const QString& folder : m_emulatorFolders)
        watched << watchedFor(folder);
    if (m_romFolder)
        watched << watchedFor(*m_romFolder);
    watched.removeDuplicates();
    watched.removeAll(QString());
    if (!watched.isEmpty())
        m_watcher.addPaths(watched);
    Q_EMIT changed();
}

} // namespace tessera
