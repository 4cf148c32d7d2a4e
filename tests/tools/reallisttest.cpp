#include "tools/conversion.h"

#include "naiveconverter.h"
#include "support/testmain.h"
#include "tools/titletable.h"

#include <QDir>
#include <QFile>

using namespace tessera;

/// Lists and title lists that real programs wrote.
class RealListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsAreConvertedByTheRules_data()
    {
        QTest::addColumn<QString>("listxml");
        QTest::addColumn<QString>("titles");
        const QDir data(QStringLiteral(TESSERA_REAL_DATA));
        const QDir lists(data.filePath("listxml"));
        const QDir titles(data.filePath("titles"));
        QVERIFY(!lists.entryList({"*.xml"}).isEmpty());
        QVERIFY(!titles.entryList({"*.lst"}).isEmpty());
        for (const QString& list : lists.entryList({"*.xml"})) {
            for (const QString& title : titles.entryList({"*.lst"}))
                QTest::newRow(qPrintable(list + " " + title))
                    << lists.filePath(list) << titles.filePath(title);
        }
    }

    void listsAreConvertedByTheRules()
    {
        QFETCH(QString, listxml);
        QFETCH(QString, titles);
        const auto table = readTitles(titles);
        QVERIFY(table);
        QVERIFY(table->entries().size() > 1000);
        const auto list = convertFile(listxml, *table, {});
        QVERIFY(list);
        const std::string store = list->text.joined();
        QFile file(listxml);
        QVERIFY(file.open(QIODevice::ReadOnly));
        test::NaiveConverter naive;
        naive.titles.assign(table->entries().begin(), table->entries().end());
        naive.uuid = test::uuidOf(store);
        const std::string expected = naive.convert(file.readAll().toStdString());
        QVERIFY(naive.games > 10);
        QCOMPARE(list->games, naive.games);
        QVERIFY(store == expected);
    }
};

TESSERA_TEST(RealListTest);
#include "reallisttest.moc"
