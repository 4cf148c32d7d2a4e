#include "tools/ui/rowsmodel.h"

#include "support/testmain.h"

#include <QAbstractItemModelTester>

using namespace tessera;

namespace {

QStringList shown(const RowsModel& model)
{
    QStringList names;
    for (std::size_t i = 0; i < model.size(); ++i)
        names << QString::fromStdString(model.shown(i).name);
    return names;
}

} // namespace

class RowsModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsByEitherColumnAndStaysStable()
    {
        RowsModel model({"Name", "State"});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setRows({{"c", "2"}, {"a", "1"}, {"d", "1"}, {"b", "2"}});
        QCOMPARE(shown(model), QStringList({"c", "a", "d", "b"}));
        const QPersistentModelIndex third = model.index(2, 0);
        model.sort(0, Qt::AscendingOrder);
        QCOMPARE(shown(model), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(third.data(Qt::DisplayRole).toString(), "d");
        model.sort(1, Qt::AscendingOrder);
        QCOMPARE(shown(model), QStringList({"a", "d", "c", "b"}));
        model.sort(1, Qt::DescendingOrder);
        QCOMPARE(shown(model), QStringList({"c", "b", "a", "d"}));
        QCOMPARE(third.row(), 3);
        model.setState(model.placeOf(0), "new");
        QCOMPARE(model.index(0, 1).data().toString(), "new");
        model.sort(-1, Qt::AscendingOrder);
        QCOMPARE(shown(model), QStringList({"c", "a", "d", "b"}));
        QCOMPARE(model.index(0, 1).data().toString(), "new");
        model.setRows({});
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!third.isValid());
    }

    void aFilterLeavesNamesThatHoldItsText()
    {
        RowsModel model({"Name", "State"});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setRows({{"pacman", "2"}, {"Ms. Pac", "1"}, {"galaga", "1"}});
        model.setFilter(" PAC ");
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.size(), std::size_t(3));
        QCOMPARE(shown(model), QStringList({"pacman", "Ms. Pac", "galaga"}));
        const QPersistentModelIndex second = model.index(1, 0);
        model.sort(1, Qt::AscendingOrder);
        QCOMPARE(model.visible(0).name, std::string("Ms. Pac"));
        QCOMPARE(second.row(), 0);
        model.setState(0, "new");
        QCOMPARE(model.index(1, 1).data().toString(), "new");
        model.setRows({{"qix", "1"}});
        QCOMPARE(model.rowCount(), 0);
        model.setState(0, "newer");
        model.setFilter({});
        QCOMPARE(model.index(0, 1).data().toString(), "newer");
    }

    void namesAreShownOnOneLine()
    {
        RowsModel model({"Name", "State"});
        model.setRows({{"a\nb\tc", ""}, {"\xE9", ""}});
        QCOMPARE(model.index(0, 0).data().toString(), QString::fromUtf8("a\u21B5b\uFFFDc"));
        QCOMPARE(model.index(1, 0).data().toString(), QString(QChar(QChar::ReplacementCharacter)));
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "State");
        QVERIFY(!model.index(0, 0).data(Qt::EditRole).isValid());
    }
};

TESSERA_TEST(RowsModelTest);
#include "rowsmodeltest.moc"
