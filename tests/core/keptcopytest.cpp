#include "core/keptcopy.h"

#include "core/atomicfile.h"

#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

class KeptCopyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesHoldTheDate()
    {
        const QDateTime when(QDate(2026, 1, 2), QTime(3, 4, 5));
        QCOMPARE(datedName("/a.b/Tessera.xml", when), "/a.b/Tessera 2026-01-02 03-04-05.xml");
    }

    void aLinkKeepsWhatItLeadsTo()
    {
        QTemporaryDir folder;
        const QString real = folder.filePath("real.xml");
        const QString path = folder.filePath("Tessera.xml");
        QVERIFY(writeAtomically(real, std::array<std::string_view, 1>{"old"}));
        QVERIFY(QFile::link(real, path));
        const auto kept = keepAs(path, folder.filePath("kept.xml"));
        QVERIFY(kept);
        QVERIFY(writeAtomically(path, std::array<std::string_view, 1>{"new"}));
        QFile file(*kept);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("old"));
    }

    void bothNamesHoldTheWholeFile()
    {
        QTemporaryDir folder;
        const QString path = write(folder, "Tessera.xml", "old");
        const auto kept = keepAs(path, folder.filePath("kept.xml"));
        QVERIFY(kept);
        QCOMPARE(*kept, folder.filePath("kept.xml"));
        QCOMPARE(read(path), "old");
        QCOMPARE(read(*kept), "old");
    }

    void aTakenNameGetsANumber()
    {
        QTemporaryDir folder;
        const QString path = write(folder, "Tessera.xml", "old");
        write(folder, "kept.xml", "first");
        write(folder, "kept 2.xml", "second");
        QCOMPARE(keepAs(path, folder.filePath("kept.xml")).value_or(QString()),
                 folder.filePath("kept 3.xml"));
        QCOMPARE(read(folder.filePath("kept.xml")), "first");
    }

    void nothingIsKeptOfNothing()
    {
        QTemporaryDir folder;
        const auto kept = keepAs(folder.filePath("Tessera.xml"), folder.filePath("kept.xml"));
        QVERIFY(kept);
        QVERIFY(kept->isEmpty());
        QVERIFY(!QFile::exists(folder.filePath("kept.xml")));
    }

    void aFolderThatMayNotBeChangedIsNamed()
    {
        QTemporaryDir folder;
        const QString path = write(folder, "Tessera.xml", "old");
        QVERIFY(
            QFile::setPermissions(folder.path(), QFile::Permissions(0x5555))); // to be looked at by anybody
        const test::OrdinaryUser user;
        QVERIFY(user.holds());
        const auto kept = keepAs(path, folder.filePath("kept.xml"));
        QVERIFY(!kept);
        QCOMPARE(QByteArray(kept.error().key), "failure_write");
    }

private:
    static QString write(const QTemporaryDir& folder, const QString& name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TESSERA_TEST(KeptCopyTest);
#include "keptcopytest.moc"
