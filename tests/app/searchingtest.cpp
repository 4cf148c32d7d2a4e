#include "stagedfinding.h"

#include "app/windows/emptystate.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/search/matches.h"
#include "catalogue/ui/factspanel.h"
#include "support/argumenttexts.h"
#include "support/testmain.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

using namespace tessera;
using namespace tessera::test;

/// Searching as a person does it, over the whole program.
class SearchingTest : public StagedFinding
{
    Q_OBJECT

private Q_SLOTS:
    void init() { stage(); }
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
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        QCOMPARE(list().tableViewSelectionROM(), QStringLiteral("gradius3"));
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
        QCOMPARE(shown(), QStringLiteral("puckman pacman jp gradius"));
    }

    void romajiAndKanaFindTheSame()
    {
        QTRY_COMPARE((search(QStringLiteral("guradi")), shown()), QStringLiteral("gradius3 gradius"));
        search(QStringLiteral("ぐらでぃうす"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
    }

    void theBestComesFirstAndAHeaderClickWins()
    {
        QHeaderView* header = window().gameTable->horizontalHeader();
        search(QStringLiteral("man"));
        QCOMPARE(shown(), QStringLiteral("puckman pacman"));
        QCOMPARE(header->sortIndicatorSection(), -1);
        clickHeader(0);
        QCOMPARE(shown(), QStringLiteral("pacman puckman"));
        QCOMPARE(header->sortIndicatorSection(), 0);
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
        // Other letters, too.
        QTest::keyClicks(field(), QStringLiteral(" p"));
        QCOMPARE(shown(), QStringLiteral("pacman puckman"));
        QCOMPARE(header->sortIndicatorSection(), 0);
        // Once the field was empty the best is first again.
        search(QString());
        QCOMPARE(header->sortIndicatorSection(), 0);
        search(QStringLiteral("man"));
        QCOMPARE(shown(), QStringLiteral("puckman pacman"));
        QCOMPARE(header->sortIndicatorSection(), -1);
    }

    void returnStartsTheBest()
    {
        search(QStringLiteral("pac"));
        QTest::keyClick(field(), Qt::Key_Return);
        QTRY_VERIFY(window().stopButton->isEnabled());
        m_staged->app->stopGame();
        QTRY_VERIFY(!window().stopButton->isEnabled());
    }

    void whatLedToSomethingIsAmongTheLastSearches()
    {
        search(QStringLiteral("gradius"));
        QTest::keyClick(field(), Qt::Key_Down);
        search(QStringLiteral("gradiuz"));
        field()->setFocus();
        QTest::keyClick(field(), Qt::Key_Down);
        search(QStringLiteral("pac"));
        field()->setFocus();
        window().gameTable->setFocus();
        QCOMPARE(m_staged->defaults.value(keys::LastSearches.name)->toStringList(),
                 (QStringList{QStringLiteral("pac"), QStringLiteral("gradius")}));
    }

    void aKeptSearchIsBackAfterAStart()
    {
        search(QStringLiteral("gradius"));
        m_staged->app->finding().searches().keepSearch();
        auto* panel = window().findChild<QDialog*>(QStringLiteral("searchNamePanel"));
        QTest::keyClick(panel, Qt::Key_Return);
        search(QString());
        start();
        auto* chip = window().chipBar->findChild<QAbstractButton*>(QStringLiteral("keptChip_0"));
        QTest::mouseClick(chip, Qt::LeftButton);
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        QTest::mouseClick(chip, Qt::LeftButton);
        QCOMPARE(shown(), all);
    }

    void whatWasRemovedIsSaid()
    {
        search(QStringLiteral("gradius"));
        m_staged->app->finding().searches().keepSearch();
        QTest::keyClick(window().findChild<QDialog*>(QStringLiteral("searchNamePanel")), Qt::Key_Return);
        auto* chip = window().chipBar->findChild<QAbstractButton*>(QStringLiteral("keptChip_0"));
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(3, 3), chip->mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(chip, &asked);
        auto* menu = window().chipBar->findChild<QMenu*>();
        menu->actions().at(1)->trigger();
        QCOMPARE(window().findChild<QLabel*>(QStringLiteral("messageLabel"))->text(),
                 QStringLiteral("kept_removed"));
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

    void whatIsNearestStandsUnderASentence()
    {
        const auto* complaint = window().chipBar->findChild<QLabel*>(QStringLiteral("complaintLabel"));
        QTRY_COMPARE((search(QStringLiteral("gradisu")), shown()), QStringLiteral("gradius gradius3"));
        QVERIFY(complaint->isVisible());
        QCOMPARE(complaint->text(), QStringLiteral("search_nearest"));
        QVERIFY(!window().emptyState->isVisible());
        click(Chip::Working);
        QCOMPARE(shown(), QStringLiteral("gradius"));
        click(Chip::Bios);
        QVERIFY(window().emptyState->isVisible());
        QVERIFY(!complaint->isVisible());
        click(Chip::All);
        QVERIFY(complaint->isVisible());
        // What has the letters stands alone.
        search(QStringLiteral("gradius"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        QVERIFY(!complaint->isVisible());
        search(QStringLiteral("gradisu"));
        search(QString());
        QVERIFY(!complaint->isVisible());
        QCOMPARE(shown(), all);
    }

    void whatWasFoundIsMarkedInTheRows_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QStringList>("marked");
        const auto row = [](const char* query, const QStringList& marked) {
            QTest::newRow(query) << QString::fromUtf8(query) << marked;
        };
        row("gradius", {QStringLiteral("name"), QStringLiteral("title")});
        row("グラ", {QStringLiteral("titlejp")});
        row("konami", {QStringLiteral("maker")});
        row("year:1985", {});
        row("gradisu", {}); // only near
    }

    void whatWasFoundIsMarkedInTheRows()
    {
        QFETCH(QString, query);
        QFETCH(QStringList, marked);
        QTRY_VERIFY((search(query), list().list().size() > 0));
        GameTableView& table = *window().gameTable;
        const QImage withMarks = table.viewport()->grab().toImage();
        table.showMatches(Matches());
        const QImage without = table.viewport()->grab().toImage();
        QStringList differing;
        for (const Field field : {Field::Name, Field::Title, Field::Titlejp, Field::Maker, Field::Cloneof}) {
            const int column = GameTableModel::columnOf(field);
            const QRect cell(table.columnViewportPosition(column), 0, table.columnWidth(column),
                             table.rowHeight(0));
            if (withMarks.copy(cell) != without.copy(cell))
                differing << fieldText(fieldName(field));
        }
        QCOMPARE(differing, marked);
    }

    void returnStartsWhatIsOnlyNearTheSecondTime_data()
    {
        QTest::addColumn<bool>("inTable");
        QTest::newRow("in the field") << false;
        QTest::newRow("in the table") << true;
    }

    void returnStartsWhatIsOnlyNearTheSecondTime()
    {
        QFETCH(bool, inTable);
        QTRY_COMPARE((search(QStringLiteral("gradisu")), shown()), QStringLiteral("gradius gradius3"));
        QWidget* focus = inTable ? static_cast<QWidget*>(window().gameTable) : field();
        focus->setFocus();
        const QSignalSpy asked(&list(), &GameListController::statusMessage);
        const QSignalSpy started(&list(), &GameListController::launchRequested);
        QTest::keyClick(focus, Qt::Key_Return);
        QCOMPARE(asked.size(), 1);
        QVERIFY(asked[0][0].toString().startsWith(QStringLiteral("search_return_again")));
        // Another row is asked about anew, and so is the same one once other letters were typed.
        QVERIFY(list().selectGame(QStringLiteral("gradius3")));
        QTest::keyClick(focus, Qt::Key_Return);
        QCOMPARE(asked.size(), 2);
        search(QStringLiteral("gradiuss"));
        QVERIFY(list().selectGame(QStringLiteral("gradius3")));
        QTest::keyClick(focus, Qt::Key_Return);
        QCOMPARE(asked.size(), 3);
        QCOMPARE(started.size(), 0);
        QTest::keyClick(focus, Qt::Key_Return);
        QCOMPARE(asked.size(), 3);
        QCOMPARE(started.size(), 1);
        QCOMPARE(started[0][0].toString(), QStringLiteral("gradius3"));
    }

    void anotherSearchWithTheSameRowsIsAskedAboutAnew()
    {
        QTRY_COMPARE((search(QStringLiteral("gradisu")), shown()), QStringLiteral("gradius gradius3"));
        const QSignalSpy asked(&list(), &GameListController::statusMessage);
        const QSignalSpy started(&list(), &GameListController::launchRequested);
        QTest::keyClick(field(), Qt::Key_Return);
        search(QStringLiteral("gradisu -nowhere"));
        QCOMPARE(shown(), QStringLiteral("gradius gradius3"));
        QTest::keyClick(field(), Qt::Key_Return);
        QCOMPARE(asked.size(), 2);
        QCOMPARE(started.size(), 0);
    }

    void theTermsOpenFromTheFieldsMenu()
    {
        QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                 field()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(field(), &wanted);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        const QList<QAction*> actions = menu->actions();
        const auto terms = std::ranges::find(actions, QStringLiteral("search_terms"), &QAction::text);
        QVERIFY(terms != actions.end());
        (*terms)->trigger();
        menu->close();
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
    }

    void aTypedSetNameThatAMinusHidesIsTold()
    {
        const auto* message = window().findChild<QLabel*>(QStringLiteral("messageLabel"));
        const ArgumentTexts arguments;
        search(QStringLiteral("gradius -jap"));
        QCOMPARE(message->text(), QStringLiteral("search_hidden_set (gradius, -jap)"));
        search(QStringLiteral("gradius -japan"));
        QCOMPARE(message->text(), QStringLiteral("search_hidden_set (gradius, -japan)"));
        search(QStringLiteral("gradius -world"));
        QCOMPARE(message->text(), QString());
        // What somebody else said stays.
        search(QStringLiteral("gradius -japan"));
        window().showMessage(QStringLiteral("Another one."));
        search(QStringLiteral("gradius"));
        QCOMPARE(message->text(), QStringLiteral("Another one."));
    }

    // Every telling arranges what stands around the list once more.
    void whatChangesIsToldOnce()
    {
        const QSignalSpy told(&finder(), &GameFinder::changed);
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

    void aHeaderClickWinsUntilTheFieldWasEmpty()
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
        QTest::keyClicks(field(), QStringLiteral(" g"));
        QCOMPARE(shown(), QStringLiteral("gradius3 gradius"));
        search(QString());
        search(QStringLiteral("gradius konami"));
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
};

TESSERA_TEST(SearchingTest);
#include "searchingtest.moc"
