#include "catalogue/ui/familydelegate.h"
#include "stagedtable.h"
#include "support/testmain.h"

#include <QFont>
#include <QHeaderView>
#include <QIcon>
#include <QSignalSpy>

using namespace tessera;
using test::machines;
using test::StagedTable;

/// What the model of the table says of each cell.
class TableCellsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stage = std::make_unique<StagedTable>(); }
    void cleanup() { m_stage.reset(); }

    void aRowSaysItsNineFields()
    {
        QStringList headings;
        QStringList values;
        for (int column = 0; column < model().columnCount(); ++column) {
            headings << model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            values << cell("zed", column).data().toString();
        }
        QCOMPARE(headings,
                 QStringList({"column_name", "column_title", "column_titlejp", "column_year", "column_maker",
                              "column_cloneof", "column_device", "column_status", "column_type"}));
        QCOMPARE(values, QStringList({"zed", "zed", "zed", "1970", "Maker", "abc", "", "good", ""}));
        QCOMPARE(cell("zed", 8).data(Qt::EditRole).toString(), QStringLiteral("game"));
        QCOMPARE(GameTableModel::columnOf(Field::Type), 8);
        QCOMPARE(GameTableModel::columnOf(Field::Name), 0);
        QVERIFY(!model().headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
        QVERIFY(!model().headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
        QCOMPARE(model().headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>(),
                 Qt::AlignLeft | Qt::AlignVCenter);
    }

    void aKindIsShownAsItsLabelAndEditedAsItIs()
    {
        m_stage->catalogue.setValue(0, Field::Type, "bios");
        QCOMPARE(cell("abc", 8).data().toString(), QStringLiteral("type : BIOS"));
        QCOMPARE(cell("abc", 8).data(Qt::EditRole).toString(), QStringLiteral("bios"));
    }

    // The mark says nothing to who cannot see it.
    void onlyTheFirstColumnTellsTheStatus()
    {
        QCOMPARE(cell("Zed", 0).data(Qt::ToolTipRole).toString(), QStringLiteral("Zed · imperfect"));
        QCOMPARE(cell("Zed", 0).data(Qt::AccessibleDescriptionRole).toString(), QStringLiteral("imperfect"));
        QVERIFY(cell("Zed", 0).data(Qt::DecorationRole).canConvert<QIcon>());
        for (const int role :
             {int(Qt::ToolTipRole), int(Qt::AccessibleDescriptionRole), int(Qt::DecorationRole)})
            QVERIFY(!cell("Zed", 1).data(role).isValid());
        QVERIFY(!cell("Zed", 0).data(Qt::CheckStateRole).isValid());
        QVERIFY(!model().data(QModelIndex(), Qt::DisplayRole).isValid());
    }

    void familiesAreToldToo()
    {
        m_stage->list.list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, RecordSet(machines.size())});
        const auto told = [this](const QString& name) {
            const QModelIndex index = cell(name, 0);
            return QStringLiteral("%1: %2 %3 %4, %5")
                .arg(name)
                .arg(index.data(FamilyDelegate::ClonesRole).toInt())
                .arg(index.data(FamilyDelegate::IsOpenRole).toBool())
                .arg(index.data(FamilyDelegate::IsCloneRole).toBool())
                .arg(index.data(Qt::AccessibleDescriptionRole).toString());
        };
        QCOMPARE(told("abc"), QStringLiteral("abc: 1 0 0, preliminary, row_clones_folded"));
        QCOMPARE(told("mid"), QStringLiteral("mid: 0 0 0, unusual"));
        RecordSet open(machines.size());
        open.insert(0);
        m_stage->list.list().setFamilies(ArrangedList::Families{{0, 1, 0, 3, 4}, open});
        QCOMPARE(told("abc"), QStringLiteral("abc: 1 1 0, preliminary, row_clones_shown"));
        QCOMPARE(told("zed"), QStringLiteral("zed: 0 1 1, good, row_clone"));
        m_stage->catalogue.setValue(2, Field::Status, "");
        QCOMPARE(told("zed"), QStringLiteral("zed: 0 1 1, row_clone"));
    }

    void aCellIsEditedUnlessTheListIsLocked()
    {
        const QModelIndex title = cell("mid", 1);
        QVERIFY(title.flags() & Qt::ItemIsEditable);
        QVERIFY(title.flags() & Qt::ItemNeverHasChildren);
        QCOMPARE(model().flags(QModelIndex()), Qt::NoItemFlags);
        QVERIFY(model().setData(title, "Middle", Qt::EditRole));
        QCOMPARE(m_stage->catalogue.records()[4][Field::Title], std::string_view("Middle"));
        // What changes nothing is no edit.
        QVERIFY(!model().setData(title, "Middle", Qt::EditRole));
        QVERIFY(!model().setData(title, "x", Qt::DisplayRole));
        QVERIFY(!model().setData(QModelIndex(), "x", Qt::EditRole));
        model().setLocked(true);
        QVERIFY(!(title.flags() & Qt::ItemIsEditable));
        QVERIFY(title.flags() & Qt::ItemIsSelectable);
        QVERIFY(!model().setData(title, "x", Qt::EditRole));
        QCOMPARE(m_stage->catalogue.records()[4][Field::Title], std::string_view("Middle"));
        model().setLocked(false);
        QVERIFY(model().setData(title, "x", Qt::EditRole));
    }

    void anEditIsShownInItsRow()
    {
        QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
        const int row = cell("mid", 0).row();
        m_stage->catalogue.setValue(4, Field::Year, "1999");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex(), model().index(row, 0));
        QCOMPARE(changed[0][1].toModelIndex(), model().index(row, 8));
        m_stage->list.list().setPredicate(
            [](const GameRecord& record) { return record[Field::Name] != "mid"; });
        changed.clear();
        m_stage->catalogue.setValue(4, Field::Year, "1998");
        QCOMPARE(changed.size(), 0);
    }

    void theFontHasTheChosenSizeWithinBounds_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("shown");
        QTest::newRow("usual") << 13 << 13;
        QTest::newRow("smallest") << 4 << 4;
        QTest::newRow("too small") << 3 << 4;
        QTest::newRow("largest") << 200 << 200;
        QTest::newRow("too large") << 201 << 200;
    }

    void theFontHasTheChosenSizeWithinBounds()
    {
        QFETCH(int, size);
        QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
        m_stage->controls.setIndex(keys::fontSize, size);
        QTEST(cell("mid", 1).data(Qt::FontRole).value<QFont>().pixelSize(), "shown");
        QCOMPARE(changed.last()[0].toModelIndex(), model().index(0, 0));
        QCOMPARE(changed.last()[1].toModelIndex(), model().index(4, 8));
    }

    void theRowsHaveTheChosenFont()
    {
        m_stage->controls.setText(keys::TablefontName, "DejaVu Serif");
        QCOMPARE(cell("mid", 1).data(Qt::FontRole).value<QFont>().families().constFirst(),
                 QStringLiteral("DejaVu Serif"));
    }

    void otherRowsAreToldBeforeAndAfter()
    {
        const QSignalSpy before(&model(), &QAbstractItemModel::modelAboutToBeReset);
        const QSignalSpy after(&model(), &QAbstractItemModel::modelReset);
        m_stage->list.list().setPredicate(
            [](const GameRecord& record) { return record[Field::Name] != "mid"; });
        QCOMPARE(before.size(), 1);
        QCOMPARE(after.size(), 1);
    }

    void everySettingOfTheLookPaintsTheRowsAnew()
    {
        QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
        for (const auto& name :
             {keys::TablefontName.name, keys::fontSize.name, keys::GamelistColoring.name,
              keys::TableViewTextColor.name, keys::TableViewTextColor2.name, keys::RomsPath.name}) {
            changed.clear();
            Q_EMIT m_stage->controls.changed(name);
            QVERIFY2(!changed.isEmpty(), name.data());
        }
        changed.clear();
        Q_EMIT m_stage->controls.changed(keys::FavoritefontName.name);
        QVERIFY(changed.isEmpty());
        Q_EMIT m_stage->controls.changed(QString());
        QVERIFY(!changed.isEmpty());
    }

    void aRowWithoutANameHasNoColour()
    {
        m_stage->controls.setText(keys::TableViewTextColor, "#ff010203");
        QCOMPARE(cell("mid", 1).data(Qt::ForegroundRole).value<QColor>(), QColor(1, 2, 3));
        QVERIFY(cell("", 1).data(Qt::ForegroundRole).isValid());
    }

    void nothingThatIsDraggedIsTakenYet()
    {
        QCOMPARE(model().mimeTypes(), QStringList("CoreDataDragType"));
        QCOMPARE(m_stage->table->dragDropMode(), QAbstractItemView::DropOnly);
        QCOMPARE(model().rowCount(model().index(0, 0)), 0);
        QCOMPARE(model().columnCount(model().index(0, 0)), 0);
    }

    void aColumnThatIsNotThereSortsNothing()
    {
        QStringList before;
        for (int row = 0; row < model().rowCount(); ++row)
            before << model().index(row, 0).data().toString();
        model().sort(-1, Qt::DescendingOrder);
        model().sort(9, Qt::DescendingOrder);
        for (int row = 0; row < model().rowCount(); ++row)
            QCOMPARE(model().index(row, 0).data().toString(), before[row]);
        model().sort(8, Qt::DescendingOrder);
        model().sort(0, Qt::DescendingOrder);
        QCOMPARE(model().index(0, 0).data().toString(), QStringLiteral("zed"));
    }

private:
    GameTableModel& model() { return *m_stage->list.model(); }
    QModelIndex cell(const QString& name, int column)
    {
        for (int row = 0; row < model().rowCount(); ++row) {
            if (model().index(row, 0).data().toString() == name)
                return model().index(row, column);
        }
        return {};
    }

    std::unique_ptr<StagedTable> m_stage;
};

TESSERA_TEST(TableCellsTest);
#include "tablecellstest.moc"
