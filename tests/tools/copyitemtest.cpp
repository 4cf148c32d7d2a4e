#include "tools/copyitem.h"

#include "support/ordinaryuser.h"
#include "support/smalldisk.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/types.h>

using namespace tessera;

namespace {

// While it lives, no file grows larger than this.
class LargestFile
{
public:
    explicit LargestFile(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~LargestFile()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

std::expected<void, Failure> copyItem(const std::string& from, const std::string& name,
                                      const std::string& into, const Watch& watch)
{
    return ItemCopier(from, into, watch).copy(name);
}

} // namespace

class CopyItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_from = m_folder->filePath("from").toStdString();
        m_to = m_folder->filePath("to").toStdString();
        QVERIFY(::mkdir(m_from.c_str(), 0755) == 0 && ::mkdir(m_to.c_str(), 0755) == 0);
    }

    void aFileIsCopiedWithItsTimesAndPermissions()
    {
        write(m_from + "/a.zip", "bytes");
        ::chmod((m_from + "/a.zip").c_str(), 0640);
        setTime(m_from + "/a.zip", 1'000'000'000);
        QVERIFY(copy("a.zip").has_value());
        QCOMPARE(read(m_to + "/a.zip"), "bytes");
        QCOMPARE(read(m_from + "/a.zip"), "bytes");
        QCOMPARE(factsOf(m_to + "/a.zip").st_mtim.tv_sec, 1'000'000'000);
        QCOMPARE(factsOf(m_to + "/a.zip").st_mtim.tv_nsec, 123'456'000);
        QCOMPARE(factsOf(m_to + "/a.zip").st_mode & 07777, 0640U);
        QCOMPARE(names(m_to), {"a.zip"});
    }

    void sizesOfAllKinds_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, 4095, 4096, 1 << 20, (1 << 20) + 1, 9 << 20})
            QTest::addRow("%d", size) << size;
    }

    void sizesOfAllKinds()
    {
        QFETCH(int, size);
        QByteArray bytes(size, 'x');
        for (int i = 0; i < size; i += 977)
            bytes[i] = static_cast<char>(i);
        write(m_from + "/a", bytes);
        std::int64_t copied = 0;
        const Watch watch{{}, [&](std::int64_t more) { copied += more; }};
        QVERIFY(copyItem(m_from, "a", m_to, watch).has_value());
        QVERIFY(read(m_to + "/a") == bytes);
        QCOMPARE(copied, size);
        QCOMPARE(itemSize(m_from, "a", m_to), size);
    }

    void aFolderIsCopiedWithItsContents()
    {
        makeFolder(m_from + "/set");
        makeFolder(m_from + "/set/.hidden");
        makeFolder(m_from + "/set/empty");
        write(m_from + "/set/rom.bin", "rom");
        write(m_from + "/set/.hidden/deep", "deep");
        ::chmod((m_from + "/set/empty").c_str(), 0500);
        for (const char* place : {"/set/.hidden/deep", "/set/.hidden", "/set/empty", "/set"})
            setTime(m_from + place, 1'100'000'000);
        QCOMPARE(itemSize(m_from, "set", m_to), 7);
        QVERIFY(copy("set").has_value());
        QCOMPARE(read(m_to + "/set/rom.bin"), "rom");
        QCOMPARE(read(m_to + "/set/.hidden/deep"), "deep");
        for (const char* place : {"/set/.hidden/deep", "/set/.hidden", "/set/empty", "/set"})
            QCOMPARE(factsOf(m_to + place).st_mtim.tv_sec, 1'100'000'000);
        QCOMPARE(factsOf(m_to + "/set/empty").st_mode & 07777, 0500U);
    }

    void aFolderThatMayNotBeWrittenIsCopiedToo()
    {
        makeFolder(m_from + "/set");
        write(m_from + "/set/rom", "rom");
        ::chmod((m_from + "/set").c_str(), 0555);
        openToAll();
        const test::OrdinaryUser user;
        QVERIFY(user.holds());
        QVERIFY(copy("set").has_value());
        QCOMPARE(read(m_to + "/set/rom"), "rom");
        QCOMPARE(factsOf(m_to + "/set").st_mode & 07777, 0555U);
        ::chmod((m_to + "/set").c_str(), 0755);
    }

    void nothingIsReplaced_data()
    {
        QTest::addColumn<QString>("there");
        QTest::newRow("a file") << "file";
        QTest::newRow("a folder") << "folder";
        QTest::newRow("a link to nowhere") << "link";
    }

    void nothingIsReplaced()
    {
        QFETCH(QString, there);
        for (const bool isFolder : {false, true}) {
            const std::string name = isFolder ? "set" : "a.zip";
            const std::string inTheWay = m_to + '/' + name;
            if (isFolder)
                makeFolder(m_from + "/set");
            else
                write(m_from + "/a.zip", "new");
            if (there == "file")
                write(inTheWay, "old");
            else if (there == "folder")
                makeFolder(inTheWay);
            else
                QVERIFY(::symlink("nowhere", inTheWay.c_str()) == 0);
            const auto before = factsOf(inTheWay);
            expectFailure(copy(name), "copy_exists", inTheWay);
            QCOMPARE(factsOf(inTheWay).st_ino, before.st_ino);
            if (there == "file")
                QCOMPARE(read(inTheWay), "old");
            QCOMPARE(names(m_to).size(), isFolder ? 2 : 1);
        }
    }

    void whatTakesTheNameMeanwhileStays()
    {
        write(m_from + "/a.zip", "new");
        const Watch watch{{}, [&](std::int64_t) { write(m_to + "/a.zip", "old"); }};
        expectFailure(copyItem(m_from, "a.zip", m_to, watch), "copy_exists", m_to + "/a.zip");
        QCOMPARE(read(m_to + "/a.zip"), "old");
        QCOMPARE(names(m_to), {"a.zip"});
    }

    void namesAreBytes_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* name :
             {"line\nfeed.zip", "\"quoted\" 'twice'.zip", "\xE9\xFF not text.zip", "ポン.zip", "-rf",
              "a b  c", "%1 %2 %n.zip", "back\\slash", "tab\there", "$(HOME) `x`"})
            QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
        QTest::newRow("as long as may be") << QByteArray(255, 'n');
    }

    void namesAreBytes()
    {
        QFETCH(QByteArray, name);
        write(m_from + '/' + name.toStdString(), "bytes");
        QVERIFY(copy(name.toStdString()).has_value());
        QCOMPARE(read(m_to + '/' + name.toStdString()), "bytes");
        makeFolder(m_from + "/folder");
        write(m_from + "/folder/" + name.toStdString(), "inside");
        QVERIFY(copy("folder").has_value());
        QCOMPARE(read(m_to + "/folder/" + name.toStdString()), "inside");
    }

    void linksStayLinks()
    {
        makeFolder(m_from + "/set");
        write(m_from + "/other", "other");
        for (const auto& [target, link] : {std::pair{"itself", "itself"},
                                           {"..", "set/up"},
                                           {".", "set/here"},
                                           {"two", "one"},
                                           {"one", "two"},
                                           {"../other", "set/other"},
                                           {"/nowhere", "set/nowhere"},
                                           {"other", "linked"}})
            QVERIFY(::symlink(target, (m_from + '/' + link).c_str()) == 0);
        for (const char* name : {"itself", "set", "one", "two", "linked"})
            QVERIFY2(copy(name).has_value(), name);
        for (const auto& [target, link] : {std::pair{"itself", "itself"},
                                           {"..", "set/up"},
                                           {".", "set/here"},
                                           {"two", "one"},
                                           {"../other", "set/other"},
                                           {"/nowhere", "set/nowhere"},
                                           {"other", "linked"}})
            QCOMPARE(linkAt(m_to + '/' + link), target);
        QCOMPARE(names(m_to + "/set").size(), 4);
        QCOMPARE(itemSize(m_from, "set", m_to), 0);
    }

    void aDestinationInsideIsNotCopiedIntoItself()
    {
        makeFolder(m_from + "/old");
        makeFolder(m_from + "/old/deep");
        write(m_from + "/old/rom", "rom");
        write(m_from + "/old/deep/kept", "kept");
        // Beneath what is copied: all but itself.
        QVERIFY(copyItem(m_from, "old", m_from + "/old/deep", {}).has_value());
        QCOMPARE(read(m_from + "/old/deep/old/rom"), "rom");
        QCOMPARE(names(m_from + "/old/deep/old"), {"rom"});
        QCOMPARE(itemSize(m_from, "old", m_from + "/old/deep"), 3);
        // The very folder.
        expectFailure(copyItem(m_from, "old", m_from + "/old", {}), "copy_into_itself", m_from + "/old");
        QCOMPARE(names(m_from + "/old").size(), 2);
        // Where everything is already.
        expectFailure(copyItem(m_from, "old", m_from, {}), "copy_exists", m_from + "/old");
    }

    void aFullDestinationKeepsNoHalves()
    {
        write(m_from + "/large", QByteArray(1 << 20, 'x'));
        makeFolder(m_from + "/set");
        write(m_from + "/set/small", "small");
        write(m_from + "/set/large", QByteArray(1 << 20, 'x'));
        write(m_from + "/small", "small");
        const LargestFile limit(1 << 16);
        for (const char* name : {"large", "set"})
            QCOMPARE(copy(name).error().key, "failure_write");
        QVERIFY(copy("small").has_value());
        QCOMPARE(names(m_to), {"small"});
    }

    void aDiskThatFillsUpKeepsNoHalves()
    {
        const test::SmallDisk disk(QByteArray::fromStdString(m_to));
        if (!disk.isThere())
            QSKIP("no file system may be mounted here");
        makeFolder(m_from + "/set");
        for (int i = 0; i < 9; ++i)
            write(m_from + "/set/" + std::to_string(i), QByteArray(8 << 10, 'x'));
        write(m_from + "/large", QByteArray(1 << 20, 'x'));
        write(m_from + "/small", QByteArray(8 << 10, 'x'));
        for (const char* name : {"large", "set"}) {
            const auto copied = copy(name);
            QVERIFY(!copied.has_value());
            QCOMPARE(copied.error().key, "failure_write");
            QVERIFY(copied.error().arguments.last().contains("space"));
        }
        QCOMPARE(names(m_to), QStringList());
        QVERIFY(copy("small").has_value());
    }

    void withoutPermissionItSaysWhich()
    {
        write(m_from + "/secret", "secret");
        write(m_from + "/open", "open");
        makeFolder(m_from + "/set");
        write(m_from + "/set/secret", "secret");
        for (const char* name : {"/secret", "/set/secret"})
            ::chmod((m_from + name).c_str(), 0000);
        openToAll();
        const test::OrdinaryUser user;
        QVERIFY(user.holds());
        expectFailure(copy("secret"), "convert_not_read", m_from + "/secret");
        expectFailure(copy("set"), "convert_not_read", m_from + "/set/secret");
        QCOMPARE(names(m_to), QStringList());
        ::chmod(m_to.c_str(), 0555);
        expectFailure(copy("open"), "failure_write", m_to + "/open");
    }

    void whatGoesAwayIsAFailure()
    {
        expectFailure(copy("never there"), "convert_not_read", m_from + "/never there");
        write(m_from + "/a", "a");
        expectFailure(copyItem(m_from, "a", m_to + "/gone", {}), "failure_write", m_to + "/gone/a");
        expectFailure(copyItem(m_from + "/gone", "a", m_to, {}), "convert_not_read", m_from + "/gone/a");
    }

    void aDestinationThatVanishesMeanwhileIsAFailure()
    {
        makeFolder(m_from + "/set");
        write(m_from + "/set/a", "a");
        write(m_from + "/set/b", "b");
        const Watch watch{{}, [&](std::int64_t) { QDir(QString::fromStdString(m_to)).removeRecursively(); }};
        QCOMPARE(copyItem(m_from, "set", m_to, watch).error().key, "failure_write");
        QVERIFY(!QFileInfo::exists(QString::fromStdString(m_to)));
        QCOMPARE(read(m_from + "/set/a"), "a");
    }

    void aDestinationThatLosesItsPermissionMeanwhileIsAFailure()
    {
        makeFolder(m_from + "/set");
        write(m_from + "/set/a", "a");
        write(m_from + "/b", "b");
        openToAll();
        const test::OrdinaryUser user;
        QVERIFY(user.holds());
        const Watch watch{{}, [&](std::int64_t) { ::chmod(m_to.c_str(), 0555); }};
        for (const char* name : {"set", "b"}) {
            ::chmod(m_to.c_str(), 0755);
            const auto copied = copyItem(m_from, name, m_to, watch);
            QVERIFY(!copied.has_value());
            QCOMPARE(copied.error().key, "failure_write");
            QVERIFY(!QFileInfo::exists(QString::fromStdString(m_to + '/' + name)));
        }
        ::chmod(m_to.c_str(), 0755);
    }

    void aDiskThatIsPulledOutMeanwhileIsAFailure()
    {
        test::SmallDisk disk(QByteArray::fromStdString(m_to));
        if (!disk.isThere())
            QSKIP("no file system may be mounted here");
        write(m_from + "/a", "a");
        const Watch watch{{}, [&](std::int64_t) { disk.takeAway(); }};
        QCOMPARE(copyItem(m_from, "a", m_to, watch).error().key, "failure_write");
        // What is beneath the place where it was stays as it is.
        QCOMPARE(names(m_to), QStringList());
    }

    void manyAreCopiedThroughOneFolder()
    {
        for (const char* name : {"a", "b", "c", "d"})
            write(m_from + '/' + name, name);
        write(m_to + "/b", "old");
        QStringList meanwhile;
        const Watch watch{{}, [&](std::int64_t) { meanwhile << names(m_to).filter(".tessera-"); }};
        {
            ItemCopier copier(m_from, m_to, watch);
            QVERIFY(copier.copy("a").has_value());
            expectFailure(copier.copy("b"), "copy_exists", m_to + "/b");
            QVERIFY(copier.copy("c").has_value());
            QCOMPARE(QSet<QString>(meanwhile.begin(), meanwhile.end()).size(), 1);
            // Taken away by somebody who tidies up.
            QVERIFY(QDir(QString::fromStdString(m_to) + '/' + meanwhile.first()).removeRecursively());
            QVERIFY(copier.copy("d").has_value());
        }
        QCOMPARE(names(m_to), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(read(m_to + "/b"), "old");
    }

    void whatFailsLeavesNothingInTheWayOfTheNext()
    {
        makeFolder(m_from + "/set");
        write(m_from + "/set/a", "a");
        QVERIFY(::mkfifo((m_from + "/set/pipe").c_str(), 0644) == 0);
        ItemCopier copier(m_from, m_to, {});
        expectFailure(copier.copy("set"), "copy_special", m_from + "/set/pipe");
        QVERIFY(QFile::remove(QString::fromStdString(m_from) + "/set/pipe"));
        QVERIFY(copier.copy("set").has_value());
        QCOMPARE(names(m_to + "/set"), {"a"});
    }

    void whatIsNoFileIsRefused()
    {
        QVERIFY(::mkfifo((m_from + "/pipe").c_str(), 0644) == 0);
        expectFailure(copy("pipe"), "copy_special", m_from + "/pipe");
        makeFolder(m_from + "/set");
        QVERIFY(::mkfifo((m_from + "/set/pipe").c_str(), 0644) == 0);
        expectFailure(copy("set"), "copy_special", m_from + "/set/pipe");
        QCOMPARE(names(m_to), QStringList());
    }

    void stoppingKeepsNoHalves()
    {
        write(m_from + "/large", QByteArray(20 << 20, 'x'));
        std::stop_source stop;
        const Watch watch{stop.get_token(), [&](std::int64_t) { stop.request_stop(); }};
        const auto copied = copyItem(m_from, "large", m_to, watch);
        QVERIFY(!copied.has_value());
        QCOMPARE(copied.error().key, copyCancelled);
        QCOMPARE(names(m_to), QStringList());
        QCOMPARE(copyItem(m_from, "large", m_to, watch).error().key, copyCancelled);
    }

private:
    void openToAll() const
    {
        ::chmod(m_folder->path().toLocal8Bit().constData(), 0755);
        if (::geteuid() == 0)
            QVERIFY(::chown(m_to.c_str(), 65534, 65534) == 0);
    }

    std::expected<void, Failure> copy(const std::string& name) const
    {
        return copyItem(m_from, name, m_to, {});
    }

    static void expectFailure(const std::expected<void, Failure>& copied, const char* key,
                              const std::string& path)
    {
        QVERIFY(!copied.has_value());
        QCOMPARE(copied.error().key, key);
        QCOMPARE(copied.error().arguments.first(), QString::fromStdString(path));
    }

    static struct stat factsOf(const std::string& path)
    {
        struct stat facts{};
        ::lstat(path.c_str(), &facts);
        return facts;
    }

    static void setTime(const std::string& path, time_t seconds)
    {
        const timespec times[2] = {{seconds, 123'456'000}, {seconds, 123'456'000}};
        QVERIFY(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) == 0);
    }

    static void makeFolder(const std::string& path)
    {
        QVERIFY(::mkdir(path.c_str(), 0755) == 0 || errno == EEXIST);
    }

    static void write(const std::string& path, const QByteArray& bytes)
    {
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        QVERIFY2(file >= 0, path.c_str());
        QCOMPARE(::write(file, bytes.constData(), static_cast<std::size_t>(bytes.size())), bytes.size());
        ::close(file);
    }

    static QByteArray read(const std::string& path)
    {
        const int file = ::open(path.c_str(), O_RDONLY);
        QByteArray bytes(32 << 20, '\0');
        const auto size = file < 0 ? 0 : ::read(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        ::close(file);
        return bytes.left(size);
    }

    static QByteArray linkAt(const std::string& path)
    {
        QByteArray target(4096, '\0');
        return target.left(::readlink(path.c_str(), target.data(), 4096));
    }

    static QStringList names(const std::string& folder)
    {
        return QDir(QString::fromStdString(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_from;
    std::string m_to;
};

TESSERA_TEST(CopyItemTest);
#include "copyitemtest.moc"
