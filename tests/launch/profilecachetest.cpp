#include "launch/profilecache.h"

#include "launch/usagetexts.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace tessera;

namespace {

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write");
}

} // namespace

class ProfileCacheTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_emulator;
    QString m_cache;

    qsizetype timesAsked(const QByteArray& option = "-showusage") const
    {
        QFile file(m_folder->filePath("runs"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count(QByteArray(option + '\n')) : 0;
    }

    // A program of our own making.
    QString script(const QByteArray& text) const
    {
        const QString path = m_folder->filePath("script");
        write(path, "#!/bin/sh\n" + text);
        if (!QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner))
            qFatal("no program");
        return path;
    }

    QString cacheFile() const
    {
        const QStringList files = QDir(m_cache).entryList(QDir::Files);
        return files.size() == 1 ? m_cache + '/' + files.first() : QString();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_emulator = m_folder->filePath("mame");
        m_cache = m_folder->filePath("cache/profiles");
        QVERIFY(QFile::copy(TESSERA_FAKEEMULATOR, m_emulator));
        write(m_folder->filePath("usage"), test::newUsage());
        qputenv("FAKE_USAGE", QFile::encodeName(m_folder->filePath("usage")));
        write(m_folder->filePath("config"), "rompath                   /own;/more\n");
        qputenv("FAKE_CONFIG", QFile::encodeName(m_folder->filePath("config")));
        qputenv("FAKE_RUNS", QFile::encodeName(m_folder->filePath("runs")));
    }

    void cleanupTestCase()
    {
        qunsetenv("FAKE_USAGE");
        qunsetenv("FAKE_CONFIG");
        qunsetenv("FAKE_RUNS");
    }

    void asksOnceAndRemembersOverRuns()
    {
        {
            ProfileCache cache(m_cache);
            QVERIFY(!cache.remembered(m_emulator));
            QVERIFY(cache.ask(m_emulator).profile);
            QVERIFY(cache.ask(m_emulator).profile);
        }
        ProfileCache later(m_cache);
        const auto known = later.remembered(m_emulator);
        QVERIFY(known && known->profile);
        QVERIFY(known->profile->lists(u"-beam_width_min"));
        QCOMPARE(known->profile->romFolders(), QStringLiteral("/own;/more"));
        QVERIFY(later.ask(m_emulator).profile);
        QCOMPARE(timesAsked(), 1);
        QCOMPARE(timesAsked("-showconfig"), 1);
    }

    void aProgramWithoutAConfigurationHasAProfile()
    {
        QVERIFY(QFile::remove(m_folder->filePath("config")));
        QVERIFY(ProfileCache(m_cache).ask(m_emulator).profile);
        ProfileCache later(m_cache);
        const auto known = later.remembered(m_emulator);
        QVERIFY(known && known->profile);
        QCOMPARE(known->profile->romFolders(), QString());
    }

    void aConfigurationThatBreaksOffIsNotTaken()
    {
        const QString program
            = script("[ $1 = -showconfig ] || exec cat '" + QFile::encodeName(m_folder->filePath("usage"))
                     + "'\necho 'rompath /half'\nkill -SEGV $$\n");
        ProfileCache cache(m_cache);
        const ProfileAnswer answer = cache.ask(program);
        QVERIFY(answer.profile);
        QCOMPARE(answer.profile->romFolders(), QString());
        // It may answer better in the next run.
        QVERIFY(!ProfileCache(m_cache).remembered(program));
    }

    void anotherProgramIsNotAskedForAConfiguration()
    {
        write(m_folder->filePath("usage"), "Usage: nothing that we know\n");
        QVERIFY(!ProfileCache(m_cache).ask(m_emulator).profile);
        QCOMPARE(timesAsked("-showconfig"), 0);
    }

    void asksAChangedProgramAgain()
    {
        ProfileCache cache(m_cache);
        QVERIFY(cache.ask(m_emulator).profile);
        QFile program(m_emulator);
        QVERIFY(program.open(QIODevice::ReadWrite));
        QVERIFY(program.setFileTime(QDateTime(QDate(2001, 2, 3), QTime(4, 5)),
                                    QFileDevice::FileModificationTime));
        program.close();
        QVERIFY(!cache.remembered(m_emulator));
        QVERIFY(cache.ask(m_emulator).profile);
        QCOMPARE(timesAsked(), 2);
    }

    void aLinkIsTheProgramThatItNames()
    {
        const QString link = m_folder->filePath("link");
        QVERIFY(QFile::link(m_emulator, link));
        ProfileCache cache(m_cache);
        QVERIFY(cache.ask(link).profile);
        QVERIFY(cache.remembered(m_emulator));
    }

    void anUnusableAnswerIsRememberedToo_data()
    {
        QTest::addColumn<QByteArray>("usage");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("another program's") << QByteArray("Usage: nothing that we know\n");
        QTest::newRow("too much") << QByteArray(3 << 20, 'x');
    }

    void anUnusableAnswerIsRememberedToo()
    {
        QFETCH(QByteArray, usage);
        write(m_folder->filePath("usage"), usage);
        QVERIFY(!ProfileCache(m_cache).ask(m_emulator).profile);
        ProfileCache later(m_cache);
        const auto known = later.remembered(m_emulator);
        QVERIFY(known);
        QVERIFY(!known->profile);
        QCOMPARE(timesAsked(), 1);
    }

    void anAnswerMayBeOneMebibyteLong_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("usable");
        QTest::newRow("as long as that") << (1 << 20) << true;
        QTest::newRow("longer") << (1 << 20) + 1 << false;
    }

    void anAnswerMayBeOneMebibyteLong()
    {
        QFETCH(int, size);
        QFETCH(bool, usable);
        QByteArray usage = test::newUsage();
        write(m_folder->filePath("usage"), usage.append(size - usage.size(), '\n'));
        ProfileCache cache(m_cache);
        QCOMPARE(cache.ask(m_emulator).profile.has_value(), usable);
        // Either is remembered.
        QVERIFY(ProfileCache(m_cache).remembered(m_emulator));
    }

    void aFileThatIsTooLongIsNotRead()
    {
        QVERIFY(ProfileCache(m_cache).ask(m_emulator).profile);
        QFile file(cacheFile());
        QVERIFY(file.resize(3 << 20));
        QVERIFY(!ProfileCache(m_cache).remembered(m_emulator));
    }

    void answersAreKeptInTheUsersCache()
    {
        const QByteArray before = qgetenv("XDG_CACHE_HOME");
        qputenv("XDG_CACHE_HOME", "/some/cache");
        QCOMPARE(ProfileCache::standardFolder(), QStringLiteral("/some/cache/Tessera/profiles"));
        qputenv("XDG_CACHE_HOME", before);
    }

    void aCrashIsNoAnswerForGood()
    {
        const QString program = script("kill -SEGV $$\n");
        ProfileCache cache(m_cache);
        QVERIFY(!cache.ask(program).profile);
        QVERIFY(cache.remembered(program));
        QVERIFY(!ProfileCache(m_cache).remembered(program));
    }

    void halfOfTheOptionsIsNoAnswer()
    {
        const QString program
            = script("cat '" + QFile::encodeName(m_folder->filePath("usage")) + "'\nkill -SEGV $$\n");
        ProfileCache cache(m_cache);
        QVERIFY(!cache.ask(program).profile);
        QVERIFY(!ProfileCache(m_cache).remembered(program));
    }

    void changedSettingsOfTheProgramAreAskedForAgain()
    {
        QVERIFY(QDir(m_folder->path()).mkpath("ini"));
        const QByteArray inis = "inipath                   $INIS/ini;more\n";
        qputenv("INIS", QFile::encodeName(m_folder->path()));
        write(m_folder->filePath("config"), "rompath                   /own\n" + inis);
        ProfileCache cache(m_cache);
        QCOMPARE(cache.ask(m_emulator).profile->romFolders(), QStringLiteral("/own"));
        QVERIFY(cache.remembered(m_emulator));

        write(m_folder->filePath("ini/mame.ini"), "rompath /other\n");
        write(m_folder->filePath("config"), "rompath                   /other\n" + inis);
        QVERIFY(!cache.remembered(m_emulator));
        QVERIFY(!ProfileCache(m_cache).remembered(m_emulator));
        QCOMPARE(cache.ask(m_emulator).profile->romFolders(), QStringLiteral("/other"));
        QVERIFY(ProfileCache(m_cache).remembered(m_emulator));
        qunsetenv("INIS");
    }

    void aDamagedFileIsAskedAgain_data()
    {
        QTest::addColumn<int>("damage");
        QTest::newRow("emptied") << 0;
        QTest::newRow("truncated") << 1;
        QTest::newRow("one byte changed") << 2;
        QTest::newRow("something else") << 3;
    }

    void aDamagedFileIsAskedAgain()
    {
        QFETCH(int, damage);
        QVERIFY(ProfileCache(m_cache).ask(m_emulator).profile);
        const QString path = cacheFile();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        file.close();
        switch (damage) {
        case 0:
            bytes.clear();
            break;
        case 1:
            bytes.chop(30);
            break;
        case 2:
            bytes[bytes.size() - 10] = '?';
            break;
        default:
            bytes = QByteArray("\0\n\xff\n\n", 5);
            break;
        }
        write(path, bytes);
        ProfileCache cache(m_cache);
        QVERIFY(!cache.remembered(m_emulator));
        QVERIFY(cache.ask(m_emulator).profile);
        QCOMPARE(timesAsked(), 2);
    }

    void aFolderThatCannotBeWrittenIsKeptForTheRun()
    {
        write(m_folder->filePath("blocked"), "a file");
        ProfileCache cache(m_folder->filePath("blocked/profiles"));
        QVERIFY(cache.ask(m_emulator).profile);
        QVERIFY(cache.ask(m_emulator).profile);
        QCOMPARE(timesAsked(), 1);
    }

    void whatCannotBeStartedWasNotAsked()
    {
        QVERIFY(QFile::setPermissions(m_emulator, QFile::ReadOwner | QFile::WriteOwner));
        ProfileCache cache(m_cache);
        QVERIFY(!cache.ask(m_emulator).profile);
        QVERIFY(!cache.remembered(m_emulator));
        QVERIFY(QFile::setPermissions(m_emulator, QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(cache.ask(m_emulator).profile);
    }

    void answersLaterAndAsksOnceForManyRequests()
    {
        ProfileCache cache(m_cache);
        QSignalSpy spy(&cache, &ProfileCache::answered);
        cache.request(m_emulator);
        cache.request(m_emulator);
        QVERIFY(spy.isEmpty());
        QVERIFY(spy.wait());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(0).toString(), m_emulator);
        const auto profile = spy.first().at(1).value<ProfileAnswer>().profile;
        QVERIFY(profile);
        QCOMPARE(profile->romFolders(), QStringLiteral("/own;/more"));
        QCOMPARE(timesAsked(), 1);
        QCOMPARE(timesAsked("-showconfig"), 1);
    }

    void aRequestIsAnsweredInAnyCase_data()
    {
        QTest::addColumn<QString>("executable");
        QTest::newRow("remembered") << QStringLiteral("mame");
        QTest::newRow("missing") << QStringLiteral("nothing");
        QTest::newRow("a folder") << QStringLiteral(".");
        QTest::newRow("not executable") << QStringLiteral("usage");
    }

    void aRequestIsAnsweredInAnyCase()
    {
        QFETCH(QString, executable);
        ProfileCache cache(m_cache);
        cache.ask(m_emulator);
        QSignalSpy spy(&cache, &ProfileCache::answered);
        cache.request(m_folder->filePath(executable));
        QVERIFY(spy.isEmpty());
        QVERIFY(spy.wait());
        QCOMPARE(bool(spy.first().at(1).value<ProfileAnswer>().profile), executable == "mame");
    }
};

TESSERA_TEST(ProfileCacheTest);
#include "profilecachetest.moc"
