#include "stagedapp.h"

#include "app/windows/emptystate.h"
#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "support/writestore.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "support/testmain.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

using namespace tessera;
using test::StagedApp;

namespace {

GameRecord machine(std::string_view type, std::string_view name, std::string_view cloneof,
                   std::string_view title, std::string_view titlejp, std::string_view year,
                   std::string_view maker, std::string_view status)
{
    return GameRecord{{type, name, cloneof, title, titlejp, year, maker, status, ""}};
}

const std::array machines{
    machine("game", "nemesis", "nemesis", "Nemesis (World)", "ネメシス", "1985", "Konami", "imperfect"),
    machine("game", "gradius", "nemesis", "Gradius (Japan)", "グラディウス", "1985", "Konami", "good"),
    machine("game", "gradius3", "gradius3", "Gradius III (World)", "グラディウスIII", "1989", "Konami",
            "preliminary"),
    machine("game", "puckman", "puckman", "Puck Man (Japan)", "パックマン", "1980", "Namco", "good"),
    machine("game", "pacman", "puckman", "Pac-Man (Midway)", "パックマン", "1980", "Midway", "good"),
    machine("bios", "neogeo", "neogeo", "Neo-Geo", "ネオジオ", "1990", "SNK", "good"),
    machine("device", "cdr", "cdr", "CD-ROM drive", "", "", "", ""),
    machine("mechanical", "jp", "jp", "Jackpot", "Jackpot", "1980", "Prológica", "preliminary"),
};

const QString all = QStringLiteral("cdr gradius gradius3 jp nemesis neogeo pacman puckman");

} // namespace

/// Searching, chips, families and filters as a person uses them, over the whole program.
class FindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        QVERIFY(tessera::writeStore(m_staged->storePath(), machines));
        start();
    }

    void cleanup() { m_staged.reset(); }

    void everythingIsShownAtFirst()
    {
        QCOMPARE(shown(), all);
        QCOMPARE(count(), QStringLiteral("main_count"));
        QVERIFY(!window().showAllButton->isVisible());
    }

    void typingNarrowsTheListAndSelectsTheBest()
    {
        QTest::keyClicks(field(), QStringLiteral("gra"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius"));
        QTest::keyClicks(field(), QStringLiteral("dius iii"));
        QCOMPARE(shown(), QStringLiteral("gradius3"));
        QTest::keyClick(field(), Qt::Key_Escape);
        QCOMPARE(shown(), all);
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
    }

    void typingInTheListGoesToTheSearchField()
    {
        window().gameTable->setFocus();
        QTest::keyClicks(window().gameTable, QStringLiteral("p"));
        QCOMPARE(field()->text(), QStringLiteral("p"));
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(field()));
        QCOMPARE(shown(), QStringLiteral("pacman puckman jp gradius"));
    }

    void romajiAndKanaFindTheSame()
    {
        QTRY_COMPARE((search(QStringLiteral("guradi")), shown()), QStringLiteral("gradius gradius3"));
        search(QStringLiteral("ぐらでぃうす"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
    }

    void theBestComesFirstAndAHeaderClickWins()
    {
        QHeaderView* header = window().gameTable->horizontalHeader();
        search(QStringLiteral("man"));
        QCOMPARE(shown(), QStringLiteral("pacman puckman"));
        search(QStringLiteral("gradius konami"));
        QCOMPARE(header->sortIndicatorSection(), -1);
        clickHeader(0);
        clickHeader(0);
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        QCOMPARE(header->sortIndicatorSection(), 0);
        QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
        // The next letter ranks again.
        QTest::keyClicks(field(), QStringLiteral(" "));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        search(QString());
        QCOMPARE(header->sortIndicatorSection(), 0);
        QCOMPARE(shown().section(u' ', 0, 1), QStringLiteral("puckman pacman"));
    }

    void returnStartsTheBest()
    {
        search(QStringLiteral("pac"));
        QTest::keyClick(field(), Qt::Key_Return);
        QTRY_VERIFY(window().stopButton->isEnabled());
        m_staged->app->stopGame();
        QTRY_VERIFY(!window().stopButton->isEnabled());
    }

    void theDownArrowGoesIntoTheList()
    {
        search(QStringLiteral("gradius"));
        QTest::keyClick(field(), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(window().gameTable));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius"));
    }

    void aWrongTermIsShownAsWrong()
    {
        search(QStringLiteral("gradius stauts:good"));
        const auto* complaint = window().chipBar->findChild<QLabel*>(QStringLiteral("complaintLabel"));
        QVERIFY(complaint->isVisible());
        QVERIFY(!complaint->text().isEmpty());
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        search(QStringLiteral("gradius status:good"));
        QVERIFY(!complaint->isVisible());
        QCOMPARE(shown(), QStringLiteral("gradius"));
    }

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

    // Every telling arranges what stands around the list once more.
    void whatChangesIsToldOnce()
    {
        const QSignalSpy told(&m_staged->app->finding(), &Finding::changed);
        QTest::keyClick(field(), Qt::Key_G);
        QCOMPARE(told.size(), 1);
        QTest::keyClick(field(), Qt::Key_R);
        QCOMPARE(told.size(), 2);
        window().chipBar->familiesBox->click();
        QCOMPARE(told.size(), 3);
        window().showAllButton->click();
        QCOMPARE(told.size(), 4);
        QCOMPARE(shown(), all);
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

    void nothingFoundSaysWhatToDo()
    {
        search(QStringLiteral("nowhere"));
        QVERIFY(window().emptyState->isVisible());
        auto* button = window().emptyState->findChild<QPushButton*>();
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(shown(), all);
        QVERIFY(!window().emptyState->isVisible());
    }

    void eachChipShowsItsRecords_data()
    {
        QTest::addColumn<Chip>("chip");
        QTest::addColumn<QString>("names");
        QTest::newRow("all") << Chip::All << all;
        QTest::newRow("games") << Chip::Games << QStringLiteral("gradius gradius3 nemesis pacman puckman");
        QTest::newRow("have") << Chip::HaveRom << QString();
        QTest::newRow("working") << Chip::Working << QStringLiteral("gradius neogeo pacman puckman");
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

    void anEditIsFoundAtOnce()
    {
        search(QStringLiteral("zork"));
        QCOMPARE(shown(), QString());
        search(QString());
        QVERIFY(list().selectGame(QStringLiteral("jp")));
        m_staged->app->catalogue().setValue(*list().firstSelected(), Field::Title, QStringLiteral("Zork"));
        search(QStringLiteral("zork"));
        QCOMPARE(shown(), QStringLiteral("jp"));
        search(QStringLiteral("jackpot"));
        QCOMPARE(shown(), QStringLiteral("jp")); // its Japanese title
        m_staged->app->undo();
        search(QStringLiteral("zork"));
        QCOMPARE(shown(), QString());
    }

    void whatIsRemovedIsNotFoundUntilItIsUndone()
    {
        search(QStringLiteral("gradius"));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        QCOMPARE(shown(), QStringLiteral("gradius3"));
        m_staged->app->undo();
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
    }

    void aHeaderClickWinsUntilTheNextLetter()
    {
        search(QStringLiteral("gradius konami"));
        clickHeader(0);
        clickHeader(0);
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        click(Chip::Games);
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        finder().setRules({true, {{Field::Year, Comparison::Contains, QStringLiteral("198")}}});
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        QVERIFY(list().selectGame(QStringLiteral("gradius")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        m_staged->app->undo();
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        QCOMPARE(window().gameTable->horizontalHeader()->sortIndicatorSection(), 0);
        QTest::keyClicks(field(), QStringLiteral(" "));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
    }

    void whatHappensBesideLeavesTheChoiceAlone()
    {
        // What the ROM folders hold is asked for, so that their answer searches anew.
        search(QStringLiteral("konami have:no"));
        QVERIFY(list().selectGame(QStringLiteral("gradius3")));
        click(Chip::Games);
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
        finder().setPredicate(QStringLiteral("Konami"));
        QSignalSpy answered(&finder(), &GameFinder::havesChanged);
        finder().setRomFolders(std::make_shared<RomFolders>(std::nullopt, QStringList()));
        QTRY_VERIFY(!answered.isEmpty());
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
        QCOMPARE(list().selectedCount(), 1);
    }

    void anOpenEditorIsTakenOverBeforeTheRowsChange()
    {
        QVERIFY(list().selectGame(QStringLiteral("jp")));
        const int row = list().firstRow();
        const QModelIndex title = list().model()->index(row, GameTableModel::columnOf(Field::Title));
        window().gameTable->edit(title);
        auto* editor = window().gameTable->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText(QStringLiteral("Edited"));
        finder().setChip(Chip::Parents);
        QCOMPARE(shown(), QStringLiteral("cdr gradius3 jp nemesis neogeo puckman"));
        search(QStringLiteral("edited"));
        QCOMPARE(shown(), QStringLiteral("jp"));
    }

    void japaneseTypedInTheListGoesToTheSearchField()
    {
        window().gameTable->setFocus();
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("ネメシス"));
        QCoreApplication::sendEvent(window().gameTable, &event);
        QCOMPARE(field()->text(), QStringLiteral("ネメシス"));
        QTRY_COMPARE(shown(), QStringLiteral("nemesis"));
    }

    void aJapaneseSearchOutlivesRemovalAndUndo()
    {
        QTRY_COMPARE((search(QStringLiteral("ぐらでぃうす")), shown()), QStringLiteral("gradius gradius3"));
        QVERIFY(list().selectGame(QStringLiteral("gradius")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
        QCOMPARE(shown(), QStringLiteral("gradius3"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
        m_staged->app->undo();
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius"));
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

    void theFactsStayWithTheSelectionWhenTheRowsChange()
    {
        QTest::keyClicks(field(), QStringLiteral("gradius3"));
        const QStringList told = texts(*window().factsPanel);
        QVERIFY(told.contains(QStringLiteral("Gradius III (World)")));
        QTest::keyClick(field(), Qt::Key_Escape);
        QCOMPARE(shown(), all);
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
        QCOMPARE(texts(*window().factsPanel), told);
    }

    void theFactsMarkFollowsAnEdit()
    {
        QVERIFY(list().selectGame(QStringLiteral("jp")));
        const auto* mark = window().findChild<QLabel*>(QStringLiteral("romMark"));
        QCOMPARE(mark->property("mark").toString(), QStringLiteral("plovermark_preliminary"));
        m_staged->app->catalogue().setValue(7, Field::Status, QStringLiteral("good"));
        QCOMPARE(mark->property("mark").toString(), QStringLiteral("plovermark_good"));
    }

    void theMakerIsNoMarkup()
    {
        finder().setPredicate(QStringLiteral("<h1>big</h1>"));
        QCOMPARE(window().findChild<QLabel*>(QStringLiteral("countLabel"))->textFormat(), Qt::PlainText);
    }

    void deletingInTheFieldRemovesNoGame()
    {
        search(QStringLiteral("gradius konami"));
        QTest::keyClick(field(), Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(field()->text(), QStringLiteral("gradius "));
        QTest::keyClick(field(), Qt::Key_Home);
        QTest::keyClick(field(), Qt::Key_Delete);
        QCOMPARE(field()->text(), QStringLiteral("radius "));
        QVERIFY(m_staged->desktop.takeTranscript().isEmpty());
        // In the list it asks.
        window().gameTable->setFocus();
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 1);
        QTest::keyClick(window().gameTable, Qt::Key_Delete);
        QCOMPARE(m_staged->desktop.takeTranscript().size(), 2);
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

private:
    static QStringList texts(const QWidget& panel)
    {
        QStringList texts;
        for (const QLabel* label : panel.findChildren<QLabel*>()) {
            if (!label->isHidden())
                texts << label->text();
        }
        return texts;
    }

    void start()
    {
        m_staged->start();
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }

    MainWindow& window() const { return m_staged->app->mainWindow(); }
    GameListController& list() const { return m_staged->app->gameList(); }
    GameFinder& finder() const { return m_staged->app->finding().finder(); }
    FilterPanel& panel() const { return m_staged->app->finding().panel(); }
    SearchField* field() const { return window().searchField; }
    void search(const QString& text) { field()->setText(text); }

    QString count() const { return window().findChild<QLabel*>(QStringLiteral("countLabel"))->text(); }

    QAbstractButton* chip(Chip chip) const
    {
        for (const ChipRow& row : chips) {
            if (row.chip == chip)
                return window().chipBar->findChild<QAbstractButton*>(
                    QString(QStringLiteral("chip_")
                            + QString::fromUtf8(row.name.data(), qsizetype(row.name.size()))));
        }
        return nullptr;
    }

    void click(Chip which) { QTest::mouseClick(chip(which), Qt::LeftButton); }

    void clickHeader(int column)
    {
        QHeaderView* header = window().gameTable->horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    static void touch(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QString shown() const
    {
        QStringList names;
        const QAbstractItemModel* model = list().model();
        const int column = GameTableModel::columnOf(Field::Name);
        for (int row = 0; row < model->rowCount(); ++row)
            names << model->index(row, column).data(Qt::EditRole).toString();
        return names.join(u' ');
    }

    std::unique_ptr<StagedApp> m_staged;
};

TESSERA_TEST(FindingTest);
#include "findingtest.moc"
