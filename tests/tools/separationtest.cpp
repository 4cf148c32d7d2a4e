#include "tools/separation.h"

#include "support/ordinaryuser.h"
#include "support/smalldisk.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <random>

#include <sys/stat.h>
#include <unistd.h>

using namespace tessera;

namespace {

constexpr char listfull[] = "Name:             Description:\n"
                            "pong              \"Pong\"\n"
                            "  1942            \"1942\"\n"
                            "\n"
                            "game.v2           \"A name with a dot\"\n"
                            "Upper             \"A name with a capital\"\n";

// The rules once more, as plainly as they can be said.
bool plainlySupported(const QString& list, const QString& fileName)
{
    QStringList words;
    for (const QString& line : list.split(QLatin1Char('\n'))) {
        const QString word = line.trimmed().section(QLatin1Char(' '), 0, 0);
        if (!word.isEmpty())
            words << word;
    }
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return words.contains((dot < 0 ? fileName : fileName.left(dot)).toLower());
}

} // namespace

class SeparationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath("roms") && QDir(m_folder->path()).mkpath("aside"));
    }

    void looksUpWithoutEndingAndInLowerCase_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isSupported");
        const auto row = [](const char* file, bool isSupported) {
            QTest::newRow(QByteArray(file).toPercentEncoding().constData())
                << QByteArray(file) << isSupported;
        };
        row("pong.zip", true);
        row("PONG.ZIP", true);
        row("Pong.7z", true);
        row("pong", true);
        row("PONG", true);
        row("1942.zip", true);
        row("pong.zip.zip", false);
        row("pong.old.zip", false);
        row("pong.", true);
        row("pongf.zip", false);
        row("pon.zip", false);
        row("pong .zip", false);
        row("game.v2.zip", true);
        row("game.v2", false); // what follows the last dot is taken for an ending
        row("upper.zip", false); // the list's words are not lowered
        row("Upper.zip", false);
        row("name:.zip", false);
        row("gone.zip", false);
        row("\xC3\x89t\xC3\xA9.zip", true); // letters outside ASCII have lower case too
        row("\xE9t\xE9.zip", false); // no text
    }

    void looksUpWithoutEndingAndInLowerCase()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, isSupported);
        const QByteArray list = QByteArray(listfull) + "\xC3\xA9t\xC3\xA9 \"x\"\n\xE9t\xE9 \"x\"\n";
        QCOMPARE(SupportedNames(list.toStdString()).supports(file.toStdString()), isSupported);
    }

    void marksAsAPlainLookupWould()
    {
        std::mt19937 random(4);
        const auto name = [&]() -> QString {
            return QString(QLatin1Char(static_cast<char>((random() % 2 == 0 ? 'a' : 'A') + random() % 3)))
                + QString::number(random() % 30);
        };
        QString list;
        for (int i = 0; i < 120; ++i)
            list += QString(static_cast<int>(random() % 3), QLatin1Char(' ')) + name()
                + (i % 3 == 0 ? " \"x y\"\n" : "\n\n");
        const SupportedNames names(list.toStdString());
        int supported = 0;
        for (int i = 0; i < 500; ++i) {
            const QString file = name() + std::array{".zip", "", ".7Z", ".a.b"}[random() % 4];
            QCOMPARE(names.supports(file.toStdString()), plainlySupported(list, file));
            supported += plainlySupported(list, file) ? 1 : 0;
        }
        QVERIFY(supported > 50 && supported < 450);
    }

    void hiddenEntriesAreNotListed()
    {
        for (const char* name :
             {"pong.zip", ".hidden.zip", "Icon\r", "Icon", "Icon\r.zip", "sub/inner.zip", "line\nfeed"})
            touch(name);
        QDir(roms()).mkdir(".folder");
        auto names = romNames(roms());
        std::ranges::sort(names);
        QCOMPARE(names, std::vector<std::string>({"Icon", "Icon\r.zip", "line\nfeed", "pong.zip", "sub"}));
    }

    void anUnreadableFolderHasNoNames()
    {
        QVERIFY(romNames(m_folder->filePath("none")).empty());
        touch("file");
        QVERIFY(romNames(roms() + "/file").empty());
    }

    void copiesWhatIsNotListedAndLeavesEverything()
    {
        for (const char* name : {"PONG.ZIP", "gone.zip", "1942/rom", "old/rom"})
            touch(name);
        std::vector<SeparatedRow> rows;
        const auto counts = run({"PONG.ZIP", "gone.zip", "1942", "old"}, rows);
        QCOMPARE(counts.supported, 2);
        QCOMPARE(counts.moved, 2);
        QVERIFY(!counts.isCancelled);
        QCOMPARE(separationSummary(4, counts), "4 ROMs ( Support: 2 / Moved: 2 )");
        QCOMPARE(QDir(roms()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 4);
        QCOMPARE(QDir(aside()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({"gone.zip", "old"}));
        QVERIFY(QFile::exists(aside() + "/old/rom"));
        QCOMPARE(rows.size(), std::size_t(4));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            QCOMPARE(rows[i].index, i);
            QCOMPARE(rows[i].isSupported, i % 2 == 0);
        }
        QVERIFY(!rows[0].logLine());
        QCOMPARE(*rows[1].logLine(),
                 QString::fromUtf8("ファイルのコピーに成功：") + roms() + "/gone.zip"
                     + QString::fromUtf8(" → ") + aside() + "/gone.zip");
    }

    void withoutAListEverythingIsCopied()
    {
        touch("pong.zip");
        std::vector<SeparatedRow> rows;
        const Separation separation(roms(), aside(), SupportedNames::read(m_folder->filePath("vanished")));
        const auto counts = separation.run(std::vector<std::string>{"pong.zip"}, {},
                                           [&](const SeparatedRow& row) { rows.push_back(row); });
        QCOMPARE(counts.moved, 1);
        QVERIFY(QFile::exists(aside() + "/pong.zip"));
    }

    void aSecondRunFailsToCopyAndSaysSo()
    {
        touch("gone.zip");
        std::vector<SeparatedRow> rows;
        run({"gone.zip"}, rows);
        const auto counts = run({"gone.zip"}, rows);
        QCOMPARE(counts.moved, 1);
        QVERIFY(!rows[0].failure);
        QCOMPARE(rows[1].failure->key, "copy_exists");
        QCOMPARE(*rows[1].logLine(), QString::fromUtf8("ファイルのコピーに失敗：") + rows[1].failure->text());
    }

    void aDestinationThatVanishesMeanwhileFailsForTheRest()
    {
        for (const char* name : {"a.zip", "b.zip", "c.zip"})
            touch(name);
        std::vector<SeparatedRow> rows;
        const Separation separation(roms(), aside(), {});
        const auto counts = separation.run(std::vector<std::string>{"a.zip", "b.zip", "c.zip"}, {},
                                           [&](const SeparatedRow& row) {
                                               rows.push_back(row);
                                               QDir(aside()).removeRecursively();
                                           });
        QCOMPARE(counts.moved, 3);
        QVERIFY(!rows[0].failure);
        QCOMPARE(rows[1].failure->key, "failure_write");
        QCOMPARE(rows[2].failure->key, "failure_write");
    }

    void aDestinationThatLosesItsPermissionMeanwhileFailsForTheRest()
    {
        for (const char* name : {"a.zip", "b.zip", "c.zip"})
            touch(name);
        ::chmod(QFile::encodeName(m_folder->path()).constData(), 0755);
        if (::geteuid() == 0)
            QVERIFY(::chown(QFile::encodeName(aside()).constData(), 65534, 65534) == 0);
        std::vector<SeparatedRow> rows;
        const Separation separation(roms(), aside(), {});
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            separation.run(std::vector<std::string>{"a.zip", "b.zip", "c.zip"}, {},
                           [&](const SeparatedRow& row) {
                               rows.push_back(row);
                               ::chmod(QFile::encodeName(aside()).constData(), 0555);
                           });
        }
        QCOMPARE(rows.size(), std::size_t(3));
        QVERIFY(!rows[0].failure);
        for (const std::size_t row : {std::size_t(1), std::size_t(2)}) {
            QCOMPARE(rows[row].failure->key, "failure_write");
            QCOMPARE(rows[row].failure->arguments.first(), rows[row].destination);
        }
        QCOMPARE(QDir(aside()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {"a.zip"});
        // What can no more be taken away is empty at least.
        for (const QFileInfo& hidden :
             QDir(aside()).entryInfoList({".*"}, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
            QVERIFY(QDir(hidden.filePath()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void aDestinationThatFillsUpFailsForWhatIsTooLarge()
    {
        const test::SmallDisk disk(QFile::encodeName(aside()));
        if (!disk.isThere())
            QSKIP("no file system may be mounted here");
        for (const char* name : {"a.zip", "large.zip", "small.zip"})
            touch(name);
        QVERIFY(QFile::resize(roms() + "/large.zip", 1 << 20));
        std::vector<SeparatedRow> rows;
        const std::vector<std::string> names{"a.zip", "large.zip", "small.zip"};
        const SeparationPlan plan = Separation(roms(), aside(), {}).plan(names, {});
        QVERIFY(plan.free && plan.bytes > *plan.free);
        QCOMPARE(run(names, rows).moved, 3);
        QVERIFY(!rows[0].failure && !rows[2].failure);
        QCOMPARE(rows[1].failure->key, "failure_write");
        QVERIFY2(rows[1].failure->arguments.last().contains("space"),
                 qPrintable(rows[1].failure->arguments.last()));
        QCOMPARE(QDir(aside()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"a.zip", "small.zip"}));
    }

    void linksThatLeadRoundAreCopiedAsLinks()
    {
        touch("set/rom");
        for (const auto& [target, link] :
             {std::pair{"..", "set/up"}, {"two", "one"}, {"one", "two"}, {"itself", "itself"}, {".", "here"}})
            QVERIFY(::symlink(target, QFile::encodeName(roms() + '/' + link).constData()) == 0);
        auto names = romNames(roms());
        std::ranges::sort(names);
        QCOMPARE(names, std::vector<std::string>({"here", "itself", "one", "set", "two"}));
        QCOMPARE(Separation(roms(), aside(), {}).plan(names, {}).bytes, 5);
        std::vector<SeparatedRow> rows;
        QCOMPARE(run(names, rows).moved, 5);
        for (const SeparatedRow& row : rows)
            QVERIFY2(!row.failure, qPrintable(row.source));
        for (const char* link : {"here", "itself", "one", "two", "set/up"})
            QVERIFY2(QFileInfo(aside() + '/' + link).isSymLink(), link);
    }

    void aFileThatVanishesMeanwhileFailsAlone()
    {
        touch("a.zip");
        std::vector<SeparatedRow> rows;
        QCOMPARE(run({"vanished.zip", "a.zip"}, rows).moved, 2);
        QCOMPARE(rows[0].failure->key, "convert_not_read");
        QVERIFY(!rows[1].failure);
    }

    void aDestinationAmongTheRomsIsNotCopiedIntoItself()
    {
        touch("a.zip");
        QDir(roms()).mkdir("aside");
        const Separation separation(roms(), roms() + "/aside", {});
        std::vector<SeparatedRow> rows;
        const std::vector<std::string> names{"a.zip", "aside"};
        QCOMPARE(separation.plan(names, {}).toCopy, std::size_t(2));
        const auto counts = separation.run(names, {}, [&](const SeparatedRow& row) { rows.push_back(row); });
        QCOMPARE(counts.moved, 2);
        QCOMPARE(rows[1].failure->key, "copy_into_itself");
        QCOMPARE(QDir(roms() + "/aside").entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {"a.zip"});
    }

    void stoppingLeavesTheRestUnmarked()
    {
        for (const char* name : {"a.zip", "b.zip"})
            touch(name);
        std::stop_source stop;
        std::vector<SeparatedRow> rows;
        const Separation separation(roms(), aside(), {});
        const Watch watch{stop.get_token(), {}};
        auto counts
            = separation.run(std::vector<std::string>{"a.zip", "b.zip"}, watch, [&](const SeparatedRow& row) {
                  rows.push_back(row);
                  stop.request_stop();
              });
        QVERIFY(counts.isCancelled);
        QCOMPARE(counts.moved, 1);
        QCOMPARE(rows.size(), std::size_t(1));
        QVERIFY(!QFile::exists(aside() + "/b.zip"));
    }

    void thePlanIsWhatThenHappens()
    {
        for (const char* name : {"pong.zip", "gone.zip", "there.zip", "old/rom", "old/deep/rom"})
            touch(name);
        QVERIFY(QFile::copy(roms() + "/there.zip", aside() + "/there.zip"));
        const Separation separation(roms(), aside(), SupportedNames(listfull));
        const std::vector<std::string> names{"pong.zip", "gone.zip", "there.zip", "old"};
        const SeparationPlan plan = separation.plan(names, {});
        QCOMPARE(plan.supported, std::size_t(1));
        QCOMPARE(plan.toCopy, std::size_t(2));
        QCOMPARE(plan.alreadyThere, std::size_t(1));
        QVERIFY(plan.free && *plan.free > 0);
        std::int64_t copied = 0;
        separation.run(names, {{}, [&](std::int64_t more) { copied += more; }}, [](const SeparatedRow&) {});
        QCOMPARE(plan.bytes, copied);
        QCOMPARE(plan.bytes, 15);
        const Separation nowhere(roms(), aside() + "/none", {});
        QVERIFY(!nowhere.plan(names, {}).free);
    }

private:
    QString roms() const { return m_folder->filePath("roms"); }
    QString aside() const { return m_folder->filePath("aside"); }

    SeparationCounts run(const std::vector<std::string>& names, std::vector<SeparatedRow>& rows) const
    {
        const Separation separation(roms(), aside(), SupportedNames(listfull));
        return separation.run(names, {}, [&](const SeparatedRow& row) { rows.push_back(row); });
    }

    // Five bytes each.
    void touch(const QString& name) const
    {
        const QString path = roms() + QLatin1Char('/') + name;
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY2(file.open(QIODevice::WriteOnly) && file.write("bytes") == 5, qPrintable(path));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

TESSERA_TEST(SeparationTest);
#include "separationtest.moc"
