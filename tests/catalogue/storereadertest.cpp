#include "storetexts.h"
#include "support/testmain.h"

#include <QStringEncoder>

using namespace tessera;
using namespace tessera::test;

class StoreReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreReadInOrder()
    {
        const auto store = scan(sampleStore());
        QVERIFY(store.has_value());
        QCOMPARE(
            lines(store->records),
            QStringList({
                QStringLiteral(
                    "'game' 'puckman' 'puckman' 'PuckMan <1>' 'パックマン' '1980' 'Namco & co' 'good' ''"),
                QStringLiteral("'mechanical' 'pacman' 'puckman' 'Pac-Man' 'Pac-Man' '198?' 'Namco & co' "
                               "'good' 'cassette'"),
                QStringLiteral("'device' 'z80' 'z80' 'Zilog Z80' 'Zilog Z80' '%1' '%1' '%1' ''")
                    .arg(QStringLiteral("????")),
            }));
    }

    void equalValuesShareTheirText()
    {
        const auto store = scan(sampleStore());
        QVERIFY(store.has_value());
        const GameRecord& parent = store->records[0];
        const GameRecord& clone = store->records[1];
        QCOMPARE(static_cast<const void*>(parent[Field::Cloneof].data()),
                 static_cast<const void*>(parent[Field::Name].data()));
        QCOMPARE(static_cast<const void*>(clone[Field::Titlejp].data()),
                 static_cast<const void*>(clone[Field::Title].data()));
        QCOMPARE(static_cast<const void*>(clone[Field::Maker].data()),
                 static_cast<const void*>(parent[Field::Maker].data()));
    }

    void emptyValueIsNotAbsent()
    {
        const auto store = scan(sampleStore());
        QVERIFY(store.has_value());
        QVERIFY(store->records[0].has(Field::Device));
        QVERIFY(store->records[0][Field::Device].empty());
    }

    void windowsOfAnySizeGiveTheSameRecords()
    {
        SampleRecords sample;
        RandomTexts random;
        for (int i = 0; i < 200; ++i) {
            const std::string title = random.text();
            sample.add({"game", "set", "set", title.c_str(), title.c_str(), "1999", "Maker", "good", ""});
        }
        const QByteArray bytes = QByteArray::fromStdString(storeText(sample.store.records));
        for (std::size_t window = 700; window < 2400; window += 13) {
            const auto store = scan(bytes, window);
            if (store)
                QCOMPARE(lines(store->records), lines(sample.store.records));
            // An object that is larger than the window is for the XML library.
            QVERIFY2(store || window < 1500, qPrintable(QString::number(window)));
        }
    }

    // Well-formed stores that other hands wrote: the same record each, whichever way they are read.
    void valuesAreDecoded_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("fast");
        const auto row = [](const char* name, const char* xml, const char* value, bool fast) {
            QTest::newRow(name) << QByteArray(xml) << QString::fromUtf8(value) << fast;
        };
        row("empty", "", "", true);
        row("plain", "Pong", "Pong", true);
        row("eight bytes", "12345678", "12345678", true);
        row("five entities", "&amp;&lt;&gt;&quot;&apos;", "&<>\"'", true);
        row("escaped once only", "&amp;lt;", "&lt;", true);
        row("numbers", "&#65;&#x42;&#x3042;&#x1F600;", "ABあ😀", true);
        row("numbers of blanks", "a&#9;&#10;&#13;&#32;b", "a\t\n\r b", true);
        row("bare quotes and >", "\"it's\" > that", "\"it's\" > that", true);
        row("blanks alone", "   ", "   ", true);
        row("blanks around", " a ", " a ", true);
        row("line feed and tab", "a\n\tb", "a\n\tb", true);
        row("carriage returns", "a\r\nb\rc", "a\nb\nc", false);
        row("japanese", "ポン", "ポン", true);
        row("four bytes", "😀", "😀", true);
        row("DEL and C1", "\x7F\xC2\x85", "\x7F\xC2\x85", true);
        row("brackets", "]] ]&gt; ]>", "]] ]> ]>", true);
        row("CDATA", "<![CDATA[a & <b> &amp;]]>", "a & <b> &amp;", false);
        const QByteArray rule(2000, '=');
        const QByteArray commented = rule + "<!-- -->";
        row("no attributes but a rule", commented.constData(), rule.constData(), false);
        row("CDATA in pieces", "a<![CDATA[ b ]]> <![CDATA[c]]>", "a b  c", false);
        row("comment", "a<!-- <x> & -->b", "ab", false);
        row("blank beside a comment", " <!-- --> ", "  ", false);
        row("instruction", "a<?pi x?>b", "ab", false);
        row("foreign entity", "a&nbsp;b", "a&nbsp;b", false);
        row("long reference", "&#00000000000000000000000000000000000000000065;", "A", true);
        row("element inside", "a<b>c</b>d", "ad", false);
    }
    void valuesAreDecoded()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, value);
        QFETCH(bool, fast);
        const QByteArray bytes = storeWithTitle(xml);
        const QString expected
            = QStringLiteral("'game' 'pong' 'pong' '%1' 'ポン' '1972' 'Atari' 'imperfect' ''").arg(value);
        QCOMPARE(parse(bytes), expected);
        QCOMPARE(read(bytes), expected);
        QCOMPARE(scan(bytes).has_value(), fast);
    }

    void otherFormsOfTheSameStoreAreEqual_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray usual = sampleStore();
        const auto changed = [&](const char* name, const char* from, const QByteArray& to) {
            QByteArray bytes = usual;
            bytes.replace(from, to);
            QVERIFY2(bytes != usual, name);
            QTest::newRow(name) << bytes;
        };
        const auto encoded = [&](const char* name, const QByteArray& declared,
                                 QStringConverter::Encoding encoding, bool mark) {
            QByteArray bytes = usual;
            bytes.replace("version=\"1.0\"", QByteArray("version=\"1.0\"" + declared));
            QStringEncoder encoder(encoding,
                                   mark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
            QTest::newRow(name) << QByteArray(encoder(QString::fromUtf8(bytes)));
        };
        changed("other id", "id=\"z102\"", "id=\"z7\"");
        changed("id of another form", "id=\"z102\"", "id=\"x-coredata://1\"");
        changed("no id", " id=\"z102\"", "");
        changed("other order in the tag", "type=\"MAME\" id=\"z103\"", "id=\"z103\" type=\"MAME\"");
        changed("other order in the attribute", "name=\"title\" type=\"string\"",
                "type=\"string\" name=\"title\"");
        changed("single quotes", "\"title\"", "'title'");
        changed("blanks in tags", "<attribute name=\"title\" type=\"string\">",
                "<attribute  name = \"title\"\n\ttype=\"string\" >");
        changed("blank in the end tag", "</object>", "</object >");
        changed("indents", "<attribute ", "        <attribute ");
        changed("no line ends", ">\n<", "><");
        changed("Windows line ends", "\n", "\r\n");
        changed("empty element", "<attribute name=\"device\" type=\"string\"></attribute>",
                "<attribute name=\"device\" type=\"string\"/>");
        changed("line end at the end", "</database>", "</database>\n");
        changed("comment behind the root", "</database>", "</database><!-- saved -->\n<?end?>");
        changed("comment between objects", "<object type=\"MAME\" id=\"z103\">",
                "<!-- <object type=\"MAME\"/> --><object type=\"MAME\" id=\"z103\">");
        changed("standalone", "version=\"1.0\"", "version=\"1.0\" standalone=\"yes\"");
        changed("declared UTF-8", "version=\"1.0\"", "version=\"1.0\" encoding=\"utf-8\"");
        changed("no declaration", "<?xml version=\"1.0\"?>\n", "");
        changed("no document type",
                "<!DOCTYPE database SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\">\n", "");
        changed("document type with declarations", " SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\"",
                " [<!ELEMENT database ANY> <!ENTITY amp \"&#38;#38;\"> <!-- ]> -->]");
        changed("no information", "<version>134481920</version>", "");
        changed("other version", "134481920", "134481921");
        changed("number of another form", "<nextObjectID>104<", "<nextObjectID> 104 <");
        changed("empty metadata element", "<metadata></metadata>", "<metadata/>");
        changed("metadata with a property list", "<metadata></metadata>",
                "<metadata><plist version=\"1.0\"><dict><key>a</key><array><string>b</string></array>"
                "<key>object</key><dict><object type=\"MAME\"><attribute "
                "name=\"name\">no</attribute></object></dict></dict></plist></metadata>");
        changed(
            "object of another type", "<object type=\"MAME\" id=\"z103\">",
            "<object type=\"Mame\" id=\"z9\"><attribute name=\"name\" type=\"string\">no</attribute></object>"
            "<object id=\"z8\"/><object type=\"MAME\" id=\"z103\">");
        changed("relationships", "</object>",
                "<relationship name=\"title\" type=\"1/1\" destination=\"MAME\" "
                "idrefs=\"z102\">no</relationship></object>");
        changed("unknown attribute", "</object>",
                "<attribute name=\"rating\" type=\"int32\">5</attribute></object>");
        changed("attribute without a name", "</object>", "<attribute type=\"string\">x</attribute></object>");
        changed("text between attributes", "</object>", "stray</object>");
        changed("the last of two counts", "<attribute name=\"title\" type=\"string\">",
                "<attribute name=\"title\" type=\"string\">first</attribute>\n<attribute name=\"title\" "
                "type=\"string\">");
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF" + usual);
        encoded("UTF-16LE", " encoding=\"UTF-16\"", QStringConverter::Utf16LE, true);
        encoded("UTF-16BE", " encoding=\"UTF-16\"", QStringConverter::Utf16BE, true);
        encoded("UTF-16LE unmarked", "", QStringConverter::Utf16LE, false);
        encoded("UTF-16BE unmarked", "", QStringConverter::Utf16BE, false);
        encoded("UTF-32LE", "", QStringConverter::Utf32LE, true);
        encoded("UTF-32BE", "", QStringConverter::Utf32BE, true);
        QByteArray shiftJis = usual;
        shiftJis.replace("version=\"1.0\"", "version=\"1.0\" encoding=\"Shift_JIS\"");
        shiftJis.replace("パックマン", "\x83\x70\x83\x62\x83\x4E\x83\x7D\x83\x93");
        QTest::newRow("Shift JIS") << shiftJis;
    }
    void otherFormsOfTheSameStoreAreEqual()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(read(bytes), read(sampleStore()));
        QCOMPARE(parse(bytes), parse(sampleStore()));
    }

    void leftOutAttributesAreAbsent()
    {
        QByteArray bytes = sampleStore();
        bytes.replace("<attribute name=\"cloneof\" type=\"string\">puckman</attribute>\n", "");
        const QString text = read(bytes);
        QVERIFY2(text.startsWith(QStringLiteral("'game' 'puckman' - 'PuckMan <1>'")), qPrintable(text));
        QCOMPARE(parse(bytes), text);
    }

    void onlyObjectsOfAnotherModelAreAFailure_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("result");
        QTest::newRow("other entity")
            << QByteArray("<database><object type=\"Mame\" id=\"z9\"/></database>") << "failure_store_model";
        QTest::newRow("no entity") << QByteArray("<database><object/></database>") << "failure_store_model";
        QTest::newRow("our form, other entity")
            << sampleStore().replace("type=\"MAME\"", "type=\"mame\"") << "failure_store_model";
        QTest::newRow("no object at all") << QByteArray("<database><databaseInfo/></database>") << "";
        QTest::newRow("an object in the metadata only")
            << QByteArray("<database><databaseInfo><object type=\"X\"/></databaseInfo></database>") << "";
    }
    void onlyObjectsOfAnotherModelAreAFailure()
    {
        QFETCH(QByteArray, bytes);
        QTEST(read(bytes), "result");
    }

    void ourOwnLayoutIsKnown_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("ours");
        const QByteArray usual = sampleStore();
        QByteArray leftOut = usual;
        leftOut.replace("<attribute name=\"cloneof\" type=\"string\">puckman</attribute>\n", "");
        QByteArray reordered = leftOut;
        reordered.replace("<object type=\"MAME\" id=\"z103\">", "<object id=\"z103\" type=\"MAME\">");
        QByteArray foreign = leftOut;
        foreign.replace("</database>", "<object type=\"Other\" id=\"z1\"/></database>");
        QTest::newRow("all values") << usual << true;
        QTest::newRow("no record") << QByteArray::fromStdString(storeText({})) << true;
        QTest::newRow("values left out") << leftOut << true;
        QTest::newRow("values left out, attributes in another order") << reordered << false;
        QTest::newRow("objects of others") << foreign << false;
        QTest::newRow("line end at the end") << QByteArray(usual + '\n') << false;
        QTest::newRow("no header") << QByteArray("<database><object type=\"MAME\"/></database>") << false;
        QTest::newRow("short") << leftOut.left(leftOut.indexOf("<UUID>") + 6)
                + "</UUID></databaseInfo></database>"
                               << false;
    }
    void ourOwnLayoutIsKnown()
    {
        QFETCH(QByteArray, bytes);
        const auto store = readStoreText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
        QVERIFY(store.has_value());
        QTEST(store->isOurLayout, "ours");
    }

    void objectWithoutAttributesIsARecord()
    {
        QCOMPARE(read("<database><object type=\"MAME\"/></database>"), QStringLiteral("- - - - - - - - -"));
    }

    void declaredEntitiesAreNotExpanded()
    {
        QByteArray bytes = storeWithTitle("&lol9;|&file;");
        bytes.replace(" SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\"",
                      " [<!ENTITY lol \"lol\"><!ENTITY lol9 \"&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;\">"
                      "<!ENTITY file SYSTEM \"file:///etc/passwd\">]");
        QCOMPARE(read(bytes),
                 QStringLiteral("'game' 'pong' 'pong' '&lol9;|&file;' 'ポン' '1972' 'Atari' 'imperfect' ''"));
    }

    void deepNestingIsNoDanger()
    {
        const int depth = 300'000;
        QByteArray bytes
            = storeWithTitle(QByteArray("<b>").repeated(depth) + QByteArray("</b>").repeated(depth));
        QCOMPARE(read(bytes), QStringLiteral("'game' 'pong' 'pong' '' 'ポン' '1972' 'Atari' 'imperfect' ''"));
        bytes.truncate(bytes.size() / 2);
        QCOMPARE(read(bytes), QStringLiteral("failure_store_truncated"));
    }

    void longValueIsReadWhole()
    {
        const QByteArray longTitle = QByteArray("0123456789").repeated(100'000);
        const QString text = read(storeWithTitle(longTitle));
        QVERIFY(text.contains(QString::fromLatin1(longTitle)));
        QCOMPARE(parse(storeWithTitle(longTitle)), text);
    }
};

TESSERA_TEST(StoreReaderTest);
#include "storereadertest.moc"
