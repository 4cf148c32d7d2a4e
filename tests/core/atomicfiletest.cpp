#include "core/atomicfile.h"

#include "filelimit.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class AtomicFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("file"));
    }

    void piecesAreWrittenOneAfterAnother()
    {
        QVERIFY(writeAtomically(m_path, std::array<std::string_view, 3>{"one ", "", "two"}));
        QCOMPARE(content(m_path), QByteArray("one two"));
    }

    void anOldFileIsReplacedWhole()
    {
        QVERIFY(writeAtomically(m_path, std::array<std::string_view, 1>{"a long old text"}));
        QVERIFY(writeAtomically(m_path, std::array<std::string_view, 1>{"new"}));
        QCOMPARE(content(m_path), QByteArray("new"));
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<std::size_t>("size");
        QTest::addColumn<std::size_t>("room");
        QTest::newRow("large") << std::size_t(1 << 20) << std::size_t(1 << 16);
        QTest::newRow("so small that it waits in a buffer") << std::size_t(200) << std::size_t(100);
        QTest::newRow("no room at all") << std::size_t(200) << std::size_t(0);
    }
    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(std::size_t, size);
        QFETCH(std::size_t, room);
        QVERIFY(writeAtomically(m_path, std::array<std::string_view, 1>{"old"}));
        const std::string large(size, 'x');
        const test::FileLimit disk(room);
        const auto written = writeAtomically(m_path, std::array<std::string_view, 1>{large});
        QVERIFY(!written);
        QCOMPARE(QByteArray(written.error().key), QByteArray("failure_write"));
        QCOMPARE(written.error().arguments.value(0), m_path);
        QVERIFY(!written.error().arguments.value(1).isEmpty());
        QCOMPARE(content(m_path), QByteArray("old"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("file")});
    }

    void aReadOnlyFolderIsAFailure()
    {
        QVERIFY(writeAtomically(m_path, std::array<std::string_view, 1>{"old"}));
        QFile::setPermissions(m_folder->path(),
                              QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            QVERIFY(!writeAtomically(m_path, std::array<std::string_view, 1>{"new"}));
        }
        QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(content(m_path), QByteArray("old"));
    }

    void aDeviceIsNotReplacedByAFile()
    {
        QVERIFY(!writeAtomically(QStringLiteral("/dev/null"), std::array<std::string_view, 1>{"x"}));
        QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
    }

    void aFolderOfThatNameIsAFailure()
    {
        QVERIFY(QDir().mkpath(m_path));
        QVERIFY(!writeAtomically(m_path, std::array<std::string_view, 1>{"new"}));
    }

    void aMissingFolderIsAFailure()
    {
        QVERIFY(!writeAtomically(m_folder->filePath(QStringLiteral("none/file")),
                                 std::array<std::string_view, 1>{"x"}));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

TESSERA_TEST(AtomicFileTest);
#include "atomicfiletest.moc"
