#include "catalogue/ui/romwatcher.h"

#include <QFileInfo>

namespace tessera {

namespace {

constexpr std::chrono::milliseconds restTime(400);

// Where a folder is not there, the nearest one around it tells when it comes.
QString watchedFor(const QString& folder)
{
    QString place = QFileInfo(folder).absoluteFilePath();
    while (!QFileInfo::exists(place) && place.size() > 1)
        place = QFileInfo(place).absolutePath();
    return place;
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

// Watched before they are read: nothing that comes meanwhile is missed.
void RomWatcher::read()
{
    watch();
    const int question = ++m_question;
    m_pool.start([this, question, rom = m_romFolder, emulator = m_emulatorFolders] {
        auto folders = std::make_shared<const RomFolders>(rom, emulator);
        QMetaObject::invokeMethod(
            this, [this, question, folders] { takeFolders(question, folders); }, Qt::QueuedConnection);
    });
}

// A folder that has come is watched from now on, one that went away no longer is.
void RomWatcher::watch()
{
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    QStringList watched;
    for (const QString& folder : m_emulatorFolders)
        watched << watchedFor(folder);
    if (m_romFolder)
        watched << watchedFor(*m_romFolder);
    watched.removeDuplicates();
    if (!watched.isEmpty())
        m_watcher.addPaths(watched);
}

void RomWatcher::takeFolders(int question, std::shared_ptr<const RomFolders> folders)
{
    if (question != m_question)
        return;
    m_folders = std::move(folders);
    Q_EMIT changed();
}

} // namespace tessera
