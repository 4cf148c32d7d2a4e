#include "stagedtable.h"
#include "support/testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

using namespace tessera;
using test::machines;
using test::StagedTable;

/// The table with its commands, as somebody uses it by keyboard.
class TableKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stage = std::make_unique<StagedTable>();
        m_table = m_stage->table.get();
        m_list = &m_stage->list;
        m_table->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_table));
        m_table->setFocus();
    }
    void cleanup() { m_stage.reset(); }

    // Rows are whole, low and alike; nothing is edited unless it is asked for.
    void aRowIsALineOfItsOwn()
    {
        QCOMPARE(m_table->selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(m_table->selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(m_table->editTriggers(), QAbstractItemView::EditKeyPressed);
        QVERIFY(m_table->alternatingRowColors());
        QVERIFY(!m_table->showGrid());
        QVERIFY(!m_table->wordWrap());
        QVERIFY(m_table->isSortingEnabled());
        QVERIFY(!m_table->tabKeyNavigation());
        QCOMPARE(m_table->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(m_table->horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(m_table->iconSize(), QSize(14, 14));
        QVERIFY(m_table->verticalHeader()->isHidden());
        QCOMPARE(m_table->verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
        QCOMPARE(m_table->verticalHeader()->minimumSectionSize(), 8);
        const QHeaderView* header = m_table->horizontalHeader();
        QVERIFY(header->sectionsMovable());
        QVERIFY(!header->highlightSections());
        QVERIFY(header->stretchLastSection());
        QCOMPARE(header->contextMenuPolicy(), Qt::CustomContextMenu);
    }

    void returnLaunches_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("launches");
        QTest::newRow("return") << Qt::Key_Return << Qt::KeyboardModifiers() << 1;
        QTest::newRow("enter") << Qt::Key_Enter << Qt::KeyboardModifiers() << 1;
        QTest::newRow("with shift") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ShiftModifier) << 0;
        QTest::newRow("a blank") << Qt::Key_Space << Qt::KeyboardModifiers() << 0;
    }

    void returnLaunches()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QVERIFY(m_list->selectGame("mid"));
        const QSignalSpy launched(m_list, &GameListController::launchRequested);
        QTest::keyClick(m_table, key, modifiers);
        QTEST(int(launched.size()), "launches");
    }

    void returnInACellEndsTheEdit()
    {
        QVERIFY(m_list->selectGame("mid"));
        m_table->setCurrentIndex(m_list->model()->index(m_list->firstRow(), 1));
        const QSignalSpy launched(m_list, &GameListController::launchRequested);
        const QSignalSpy typed(m_table, &GameTableView::typed);
        QTest::keyClick(m_table, Qt::Key_F2);
        auto* editor = m_table->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        editor->setText("Middle");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(m_stage->catalogue.records()[4][Field::Title], std::string_view("Middle"));
        QVERIFY(launched.isEmpty() && typed.isEmpty());
    }

    void anOpenEditorIsTakenOver()
    {
        QVERIFY(m_list->selectGame("mid"));
        m_table->setCurrentIndex(m_list->model()->index(m_list->firstRow(), 1));
        QTest::keyClick(m_table, Qt::Key_F2);
        m_table->viewport()->findChild<QLineEdit*>()->setText("Middle");
        m_list->commitEditing();
        QTRY_VERIFY(m_table->viewport()->findChild<QLineEdit*>() == nullptr);
        QCOMPARE(m_stage->catalogue.records()[4][Field::Title], std::string_view("Middle"));
    }

    void lettersAreForTheSearchField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("typed");
        QTest::newRow("a letter") << "q" << Qt::KeyboardModifiers() << "q";
        QTest::newRow("a capital") << "Q" << Qt::KeyboardModifiers(Qt::ShiftModifier) << "Q";
        QTest::newRow("with control") << "q" << Qt::KeyboardModifiers(Qt::ControlModifier) << "";
        QTest::newRow("with alt") << "q" << Qt::KeyboardModifiers(Qt::AltModifier) << "";
        QTest::newRow("with meta") << "q" << Qt::KeyboardModifiers(Qt::MetaModifier) << "";
        QTest::newRow("a blank") << " " << Qt::KeyboardModifiers() << "";
        QTest::newRow("nothing that is seen") << "\x1B" << Qt::KeyboardModifiers() << "";
        QTest::newRow("nothing") << "" << Qt::KeyboardModifiers() << "";
    }

    void lettersAreForTheSearchField()
    {
        QFETCH(QString, text);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QString heard;
        connect(m_table, &GameTableView::typed, this, [&](const QString& typed) { heard += typed; });
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, modifiers, text);
        QCoreApplication::sendEvent(m_table, &press);
        QTEST(heard, "typed");
    }

    void whatIsComposedIsForTheSearchField()
    {
        QStringList heard;
        connect(m_table, &GameTableView::composed, this, [&](const QInputMethodEvent* event) {
            heard << event->preeditString() + u'|' + event->commitString();
        });
        QInputMethodEvent composing("k", {});
        QCoreApplication::sendEvent(m_table, &composing);
        QInputMethodEvent committed;
        committed.setCommitString("か");
        QCoreApplication::sendEvent(m_table, &committed);
        QInputMethodEvent nothing;
        QCoreApplication::sendEvent(m_table, &nothing);
        QCOMPARE(heard, QStringList({"k|", "|か"}));
    }

    void arrowsOpenAndFoldAFamily()
    {
        QSignalSpy toggled(m_table, &GameTableView::familyToggled);
        setFamilies(false);
        QVERIFY(m_list->selectGame("abc"));
        const int row = m_list->firstRow();
        QTest::keyClick(m_table, Qt::Key_Left);
        QTest::keyClick(m_table, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(toggled.size(), 0);
        QVERIFY(m_list->selectGame("abc"));
        QTest::keyClick(m_table, Qt::Key_Right);
        QCOMPARE(toggled.size(), 1);
        QCOMPARE(toggled.takeFirst()[0].toInt(), row);
        setFamilies(true);
        QVERIFY(m_list->selectGame("abc"));
        QTest::keyClick(m_table, Qt::Key_Right);
        QCOMPARE(toggled.size(), 0);
        QVERIFY(m_list->selectGame("abc"));
        QTest::keyClick(m_table, Qt::Key_Left);
        QCOMPARE(toggled.size(), 1);
        toggled.clear();
        QVERIFY(m_list->selectGame("mid"));
        QTest::keyClick(m_table, Qt::Key_Left);
        QTest::keyClick(m_table, Qt::Key_Right);
        QCOMPARE(toggled.size(), 0);
    }

    void copiesRowsAsTheyStand()
    {
        m_stage->catalogue.setValue(4, Field::Maker, " a\tb\nc ");
        QGuiApplication::clipboard()->setText("before");
        m_table->clearSelection();
        m_table->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
        for (const int column : {2, 5, 6, 7, 8})
            m_table->hideColumn(column);
        m_table->horizontalHeader()->moveSection(m_table->horizontalHeader()->visualIndex(3), 0);
        QCOMPARE(m_table->firstColumn(), 3);
        m_list->selectRecords({4, 1, 0});
        m_table->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("1980\tZed\tZed\tMaker\n1999\tabc\tabc\tMaker\n1980\tmid\tmid\ta b c\n"));
    }

    void columnsAreShownAndHiddenByTheirMenu()
    {
        for (const int column : {7, 8})
            m_table->hideColumn(column);
        QMenu menu;
        m_table->fillColumnsMenu(menu);
        m_table->fillColumnsMenu(menu);
        QStringList items;
        for (const QAction* action : menu.actions())
            items << QStringLiteral("%1%2").arg(action->isChecked() ? "+" : "-", action->text());
        QCOMPARE(
            items,
            QStringList({"+column_name", "+column_title", "+column_titlejp", "+column_year", "+column_maker",
                         "+column_cloneof", "+column_device", "-column_status", "-column_type"}));
        menu.actions().at(8)->trigger();
        QVERIFY(!m_table->isColumnHidden(8));
        for (int column = 0; column < 7; ++column)
            menu.actions().at(column)->trigger();
        QVERIFY(m_table->isColumnHidden(0));
        // One stays.
        m_table->fillColumnsMenu(menu);
        QVERIFY(!menu.actions().at(8)->isEnabled());
        QVERIFY(menu.actions().at(7)->isEnabled());
    }

    void theHeaderOpensTheirMenu()
    {
        QStringList items;
        QTimer::singleShot(0, this, [&items] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            for (const QAction* action : menu->actions())
                items << action->text();
            // As a click chooses it.
            menu->setActiveAction(menu->actions().at(3));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QHeaderView* header = m_table->horizontalHeader();
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(10, 5), header->mapToGlobal(QPoint(10, 5)));
        QApplication::sendEvent(header->viewport(), &asked);
        QCOMPARE(items.size(), 9);
        QCOMPARE(items.at(3), QStringLiteral("column_year"));
        QVERIFY(m_table->isColumnHidden(3));
    }

    void aRowIsSelectedAloneAndInView()
    {
        m_table->resize(300, 60);
        m_list->selectRecords({0, 1, 4});
        QCOMPARE(m_list->selectedCount(), 3);
        m_list->selectRow(2);
        QCOMPARE(m_list->selectedCount(), 1);
        QCOMPARE(m_list->firstRow(), 2);
        m_list->selectRow(99);
        QCOMPARE(m_list->firstRow(), 4);
        QVERIFY(m_table->viewport()->rect().intersects(m_table->visualRect(m_list->model()->index(4, 0))));
        m_list->selectRow(-1);
        QCOMPARE(m_list->firstRow(), 4);
        m_list->selectNeighbour(1);
        QCOMPARE(m_list->firstRow(), 4);
        m_list->selectNeighbour(-1);
        QCOMPARE(m_list->firstRow(), 3);
        m_list->selectRow(0);
        m_list->selectNeighbour(-1);
        QCOMPARE(m_list->firstRow(), 0);
        m_list->selectNeighbour(1);
        QCOMPARE(m_list->firstRow(), 1);
        m_table->clearSelection();
        m_list->selectNeighbour(1);
        QCOMPARE(m_list->firstRow(), -1);
        QVERIFY(!m_list->selectGame("nothing"));
        QCOMPARE(m_list->firstRow(), -1);
    }

    void aRowThatIsSelectedStandsInTheMiddle()
    {
        m_table->resize(300, m_table->horizontalHeader()->height() + 3 * m_table->rowHeight(0));
        m_table->layOut();
        QVERIFY(m_table->verticalScrollBar()->maximum() > 0);
        m_list->selectRow(2);
        const int middle = m_table->visualRect(m_list->model()->index(2, 0)).center().y();
        QVERIFY2(std::abs(middle - m_table->viewport()->height() / 2) <= m_table->rowHeight(0) / 2 + 1,
                 qPrintable(QString::number(middle)));
    }

    // Where nothing is selected nothing moves.
    void aRearrangementStaysWhereItWasScrolled()
    {
        m_table->resize(300, m_table->horizontalHeader()->height() + 2 * m_table->rowHeight(0));
        m_table->layOut();
        m_table->clearSelection();
        m_table->verticalScrollBar()->setValue(25);
        hideMid();
        QCOMPARE(m_table->verticalScrollBar()->value(), 25);
    }

    void rowsAreAddedWithControlAndCopiedInTheirOrder()
    {
        const auto click = [this](int row, Qt::KeyboardModifiers modifiers) {
            QTest::mouseClick(m_table->viewport(), Qt::LeftButton, modifiers,
                              m_table->visualRect(m_list->model()->index(row, 1)).center());
        };
        click(3, {});
        click(1, Qt::ControlModifier);
        QCOMPARE(m_list->selectedCount(), 2);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("Zed"));
        for (int column = 1; column < 9; ++column)
            m_table->hideColumn(column);
        m_table->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Zed\nmid\n"));
        m_table->showColumn(1);
        click(4, Qt::ShiftModifier);
        QVERIFY(m_list->selectedCount() > 1);
        click(0, {});
        QCOMPARE(m_list->selectedCount(), 1);
    }

    void aRandomGameIsSelectedWithItsSound()
    {
        m_list->gameShuffle();
        QCOMPARE(m_list->selectedCount(), 1);
        QCOMPARE(m_stage->desktop.takeTranscript(), QStringList("sound slot_end"));
        m_list->list().setPredicate([](const GameRecord&) { return false; });
        m_list->gameShuffle();
        QCOMPARE(m_stage->desktop.takeTranscript(), QStringList("beep"));
    }

    void anArchiveIsChosenAndLaunched()
    {
        QSignalSpy launched(m_list, &GameListController::launchRequested);
        m_stage->desktop.answerOpen("/r/pong.zip");
        m_list->openROMfile();
        QCOMPARE(launched.takeFirst()[0].toString(), QStringLiteral("/r/pong.zip"));
        QCOMPARE(m_stage->desktop.openRequests.at(0).extensions, QStringList("zip"));
        QCOMPARE(m_stage->desktop.openRequests.at(0).title, QStringLiteral("choose_archive"));
        m_stage->desktop.answerOpen(std::nullopt);
        m_list->openROMfile();
        QVERIFY(launched.isEmpty());
    }

    // What is selected stays so while the rows become others, and nobody hears of it.
    void aRearrangementKeepsWhatItCan()
    {
        m_list->selectRecords({0, 4});
        QSignalSpy changes(m_list, &GameListController::selectionChanged);
        {
            const ListController::Rearranging keeping(*m_list);
            m_list->list().setSort(Field::Year, true);
        }
        QCOMPARE(m_list->selectedCount(), 2);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("mid"));
        changes.clear();
        {
            const ListController::Rearranging keeping(*m_list);
        }
        QCOMPARE(changes.size(), 0);
        hideMid();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("abc"));
    }

private:
    void hideMid()
    {
        const ListController::Rearranging keeping(*m_list);
        m_list->list().setPredicate([](const GameRecord& record) { return record[Field::Name] != "mid"; });
    }
    void setFamilies(bool isOpen)
    {
        RecordSet open(machines.size());
        if (isOpen)
            open.insert(0);
        m_list->list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, open});
    }

    std::unique_ptr<StagedTable> m_stage;
    GameTableView* m_table = nullptr;
    GameListController* m_list = nullptr;
};

TESSERA_TEST(TableKeysTest);
#include "tablekeystest.moc"
