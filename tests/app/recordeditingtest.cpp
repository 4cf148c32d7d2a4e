#include "stagedapp.h"

#include "app/windows/mainwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "support/testmain.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QPushButton>

using namespace tessera;
using test::StagedApp;

/// The record editor and removing, over the whole program.
class RecordEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
        m_list = &m_staged->app->gameList();
        m_table = m_staged->app->mainWindow().gameTable;
        m_editor = &m_staged->app->editing().editor();
    }

    void cleanup() { m_staged.reset(); }

    void removingNothingDoesNothing()
    {
        m_staged->app->removeRecord();
        QVERIFY(m_staged->desktop.takeTranscript().isEmpty());
        QCOMPARE(m_staged->app->catalogue().records().size(), std::size_t(4));
    }

    void removingAsksFirst()
    {
        select({0, 1, 3});
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 1);
        m_staged->app->removeRecord();
        QCOMPARE(m_staged->desktop.takeTranscript(),
                 (QStringList{QStringLiteral("beep"), QStringLiteral("alert record_remove_Message")}));
        const Alert& alert = m_staged->desktop.alerts.back();
        QCOMPARE(alert.informative, QStringLiteral("record_remove_Info"));
        QCOMPARE(alert.buttons, (QStringList{QStringLiteral("remove"), QStringLiteral("cancel")}));
        QCOMPARE(alert.style, Alert::Style::Warning);
        QCOMPARE(names(), m_all);
    }

    void whatIsSelectedIsRemovedAndUndoBringsItBack()
    {
        QAbstractItemModelTester tester(m_list->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        select({0, 1, 3});
        const QByteArray before = m_staged->store();
        removeSelected();
        QCOMPARE(names(), QStringList{QStringLiteral("pong")});
        QVERIFY(m_staged->app->catalogue().hasChanges());
        QCOMPARE(m_staged->store(), before);
        m_staged->app->undo();
        QCOMPARE(names(), m_all);
        QCOMPARE(m_list->selectedCount(), 3);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("1943"));
        QVERIFY(!m_staged->app->catalogue().hasChanges());
        m_staged->app->redo();
        QCOMPARE(names(), QStringList{QStringLiteral("pong")});
    }

    // By the menu: the field keeps the focus, and what is typed in it would be gone with the rows.
    void undoTakesOverWhatIsBeingTyped_data()
    {
        QTest::addColumn<bool>("redoes");
        QTest::newRow("undo") << false;
        QTest::newRow("redo") << true;
    }
    void undoTakesOverWhatIsBeingTyped()
    {
        QFETCH(bool, redoes);
        m_table->selectRow(0);
        const QModelIndex title = m_list->model()->index(0, GameTableModel::columnOf(Field::Title));
        const QString before = title.data().toString();
        m_table->edit(title);
        auto* field = m_table->viewport()->findChild<QLineEdit*>();
        QVERIFY(field != nullptr);
        field->setText(QStringLiteral("Typed"));
        redoes ? m_staged->app->redo() : m_staged->app->undo();
        // It was the last step: undoing takes it back, and redoing finds nothing behind it.
        QCOMPARE(title.data().toString(), redoes ? QStringLiteral("Typed") : before);
        if (!redoes) {
            m_staged->app->redo();
            QCOMPARE(title.data().toString(), QStringLiteral("Typed"));
        }
    }

    void removingFollowsTheRowsThatAreShown()
    {
        m_table->sortByColumn(3, Qt::DescendingOrder); // 1943, galaga, qix, pong
        select({0});
        removeSelected();
        QVERIFY(!names().contains(QStringLiteral("1943")));
        QCOMPARE(names().size(), 3);
    }

    void theNextRowIsSelectedAfterARemoval()
    {
        select({1});
        removeSelected();
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("pong"));
        select({2});
        removeSelected();
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("pong"));
    }

    void removedRecordsAreGoneFromTheFileOnceItIsSaved()
    {
        select({1});
        removeSelected();
        m_staged->app->saveAction();
        QVERIFY(!m_staged->store().contains("galaga"));
        m_staged->app->undo();
        m_staged->app->saveAction();
        QVERIFY(m_staged->store().contains("galaga"));
    }

    void editsBeforeAndAfterARemovalAreUndoneInTurn()
    {
        Catalogue& catalogue = m_staged->app->catalogue();
        catalogue.setValue(3, Field::Title, QStringLiteral("Midway"));
        catalogue.remove({0, 2, 0});
        QCOMPARE(catalogue.records().size(), std::size_t(2));
        catalogue.setValue(1, Field::Title, QStringLiteral("Again"));
        QCOMPARE(title(1), QStringLiteral("Again"));
        for (int i = 0; i < 3; ++i)
            m_staged->app->undo();
        QCOMPARE(catalogue.records().size(), std::size_t(4));
        QCOMPARE(title(3), QStringLiteral("1943: The Battle of Midway"));
        for (int i = 0; i < 3; ++i)
            m_staged->app->redo();
        QCOMPARE(title(1), QStringLiteral("Again"));
    }

    void theEditorShowsTheSelectedRecord()
    {
        m_staged->app->editRecord();
        QVERIFY(m_editor->isVisible());
        QVERIFY(!m_editor->editSetname->isEnabled());
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        QCOMPARE(m_editor->editSetname->text(), QStringLiteral("galaga"));
        QCOMPARE(m_editor->editTitle->text(), QStringLiteral("Galaga"));
        QCOMPARE(m_editor->editTitlejp->text(), QStringLiteral("ギャラガ"));
        QCOMPARE(m_editor->editYear->text(), QStringLiteral("1981"));
        QCOMPARE(m_editor->editManufacture->text(), QStringLiteral("Namco"));
        QCOMPARE(m_editor->editParent->text(), QStringLiteral("galaga88"));
        QCOMPARE(m_editor->editStatus->text(), QStringLiteral("unusual"));
        QCOMPARE(m_editor->editType->text(), QStringLiteral("game"));
        QCOMPARE(m_editor->editDevice->text(), QString());
        QVERIFY(m_editor->editSetname->isEnabled());
    }

    void aFieldIsTakenOverWithReturn()
    {
        edit(QStringLiteral("galaga"), m_editor->editTitle, QStringLiteral("Bees"));
        QTest::keyClick(m_editor->editTitle, Qt::Key_Return);
        QCOMPARE(m_list->tableViewSelectionTitleE(), QStringLiteral("Bees"));
        m_staged->app->undo();
        QCOMPARE(m_editor->editTitle->text(), QStringLiteral("Galaga"));
        QVERIFY(!m_staged->app->catalogue().hasChanges());
    }

    void whatIsTypedGoesToTheRecordThatItWasTypedFor()
    {
        edit(QStringLiteral("galaga"), m_editor->editTitle, QStringLiteral("Bees"));
        QVERIFY(m_list->selectGame(QStringLiteral("pong")));
        QCOMPARE(m_editor->editTitle->text(), QStringLiteral("Pong"));
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        QCOMPARE(m_editor->editTitle->text(), QStringLiteral("Bees"));
    }

    void whatIsTypedNeverGoesToAnotherRecord()
    {
        edit(QStringLiteral("pong"), m_editor->editTitle, QStringLiteral("Tennis"));
        // Others are gone all at once, and another record stands at the old index.
        m_staged->app->catalogue().remove({0});
        for (const GameRecord& record : m_staged->app->catalogue().records())
            QVERIFY(record[Field::Title] != "Tennis");
    }

    void quittingTakesOverWhatWasTyped()
    {
        edit(QStringLiteral("pong"), m_editor->editTitle, QStringLiteral("Tennis"));
        QVERIFY(m_staged->app->applicationShouldTerminate());
        QVERIFY(m_staged->store().contains("Tennis"));
    }

    void saveTakesOverWhatWasTyped()
    {
        edit(QStringLiteral("pong"), m_editor->editTitle, QStringLiteral("Tennis"));
        m_staged->app->saveOfKeyWindow();
        QVERIFY(m_staged->store().contains("Tennis"));
        QVERIFY(!m_staged->app->catalogue().hasChanges());
    }

    void previousAndNextStepThroughTheList()
    {
        m_staged->app->editRecord();
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        m_editor->nextButton->click();
        QCOMPARE(m_editor->editSetname->text(), QStringLiteral("pong"));
        m_editor->previousButton->click();
        m_editor->previousButton->click();
        m_editor->previousButton->click();
        QCOMPARE(m_editor->editSetname->text(), QStringLiteral("1943"));
    }

    void theEditorRemovesToo()
    {
        m_staged->app->editRecord();
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_editor->editRemove->click();
        QVERIFY(!names().contains(QStringLiteral("galaga")));
        QCOMPARE(m_editor->editSetname->text(), QStringLiteral("pong"));
    }

    void withoutEditingNothingChanges()
    {
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        m_staged->app->editing().setLocked(true);
        m_staged->app->editRecord();
        QVERIFY(!m_editor->isVisible());
        m_staged->app->removeRecord();
        QVERIFY(m_staged->desktop.takeTranscript().isEmpty());
        QCOMPARE(names(), m_all);
    }

private:
    void select(const QList<int>& rows)
    {
        m_table->clearSelection();
        for (const int row : rows)
            m_table->selectionModel()->select(m_list->model()->index(row, 0),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    void removeSelected()
    {
        m_staged->desktop.answerAlert(QStringLiteral("record_remove_Message"), 0);
        m_staged->app->removeRecord();
    }

    void edit(const QString& game, QLineEdit* field, const QString& text)
    {
        m_staged->app->editRecord();
        QVERIFY(m_list->selectGame(game));
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    QString title(std::size_t record) const
    {
        const std::string_view text = m_staged->app->catalogue().records()[record][Field::Title];
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }

    QStringList names() const
    {
        QStringList list;
        for (int row = 0; row < m_list->model()->rowCount(); ++row)
            list << m_list->model()->index(row, 0).data().toString();
        return list;
    }

    const QStringList m_all{QStringLiteral("1943"), QStringLiteral("galaga"), QStringLiteral("pong"),
                            QStringLiteral("qix")};
    std::unique_ptr<StagedApp> m_staged;
    GameListController* m_list = nullptr;
    GameTableView* m_table = nullptr;
    RecordEditor* m_editor = nullptr;
};

TESSERA_TEST(RecordEditingTest);
#include "recordeditingtest.moc"
