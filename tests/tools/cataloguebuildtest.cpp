#include "tools/cataloguebuild.h"

#include "support/grandchild.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

using namespace tessera;

namespace {

constexpr const char* fakeEmulator = TESSERA_FAKEEMULATOR;
constexpr int patience = 20000; // milliseconds

// The blanks let both machines be noticed before the list ends.
const QByteArray list = "<mame>\n<machine name=\"pong\" ><description>Pong</description></machine>\n"
                        "<machine name=\"puckman\" ><description>Puck Man</description></machine>\n"
    + QByteArray(400, ' ') + "</mame>\n";

// A build with what was heard of it.
struct Heard {
    CatalogueBuild build;
    QList<int> progress;
    QList<int> finished;
    QList<Failure> failures;
    int cancelled = 0;

    Heard()
    {
        QObject::connect(&build, &CatalogueBuild::progress, &build, [this](int count) { progress << count; });
        QObject::connect(&build, &CatalogueBuild::finished, &build, [this](int count) { finished << count; });
        QObject::connect(&build, &CatalogueBuild::failed, &build,
                         [this](const Failure& failure) { failures << failure; });
        QObject::connect(&build, &CatalogueBuild::cancelled, &build, [this] { ++cancelled; });
    }

    int outcomes() const { return static_cast<int>(finished.size() + failures.size()) + cancelled; }
    bool waitForOutcome()
    {
        return QTest::qWaitFor([this] { return outcomes() > 0; }, patience);
    }
    QByteArray failure() const
    {
        return failures.isEmpty() ? QByteArray() : QByteArray(failures.first().key);
    }
};

} // namespace

class CatalogueBuildTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = m_folder->filePath("Tessera.xml");
        write(m_store, "old");
        play(list);
    }

    void cleanup()
    {
        for (const char* name : {"FAKE_LISTXML", "FAKE_THEN", "FAKE_WORDS"})
            qunsetenv(name);
    }

    void replacesTheStore()
    {
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(heard.build.isRunning());
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.finished, {2});
        QCOMPARE(heard.progress, {2});
        QVERIFY(!heard.build.isRunning());
        QVERIFY(read(m_store).contains(">Puck Man<"));
        QVERIFY(read(m_store).endsWith("</database>"));
    }

    void makesTheFolderOfTheFirstStore()
    {
        const QString store = m_folder->filePath("a/b/Tessera.xml");
        Heard heard;
        heard.build.start(fakeEmulator, store);
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.finished, {2});
        QVERIFY(read(store).contains("pong"));
    }

    void keepsTheReplacedStoreUnderItsName()
    {
        const QString kept = m_folder->filePath("Tessera 2026-01-02 03-04-05.xml");
        Heard heard;
        heard.build.start(fakeEmulator, m_store, {}, QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)));
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.finished, {2});
        QCOMPARE(read(kept), "old");
        QVERIFY(read(m_store).contains("pong"));
    }

    void usesATitleListWhereThereIsOne_data()
    {
        QTest::addColumn<QString>("titles");
        QTest::addColumn<bool>("isUsed");
        QTest::addColumn<QString>("reason");
        QTest::newRow("there") << "titles.lst" << true << "";
        QTest::newRow("none chosen") << "" << false << "";
        QTest::newRow("gone") << "gone.lst" << false << "No such file or directory";
        QTest::newRow("a folder") << "." << false << "directory";
    }

    void usesATitleListWhereThereIsOne()
    {
        QFETCH(QString, titles);
        QFETCH(bool, isUsed);
        QFETCH(QString, reason);
        write(m_folder->filePath("titles.lst"), "pong\tPON\n");
        Heard heard;
        heard.build.start(fakeEmulator, m_store, titles.isEmpty() ? QString() : m_folder->filePath(titles));
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.finished, {2});
        QCOMPARE(read(m_store).contains(">PON<"), isUsed);
        const auto failure = heard.build.titlesFailure();
        QCOMPARE(failure.has_value(), !reason.isEmpty());
        if (failure) {
            QCOMPARE(failure->key, "convert_not_read");
            QCOMPARE(failure->arguments.first(), m_folder->filePath(titles));
            QVERIFY2(failure->arguments.last().contains(reason), qPrintable(failure->arguments.last()));
        }
    }

    void aTitleListThatIsReadAgainIsNoLongerAFailure()
    {
        Heard heard;
        heard.build.start(fakeEmulator, m_store, m_folder->filePath("titles.lst"));
        QVERIFY(heard.waitForOutcome());
        QVERIFY(heard.build.titlesFailure());
        write(m_folder->filePath("titles.lst"), "pong\tPON\n");
        heard.build.start(fakeEmulator, m_store, m_folder->filePath("titles.lst"));
        QVERIFY(QTest::qWaitFor([&] { return heard.outcomes() == 2; }, patience));
        QVERIFY(!heard.build.titlesFailure());
    }

    void afterAFailureTheOldStoreStands_data()
    {
        QTest::addColumn<QString>("emulator");
        QTest::addColumn<QByteArray>("prints");
        QTest::addColumn<QByteArray>("then");
        QTest::addColumn<QByteArray>("key");
        const QString fake = fakeEmulator;
        QTest::newRow("missing") << "/nowhere/mame" << QByteArray() << QByteArray()
                                 << QByteArray("build_missing");
        QTest::newRow("a folder") << "/" << QByteArray() << QByteArray() << QByteArray("build_is_folder");
        QTest::newRow("not executable")
            << "plain" << QByteArray() << QByteArray() << QByteArray("build_not_executable");
        QTest::newRow("no program") << "broken" << QByteArray() << QByteArray()
                                    << QByteArray("build_not_started");
        QTest::newRow("prints nothing")
            << fake << QByteArray() << QByteArray() << QByteArray("build_nothing_printed");
        QTest::newRow("prints words")
            << fake << QByteArray("hello\n") << QByteArray() << QByteArray("build_no_list");
        QTest::newRow("prints NULs") << fake << QByteArray("<machine \0", 10) << QByteArray()
                                     << QByteArray("convert_has_nul");
        QTest::newRow("cut off") << fake << list.left(120) << QByteArray() << QByteArray("build_cut_off_in");
        QTest::newRow("an element that does not end")
            << fake
            << QByteArray("<mame><machine name=\"a\" ></machine><machine name=\"zz\" >"
                          + QByteArray(70'000'000, 'x'))
            << QByteArray() << QByteArray("build_too_long");
        QTest::newRow("ends after an element")
            << fake << list.left(list.lastIndexOf("</")) << QByteArray() << QByteArray("build_cut_off");
        // The name runs on into the markup behind it, which no store can hold.
        QTest::newRow("a form that breaks the store")
            << fake
            << QByteArray(
                   "<mame><machine name=\"a\"><description>A</description><b c=\"d\" /></machine></mame>\n")
            << QByteArray() << QByteArray("build_unreadable");
        QTest::newRow("crashes") << fake << list << QByteArray("signal9") << QByteArray("build_crashed");
        QTest::newRow("a status") << fake << list << QByteArray("exit3") << QByteArray("build_status");
        QTest::newRow("NULs without an end")
            << fake << QByteArray(400, '\0') << QByteArray("wait") << QByteArray("convert_has_nul");
    }

    void afterAFailureTheOldStoreStands()
    {
        QFETCH(QString, emulator);
        QFETCH(QByteArray, prints);
        QFETCH(QByteArray, then);
        QFETCH(QByteArray, key);
        if (emulator == "plain" || emulator == "broken") {
            const bool mayRun = emulator == "broken";
            emulator = m_folder->filePath(emulator);
            write(emulator,
                  "\x7F"
                  "ELF");
            if (mayRun)
                QVERIFY(QFile::setPermissions(emulator, QFile::ReadOwner | QFile::ExeOwner));
        }
        play(prints, then);
        Heard heard;
        heard.build.start(emulator, m_store);
        QCOMPARE(heard.outcomes(), 0); // never from inside start()
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.failure(), key);
        QCOMPARE(heard.outcomes(), 1);
        QVERIFY(!heard.build.isRunning());
        QCOMPARE(read(m_store), "old");
        QCOMPARE(QDir(m_folder->path()).entryList({"Tessera*"}), QStringList{"Tessera.xml"});
    }

    void saysHowTheEmulatorEnded()
    {
        play(list, "signal9");
        Heard crashed;
        crashed.build.start(fakeEmulator, m_store);
        QVERIFY(crashed.waitForOutcome());
        QCOMPARE(crashed.failures.first().arguments, QStringList({fakeEmulator, "9"}));

        play({}, "exit6");
        qputenv("FAKE_WORDS", "first\nsecond\n\nError: unknown option: -listxml\n  run -help\n");
        Heard ended;
        ended.build.start(fakeEmulator, m_store);
        QVERIFY(ended.waitForOutcome());
        QCOMPARE(ended.failure(), "build_status_words");
        QCOMPARE(ended.failures.first().arguments,
                 QStringList({fakeEmulator, "6", "second\nError: unknown option: -listxml\nrun -help"}));
    }

    void wordsOnStandardErrorAreNoPartOfTheList()
    {
        qputenv("FAKE_WORDS", "<machine name=\"no\" ></machine>\nwarning\n");
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.finished, {2});
    }

    void cancellingLeavesTheOldStore_data()
    {
        QTest::addColumn<QByteArray>("then");
        QTest::newRow("never ends") << QByteArray("wait");
        QTest::newRow("prints without an end") << QByteArray("endless");
        QTest::newRow("does not end when asked") << QByteArray("stubborn");
    }

    void cancellingLeavesTheOldStore()
    {
        QFETCH(QByteArray, then);
        play(list, then);
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(QTest::qWaitFor([&] { return !heard.progress.isEmpty(); }, patience));
        heard.build.cancel();
        heard.build.cancel();
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.cancelled, 1);
        QCOMPARE(heard.outcomes(), 1);
        QVERIFY(!heard.build.isRunning());
        QCOMPARE(read(m_store), "old");
    }

    void canBeStartedAgain()
    {
        play({});
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.failure(), "build_nothing_printed");
        play(list);
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(QTest::qWaitFor([&] { return !heard.finished.isEmpty(); }, patience));
        QCOMPARE(heard.finished, {2});
    }

    void aCancelledRunLeavesTheNextOneAlone()
    {
        play(list, "wait");
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(QTest::qWaitFor([&] { return !heard.progress.isEmpty(); }, patience));
        heard.build.cancel();
        QVERIFY(heard.waitForOutcome());
        QCOMPARE(heard.cancelled, 1);
        // It still runs when the first one would have been killed.
        const QString slow = m_folder->filePath("slow");
        write(slow, "#!/bin/sh\ncat '" + QFile::encodeName(m_folder->filePath("list.xml")) + "'\nsleep 4\n");
        QVERIFY(QFile::setPermissions(slow, QFile::ReadOwner | QFile::ExeOwner));
        heard.build.start(slow, m_store);
        QVERIFY(QTest::qWaitFor([&] { return heard.outcomes() == 2; }, patience));
        QCOMPARE(heard.failure(), QByteArray());
        QCOMPARE(heard.finished, {2});
    }

    void aGrandchildThatKeepsThePipeOpenIsNotWaitedFor()
    {
        play(list, "quietgrandchild");
        test::Grandchild grandchild;
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        QVERIFY(heard.waitForOutcome());
        QVERIFY(grandchild.isAlive());
        QCOMPARE(heard.finished, {2});
    }

    void goingAwayEndsTheEmulator()
    {
        play(list, "stubborn");
        auto heard = std::make_unique<Heard>();
        heard->build.start(fakeEmulator, m_store);
        QVERIFY(QTest::qWaitFor([&] { return !heard->progress.isEmpty(); }, patience));
        heard.reset();
        QCOMPARE(read(m_store), "old");
    }

    void aFullDiskLeavesTheOldStore()
    {
        play("<mame>" + list.repeated(2000) + "</mame>\n");
        const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        Heard heard;
        heard.build.start(fakeEmulator, m_store);
        rlimit small = before;
        small.rlim_cur = 100'000;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        const bool settled = heard.waitForOutcome();
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        std::signal(SIGXFSZ, ignored);
        QVERIFY(settled);
        QCOMPARE(heard.failure(), "failure_write");
        QCOMPARE(read(m_store), "old");
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList({"list.xml", "Tessera.xml"}));
    }

    void aReadOnlyFolderIsNoticedBeforeTheEmulatorRuns()
    {
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555)));
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            Heard heard;
            // Never run; another user may not reach the stand-in in a private folder.
            heard.build.start("/bin/sh", m_store);
            QVERIFY(heard.waitForOutcome());
            QCOMPARE(heard.failure(), "build_read_only");
            QCOMPARE(heard.failures.first().arguments, {m_folder->path()});
        }
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        QCOMPARE(read(m_store), "old");
    }

private:
    // What the emulator prints, and what it does then; no bytes for no output.
    void play(const QByteArray& prints, const QByteArray& then = {})
    {
        const QString path = m_folder->filePath("list.xml");
        write(path, prints);
        qputenv("FAKE_LISTXML", QFile::encodeName(path));
        qputenv("FAKE_THEN", then);
        if (then.isEmpty())
            qunsetenv("FAKE_THEN");
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
    }

    static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_store;
};

TESSERA_TEST(CatalogueBuildTest);
#include "cataloguebuildtest.moc"
