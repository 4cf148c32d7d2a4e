#include "tools/favouritesconversion.h"

#include "core/propertylist.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

} // namespace

class FavouritesConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setNamesComeInTheirOrder_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char* name, const char* list, const QStringList& names) {
            QTest::newRow(name) << QByteArray(list) << names;
        };
        row("none", "<array/>", {});
        row("two",
            "<array><dict><key>romid</key><string>qix</string></dict>"
            "<dict><key>romid</key><string>pong</string></dict></array>",
            {"qix", "pong"});
        row("twice the same",
            "<array><dict><key>romid</key><string>pong</string></dict>"
            "<dict><key>romid</key><string>pong</string></dict></array>",
            {"pong", "pong"});
        row("other keys",
            "<array><dict><key>title</key><string>Pong</string>"
            "<key>romid</key><string>pong</string></dict></array>",
            {"pong"});
        row("an entry without a set",
            "<array><dict><key>title</key><string>Pong</string></dict>"
            "<dict><key>romid</key><string>qix</string></dict></array>",
            {"qix"});
        row("no dictionary",
            "<array><string>pong</string><dict><key>romid</key><string>qix</string></dict>"
            "</array>",
            {"qix"});
        row("what is no string",
            "<array><dict><key>romid</key><integer>1942</integer></dict>"
            "<dict><key>romid</key><true/></dict><dict><key>romid</key><real>1.5</real></dict>"
            "<dict><key>romid</key><date>2026-01-02T03:04:05Z</date></dict>"
            "<dict><key>romid</key><array><string>pong</string></array></dict>"
            "<dict><key>romid</key><string>1943</string></dict></array>",
            {"1943"});
    }

    void setNamesComeInTheirOrder()
    {
        QFETCH(QByteArray, list);
        QFETCH(QStringList, names);
        const auto old = oldFavourites(file(head + list + "</plist>"));
        QVERIFY(old);
        QCOMPARE(*old, names);
    }

    void whatIsNoListIsAFailure_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no property list") << QByteArray("<html/>");
        QTest::newRow("a dictionary outside")
            << head + "<dict><key>romid</key><string>pong</string></dict></plist>";
    }

    void whatIsNoListIsAFailure()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!oldFavourites(file(bytes)));
    }

    void recordsBecomeFavouritesWithTheirNineKeys()
    {
        RecordDictionary record;
        for (const std::string_view field : fieldNames)
            record.insert(fieldText(field), QStringLiteral("<ポン> ") + fieldText(field));
        const auto text
            = favouritesText({record, {{QStringLiteral("name"), QStringLiteral("qix")}}}, QString());
        QVERIFY(text);
        const auto list = parsePropertyList(*text, {});
        QVERIFY(list);
        const std::vector<PropertyList> entries = list->items();
        QCOMPARE(entries.size(), std::size_t(2));
        for (const std::string_view field : fieldNames)
            QCOMPARE(entries[0].text(std::string(field).c_str()), record.value(fieldText(field)));
        QCOMPARE(entries[1].text("name"), QStringLiteral("qix"));
        QVERIFY(!entries[1].text("title"));
    }

    void theBackupIsNamedForTheSecond()
    {
        QCOMPARE(favouritesBackup("/home/a/favourites.xml", {QDate(2026, 1, 2), QTime(3, 4, 5)}),
                 "/home/a/jp.Plover.Tessera_Favorites_2026-01-02_030405.xml");
    }

    void aBackupReplacesNothing()
    {
        const QString first = file("first");
        const QString backup = m_folder.filePath("backup.xml");
        QVERIFY(moveToBackup(first, backup));
        QVERIFY(!QFile::exists(first));
        const QString second = file("second");
        const auto moved = moveToBackup(second, backup);
        QVERIFY(!moved);
        QCOMPARE(moved.error().arguments.first(), backup);
        QVERIFY(QFile::exists(second));
        QFile kept(backup);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("first"));
    }

private:
    QString file(const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(QStringLiteral("favourites.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TESSERA_TEST(FavouritesConversionTest);
#include "favouritesconversiontest.moc"
