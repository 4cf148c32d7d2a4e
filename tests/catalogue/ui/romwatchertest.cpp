#include "catalogue/ui/romwatcher.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessera;

namespace {

void touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

/// Real folders, watched.
class RomWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_watcher = std::make_unique<RomWatcher>();
    }

    void cleanup()
    {
        m_watcher.reset();
        m_folder.reset();
    }

    void nothingIsKnownBeforeTheFoldersAreRead() { QVERIFY(!m_watcher->folders()); }

    void theFoldersAreReadBesideTheWindows()
    {
        touch(path("pong.zip"));
        QVERIFY(QDir().mkpath(path("own")));
        touch(path("own/qix.7z"));
        tell(m_folder->path(), {path("own")});
        QVERIFY(m_watcher->folders()->hasArchive("pong"));
        QVERIFY(m_watcher->folders()->holds("qix"));
        QVERIFY(!m_watcher->folders()->hasArchive("qix"));
    }

    void theSameFoldersAreNotReadTwice()
    {
        tell(m_folder->path(), {});
        const QSignalSpy read(m_watcher.get(), &RomWatcher::changed);
        m_watcher->setFolders(m_folder->path(), {});
        // What comes is seen later than the folders that were named would be.
        touch(path("pong.zip"));
        QTRY_VERIFY(m_watcher->folders()->hasArchive("pong"));
        QCOMPARE(read.count(), 1);
    }

    void anArchiveThatComesIsSeen()
    {
        tell(m_folder->path(), {});
        QVERIFY(!m_watcher->folders()->hasArchive("pong"));
        touch(path("pong.zip"));
        QTRY_VERIFY(m_watcher->folders()->hasArchive("pong"));
    }

    void anArchiveThatGoesIsSeen()
    {
        touch(path("pong.zip"));
        tell(m_folder->path(), {});
        QVERIFY(QFile::remove(path("pong.zip")));
        QTRY_VERIFY(!m_watcher->folders()->hasArchive("pong"));
    }

    void aFolderThatComesLaterIsSeen()
    {
        tell(path("later"), {});
        QVERIFY(!m_watcher->folders()->hasArchive("pong"));
        QVERIFY(QDir().mkpath(path("later")));
        touch(path("later/pong.zip"));
        QTRY_VERIFY(m_watcher->folders()->hasArchive("pong"));
        QVERIFY(QFile::remove(path("later/pong.zip")));
        QTRY_VERIFY(!m_watcher->folders()->hasArchive("pong"));
    }

    void aFolderComesBackWithTheOneAroundIt()
    {
        QVERIFY(QDir().mkpath(path("disk/roms")));
        touch(path("disk/roms/pong.zip"));
        tell(path("disk/roms"), {});
        QVERIFY(m_watcher->folders()->hasArchive("pong"));
        QVERIFY(QDir(path("disk")).removeRecursively());
        QTRY_VERIFY(!m_watcher->folders()->hasArchive("pong"));
        QVERIFY(QDir().mkpath(path("disk/roms")));
        touch(path("disk/roms/pong.zip"));
        QTRY_VERIFY(m_watcher->folders()->hasArchive("pong"));
    }

    void anEmulatorsFolderIsWatchedToo()
    {
        tell(std::nullopt, {m_folder->path()});
        touch(path("pong.zip"));
        QTRY_VERIFY(m_watcher->folders()->holds("pong"));
        QVERIFY(!m_watcher->folders()->hasArchive("pong"));
    }

    void onlyTheLastQuestionIsAnswered()
    {
        touch(path("pong.zip"));
        QSignalSpy changed(m_watcher.get(), &RomWatcher::changed);
        m_watcher->setFolders(path("nowhere"), {});
        m_watcher->setFolders(m_folder->path(), {});
        QTRY_COMPARE(changed.count(), 1);
        QVERIFY(m_watcher->folders()->hasArchive("pong"));
    }

    void itEndsWhileItReads()
    {
        for (int i = 0; i < 20; ++i) {
            RomWatcher watcher;
            watcher.setFolders(m_folder->path(), {QStringLiteral("/usr/bin")});
        }
    }

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    void tell(const std::optional<QString>& romFolder, const QStringList& emulatorFolders)
    {
        QSignalSpy changed(m_watcher.get(), &RomWatcher::changed);
        m_watcher->setFolders(romFolder, emulatorFolders);
        QTRY_COMPARE(changed.count(), 1);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RomWatcher> m_watcher;
};

TESSERA_TEST(RomWatcherTest);
#include "romwatchertest.moc"
