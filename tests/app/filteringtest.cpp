#include "stagedfinding.h"

#include "app/windows/emptystate.h"
#include "support/testmain.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;
using namespace tessera::test;

/// Chips, families and filters as a person uses them, over the whole program.
class FilteringTest : public StagedFinding
{
    Q_OBJECT

private Q_SLOTS:
    void init() { stage(); }
    void cleanup() { m_staged.reset(); }

    void whatHidesRowsIsSaid()
    {
        search(QStringLiteral("gradius"));
        QCOMPARE(count(), QStringLiteral("main_count_some  ·  hides_search"));
        click(Chip::Working);
        QCOMPARE(count(), QStringLiteral("main_count_some  ·  chip_working  ·  hides_search"));
        finder().setPredicate(QStringLiteral("Konami"));
        QCOMPARE(count(),
                 QStringLiteral("main_count_some  ·  chip_working  ·  hides_search  ·  hides_maker"));
        QVERIFY(window().showAllButton->isVisible());
    }

    void showAllShowsAll()
    {
        search(QStringLiteral("gradius"));
        click(Chip::Working);
        window().chipBar->familiesBox->click();
        m_staged->app->showPredicatePanel();
        panel().filterTextView->setText(QStringLiteral("Konami"));
        panel().makerButton->click();
        panel().findChildren<QLineEdit*>().constFirst()->setText(QStringLiteral("x"));
        QTest::mouseClick(window().showAllButton, Qt::LeftButton);
        QCOMPARE(shown(), all);
        QCOMPARE(field()->text(), QString());
        QVERIFY(!window().chipBar->familiesBox->isChecked());
        QVERIFY(finder().reasons().isEmpty());
        QVERIFY(!window().showAllButton->isVisible());
    }

    void eachChipShowsItsRecords_data()
    {
        QTest::addColumn<Chip>("chip");
        QTest::addColumn<QString>("names");
        QTest::newRow("all") << Chip::All << all;
        QTest::newRow("games") << Chip::Games << QStringLiteral("gradius gradius3 nemesis pacman puckman");
        QTest::newRow("have") << Chip::HaveRom << QString();
        QTest::newRow("working") << Chip::Working << QStringLiteral("gradius neogeo pacman puckman");
        QTest::newRow("playable") << Chip::Playable
                                  << QStringLiteral("gradius nemesis neogeo pacman puckman");
        QTest::newRow("BIOS") << Chip::Bios << QStringLiteral("neogeo");
    }
    void eachChipShowsItsRecords()
    {
        QFETCH(Chip, chip);
        click(chip);
        QFETCH(QString, names);
        // Nobody is told to have nothing before the ROM folders are known.
        QTRY_COMPARE(shown(), names);
    }

    void theCountsFollowTheSearch()
    {
        QTRY_VERIFY(chip(Chip::All)->accessibleName().endsWith(QStringLiteral(" 8")));
        search(QStringLiteral("konami"));
        QCOMPARE(chip(Chip::All)->accessibleName(), QStringLiteral("chip_all 3"));
        QCOMPARE(chip(Chip::Working)->accessibleName(), QStringLiteral("chip_working 1"));
        click(Chip::Working);
        QCOMPARE(chip(Chip::All)->accessibleName(), QStringLiteral("chip_all 3"));
    }

    void theChipAndTheFamiliesAreRemembered()
    {
        click(Chip::Parents);
        window().chipBar->familiesBox->click();
        const QString before = shown();
        m_staged->app.reset();
        start();
        QVERIFY(chip(Chip::Parents)->isChecked());
        QVERIFY(window().chipBar->familiesBox->isChecked());
        QCOMPARE(shown(), before);
    }

    void familiesFoldClonesBeneathTheirParents()
    {
        QAbstractItemModelTester tester(list().model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        window().chipBar->familiesBox->click();
        QCOMPARE(shown(), QStringLiteral("cdr gradius3 jp nemesis neogeo puckman"));
        QVERIFY(list().selectGame(QStringLiteral("nemesis")));
        QTest::keyClick(window().gameTable, Qt::Key_Right);
        QCOMPARE(shown(), QStringLiteral("cdr gradius3 jp nemesis gradius neogeo puckman"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("nemesis"));
        QTest::keyClick(window().gameTable, Qt::Key_Left);
        QCOMPARE(shown(), QStringLiteral("cdr gradius3 jp nemesis neogeo puckman"));
        QVERIFY(!list().selectGame(QStringLiteral("gradius")));
    }

    void aSearchOpensWhatMatches()
    {
        window().chipBar->familiesBox->click();
        search(QStringLiteral("maker:konami"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3 nemesis"));
        search(QStringLiteral("japan"));
        clickHeader(0);
        QCOMPARE(shown(), QStringLiteral("gradius puckman"));
        search(QString());
        QVERIFY(!shown().contains(QStringLiteral("gradius ")));
    }

    void theFilterPanelFilters()
    {
        QTest::mouseClick(window().filterButton, Qt::LeftButton);
        QVERIFY(panel().isVisible());
        QCOMPARE(panel().rowCount(), 1);
        QList<QLineEdit*> values = panel().findChildren<QLineEdit*>();
        values.removeAll(panel().filterTextView);
        QTest::keyClicks(values.constFirst(), QStringLiteral("japan"));
        QCOMPARE(shown(), QStringLiteral("gradius puckman"));
        search(QStringLiteral("pac"));
        QCOMPARE(shown(), QString());
        search(QString());
        QTest::mouseClick(panel().clearButton, Qt::LeftButton);
        QCOMPARE(shown(), all);
        QTest::mouseClick(window().filterButton, Qt::LeftButton);
        QVERIFY(!panel().isVisible());
    }

    void theMakerFilterTakesExactlyItsText()
    {
        m_staged->app->showPredicatePanel();
        panel().filterTextView->setText(QStringLiteral("Konami"));
        panel().makerButton->click();
        QCOMPARE(shown(), QStringLiteral("gradius gradius3 nemesis"));
        panel().filterTextView->setText(QStringLiteral("konami"));
        panel().makerButton->click();
        QCOMPARE(shown(), QString());
        panel().filterTextView->clear();
        panel().makerButton->click();
        QCOMPARE(shown(), QStringLiteral("cdr"));
        panel().makerClearButton->click();
        QCOMPARE(shown(), all);
    }

    void aFilterHidesRecordsFromLookups()
    {
        finder().setPredicate(QStringLiteral("Konami"));
        m_staged->desktop.takeTranscript();
        const auto found = list().search_arrangedObjects(
            Field::Name, {QStringLiteral("pacman"), QStringLiteral("gradius")});
        QCOMPARE(found.size(), 1);
        QCOMPARE(found[0].value(QStringLiteral("name")), QStringLiteral("gradius"));
        QCOMPARE(m_staged->desktop.takeTranscript(),
                 QStringList{QStringLiteral("log pacman は見つかりませんでした")});
    }

    void theRomFolderIsSeenAndWatched()
    {
        const QString roms = m_staged->path(QStringLiteral("roms"));
        QVERIFY(QDir().mkpath(roms));
        touch(QDir(roms).filePath(QStringLiteral("puckman.zip")));
        m_staged->app.reset();
        m_staged->defaults.setValue(keys::RomsPath.name, roms);
        start();
        click(Chip::HaveRom);
        QTRY_COMPARE(shown(), QStringLiteral("pacman puckman"));
        search(QStringLiteral("have:own"));
        QCOMPARE(shown(), QStringLiteral("puckman"));
        search(QStringLiteral("have:parent"));
        QCOMPARE(shown(), QStringLiteral("pacman"));
        search(QString());
        touch(QDir(roms).filePath(QStringLiteral("gradius3.zip")));
        QTRY_COMPARE(shown(), QStringLiteral("gradius3 pacman puckman"));
        QVERIFY(list().selectGame(QStringLiteral("pacman")));
        const auto* have = window().findChild<QLabel*>(QStringLiteral("haveLabel"));
        QVERIFY(have->isVisible());
        QCOMPARE(have->text(), QStringLiteral("have_in_parent"));
    }

    void withoutARomFolderTheEmptyListOffersToChooseOne()
    {
        const QString roms = m_staged->path(QStringLiteral("roms"));
        QVERIFY(QDir().mkpath(roms));
        touch(QDir(roms).filePath(QStringLiteral("jp.zip")));
        click(Chip::HaveRom);
        QTRY_COMPARE(shown(), QString());
        auto* button = window().emptyState->findChild<QPushButton*>();
        QCOMPARE(button->text(), QStringLiteral("empty_chooseroms"));
        m_staged->desktop.answerOpen(roms);
        button->click();
        QTRY_COMPARE(shown(), QStringLiteral("jp"));
        click(Chip::Bios);
        search(QStringLiteral("zork"));
        QCOMPARE(button->text(), QStringLiteral("main_showall"));
    }

    void theCountsFollowFiltersAndEdits()
    {
        QTRY_VERIFY(chip(Chip::All)->accessibleName().endsWith(QStringLiteral(" 8")));
        finder().setPredicate(QStringLiteral("Konami"));
        QCOMPARE(chip(Chip::All)->accessibleName(), QStringLiteral("chip_all 3"));
        QCOMPARE(chip(Chip::Working)->accessibleName(), QStringLiteral("chip_working 1"));
        m_staged->app->catalogue().setValue(0, Field::Status, QStringLiteral("good"));
        QCOMPARE(chip(Chip::Working)->accessibleName(), QStringLiteral("chip_working 2"));
        finder().clearPredicate();
        QCOMPARE(chip(Chip::Working)->accessibleName(), QStringLiteral("chip_working 5"));
        QVERIFY(list().selectGame(QStringLiteral("jp")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        QCOMPARE(chip(Chip::All)->accessibleName(), QStringLiteral("chip_all 7"));
        m_staged->app->undo();
        QCOMPARE(chip(Chip::All)->accessibleName(), QStringLiteral("chip_all 8"));
    }

    void aRenamedSetHasItsOwnArchive()
    {
        const QString roms = m_staged->path(QStringLiteral("roms"));
        QVERIFY(QDir().mkpath(roms));
        touch(QDir(roms).filePath(QStringLiteral("pacman.zip")));
        m_staged->app.reset();
        m_staged->defaults.setValue(keys::RomsPath.name, roms);
        start();
        QTRY_COMPARE(finder().haveOf(4), std::optional(Have::Here));
        m_staged->app->catalogue().setValue(4, Field::Name, QStringLiteral("pacmanx"));
        QCOMPARE(finder().haveOf(4), std::optional(Have::Missing));
        search(QStringLiteral("have:own"));
        QCOMPARE(shown(), QString());
        m_staged->app->undo();
        QCOMPARE(finder().haveOf(4), std::optional(Have::Here));
    }

    void aRemovalMeanwhileAsksTheRomFoldersAnew()
    {
        QTRY_COMPARE(finder().haveOf(2), std::optional(Have::Missing));
        const QString roms = m_staged->path(QStringLiteral("roms"));
        QVERIFY(QDir().mkpath(roms));
        touch(QDir(roms).filePath(QStringLiteral("gradius3.zip")));
        finder().setRomFolders(std::make_shared<RomFolders>(roms, QStringList()));
        m_staged->app->catalogue().remove({0});
        QTRY_COMPARE(finder().haveOf(1), std::optional(Have::Here));
    }

    void theMakerIsNoMarkup()
    {
        finder().setPredicate(QStringLiteral("<h1>big</h1>"));
        QCOMPARE(window().findChild<QLabel*>(QStringLiteral("countLabel"))->textFormat(), Qt::PlainText);
    }

    void anOpenFamilyStaysOpenOverARemoval()
    {
        window().chipBar->familiesBox->click();
        QVERIFY(list().selectGame(QStringLiteral("puckman")));
        QTest::keyClick(window().gameTable, Qt::Key_Right);
        QVERIFY(list().selectGame(QStringLiteral("jp")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        QCOMPARE(shown(), QStringLiteral("cdr gradius3 nemesis neogeo puckman pacman"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("nemesis"));
        QVERIFY(list().selectGame(QStringLiteral("pacman")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        m_staged->app->undo();
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("pacman"));
    }

    void everythingSelectedStaysSoWithinAChip()
    {
        window().gameTable->selectAll();
        QCOMPARE(list().selectedCount(), 8);
        click(Chip::Games);
        QCOMPARE(list().selectedCount(), 5);
        click(Chip::All);
        QCOMPARE(list().selectedCount(), 5);
        QCOMPARE(list().selectedRecords(), (std::vector<std::uint32_t>{1, 2, 0, 4, 3}));
    }
};

TESSERA_TEST(FilteringTest);
#include "filteringtest.moc"
