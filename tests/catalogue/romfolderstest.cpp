#include "catalogue/romfolders.h"

#include "catalogue/colortransformer.h"
#include "platform/userdefaults.h"
#include "samplerecords.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace tessera;
using namespace tessera::test;

namespace {

using Case = FolderNames::Case;
using Kind = FolderNames::Kind;

constexpr std::array setNames{"pong",     "PONG",         "Pong",           "gone",  "loop",      "linked",
                              "folder",   "linkedfolder", "pipe",           "",      ".",         "..",
                              "sub/pong", "sub/gone",     "../pong",        "/pong", "a b",       "1942",
                              "ポン",     "ガ",           "カ\xE3\x82\x99", "é",     "e\xCC\x81", "pong.zip",
                              "seven",    "directory"};

} // namespace

class RomFoldersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        for (const char* name : {"pong.zip", "a b.zip", "1942.zip", "ポン.zip", "ガ.zip", "é.zip", ".zip",
                                 "..zip", "UP.zip", "seven.7z", "sub/pong.zip", "sub/deep.zip",
                                 "emulator/own.zip", "emulator/seven.7z", "emulator/shared.zip"})
            touch(name);
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.zip")));
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("directory")));
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("emulator/directory")));
        QVERIFY(QFile::link(path("nowhere.zip"), path("gone.zip")));
        QVERIFY(QFile::link(path("loop.zip"), path("loop.zip")));
        QVERIFY(QFile::link(path("pong.zip"), path("linked.zip")));
        QVERIFY(QFile::link(path("sub"), path("linkedfolder.zip")));
        QVERIFY(QFile::link(path("sub"), path("linkedsub")));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.zip")), 0644), 0);
        // An ordinary user comes in, too.
        QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
    }

    void theAnswerIsTheRowColoursRule_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("a folder") << QString();
        QTest::newRow("written with a stroke") << QStringLiteral("/");
        QTest::newRow("another folder") << QStringLiteral("/sub");
        QTest::newRow("a link to a folder") << QStringLiteral("/linkedsub");
        QTest::newRow("by a detour") << QStringLiteral("/sub/../sub/");
        QTest::newRow("an empty folder") << QStringLiteral("/directory");
        QTest::newRow("not there") << QStringLiteral("/nowhere");
        QTest::newRow("a file") << QStringLiteral("/pong.zip");
        QTest::newRow("a link that leads nowhere") << QStringLiteral("/gone.zip");
    }

    void theAnswerIsTheRowColoursRule()
    {
        QFETCH(QString, folder);
        compareWithColours(m_folder->path() + folder);
    }

    void anEmptyRomFolderIsTheRoot() { compareWithColours(QString()); }

    void aRelativeFolderIsTakenFromHere()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        compareWithColours(QStringLiteral("sub"));
        compareWithColours(QStringLiteral("."));
        QVERIFY(QDir::setCurrent(before));
    }

    void noRomFolderHasNoArchives() { compareWithColours(std::nullopt); }

    void rightsAreRespected_data()
    {
        QTest::addColumn<int>("rights");
        QTest::newRow("nobody may look around") << 0711;
        QTest::newRow("nobody may enter") << 0744;
        QTest::newRow("nobody may do anything") << 0700;
    }

    void rightsAreRespected()
    {
        QFETCH(int, rights);
        QCOMPARE(::chmod(qPrintable(path("sub")), static_cast<mode_t>(rights)), 0);
        UserDefaults defaults(path("settings.ini"));
        {
            const OrdinaryUser user;
            if (!user.holds())
                QSKIP("rights cannot be given up here");
            compareWithColours(path("sub"), &defaults);
        }
    }

    void theAnswersExactly()
    {
        const RomFolders folders(m_folder->path(), {});
        for (const char* name :
             {"pong", "linked", "linkedfolder", "folder", "pipe", "", ".", "sub/pong", "ポン"})
            QVERIFY2(folders.hasArchive(name), name);
        for (const char* name : {"PONG", "gone", "loop", "seven", "directory", "sub/gone", "up"})
            QVERIFY2(!folders.hasArchive(name), name);
    }

    // An archive of another kind, or a folder, does for the emulator but not for the row's colour.
    void theEmulatorsFoldersCountForHaving()
    {
        const RomFolders folders(m_folder->path(), {path("emulator"), path("nowhere")});
        for (const char* name : {"own", "seven", "directory", "shared"}) {
            QVERIFY2(folders.holds(name), name);
            QVERIFY2(!folders.hasArchive(name), name);
        }
        QVERIFY(folders.holds("pong"));
        QVERIFY(!folders.holds("gone"));
        QVERIFY(!RomFolders(std::nullopt, {path("emulator")}).holds(""));
        QVERIFY(!RomFolders(m_folder->path(), {}).holds("seven"));
        QVERIFY(!RomFolders(std::nullopt, {}).holds("pong"));
        QVERIFY(RomFolders(std::nullopt, {path("emulator")}).holds("own"));
        QVERIFY(!RomFolders().holds("pong"));
    }

    void whatAParentMayHoldIsToldApart()
    {
        SampleRecords sample;
        const auto add = [&](const char* name, const char* parent) {
            sample.add({"game", name, parent, "", "", "", "", "", ""});
        };
        add("pong", "pong");
        add("pongclone", "pong");
        add("1942", "gone");
        add("lost", "gone");
        add("gone", "gone");
        add("ownclone", "own");
        add("orphan", "");
        add(absent, "pong");
        add("nobody", absent);
        const RomFolders folders(m_folder->path(), {path("emulator")});
        const std::vector<Have> expected{Have::Here,    Have::InParent, Have::Here,
                                         Have::Missing, Have::Missing,  Have::InParent,
                                         Have::Missing, Have::Missing,  Have::Missing};
        QCOMPARE(folders.haves(sample.store.records), expected);
    }

    void readingAgainSeesWhatIsNew()
    {
        const RomFolders before(m_folder->path(), {path("emulator")});
        touch("new.zip");
        touch("emulator/other.7z");
        QVERIFY(QFile::remove(path("pong.zip")));
        const RomFolders after(m_folder->path(), {path("emulator")});
        QVERIFY(before.hasArchive("pong") && !after.hasArchive("pong"));
        QVERIFY(!before.hasArchive("new") && after.hasArchive("new"));
        QVERIFY(!before.holds("other") && after.holds("other"));
    }

    void whereCaseIsIgnoredSoItIsHere()
    {
        const FolderNames names(m_folder->path(), {{"PONG.zip", Kind::File}, {"Sub", Kind::Folder}},
                                Case::Ignored);
        QCOMPARE(names.find("pong.ZIP"), std::optional(Kind::File));
        QCOMPARE(names.find("PONG.zip"), std::optional(Kind::File));
        QCOMPARE(names.find("sub"), std::optional(Kind::Folder));
        // Known only to the file system, which is not asked for plain names.
        QCOMPARE(names.find("1942.zip"), std::optional<Kind>());
        const FolderNames exact(m_folder->path(), {{"PONG.zip", Kind::File}}, Case::Matters);
        QCOMPARE(exact.find("pong.zip"), std::optional<Kind>());
    }

    void whatNamesCannotTellIsAskedOfTheFileSystem()
    {
        const FolderNames foreign(m_folder->path(), {{"é.zip", Kind::File}}, Case::Ignored);
        QCOMPARE(foreign.find("1942.zip"), std::optional(Kind::File));
        const FolderNames plain(m_folder->path(), {}, Case::Ignored);
        touch("PUCK~1.zip");
        QCOMPARE(plain.find("PUCK~1.zip"), std::optional(Kind::File));
        QCOMPARE(plain.find("é.zip"), std::optional(Kind::File));
        QCOMPARE(plain.find("sub/pong.zip"), std::optional(Kind::File));
        QCOMPARE(plain.find(std::string_view("pong.zip\0", 9)), std::optional<Kind>());
    }

private:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    void touch(const char* name) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(writeFile(path(name), "x"));
    }

    // The colours differ in nothing but whether the archive is there.
    void compareWithColours(const std::optional<QString>& romFolder, UserDefaults* stored = nullptr) const
    {
        UserDefaults own(path("settings.ini"));
        UserDefaults& defaults = stored == nullptr ? own : *stored;
        defaults.setValue(keys::GamelistColoring.name, true);
        if (romFolder)
            defaults.setValue(keys::RomsPath.name, *romFolder);
        const ColorTransformer colors(defaults);
        const QColor present(QRgb(0xffe6e6e6));
        const RomFolders folders(romFolder, {});
        for (const char* name : setNames)
            QVERIFY2((colors.transformedValue(QString::fromUtf8(name)) == present)
                         == folders.hasArchive(name),
                     name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

TESSERA_TEST(RomFoldersTest);
#include "romfolderstest.moc"
