#include "tools/storetext.h"

#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

StoreText textOf(std::size_t objects)
{
    StoreText text;
    for (std::size_t i = 0; i < objects; ++i) {
        const std::string name = "set" + std::to_string(i);
        text.appendObject({"game", name, name, "Title", "Title", "1980", "Maker", "good", ""});
    }
    text.complete("UUID");
    return text;
}

} // namespace

class StoreTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersItsObjects_data()
    {
        QTest::addColumn<int>("objects");
        QTest::addColumn<QByteArray>("last");
        QTest::newRow("none") << 0 << QByteArray("101");
        QTest::newRow("one") << 1 << QByteArray("102");
        QTest::newRow("to three digits") << 898 << QByteArray("999");
        QTest::newRow("to four digits") << 899 << QByteArray("1000");
        QTest::newRow("many pieces and blocks") << 60'000 << QByteArray("60101");
    }

    void numbersItsObjects()
    {
        QFETCH(int, objects);
        QFETCH(QByteArray, last);
        const StoreText text = textOf(static_cast<std::size_t>(objects));
        const QByteArray joined = QByteArray::fromStdString(text.joined());
        QCOMPARE(joined.count("<object "), objects);
        QVERIFY(joined.contains(QByteArray("<nextObjectID>" + last + "</nextObjectID>")));
        QCOMPARE(joined.contains(QByteArray("id=\"z" + last + "\">")), objects > 0);
        QCOMPARE(static_cast<qsizetype>(text.size()), joined.size());
    }

    void aSinkThatWantsNoMoreIsLeftAlone()
    {
        const StoreText text = textOf(10'000);
        int pieces = 0;
        text.write([&](std::string_view) { return ++pieces < 3; });
        QCOMPARE(pieces, 3);
    }

    void theFileHoldsTheText()
    {
        const QTemporaryDir folder;
        const StoreText text = textOf(5000);
        QVERIFY(text.save(folder.filePath("store.xml")));
        QFile file(folder.filePath("store.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll() == QByteArray::fromStdString(text.joined()));
    }

    void aMovedTextKeepsWhatComesLater()
    {
        StoreText text;
        text.appendObject({"game", "a", "", "A", "A", "", "", "", ""}, true);
        text.appendObject({"game", "b", "c", "B", "B", "", "", "", ""});
        text.appendObject({"game", "d", "", "D", "D", "", "", "", ""}, true);
        text.complete("UUID", "first last", {0, 6});
        const StoreText moved = std::move(text);
        const std::string joined = moved.joined();
        QVERIFY(joined.find("cloneof\" type=\"string\">first last</attribute>") != std::string::npos);
        QVERIFY(joined.find("cloneof\" type=\"string\">c</attribute>") != std::string::npos);
        QVERIFY(joined.find("cloneof\" type=\"string\">last</attribute>") != std::string::npos);
        QCOMPARE(moved.size(), joined.size());
    }
};

TESSERA_TEST(StoreTextTest);
#include "storetexttest.moc"
