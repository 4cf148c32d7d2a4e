#include "catalogue/storereader.h"
#include "support/writestore.h"

#include "samplerecords.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tessera;
using namespace tessera::test;

namespace {

/// While it lives, no file can grow beyond the given size: writing fails as it does on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit small{bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_limit{};
    void (*m_handler)(int);
};

} // namespace

class StoreFilesTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    static SampleRecords manyRecords(int count)
    {
        SampleRecords sample;
        for (int i = 0; i < count; ++i)
            sample.addNamed(("set" + std::to_string(i)).c_str());
        return sample;
    }

private Q_SLOTS:
    void writtenFileIsReadBack()
    {
        // Larger than several windows of the reader.
        const SampleRecords sample = manyRecords(2500);
        QVERIFY(writeStore(path("many.xml"), sample.store.records).has_value());
        const auto store = readStore(path("many.xml"));
        QVERIFY(store.has_value());
        QCOMPARE(lines(store->records), lines(sample.store.records));
    }

    void writtenFileIsReadBackThroughTheLibrary()
    {
        SampleRecords sample = manyRecords(2500);
        sample.store.records.back()[Field::Device] = {};
        QVERIFY(writeStore(path("absent.xml"), sample.store.records).has_value());
        const auto store = readStore(path("absent.xml"));
        QVERIFY(store.has_value());
        QCOMPARE(lines(store->records), lines(sample.store.records));
    }

    void namesOfAnyKindAreOpened()
    {
        QVERIFY(writeStore(path("カタログ 1.xml"), {}).has_value());
        QVERIFY(readStore(path("カタログ 1.xml")).has_value());
    }

    void unreadableFilesSayWhy_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("key");
        QTest::newRow("missing") << QStringLiteral("missing.xml") << QStringLiteral("failure_store_missing");
        QTest::newRow("missing folder")
            << QStringLiteral("no/missing.xml") << QStringLiteral("failure_store_missing");
        QTest::newRow("folder") << QStringLiteral("folder.xml") << QStringLiteral("failure_store_nofile");
        QTest::newRow("pipe") << QStringLiteral("pipe.xml") << QStringLiteral("failure_store_nofile");
        QTest::newRow("empty") << QStringLiteral("empty.xml") << QStringLiteral("failure_store_empty");
        QTest::newRow("file in the way")
            << QStringLiteral("empty.xml/x") << QStringLiteral("failure_store_read");
        QTest::newRow("forbidden") << QStringLiteral("forbidden.xml") << QStringLiteral("failure_store_read");
    }
    void unreadableFilesSayWhy()
    {
        QFETCH(QString, name);
        QFETCH(QString, key);
        QDir(m_folder.path()).mkdir(QStringLiteral("folder.xml"));
        mkfifo(qPrintable(path("pipe.xml")), 0666);
        QVERIFY(writeFile(path("empty.xml"), {}));
        QVERIFY(writeStore(path("forbidden.xml"), {}).has_value());
        QVERIFY(QFile::setPermissions(path("forbidden.xml"), {}));
        chmod(qPrintable(m_folder.path()), 0755);

        const OrdinaryUser user;
        QVERIFY(user.holds());
        const auto store = readStore(m_folder.filePath(name));
        QVERIFY(!store.has_value());
        QCOMPARE(QString::fromLatin1(store.error().key), key);
        QCOMPARE(store.error().arguments.value(0), m_folder.filePath(name));
    }

    void malformedStoreNamesItsLine_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("line");
        QTest::newRow("end tag") << QByteArray("<database>\n<object>\n</database>") << QStringLiteral("3");
        QTest::newRow("control character in a name")
            << QByteArray("<database>\n<object i\007d='1'/>\n</database>") << QStringLiteral("2");
        QTest::newRow("behind what is declared")
            << QByteArray("<?xml version='1.0'\n?>\r\n<!DOCTYPE database\n[]\n>\n<database>&</database>")
            << QStringLiteral("6");
    }
    void malformedStoreNamesItsLine()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, line);
        QVERIFY(writeFile(path("bad.xml"), bytes));
        const auto store = readStore(path("bad.xml"));
        QVERIFY(!store.has_value());
        QCOMPARE(store.error().arguments, QStringList({path("bad.xml"), line}));
    }

    void fullDiskKeepsTheOldStore()
    {
        QVERIFY(writeStore(path("old.xml"), {}).has_value());
        const QByteArray before = fileBytes(path("old.xml"));
        const SampleRecords sample = manyRecords(1000);
        {
            const FullDisk disk(65'536);
            const auto written = writeStore(path("old.xml"), sample.store.records);
            QVERIFY(!written.has_value());
            QCOMPARE(written.error().key, "failure_write");
        }
        QCOMPARE(fileBytes(path("old.xml")), before);
        QVERIFY(writeStore(path("old.xml"), sample.store.records).has_value());
    }

    void readOnlyFolderIsRefused()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("locked"));
        QVERIFY(writeStore(path("locked/store.xml"), {}).has_value());
        const QByteArray before = fileBytes(path("locked/store.xml"));
        chmod(qPrintable(path("locked")), 0555);
        chmod(qPrintable(m_folder.path()), 0755);
        const SampleRecords sample = manyRecords(1);
        {
            const OrdinaryUser user;
            QVERIFY(user.holds());
            const auto written = writeStore(path("locked/store.xml"), sample.store.records);
            QVERIFY(!written.has_value());
            QCOMPARE(written.error().key, "failure_write");
        }
        chmod(qPrintable(path("locked")), 0755);
        QCOMPARE(fileBytes(path("locked/store.xml")), before);
    }

    void writeProtectedFileIsRefused()
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("open"));
        QVERIFY(writeStore(path("open/store.xml"), {}).has_value());
        const QByteArray before = fileBytes(path("open/store.xml"));
        chmod(qPrintable(path("open/store.xml")), 0444);
        chmod(qPrintable(path("open")), 0777);
        chmod(qPrintable(m_folder.path()), 0755);
        const SampleRecords sample = manyRecords(1);
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            const auto written = writeStore(path("open/store.xml"), sample.store.records);
            QVERIFY(!written.has_value());
            QCOMPARE(written.error().key, "failure_write");
        }
        QCOMPARE(fileBytes(path("open/store.xml")), before);
    }
};

TESSERA_TEST(StoreFilesTest);
#include "storefilestest.moc"
