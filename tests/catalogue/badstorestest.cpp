#include "storetexts.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

class BadStoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badStoresAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("key");
        const auto row = [](const char* name, const QByteArray& bytes, const char* key) {
            QTest::newRow(name) << bytes << QString::fromLatin1(key);
        };
        const QByteArray usual = sampleStore();
        const auto changed = [&](const QByteArray& from, const QByteArray& to) {
            QByteArray bytes = usual;
            return bytes.replace(from, to);
        };
        const char* malformed = "failure_store_malformed";
        row("empty", "", "failure_store_empty");
        row("blanks", " \n", "failure_store_truncated");
        row("NULs", QByteArray(1000, '\0'), "failure_store_binary");
        row("NUL in a value", changed("Pac-Man", QByteArray("Pac\0Man", 7)), "failure_store_binary");
        row("NUL behind the end", usual + QByteArray(1, '\0'), "failure_store_binary");
        row("a picture", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), "failure_store_encoding");
        row("text", "pacman\npuckman\n", malformed);
        row("no UTF-8 in a value", changed("Pac-Man", "Pok\xE9mon"), "failure_store_encoding");
        row("no UTF-8 in the UUID", changed("<UUID>", "<UUID>\xFF"), "failure_store_encoding");
        row("surrogate in a value", changed("Pac-Man", "\xED\xA0\x80"), "failure_store_encoding");
        row("unknown encoding", changed("version=\"1.0\"", "version=\"1.0\" encoding=\"x-none\""),
            "failure_store_encoding");
        row("half a character in UTF-16", QByteArray("\xFF\xFE<\0d\0/\0>\0\n", 11), malformed);
        row("lone surrogate in UTF-16", QByteArray("\xFF\xFE<\0a\0>\0\0\xD8<\0/\0a\0>\0", 18),
            "failure_store_encoding");
        row("control character", changed("Pac-Man", "Pac\x07Man"), malformed);
        row("control character in a name", changed("id=\"z102\"", "i\007d=\"z102\""), malformed);
        row("control character at the end", usual.chopped(1) + '\x07', malformed);
        row("control character behind the end", usual + '\x07', malformed);
        row("U+FFFF", changed("Pac-Man", "\xEF\xBF\xBF"), malformed);
        row("number of a control character", changed("Pac-Man", "&#7;"), malformed);
        row("number of no character", changed("Pac-Man", "&#xD800;"), malformed);
        row("bare ampersand", changed("Pac-Man", "Pac & Man"), malformed);
        row("bare less-than", changed("Pac-Man", "Pac < Man"), malformed);
        row("end of CDATA", changed("Pac-Man", "]]>"), malformed);
        row("text behind the end", usual + "x", malformed);
        row("second root", usual + usual.mid(usual.indexOf("<database>")), malformed);
        row("wrong end tag", changed("</object>", "</Object>"), malformed);
        row("missing end tag", changed("</attribute>\n</object>", "\n</object>"), malformed);
        row("attribute twice in a tag", changed("id=\"z102\"", "id=\"z102\" id=\"z1\""), malformed);
        QByteArray many = "id=\"z102\"";
        for (int i = 0; i < 2000; ++i)
            many += " a" + QByteArray::number(i) + "=\"1\"";
        row("attributes without end", changed("id=\"z102\"", many), malformed);
        row("attributes without end behind a bracket",
            changed("id=\"z102\"", QByteArray(many).replace("=\"1\"", " =\n '>'")), malformed);
        row("tags without end", changed("Pac-Man", QByteArray(1'000'000, '<')), malformed);
        row("no quotes", changed("id=\"z102\"", "id=z102"), malformed);
        row("declaration of no XML", changed("version=\"1.0\"", "version=\"9\""), malformed);
        row("another document", "<?xml version=\"1.0\"?>\n<mame build=\"0.251\"><machine name=\"a\"/></mame>",
            "failure_store_foreign");
        row("a property list", "<plist version=\"1.0\"><dict/></plist>", "failure_store_foreign");
        row("another root of a store", QByteArray(usual).replace("database>", "Database>"),
            "failure_store_foreign");
        row("another document type", changed("<database>", "<!DOCTYPE database><database>"), malformed);
        row("document type inside", changed("Pac-Man", "<!DOCTYPE a [<!ENTITY b 'c'>]>&b;"), malformed);
        row("document type behind the end", usual + "<!DOCTYPE database>", malformed);
        row("a page", "<!DOCTYPE html><html><body><p>Not found<br></body></html>", malformed);
    }
    void badStoresAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, key);
        QCOMPARE(read(bytes), key);
        QVERIFY(!scan(bytes).has_value());
    }

    void everyTruncationIsRefused()
    {
        const QByteArray whole = sampleStore();
        for (qsizetype size = 0; size < whole.size(); ++size) {
            const QString text = read(whole.left(size));
            QVERIFY2(text.startsWith(QStringLiteral("failure_store_")), qPrintable(QString::number(size)));
        }
        QCOMPARE(read(whole).count(u'\n'), 2);
    }

    void everyTruncationOfAnotherFormIsRefused()
    {
        const QByteArray whole
            = "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE database [<!ENTITY a 'b'>]>"
              "<!-- c --><database><metadata/><object type='MAME'><attribute name='name'>é&a;"
              "<![CDATA[x]]></attribute></object><?pi?></database>";
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(read(whole.left(size)).startsWith(QStringLiteral("failure_store_")),
                     qPrintable(QString::number(size)));
        QCOMPARE(read(whole), QStringLiteral("- 'é&a;x' - - - - - - -"));
    }

    // What one way takes, the other takes too, and to the same effect: any byte of a store may be another
    // one.
    void bothWaysAgreeOnDamagedStores()
    {
        const QByteArray whole = sampleStore();
        RandomTexts random;
        int scanned = 0;
        for (int round = 0; round < 4000; ++round) {
            QByteArray bytes = whole;
            const int at = random.number(static_cast<int>(bytes.size()));
            static constexpr std::array damages{'<',  '>',  '&', ';', '"',    ']',    '\n',
                                                '\r', '\0', 'x', '5', '\x1F', '\xE3', '\x82'};
            bytes[at] = damages[static_cast<std::size_t>(random.number(static_cast<int>(damages.size())))];
            const auto store = scan(bytes);
            if (!store)
                continue;
            ++scanned;
            QCOMPARE(lines(store->records).join(u'\n'), parse(bytes));
        }
        QVERIFY(scanned > 100);
    }
};

TESSERA_TEST(BadStoresTest);
#include "badstorestest.moc"
