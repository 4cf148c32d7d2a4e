#include "catalogue/ui/familydelegate.h"
#include "stagedtable.h"
#include "support/testmain.h"
#include "widgets/sortheader.h"

#include <QHeaderView>
#include <QSignalSpy>

using namespace tessera;
using test::machines;
using test::StagedTable;

/// The table with its commands, as somebody uses it with the mouse.
class GameTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stage = std::make_unique<StagedTable>();
        m_table = m_stage->table.get();
        m_list = &m_stage->list;
    }
    void cleanup() { m_stage.reset(); }

    void theFirstSortIsByTheColumnThatStandsFirst_data()
    {
        QTest::addColumn<int>("hidden");
        QTest::addColumn<int>("moved");
        QTest::addColumn<QStringList>("names");
        // No name goes first, and capitals before small letters.
        const QStringList byName{"", "Zed", "abc", "mid", "zed"};
        const QStringList byYear{"zed", "Zed", "mid", "", "abc"};
        QTest::newRow("as it is made") << -1 << -1 << byName;
        QTest::newRow("the year was dragged to the front") << -1 << 3 << byYear;
        QTest::newRow("another one, which is hidden, before it") << 4 << 3 << byYear;
    }
    void theFirstSortIsByTheColumnThatStandsFirst()
    {
        QFETCH(int, hidden);
        QFETCH(int, moved);
        QHeaderView* header = m_table->horizontalHeader();
        if (moved >= 0)
            header->moveSection(header->visualIndex(moved), 0);
        if (hidden >= 0) {
            header->moveSection(header->visualIndex(hidden), 0);
            header->hideSection(hidden);
        }
        m_list->main_tableViewSort();
        QTEST(names(), "names");
        QCOMPARE(header->sortIndicatorSection(), std::max(0, moved));
        QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    // It decides among equal ones.
    void theColumnThatWasSortedBeforeIsMarked()
    {
        const QSignalSpy told(m_table->model(), &QAbstractItemModel::headerDataChanged);
        QCOMPARE(second(), QString());
        clickHeader(3);
        QCOMPARE(second(), QStringLiteral("0 column_second_up"));
        QCOMPARE(told.size(), 1);
        clickHeader(3);
        QCOMPARE(second(), QStringLiteral("0 column_second_up"));
        QCOMPARE(told.size(), 1);
        clickHeader(4);
        QCOMPARE(second(), QStringLiteral("3 column_second_down"));
        clickHeader(0);
        QCOMPARE(second(), QStringLiteral("4 column_second_up"));
    }

    // Rows stay where they are, as all have one maker.
    void aSortThatChangesNoRowMarksToo()
    {
        clickHeader(4);
        QCOMPARE(second(), QStringLiteral("0 column_second_up"));
    }

    void noColumnIsMarkedWhereRanksDecide()
    {
        clickHeader(3);
        ArrangedList& list = m_list->list();
        Found found{RecordSet::all(5), {4, 3, 2, 1, 0}};
        list.setFound(found);
        QCOMPARE(second(), QString());
        clickHeader(4); // all are equal
        QCOMPARE(names(), (QStringList{"mid", "", "zed", "Zed", "abc"}));
        QCOMPARE(second(), QString());
        clickHeader(4);
        QCOMPARE(second(), QString());
        list.setFound(std::nullopt);
        QCOMPARE(second(), QString());
        clickHeader(0);
        QCOMPARE(second(), QStringLiteral("4 column_second_down"));
    }

    void equalOnesKeepTheOrderThatWasShown()
    {
        clickHeader(0);
        QCOMPARE(names(), (QStringList{"zed", "mid", "abc", "Zed", ""}));
        clickHeader(3);
        QCOMPARE(names(), (QStringList{"zed", "mid", "Zed", "", "abc"}));
        clickHeader(7);
        QCOMPARE(names(), (QStringList{"zed", "", "Zed", "abc", "mid"}));
    }

    void whatFollowsTheSelectionFollowsANewFirstRow()
    {
        select({"abc", "zed"});
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("abc"));
        QSignalSpy changes(m_list, &GameListController::selectionChanged);
        QSignalSpy marks(m_list, &GameListController::markChanged);
        clickHeader(3);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("zed"));
        QCOMPARE(m_list->selectedCount(), 2);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(marks.count(), 1);
        QCOMPARE(marks.constFirst().constFirst().toString(), QStringLiteral("plovermark_good"));
    }

    void aSortThatLeavesTheFirstRowTellsNobody()
    {
        select({"Zed", "abc"});
        QSignalSpy changes(m_list, &GameListController::selectionChanged);
        clickHeader(3);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("Zed"));
        QCOMPARE(changes.count(), 0);
        m_table->clearSelection();
        changes.clear();
        clickHeader(0);
        QCOMPARE(changes.count(), 0);
    }

    // Where a family's parent is hidden, the clone that comes first stands for it.
    void aSortThatTakesASelectedRowAwayIsTold_data()
    {
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("mark");
        QTest::newRow("the only one") << QStringList{"Zed"} << QString() << "plovermark_none";
        QTest::newRow("one behind the first") << QStringList{"", "Zed"} << QString() << "plovermark_good";
    }
    void aSortThatTakesASelectedRowAwayIsTold()
    {
        QFETCH(QStringList, chosen);
        m_list->list().setFamilies(ArrangedList::Families{{0, 0, 0, 3, 4}, RecordSet(machines.size())});
        m_list->list().setPredicate([](const GameRecord& record) { return record[Field::Name] != "abc"; });
        QCOMPARE(names(), (QStringList{"", "Zed", "mid"}));
        select(chosen);
        QSignalSpy changes(m_list, &GameListController::selectionChanged);
        QSignalSpy marks(m_list, &GameListController::markChanged);
        clickHeader(3);
        QCOMPARE(names(), (QStringList{"zed", "mid", ""}));
        QCOMPARE(m_list->selectedCount(), static_cast<int>(chosen.size()) - 1);
        QTEST(m_list->tableViewSelectionROM(), "first");
        QCOMPARE(changes.count(), 1);
        QCOMPARE(marks.count(), 1);
        QTEST(marks.constFirst().constFirst().toString(), "mark");
    }

    void onlyTheLeftButtonLaunches_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("back") << Qt::BackButton;
    }
    void onlyTheLeftButtonLaunches()
    {
        QFETCH(Qt::MouseButton, button);
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        doubleClick(m_table->visualRect(indexOf("mid")).center(), button);
        doubleClick(QPoint(60, m_table->viewport()->height() - 5), button);
        QCOMPARE(launches.count(), 0);
        QVERIFY(m_stage->desktop.takeTranscript().isEmpty());
    }

    // A launch may ask something, and the rows may be others by then.
    void rowsThatGoWhileAGameIsStartedStartNoOther()
    {
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        connect(m_list, &GameListController::launchRequested, this,
                [this] { m_list->list().setPredicate([](const GameRecord&) { return false; }); });
        doubleClick(m_table->visualRect(indexOf("mid")).center());
        QCOMPARE(launches.count(), 1);
        QVERIFY(m_stage->desktop.takeTranscript().isEmpty());
    }

    void aDoubleClickLaunches()
    {
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        doubleClick(m_table->visualRect(indexOf("mid")).center());
        QCOMPARE(launches.count(), 1);
        QCOMPARE(launches.constFirst().constFirst().toString(), QStringLiteral("mid"));
        QVERIFY(m_stage->desktop.takeTranscript().isEmpty());
    }

    void aDoubleClickBeneathTheRowsBeeps()
    {
        select({"mid"});
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        const QPoint beneath(60, m_table->viewport()->height() - 5);
        QVERIFY(!m_table->indexAt(beneath).isValid());
        doubleClick(beneath);
        QCOMPARE(launches.count(), 0);
        QCOMPARE(m_stage->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
    }

    void aDoubleClickOnARowWithoutANameBeeps()
    {
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        doubleClick(m_table->visualRect(indexOf(QString())).center());
        QCOMPARE(m_list->selectedCount(), 1);
        QCOMPARE(launches.count(), 0);
        QCOMPARE(m_stage->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
    }

    void onlyTheLeftButtonFoldsAFamily_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("toggled");
        QTest::newRow("left") << Qt::LeftButton << 1;
        QTest::newRow("middle") << Qt::MiddleButton << 0;
        QTest::newRow("back") << Qt::BackButton << 0;
    }
    void onlyTheLeftButtonFoldsAFamily()
    {
        QFETCH(Qt::MouseButton, button);
        m_list->list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, RecordSet(machines.size())});
        const QModelIndex family = indexOf("abc");
        QCOMPARE(family.data(FamilyDelegate::ClonesRole).toInt(), 1);
        QSignalSpy toggled(m_table, &GameTableView::familyToggled);
        const QRect cell = m_table->visualRect(family);
        QTest::mouseClick(m_table->viewport(), button, Qt::NoModifier,
                          QPoint(cell.right() - 4, cell.center().y()));
        QTEST(static_cast<int>(toggled.count()), "toggled");
    }

    // The rest of the cell selects, and so does a row without clones.
    void onlyTheCountOfClonesFolds_data()
    {
        QTest::addColumn<bool>("isOpen");
        QTest::addColumn<QString>("badge");
        QTest::newRow("folded") << false << QStringLiteral("▸ 1");
        QTest::newRow("open") << true << QStringLiteral("▾ 1");
    }
    void onlyTheCountOfClonesFolds()
    {
        QFETCH(bool, isOpen);
        QFETCH(QString, badge);
        RecordSet open(machines.size());
        if (isOpen)
            open.insert(0);
        m_list->list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, open});
        QSignalSpy toggled(m_table, &GameTableView::familyToggled);
        const QRect cell = m_table->visualRect(indexOf("abc"));
        const int begin = cell.right() - m_table->fontMetrics().horizontalAdvance(badge) - 16;
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, QPoint(begin, cell.center().y()));
        QCOMPARE(toggled.count(), 0);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("abc"));
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, QPoint(begin + 1, cell.center().y()));
        QCOMPARE(toggled.count(), 1);
        QCOMPARE(toggled.constFirst().constFirst().toInt(), indexOf("abc").row());
        const QRect other = m_table->visualRect(indexOf("mid"));
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, QPoint(other.right(), other.center().y()));
        QCOMPARE(toggled.count(), 1);
    }

    // A clone stands a little to the right of its parent, and a family's count at the right.
    void clonesAreIndented()
    {
        RecordSet open(machines.size());
        open.insert(0);
        m_list->list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, open});
        m_table->clearSelection();
        m_table->setCurrentIndex(QModelIndex());
        const auto left = [this](const QString& name) { return inked(indexOf(name)).first; };
        const auto right = [this](const QString& name) { return inked(indexOf(name)).second; };
        QVERIFY(left("zed") - left("mid") >= 12);
        QVERIFY(left("abc") < left("zed"));
        QVERIFY(right("abc") > right("mid") + 20);
        QVERIFY(right("abc") <= m_table->visualRect(indexOf("abc")).right() - 8 + 1);
    }

private:
    // Where something is drawn in a cell, from left to right.
    std::pair<int, int> inked(const QModelIndex& index) const
    {
        const QRect cell = m_table->visualRect(index);
        const QImage image = m_table->viewport()->grab(cell).toImage();
        const QRgb ground = image.pixel(image.width() / 2, image.height() - 2);
        int first = image.width();
        int last = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 2; y < image.height() - 2; ++y) {
                if (image.pixel(x, y) != ground) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        return {first, last};
    }

    // The column that is marked, and what is said of it.
    QString second() const
    {
        const QAbstractItemModel* model = m_table->model();
        QStringList marked;
        for (int column = 0; column < model->columnCount(); ++column) {
            const auto data = [&](int role) { return model->headerData(column, Qt::Horizontal, role); };
            const QString said = data(Qt::ToolTipRole).toString();
            const bool isUpwards = said.endsWith(QStringLiteral("up"));
            const QVariant order = data(SortHeader::SecondSortRole);
            if (order.isValid() != !said.isEmpty() || data(Qt::AccessibleDescriptionRole).toString() != said
                || (order.isValid() && (order.toInt() == Qt::AscendingOrder) != isUpwards))
                marked << QStringLiteral("odd");
            if (order.isValid())
                marked << QString::number(column) + u' ' + said;
        }
        return marked.join(u' ');
    }

    QStringList names() const
    {
        QStringList list;
        for (int row = 0; row < m_table->model()->rowCount(); ++row)
            list << m_table->model()->index(row, 0).data().toString();
        return list;
    }

    QModelIndex indexOf(const QString& name) const
    {
        return m_table->model()->index(static_cast<int>(names().indexOf(name)), 0);
    }

    void select(const QStringList& chosen)
    {
        m_table->clearSelection();
        for (const QString& name : chosen)
            m_table->selectionModel()->select(indexOf(name),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    void clickHeader(int column)
    {
        QHeaderView* header = m_table->horizontalHeader();
        header->setSectionHidden(column, false);
        header->resizeSection(column, 90);
        const int middle = header->sectionViewportPosition(column) + 45;
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(middle, header->height() / 2));
        QCOMPARE(header->sortIndicatorSection(), column);
    }

    void doubleClick(QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_table->viewport(), button, Qt::NoModifier, place);
        QTest::mouseDClick(m_table->viewport(), button, Qt::NoModifier, place);
    }

    std::unique_ptr<StagedTable> m_stage;
    GameTableView* m_table = nullptr;
    GameListController* m_list = nullptr;
};

TESSERA_TEST(GameTableTest);
#include "gametabletest.moc"
