#include "bios/biosentry.h"

#include "launch/popupitems.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

BiosEntry leaf(const char* rom, const char* bios)
{
    return {QString::fromLatin1(bios), QString::fromLatin1(rom), QStringLiteral("name"), {}};
}

// "neogeo/euro(neogeo/euro neogeo/us)"
QString shown(const BiosEntries& entries)
{
    QStringList texts;
    for (const BiosEntry& entry : entries) {
        QString text = entry.rom + u'/' + entry.bios;
        if (!entry.children.empty())
            text += u'(' + shown(entry.children) + u')';
        texts << text;
    }
    return texts.join(u' ');
}

} // namespace

class BiosEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theShippedListBeginsWithTwoFixedRows()
    {
        const auto entries = readBiosEntries(QStringLiteral(":/bioslist.xml"));
        QVERIFY(entries.has_value());
        QVERIFY(entries->size() > 20);
        for (std::size_t row = 0; row < fixedRows; ++row) {
            QCOMPARE((*entries)[row].bios, QString(defaultBios));
            QVERIFY((*entries)[row].rom.isEmpty());
        }
        for (std::size_t row = fixedRows; row < entries->size(); ++row) {
            QVERIFY(!(*entries)[row].rom.isEmpty());
            QVERIFY(!(*entries)[row].children.empty());
        }
    }

    // The pop-up holds every name of the shipped list, in its order.
    void thePopUpHasTheShippedNames()
    {
        const auto entries = readBiosEntries(QStringLiteral(":/bioslist.xml"));
        QVERIFY(entries.has_value());
        QStringList titles;
        for (const PopupItem& item : biosSets) {
            if (item.title != nullptr)
                titles << QString::fromLatin1(item.title);
        }
        const QStringList names = biosNames(*entries);
        QCOMPARE(QSet<QString>(titles.begin(), titles.end()), QSet<QString>(names.begin(), names.end()));
        QCOMPARE(titles.size(), names.size());
    }

    void savingAndReloadingYieldsTheSameTree()
    {
        const auto entries = readBiosEntries(QStringLiteral(":/bioslist.xml"));
        QVERIFY(entries.has_value());
        BiosEntries all = *entries;
        all.push_back({QString::fromUtf8("ビオス <&>"), QStringLiteral("a b"), QString(), {leaf("x", "y")}});
        const auto xml = biosEntriesXml(all, QString());
        QVERIFY(xml.has_value());
        write(*xml);
        const auto again = readBiosEntries(path());
        QVERIFY(again.has_value());
        QCOMPARE(shown(*again), shown(all));
        QCOMPARE(biosEntriesXml(*again, QString()).value(), *xml);
    }

    void whatElseAFileHoldsIsKept()
    {
        write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><array><dict><key>bios</key>"
              "<string>a</string><key>note</key><string>mine</string></dict></array></plist>");
        const auto entries = readBiosEntries(path());
        QVERIFY(entries.has_value());
        const auto xml = biosEntriesXml(*entries, QString());
        QVERIFY(xml.has_value() && xml->contains("mine"));
    }

    void whatIsNoListIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a dictionary") << QByteArray(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict></dict></plist>");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("something else") << QByteArray("bios");
    }

    void whatIsNoListIsRefused()
    {
        QFETCH(QByteArray, bytes);
        write(bytes);
        QVERIFY(!readBiosEntries(path()));
    }

    void rebuildingKeepsEverythingThatWasKnown()
    {
        const BiosEntries known{leaf("neogeo", "mine"),
                                {"euro", "neogeo", "n", {leaf("neogeo", "euro"), leaf("neogeo", "own")}},
                                leaf("gone", "x")};
        const BiosEntries found{{"us", "neogeo", "n", {leaf("neogeo", "us"), leaf("neogeo", "euro")}},
                                {"v1", "pgm", "p", {leaf("pgm", "v1")}}};
        const BiosEntries merged = mergedBiosEntries(known, found);
        QCOMPARE(shown(merged),
                 QStringLiteral("neogeo/mine neogeo/euro(neogeo/euro neogeo/own neogeo/us) gone/x "
                                "pgm/v1(pgm/v1)"));
        QCOMPARE(shown(mergedBiosEntries(merged, found)), shown(merged));
    }

    void theFirstDifferenceIsAPlaceInTheTree_data()
    {
        QTest::addColumn<QList<int>>("change"); // a place in the list, whose entry is taken out
        QTest::addColumn<QList<int>>("place");
        QTest::newRow("a set") << QList<int>{1} << QList<int>{1};
        QTest::newRow("beneath a set") << QList<int>{1, 0} << QList<int>{1, 0};
        QTest::newRow("the last one beneath") << QList<int>{1, 1} << QList<int>{1, 1};
        QTest::newRow("the last set") << QList<int>{2} << QList<int>{2};
    }

    void theFirstDifferenceIsAPlaceInTheTree()
    {
        QFETCH(QList<int>, change);
        QFETCH(QList<int>, place);
        const BiosEntries all{
            {"a", "A", "", {}}, {"b", "B", "", {{"c", "B", "", {}}, {"d", "B", "", {}}}}, {"e", "E", "", {}}};
        BiosEntries fewer = all;
        BiosEntries& list = change.size() > 1 ? fewer[1].children : fewer;
        list.erase(list.begin() + change.constLast());
        const auto found = firstDifference(fewer, all);
        QCOMPARE(QList<int>(found.begin(), found.end()), place);
        BiosEntries other = all;
        (change.size() > 1 ? other[1].children : other)[std::size_t(change.constLast())].name = "other";
        const auto edited = firstDifference(all, other);
        QCOMPARE(QList<int>(edited.begin(), edited.end()), place);
    }

    void anArchiveLiesInTheFolderOrNot_data()
    {
        QTest::addColumn<QString>("rom");
        QTest::addColumn<bool>("isThere");
        QTest::newRow("there") << "neogeo" << true;
        QTest::newRow("not there") << "pgm" << false;
        QTest::newRow("no name") << "" << false;
        QTest::newRow("a path") << "../outside" << false;
        QTest::newRow("a folder of it") << "inner/neogeo" << false;
    }

    void anArchiveLiesInTheFolderOrNot()
    {
        QFETCH(QString, rom);
        QFETCH(bool, isThere);
        QVERIFY(QDir().mkpath(m_folder.filePath("roms/inner")));
        for (const char* name : {"roms/neogeo.zip", "roms/.zip", "outside.zip", "roms/inner/neogeo.zip"}) {
            QFile file(m_folder.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QCOMPARE(hasArchive(m_folder.filePath("roms"), rom), isThere);
        QVERIFY(!hasArchive(QString(), rom));
    }

private:
    QString path() const { return m_folder.filePath("bioslist.xml"); }
    void write(const QByteArray& bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    QTemporaryDir m_folder;
};

TESSERA_TEST(BiosEntryTest);
#include "biosentrytest.moc"
