#include "catalogue/ui/gamefinder.h"

#include "catalogue/romfolders.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "stagedtable.h"
#include "support/argumenttexts.h"
#include "support/testmain.h"

#include <QDir>
#include <QSignalSpy>

using namespace tessera;
using test::StagedTable;

/// What the list shows, and why: search, chips, filters and families on the staged table.
class GameFinderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stage = std::make_unique<StagedTable>();
        m_finder = std::make_unique<GameFinder>(m_stage->catalogue, m_stage->list, m_stage->controls);
        m_finder->restore();
        connect(m_finder.get(), &GameFinder::countsChanged, this,
                [this](const ChipCounts& counts) { m_counts = counts; });
    }
    void cleanup()
    {
        m_finder.reset();
        m_stage.reset();
    }

    void everyReasonIsNamed()
    {
        const test::ArgumentTexts texts;
        QVERIFY(m_finder->reasons().isEmpty());
        m_finder->setFamilies(true);
        QCOMPARE(m_finder->reasons(), QStringList("hides_families (%1, %2)"));
        m_finder->setRules({true, {{Field::Name, Comparison::Contains, "e"}}});
        m_finder->setPredicate("Maker");
        m_finder->setChip(Chip::Working);
        QCOMPARE(m_finder->reasons(),
                 QStringList({"chip_working (%1, %2)", "hides_maker (Maker, %2)", "hides_rules (%1, %2)",
                              "hides_families (%1, %2)"}));
        // A search opens the families.
        m_finder->setQuery("zed");
        QCOMPARE(m_finder->reasons(),
                 QStringList({"chip_working (%1, %2)", "hides_search (%1, %2)", "hides_maker (Maker, %2)",
                              "hides_rules (%1, %2)"}));
        QVERIFY(m_finder->showsFamilies());
        m_finder->showAll();
        QVERIFY(m_finder->reasons().isEmpty());
        QCOMPARE(shown(), QStringList({"", "Zed", "abc", "mid", "zed"}));
        QVERIFY(!m_finder->maker());
        QVERIFY(m_finder->query().isEmpty());
        QCOMPARE(m_finder->chip(), Chip::All);
    }

    void aLongMakerIsNamedByItsBeginning()
    {
        const test::ArgumentTexts texts;
        m_finder->setPredicate(QString(40, 'm'));
        QCOMPARE(m_finder->reasons(), QStringList("hides_maker (" + QString(40, 'm') + ", %2)"));
        m_finder->setPredicate(QString(41, 'm'));
        QCOMPARE(m_finder->reasons(), QStringList("hides_maker (" + QString(40, 'm') + u'…' + ", %2)"));
        QVERIFY(shown().isEmpty());
        m_finder->clearPredicate();
        QCOMPARE(shown().size(), 5);
    }

    // Before the ROM folders are known nobody can be told to have nothing.
    void havingCountsOnceTheFoldersAreKnown()
    {
        m_finder->setChip(Chip::HaveRom);
        QCOMPARE(shown().size(), 5);
        QVERIFY(m_finder->reasons().isEmpty());
        QVERIFY(!m_finder->haveOf(0));
        QVERIFY(put("abc.zip"));
        QSignalSpy changed(m_finder.get(), &GameFinder::changed);
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        QTRY_COMPARE(shown(), QStringList({"abc", "zed"}));
        QVERIFY(!changed.isEmpty());
        QCOMPARE(m_finder->reasons(), QStringList("chip_have_rom"));
        QCOMPARE(*m_finder->haveOf(0), Have::Here);
        QCOMPARE(*m_finder->haveOf(2), Have::InParent);
        QCOMPARE(*m_finder->haveOf(4), Have::Missing);
        QVERIFY(!m_finder->haveOf(5));
        // A set that is renamed is looked for by its new name.
        m_stage->catalogue.setValue(4, Field::Name, "abc");
        QCOMPARE(*m_finder->haveOf(4), Have::Here);
        m_stage->catalogue.setValue(2, Field::Cloneof, "");
        QCOMPARE(*m_finder->haveOf(2), Have::Missing);
    }

    void havingCanBeSearchedFor()
    {
        QVERIFY(put("abc.zip"));
        m_finder->setQuery("have:yes");
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        QTRY_COMPARE(shown(), QStringList({"abc", "zed"}));
    }

    void chipsCountWhatTheRestLetsThrough()
    {
        m_finder->prepare();
        QCOMPARE(m_counts, (ChipCounts{5, 5, 0, 2, 3, 4, 0, 0}));
        m_finder->setFavourites({"abc", "mid"});
        QCOMPARE(m_counts, (ChipCounts{5, 5, 0, 2, 3, 4, 0, 2}));
        m_finder->setChip(Chip::Working);
        QCOMPARE(shown(), QStringList({"", "zed"}));
        QCOMPARE(m_counts, (ChipCounts{5, 5, 0, 2, 3, 4, 0, 2}));
        m_finder->setRules({true, {{Field::Name, Comparison::IsNot, "abc"}}});
        QCOMPARE(m_counts, (ChipCounts{4, 4, 0, 2, 3, 3, 0, 1}));
        m_stage->catalogue.setValue(4, Field::Status, "good");
        QCOMPARE(m_counts, (ChipCounts{4, 4, 0, 3, 4, 3, 0, 1}));
        m_finder->setChip(Chip::Favorites);
        QCOMPARE(shown(), QStringList("mid"));
        m_finder->setFavourites({"Zed"});
        QCOMPARE(shown(), QStringList("Zed"));
    }

    void countsFollowTheFoldersAndOtherRecords()
    {
        QVERIFY(put("abc.zip"));
        m_finder->prepare();
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        QTRY_COMPARE(m_counts, (ChipCounts{5, 5, 2, 2, 3, 4, 0, 0}));
        m_counts = {};
        QVERIFY(m_stage->catalogue.open());
        QCOMPARE(m_counts[0], std::size_t(5));
        QTRY_COMPARE(m_counts, (ChipCounts{5, 5, 2, 2, 3, 4, 0, 0}));
    }

    // A header click wins until the field was empty.
    void aSortWinsOverTheRanks()
    {
        m_stage->catalogue.setValue(0, Field::Title, "a mid b");
        m_finder->setQuery("mid");
        QCOMPARE(shown(), QStringList({"mid", "abc"}));
        m_stage->list.model()->sort(0, Qt::AscendingOrder);
        QCOMPARE(shown(), QStringList({"abc", "mid"}));
        m_finder->setChip(Chip::Games);
        QCOMPARE(shown(), QStringList({"abc", "mid"}));
        m_finder->setQuery("mi");
        QCOMPARE(shown(), QStringList({"abc", "mid"}));
        m_finder->setQuery("");
        m_finder->setQuery("mid");
        QCOMPARE(shown(), QStringList({"mid", "abc"}));
    }

    void aSearchShowsClonesBesideTheirParents()
    {
        m_finder->setFamilies(true);
        m_finder->setQuery("maker:maker");
        QCOMPARE(shown().size(), 5);
        m_finder->setQuery("");
        QCOMPARE(shown().size(), 4);
    }

    void favouritesAreKnownBeforeTheFirstSearch()
    {
        m_finder->setFavourites({"mid"});
        m_finder->setChip(Chip::Favorites);
        QCOMPARE(shown(), QStringList("mid"));
    }

    void theChipAndTheFamiliesAreRestored()
    {
        m_finder->setChip(Chip::Bios);
        m_finder->setFamilies(true);
        QCOMPARE(m_stage->defaults.string(keys::GameListChip.name), QStringLiteral("bios"));
        GameFinder again(m_stage->catalogue, m_stage->list, m_stage->controls);
        QCOMPARE(again.chip(), Chip::All);
        again.restore();
        QCOMPARE(again.chip(), Chip::Bios);
        QVERIFY(again.showsFamilies());
        QVERIFY(shown().isEmpty());
        m_stage->defaults.setValue(keys::GameListChip.name, "no such chip");
        again.restore();
        QCOMPARE(again.chip(), Chip::All);
    }

    void rulesAndMakerHoldTogether()
    {
        m_finder->setPredicate("Maker");
        QCOMPARE(shown().size(), 5);
        m_finder->setRules(
            {false, {{Field::Name, Comparison::Is, "mid"}, {Field::Year, Comparison::Is, "1970"}}});
        QCOMPARE(shown(), QStringList({"mid", "zed"}));
        m_finder->setPredicate("Other");
        QCOMPARE(shown(), QStringList());
        m_finder->setRules({});
        QCOMPARE(shown(), QStringList());
        m_finder->clearPredicate();
        QCOMPARE(shown().size(), 5);
    }

    void familiesAreOpenedOneByOne()
    {
        m_finder->setFamilies(true);
        QCOMPARE(shown(), QStringList({"", "Zed", "abc", "mid"}));
        QSignalSpy changed(m_finder.get(), &GameFinder::changed);
        // None of them has clones, or is one.
        for (const int row : {-1, 0, 1})
            m_finder->toggleFamily(row);
        QCOMPARE(changed.size(), 0);
        m_finder->toggleFamily(2);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(shown(), QStringList({"", "Zed", "abc", "zed", "mid"}));
        QCOMPARE(m_stage->list.tableViewSelectionROM(), QStringLiteral("abc"));
        m_finder->toggleFamily(2);
        QCOMPARE(shown(), QStringList({"", "Zed", "abc", "mid"}));
        // A clone that is made one of its own leaves the family.
        m_stage->catalogue.setValue(2, Field::Cloneof, "zed");
        m_finder->setFamilies(true);
        QCOMPARE(shown().size(), 5);
    }

    void theBestIsSelectedWhileItIsTyped()
    {
        m_stage->list.selectRow(0);
        m_finder->setQuery("mid");
        QCOMPARE(shown(), QStringList("mid"));
        QCOMPARE(m_stage->list.tableViewSelectionROM(), QStringLiteral("mid"));
        m_finder->setQuery("");
        QCOMPARE(shown().size(), 5);
        QCOMPARE(m_stage->list.tableViewSelectionROM(), QStringLiteral("mid"));
    }

    void suggestionsAreTheBestOfAll()
    {
        m_finder->setChip(Chip::Bios);
        QCOMPARE(m_finder->suggestions("ed", 5).size(), std::size_t(2));
        QCOMPARE(m_finder->suggestions("ed", 1), std::vector<std::uint32_t>({1}));
        QCOMPARE(m_finder->suggestions("zed", 9), std::vector<std::uint32_t>({2, 1}));
        m_stage->catalogue.setValue(0, Field::Title, "a mid b");
        QCOMPARE(m_finder->suggestions("mid", 9), std::vector<std::uint32_t>({4, 0}));
        QVERIFY(m_finder->suggestions("", 5).empty());
        QVERIFY(m_finder->suggestions("nothing", 5).empty());
        QVERIFY(m_finder->suggestions("zed", 0).empty());
    }

    // What was prepared follows, with what the folders hold.
    void whatIsRemovedAndPutBackIsFollowed()
    {
        QVERIFY(put("mid.zip"));
        m_finder->prepare();
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        QTRY_VERIFY(m_finder->haveOf(0));
        m_stage->catalogue.remove({1, 2});
        QCOMPARE(*m_finder->haveOf(2), Have::Here);
        QVERIFY(!m_finder->haveOf(3));
        m_finder->setQuery("zed");
        QCOMPARE(shown(), QStringList());
        m_finder->setQuery("mid");
        QCOMPARE(shown(), QStringList("mid"));
        m_stage->catalogue.undoStack().undo();
        QCOMPARE(*m_finder->haveOf(4), Have::Here);
        QCOMPARE(*m_finder->haveOf(2), Have::Missing);
        m_finder->setQuery("zed");
        QCOMPARE(shown(), QStringList({"zed", "Zed"}));
    }

    // Whoever was connected first: the editing or the search.
    void aRemovalBeneathASearchShowsTheRightRows_data()
    {
        QTest::addColumn<bool>("editsFirst");
        QTest::newRow("the editing") << true;
        QTest::newRow("the search") << false;
    }

    void aRemovalBeneathASearchShowsTheRightRows()
    {
        QFETCH(bool, editsFirst);
        m_finder.reset();
        std::optional<RecordEditing> editing;
        if (editsFirst)
            editing.emplace(m_stage->catalogue, m_stage->desktop, m_stage->list);
        m_finder = std::make_unique<GameFinder>(m_stage->catalogue, m_stage->list, m_stage->controls);
        if (!editsFirst)
            editing.emplace(m_stage->catalogue, m_stage->desktop, m_stage->list);
        m_finder->prepare();
        m_finder->setQuery("year:1980");
        QCOMPARE(shown(), QStringList({"Zed", "mid"}));
        m_stage->list.selectRow(0);
        m_stage->catalogue.remove({0, 1});
        QCOMPARE(shown(), QStringList("mid"));
        QCOMPARE(m_stage->list.tableViewSelectionROM(), QStringLiteral("mid"));
        m_finder->setQuery("zed");
        QCOMPARE(shown(), QStringList("zed"));
        m_stage->catalogue.undoStack().undo();
        QCOMPARE(shown(), QStringList({"zed", "Zed"}));
        m_finder->setQuery("year:1980");
        QCOMPARE(shown(), QStringList({"Zed", "mid"}));
    }

    // An answer that is under way tells of the records as they were.
    void theFoldersAreAskedAgainWhereTheRecordsChangeMeanwhile_data()
    {
        QTest::addColumn<int>("change");
        QTest::addColumn<int>("record");
        QTest::newRow("renamed") << 0 << 4;
        QTest::newRow("removed") << 1 << 3;
        QTest::newRow("put back") << 2 << 0;
    }

    void theFoldersAreAskedAgainWhereTheRecordsChangeMeanwhile()
    {
        QFETCH(int, change);
        QFETCH(int, record);
        QVERIFY(put("abc.zip") && put("mid.zip"));
        m_finder->prepare();
        if (change == 0)
            QVERIFY(QFile::remove(m_stage->folder.filePath("mid.zip")));
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        if (change == 0)
            m_stage->catalogue.setValue(4, Field::Name, "abc");
        else
            m_stage->catalogue.remove({1});
        if (change == 2)
            m_stage->catalogue.undoStack().undo();
        QTRY_VERIFY(m_finder->haveOf(static_cast<std::uint32_t>(record)) == Have::Here);
    }

    void aRenamedSetIsSearchedWithWhatItHas()
    {
        QVERIFY(put("abc.zip"));
        m_finder->prepare();
        m_finder->setRomFolders(std::make_shared<const RomFolders>(m_stage->folder.path(), QStringList()));
        QTRY_VERIFY(m_finder->haveOf(0));
        m_stage->catalogue.setValue(4, Field::Name, "abc");
        m_finder->setQuery("have:yes");
        QCOMPARE(shown().size(), 3);
        m_stage->catalogue.setValue(0, Field::Year, "2000");
        QCOMPARE(*m_finder->haveOf(0), Have::Here);
    }

    void otherRecordsAreFoundAndFoldedAsTheyAre()
    {
        m_finder->setFamilies(true);
        m_finder->setQuery("mid");
        QCOMPARE(shown(), QStringList("mid"));
        const std::array others{GameRecord{{"game", "qix", "qix", "Qix", "", "1981", "Taito", "good", ""}},
                                GameRecord{{"game", "qixa", "qix", "Qix", "", "1981", "Taito", "good", ""}}};
        QVERIFY(writeStore(m_stage->folder.filePath("Tessera.xml"), others));
        QVERIFY(m_stage->catalogue.open());
        QCOMPARE(shown(), QStringList());
        m_finder->setQuery("qix");
        QCOMPARE(shown(), QStringList({"qix", "qixa"}));
        m_finder->setQuery("");
        QCOMPARE(shown(), QStringList("qix"));
        QVERIFY(m_stage->catalogue.open());
        QCOMPARE(shown(), QStringList("qix"));
    }

private:
    QStringList shown() const
    {
        QStringList names;
        for (int row = 0; row < m_stage->list.model()->rowCount(); ++row)
            names << m_stage->list.model()->index(row, 0).data().toString();
        return names;
    }
    bool put(const QString& name) const
    {
        return QFile(m_stage->folder.filePath(name)).open(QIODevice::WriteOnly);
    }

    std::unique_ptr<StagedTable> m_stage;
    std::unique_ptr<GameFinder> m_finder;
    ChipCounts m_counts{};
};

TESSERA_TEST(GameFinderTest);
#include "gamefindertest.moc"
