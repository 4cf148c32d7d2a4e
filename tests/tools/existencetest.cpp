#include "tools/existence.h"

#include "catalogue/foldernames.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tessera;

namespace {

// The rules once more, as plainly as they can be said: every name is asked of the file system.
struct PlainCheck {
    QStringList shown;
    int found = 0;
    int notFound = 0;
    bool stops = false;

    PlainCheck(const QString& listfull, const QString& roms)
    {
        QStringList foundRows;
        QStringList missingRows;
        for (const QString& line : listfull.split(QLatin1Char('\n'))) {
            QString rest = line;
            while (!rest.isEmpty() && rest.front().isSpace())
                rest.remove(0, 1);
            const QString word = rest.section(QLatin1Char(' '), 0, 0);
            if (word.isEmpty())
                continue;
            const QString path = roms + QStringLiteral("/") + word;
            if (QFileInfo::exists(path + QStringLiteral(".zip")) || QFileInfo::exists(path)) {
                ++found;
                foundRows << word + QStringLiteral("\t\tFound\n");
            } else {
                ++notFound;
                missingRows << word + QStringLiteral("\t\tNot found\n");
            }
        }
        stops = !missingRows.contains(QStringLiteral("Name:\t\tNot found\n"));
        shown = foundRows + missingRows;
    }

    QString report() const
    {
        return QStringLiteral("MAME ROM Existence Report\nAll: ") + QString::number(shown.size())
            + QStringLiteral(" ROMs ( Found: ") + QString::number(found) + QStringLiteral(" / Not found: ")
            + QString::number(notFound) + QStringLiteral(" )\n\n") + shown.join(QString());
    }
};

constexpr char header[] = "Name:             Description:\n";

} // namespace

class ExistenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath("roms"));
    }

    void onlyArchivesAndWhatBearsTheNameCount_data()
    {
        QTest::addColumn<QString>("entry"); // a folder where it ends in "/", a link where it has "->"
        QTest::addColumn<bool>("isFound");
        QTest::newRow("an archive") << "pong.zip" << true;
        QTest::newRow("an unpacked folder") << "pong/" << true;
        QTest::newRow("a file without an ending") << "pong" << true;
        QTest::newRow("a folder called like the archive") << "pong.zip/" << true;
        QTest::newRow("another kind of archive") << "pong.7z" << false;
        QTest::newRow("a disk image") << "pong.chd" << false;
        QTest::newRow("the name in capitals") << "PONG.zip" << false;
        QTest::newRow("the ending in capitals") << "pong.ZIP" << false;
        QTest::newRow("a longer name") << "pongf.zip" << false;
        QTest::newRow("a link to an archive") << "pong.zip->other.bin" << true;
        QTest::newRow("a link that leads nowhere") << "pong.zip->nowhere" << false;
        QTest::newRow("a link to itself") << "pong.zip->pong.zip" << false;
        QTest::newRow("in a folder beneath") << "sub/pong.zip" << false;
        QTest::newRow("nothing") << "other.zip" << false;
    }

    void onlyArchivesAndWhatBearsTheNameCount()
    {
        QFETCH(QString, entry);
        QFETCH(bool, isFound);
        touch("other.bin");
        put(entry);
        const auto list = check(QByteArray(header) + "pong \"Pong\"\n");
        QVERIFY(list.has_value());
        QCOMPARE(list->found, isFound ? 1 : 0);
        QCOMPARE(list->notFound, isFound ? 1 : 2);
    }

    void strangeNamesInTheFolderDisturbNothing()
    {
        for (const char* name : {"a\nb.zip", "\n", "\"a\".zip", "'a'", "\xE9\xFF", "caf\xE9.zip", "a .zip",
                                 " a.zip", ".zip", "b.zip"})
            create(name);
        create(QByteArray(255, 'n'));
        create(QByteArray(251, 'm').append(".zip"));
        const auto list
            = check(QByteArray(header) + "a x\nb x\n\"a\" x\n'a' x\n" + QByteArray(255, 'n') + " x\n"
                    + QByteArray(251, 'm') + " x\n" + QByteArray(250, 'm') + " x\ncaf\xE9 x\n");
        QVERIFY(list.has_value());
        QCOMPARE(found(*list), QStringList({"b", "\"a\"", "'a'", QString(255, 'n'), QString(251, 'm')}));
        QCOMPARE(list->notFound, 4);
    }

    void linksThatLeadRoundAreNotFound()
    {
        QDir(roms()).mkdir("folder");
        for (const auto& [target, link] :
             {std::pair{"two.zip", "one.zip"}, {"one.zip", "two.zip"}, {"up", "folder/up"}, {".", "here"}})
            QVERIFY(::symlink(target, (bytesOf(roms()) + '/' + link).c_str()) == 0);
        const auto list
            = check(QByteArray(header) + "one x\ntwo x\nfolder x\nfolder/up x\nhere x\nhere/here/folder x\n");
        QVERIFY(list.has_value());
        QCOMPARE(found(*list), QStringList({"folder", "here", "here/here/folder"}));
    }

    void theHeaderStaysAmongTheMissing()
    {
        touch("a.zip");
        touch("c.zip");
        const auto list = check(QByteArray(header) + "b \"B\"\na \"A\"\n  d x\n\nc \"C\"\n");
        QVERIFY(list.has_value());
        QCOMPARE(existenceSummary(list->rows.size(), list->found, list->notFound),
                 "5 ROMs ( Found: 2 / Not found: 3 )");
        QCOMPARE(existenceReport(list->rows, list->found, list->notFound),
                 "MAME ROM Existence Report\nAll: 5 ROMs ( Found: 2 / Not found: 3 )\n\n"
                 "a\t\tFound\nc\t\tFound\nName:\t\tNot found\nb\t\tNot found\nd\t\tNot found\n");
    }

    void theFoundComeFirstEachGroupInTheListsOrder()
    {
        for (const char* name : {"z.zip", "m.zip", "a.zip"})
            touch(name);
        const auto list = check(QByteArray("y x\nz x\nName: x\nm x\nb x\na x\nm x\n"));
        QVERIFY(list.has_value());
        QStringList order;
        for (const ExistenceRow& row : list->rows)
            order << QString::fromStdString(std::string(row.romlistfull));
        QCOMPARE(order, QStringList({"z", "m", "a", "m", "y", "Name:", "b"}));
    }

    void withoutAHeaderThereIsNoList_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("entry");
        QTest::newRow("no header") << QByteArray("pong \"Pong\"\n") << "";
        QTest::newRow("nothing at all") << QByteArray() << "";
        QTest::newRow("blank lines") << QByteArray("\n \n") << "";
        QTest::newRow("another word") << QByteArray("Name  Description\npong x\n") << "";
        QTest::newRow("in lower case") << QByteArray("name: Description:\n") << "";
        QTest::newRow("a mark before it") << QByteArray("\xEF\xBB\xBFName: Description:\n") << "";
        QTest::newRow("a file of its name") << QByteArray(header) << "Name:";
        QTest::newRow("an archive of its name") << QByteArray(header) << "Name:.zip";
    }

    void withoutAHeaderThereIsNoList()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, entry);
        if (!entry.isEmpty())
            put(entry);
        const auto list = check(text);
        QVERIFY(!list.has_value());
        QCOMPARE(list.error().key, "existence_no_header");
        QVERIFY(PlainCheck(QString::fromLatin1(text), roms()).stops);
    }

    void aHeaderAnywhereWillDo()
    {
        QVERIFY(check("pong x\n   Name:\n").has_value());
        QVERIFY(check("Name: x").has_value());
    }

    void oddNamesAreAskedOfTheFileSystem_data()
    {
        QTest::addColumn<QByteArray>("word");
        for (const char* word :
             {".", "..", "sub/pong", "sub/gone", "../roms/pong", "../roms", "/pong", "sub/", "pong/", "ポン",
              "caf\xC3\xA9", "a\tb", "\"quoted\"", "~", "*", "pong.zip", ".hidden", "seven.7z", "sub/."})
            QTest::newRow(word) << QByteArray(word);
    }

    void oddNamesAreAskedOfTheFileSystem()
    {
        QFETCH(QByteArray, word);
        for (const char* name : {"pong.zip", "sub/pong.zip", "ポン.zip", "a\tb.zip", "\"quoted\".zip",
                                 ".hidden.zip", "seven.7z"})
            touch(name);
        const auto list = check(QByteArray(header) + word + " x\n");
        QVERIFY(list.has_value());
        const PlainCheck plain(QString::fromUtf8(header + word + " x\n"), roms());
        QCOMPARE(list->found, plain.found);
        QCOMPARE(list->notFound, plain.notFound);
    }

    void aFolderThatMayNotBeReadIsAskedInstead_data()
    {
        QTest::addColumn<int>("permissions");
        QTest::addColumn<bool>("isFound");
        QTest::newRow("entered but not read") << 0311 << true;
        QTest::newRow("read but not entered") << 0644 << false;
        QTest::newRow("neither") << 0 << false;
    }

    void aFolderThatMayNotBeReadIsAskedInstead()
    {
        QFETCH(int, permissions);
        QFETCH(bool, isFound);
        touch("pong.zip");
        ::chmod(m_folder->path().toLocal8Bit().constData(), 0755);
        ::chmod(roms().toLocal8Bit().constData(), static_cast<mode_t>(permissions));
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            QCOMPARE(FolderNames::read(roms()).find("pong.zip").has_value(), isFound);
            QVERIFY(!FolderNames::read(roms()).find("gone.zip"));
        }
        ::chmod(roms().toLocal8Bit().constData(), 0755);
    }

    void manyNamesAreToldApart()
    {
        for (int i = 0; i < 300; ++i)
            touch(QString("s%1%2").arg(i).arg(i % 2 == 0 ? ".zip" : ""));
        const FolderNames names = FolderNames::read(roms());
        const auto holds
            = [&](const std::string& set) { return names.find(set + ".zip") || names.find(set); };
        for (int i = 0; i < 400; ++i) {
            const std::string name = "s" + std::to_string(i);
            QCOMPARE(holds(name), i < 300);
            QVERIFY(!holds(name + "x") && !holds("S" + std::to_string(i)));
            QCOMPARE(holds(name + ".zip"), i < 300 && i % 2 == 0);
        }
    }

    // One file under both names, as where case is ignored; a third name is none for that.
    void aFileUnderTwoNamesIsFoundByThese()
    {
        touch("pong.zip");
        QVERIFY(::link((roms() + "/pong.zip").toLocal8Bit().constData(),
                       (roms() + "/PONG.ZIP").toLocal8Bit().constData())
                == 0);
        const auto list = check(QByteArray(header) + "pong x\nPONG.ZIP x\nPong x\ngone x\n");
        QVERIFY(list.has_value());
        QCOMPARE(found(*list), QStringList({"pong", "PONG.ZIP"}));
    }

    void aFolderThatIsNotThereHoldsNothing()
    {
        const FolderNames names = FolderNames::read(roms() + "/none");
        for (const char* name : {"pong", ".", "..", "../pong", "pong.zip"})
            QVERIFY2(!names.find(name), name);
        QVERIFY(!names.find(std::string_view("a\0b", 3)));
    }

    void aRomFolderThatIsAFileHoldsNothing()
    {
        touch("file");
        const auto list
            = existenceOf(ListedSets("Name: x\npong x\n. x\n"), FolderNames::read(roms() + "/file"));
        QVERIFY(list.has_value());
        QCOMPARE(list->found, 0);
    }

    void agreesWithAPlainCheckByteForByte()
    {
        std::mt19937 random(20261121);
        const auto below = [&](unsigned n) { return random() % n; };
        const auto name = [&]() -> QByteArray {
            return QByteArray(1, static_cast<char>('a' + below(6))) + QByteArray::number(below(40));
        };
        for (int i = 0; i < 90; ++i) {
            const QByteArray ending = std::array<const char*, 5>{".zip", "", ".7z", "/", ".zip/"}[below(5)];
            put(QString::fromLatin1(name() + ending));
        }
        for (int round = 0; round < 30; ++round) {
            QByteArray text;
            for (unsigned line = below(200); line > 0; --line) {
                text += QByteArray(static_cast<int>(below(3)), ' ');
                if (below(12) != 0)
                    text += name();
                text += std::array<const char*, 3>{"   \"Title (set 1)\"", "", " "}[below(3)];
                text += below(20) == 0 ? "\n\n" : "\n";
                if (below(60) == 0)
                    text += header;
            }
            const PlainCheck plain(QString::fromUtf8(text), roms());
            const auto list = check(text);
            QCOMPARE(list.has_value(), !plain.stops);
            if (list)
                QCOMPARE(existenceReport(list->rows, list->found, list->notFound),
                         plain.report().toStdString());
        }
    }

    void filesAndFoldersAreReadFromTheirPaths()
    {
        touch("pong.zip");
        QFile file(m_folder->filePath("listfull.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(header) + "pong x\n");
        file.close();
        const auto list = checkExistence(file.fileName(), roms());
        QVERIFY(list.has_value());
        QCOMPARE(list->found, 1);
        const auto none = checkExistence(m_folder->path(), roms());
        QVERIFY(!none.has_value());
        QCOMPARE(none.error().key, "convert_not_read");
    }

private:
    QString roms() const { return m_folder->filePath("roms"); }

    std::expected<ExistenceList, Failure> check(const QByteArray& text) const
    {
        return checkExistenceOf({text.constData(), static_cast<std::size_t>(text.size())}, roms());
    }

    static std::string bytesOf(const QString& path) { return QFile::encodeName(path).toStdString(); }

    void create(const QByteArray& name) const
    {
        const std::string path = bytesOf(roms()) + '/' + name.toStdString();
        const int file = ::open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        QVERIFY(file >= 0);
        ::close(file);
    }

    static QStringList found(const ExistenceList& list)
    {
        QStringList names;
        for (const ExistenceRow& row : std::span(list.rows).first(static_cast<std::size_t>(list.found)))
            names << QString::fromStdString(std::string(row.romlistfull));
        return names;
    }

    void touch(const QString& name) const
    {
        const QString path = roms() + QLatin1Char('/') + name;
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY2(QFileInfo::exists(path) || file.open(QIODevice::WriteOnly), qPrintable(path));
    }

    void put(const QString& entry) const
    {
        const QStringList link = entry.split(QStringLiteral("->"));
        if (link.size() == 2)
            QVERIFY(QFile::link(link[1], roms() + QLatin1Char('/') + link[0]));
        else if (entry.endsWith(QLatin1Char('/')))
            QDir(roms()).mkdir(entry.chopped(1));
        else if (!QFileInfo::exists(roms() + QLatin1Char('/') + entry))
            touch(entry);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

TESSERA_TEST(ExistenceTest);
#include "existencetest.moc"
