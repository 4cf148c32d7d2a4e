#include "core/keptfile.h"

#include "support/testmain.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

class FileStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { write("one"); }

    void whatNobodyWroteIsTheSame()
    {
        const FileState before = FileState::of(m_path);
        QVERIFY(before.inode != 0);
        QCOMPARE(before.size, 3);
        QVERIFY(before == FileState::of(m_path));
    }

    void aMissingFileHasNoState() { QVERIFY(FileState::of(m_path + QStringLiteral("x")) == FileState()); }

    void anotherSizeIsAnotherContent()
    {
        const FileState before = FileState::of(m_path);
        const QDateTime when = changed();
        write("three");
        setChanged(when);
        QVERIFY(!(before == FileState::of(m_path)));
    }

    void anotherTimeIsAnotherContent()
    {
        const QDateTime when = changed();
        const FileState before = FileState::of(m_path);
        for (const qint64 later : {1, 1000}) {
            setChanged(when.addMSecs(later));
            QVERIFY(!(before == FileState::of(m_path)));
        }
        setChanged(when);
    }

    void anotherFileIsAnotherContent()
    {
        const FileState before = FileState::of(m_path);
        const QDateTime when = changed();
        QVERIFY(QFile::rename(m_path, m_path + QStringLiteral(".old")));
        write("two");
        setChanged(when);
        QVERIFY(!(before == FileState::of(m_path)));
    }

private:
    void write(const char* text)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QDateTime changed() const { return QFile(m_path).fileTime(QFileDevice::FileModificationTime); }
    void setChanged(const QDateTime& when)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(when, QFileDevice::FileModificationTime));
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("file"));
};

TESSERA_TEST(FileStateTest);
#include "filestatetest.moc"
