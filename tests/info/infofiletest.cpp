#include "info/infofile.h"

#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace tessera;

class InfoFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theClassicFormIsSearchedByItsExactForms()
    {
        const auto file = read("$info=a,b\r\n$bio\r\n\r\n\x83\x70$end");
        QVERIFY(file.has_value());
        QCOMPARE(std::string(file->entry("a", EntryKind::Bio).value_or("")), std::string("パ"));
        QVERIFY(!file->entry("b", EntryKind::Bio));
        QCOMPARE(file->filed("b", EntryKind::Bio)->name, std::string("a"));
    }

    void theXmlFormIsSearchedByEveryName()
    {
        const auto file = read("<history><entry><systems><system name=\"a\"/><system name=\"b\"/></systems>"
                               "<text>A</text></entry></history>");
        QVERIFY(file.has_value());
        QCOMPARE(std::string(file->entry("b", EntryKind::Bio).value_or("")), std::string("A\n"));
        QVERIFY(!file->filed("b", EntryKind::Bio));
        QVERIFY(!file->entry("c", EntryKind::Bio));
    }

    void xmlInAnotherEncodingIsReadToo()
    {
        const auto file = read("<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><history><entry><systems>"
                               "<system name=\"a\"/></systems><text>\x83\x70</text></entry></history>");
        QVERIFY(file.has_value());
        QCOMPARE(std::string(file->entry("a", EntryKind::Bio).value_or("")), std::string("パ\n"));
    }

    void anEmptyFileHasNoEntries()
    {
        const auto file = read("");
        QVERIFY(file.has_value());
        QVERIFY(!file->entry("a", EntryKind::Bio));
    }

    void whatCannotBeReadHasAReason_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("missing") << "nothing.dat" << QByteArray("info_no_file");
        QTest::newRow("a folder") << "." << QByteArray("info_no_file");
        QTest::newRow("a pipe") << "pipe" << QByteArray("info_no_file");
        QTest::newRow("broken XML") << "broken.xml" << QByteArray("info_bad_xml");
        QTest::newRow("larger than any") << "large.dat" << QByteArray("info_too_large");
    }

    void whatCannotBeReadHasAReason()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, key);
        QCOMPARE(::mkfifo(QFile::encodeName(m_folder.filePath("pipe")).constData(), 0600) == 0
                     || errno == EEXIST,
                 true);
        write("broken.xml", "<history><entry>");
        QFile large(m_folder.filePath("large.dat"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize((qint64{1} << 30) + 1));
        const auto file = InfoFile::read(m_folder.filePath(name));
        QVERIFY(!file.has_value());
        QCOMPARE(QByteArray(file.error().key), key);
        QCOMPARE(file.error().arguments.value(0), m_folder.filePath(name));
    }

    void whatMayNotBeReadHasTheSystemsReason()
    {
        write("closed.dat", "$info=a\r\n$bio\r\nA\r\n$end\r\n");
        const QString path = m_folder.filePath("closed.dat");
        QVERIFY(QFile::setPermissions(path, {}));
        QVERIFY(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777)));
        const test::OrdinaryUser user;
        QVERIFY(user.holds());
        const auto file = InfoFile::read(path);
        QVERIFY(!file.has_value());
        QCOMPARE(QByteArray(file.error().key), QByteArray("info_not_read"));
        QCOMPARE(file.error().arguments.value(0), path);
        QVERIFY(file.error().arguments.value(1).contains("denied"));
    }

    void aWholeFileIsRead()
    {
        const QByteArray body = QByteArray("line\r\n").repeated(300'000);
        const auto file = read("$info=a\r\n$bio\r\n" + body + "$end\r\n");
        QVERIFY(file.has_value());
        QCOMPARE(file->entry("a", EntryKind::Bio)->size(), static_cast<std::size_t>(body.size()));
        QCOMPARE(file->text().size(), static_cast<std::size_t>(body.size()) + 21);
    }

    void aTextThatIsGivenIsSearchedToo()
    {
        const InfoFile file(std::string("$info=a\r\n$mame\r\nA$end"));
        QCOMPARE(std::string(file.entry("a", EntryKind::Mame).value_or("")), std::string("A"));
        QVERIFY(!file.entry("a", EntryKind::Bio));
        QCOMPARE(file.text().size(), std::size_t{21});
    }

private:
    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::expected<InfoFile, Failure> read(const QByteArray& bytes)
    {
        write("history.dat", bytes);
        return InfoFile::read(m_folder.filePath("history.dat"));
    }

    QTemporaryDir m_folder;
};

TESSERA_TEST(InfoFileTest);
#include "infofiletest.moc"
