#include "core/propertylist.h"
#include "core/propertylistcheck.h"

#include "support/decimalcomma.h"
#include "support/needed.h"
#include "support/testmain.h"

#include <QStringEncoder>
#include <QTemporaryDir>

#include <cstdlib>

#include <plist/plist.h>

using namespace tessera;

namespace {

const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                        "<plist version=\"1.0\">\n";
const QByteArray tail = "</plist>\n";

QByteArray file(const QByteArray& value)
{
    return head + value + tail;
}

std::expected<PropertyList, Failure> parsed(const QByteArray& bytes)
{
    return parsePropertyList(bytes, QStringLiteral("x.xml"));
}

QByteArray failureKey(const QByteArray& bytes)
{
    const auto list = parsed(bytes);
    return list ? QByteArray("none") : QByteArray(list.error().key);
}

QByteArray inBinary(const QByteArray& xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(node, &text, &length);
    QByteArray bytes(text, length);
    plist_to_bin_free(text);
    plist_free(node);
    return bytes;
}

// A file in binary form: the objects' bytes, the last of which is the outermost.
QByteArray binaryFile(const QList<QByteArray>& objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    const auto add = [](QByteArray& to, quint64 number, int width) {
        for (int shift = 8 * (width - 1); shift >= 0; shift -= 8)
            to += static_cast<char>(number >> shift);
    };
    for (const QByteArray& object : objects) {
        add(offsets, static_cast<quint64>(bytes.size()), 4);
        bytes += object;
    }
    const auto table = static_cast<quint64>(bytes.size());
    bytes += offsets + QByteArray(6, '\0') + char(4) + char(4);
    add(bytes, static_cast<quint64>(objects.size()), 8);
    add(bytes, static_cast<quint64>(objects.size() - 1), 8);
    add(bytes, table, 8);
    return bytes;
}

// An array that names these objects.
QByteArray arrayOf(const QList<quint32>& objects)
{
    QByteArray bytes(1, static_cast<char>(0xA0 + objects.size()));
    for (const quint32 object : objects) {
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(object >> shift);
    }
    return bytes;
}

} // namespace

class PropertyListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreShownAsTexts_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << QByteArray("<string>Pac-Man &amp; &lt;friends&gt;</string>")
                              << QStringLiteral("Pac-Man & <friends>");
        QTest::newRow("Japanese") << QByteArray("<string>パックマン</string>")
                                  << QStringLiteral("パックマン");
        QTest::newRow("references") << QByteArray("<string>&#x30B2;&#12466;&quot;&apos;</string>")
                                    << QStringLiteral("ゲゲ\"'");
        QTest::newRow("CDATA") << QByteArray("<string><![CDATA[<x>&amp;]]></string>")
                               << QStringLiteral("<x>&amp;");
        QTest::newRow("comment inside")
            << QByteArray("<string>a<!-- c -->b</string>") << QStringLiteral("ab");
        QTest::newRow("blanks") << QByteArray("<string>  -cheat  -nothrottle </string>")
                                << QStringLiteral("  -cheat  -nothrottle ");
        QTest::newRow("empty") << QByteArray("<string/>") << QStringLiteral("");
        QTest::newRow("integer") << QByteArray("<integer>1980</integer>") << QStringLiteral("1980");
        QTest::newRow("negative") << QByteArray("<integer>-5</integer>") << QStringLiteral("-5");
        QTest::newRow("hexadecimal") << QByteArray("<integer> 0x1F </integer>") << QStringLiteral("31");
        QTest::newRow("negative and hexadecimal")
            << QByteArray("<integer>-0x10</integer>") << QStringLiteral("-16");
        QTest::newRow("largest") << QByteArray("<integer>18446744073709551615</integer>")
                                 << QStringLiteral("18446744073709551615");
        QTest::newRow("smallest") << QByteArray("<integer>-9223372036854775808</integer>")
                                  << QStringLiteral("-9223372036854775808");
        QTest::newRow("real") << QByteArray("<real>0.1</real>") << QStringLiteral("0.1");
        QTest::newRow("whole real") << QByteArray("<real>1980</real>") << QStringLiteral("1980");
        QTest::newRow("date") << QByteArray("<date>2009-03-04T05:06:07Z</date>")
                              << QStringLiteral("2009-03-04T05:06:07Z");
        QTest::newRow("early date") << QByteArray("<date>1960-03-04T05:06:07Z</date>")
                                    << QStringLiteral("1960-03-04T05:06:07Z");
        QTest::newRow("true") << QByteArray("<true/>") << QStringLiteral("true");
        QTest::newRow("false") << QByteArray("<false/>") << QStringLiteral("false");
    }
    void valuesAreShownAsTexts()
    {
        QFETCH(QByteArray, value);
        QFETCH(QString, text);
        const QByteArray xml = file("<dict><key>k</key>" + value + "</dict>");
        for (const QByteArray& bytes : {xml, inBinary(xml)}) {
            const auto list = parsed(bytes);
            QVERIFY(list.has_value());
            QCOMPARE(list->text("k"), std::optional(text));
            // And again from what is written.
            const auto xmlAgain = list->xml(QString());
            QVERIFY(xmlAgain.has_value());
            QCOMPARE(parsed(*xmlAgain)->text("k"), std::optional(text));
        }
    }

    void whatIsNoTextHasNone()
    {
        const auto list = parsed(file("<dict><key>a</key><array/><key>d</key><data>AAEC</data></dict>"));
        QVERIFY(list.has_value());
        QVERIFY(!list->text("a"));
        QVERIFY(!list->text("d"));
        QVERIFY(!list->text("none"));
    }

    void everyKindOfValueIsWrittenAgain()
    {
        const QByteArray xml = file("<array>\n"
                                    "\t<dict>\n"
                                    "\t\t<key>z</key>\n"
                                    "\t\t<integer>-1</integer>\n"
                                    "\t\t<key>a</key>\n"
                                    "\t\t<data>\n\t\tAAEC\n\t\t</data>\n"
                                    "\t\t<key></key>\n"
                                    "\t\t<date>2009-03-04T05:06:07Z</date>\n"
                                    "\t</dict>\n"
                                    "\t<real>0.10000000000000001</real>\n"
                                    "\t<true/>\n"
                                    "\t<array/>\n"
                                    "\t<dict/>\n"
                                    "\t<string>two\n lines</string>\n"
                                    "</array>\n");
        const auto list = parsed(xml);
        QVERIFY(list.has_value());
        QCOMPARE(list->xml(QString()).value(), xml);
        // A copy holds everything too.
        const std::vector<PropertyList> copies(2, *list);
        QCOMPARE(copies.back().xml(QString()).value(), xml);
        QCOMPARE(list->items().size(), std::size_t(6));
        QVERIFY(list->items()[0].kind() == PropertyList::Kind::Dictionary);
        QVERIFY(list->items()[1].kind() == PropertyList::Kind::Value);
        QVERIFY(list->items()[3].kind() == PropertyList::Kind::Array);
    }

    void textsAreSetAndRemoved()
    {
        PropertyList entry = PropertyList::dictionary();
        entry.setText("name", QStringLiteral("pacman"));
        entry.setText("option", QStringLiteral("-cheat"));
        entry.setText("name", QStringLiteral("パックマン & <co>"));
        entry.remove("option");
        entry.remove("never there");
        QCOMPARE(entry.text("name"), std::optional(QStringLiteral("パックマン & <co>")));
        QVERIFY(!entry.text("option"));
        PropertyList list = PropertyList::array();
        list.append(entry);
        QCOMPARE(entry.text("name"), std::optional(QStringLiteral("パックマン & <co>")));
        QCOMPARE(
            list.xml(QString()).value(),
            file("<array>\n\t<dict>\n\t\t<key>name</key>\n\t\t<string>パックマン &amp; &lt;co&gt;</string>\n"
                 "\t</dict>\n</array>\n"));
    }

    void whatXmlCannotHoldIsReplaced()
    {
        PropertyList entry = PropertyList::dictionary();
        entry.setText("k",
                      QStringLiteral("a\x01\x1F\x7F"
                                     "b\rc\td\r\ne")
                          + QChar(0xFFFE));
        const auto again = parsed(entry.xml(QString()).value());
        QVERIFY(again.has_value());
        QCOMPARE(again->text("k"),
                 std::optional(QStringLiteral("a\uFFFD\uFFFD\x7F"
                                              "b\rc\td\r\ne\uFFFD")));
        // A text in binary form may be no UTF-8 at all.
        const auto broken
            = parsed(binaryFile({"\x51k", "\x52\xFF\x80", QByteArray("\xD1\0\0\0\0\0\0\0\1", 9)}));
        QVERIFY(broken.has_value());
        QCOMPARE(parsed(broken->xml(QString()).value())->text("k"),
                 std::optional(QStringLiteral("\uFFFD\uFFFD")));
    }

    void otherEncodingsAreRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QString text = QString::fromUtf8(file("<dict><key>k</key><string>ゲーム</string></dict>"));
        const auto row
            = [&](const char* name, const char* encoding, const char* declared, QStringConverter::Flag mark) {
                  QString said = text;
                  said.replace(QStringLiteral("UTF-8"), QLatin1StringView(declared));
                  QTest::newRow(name) << QByteArray(QStringEncoder(encoding, mark)(said));
              };
        const auto marked = QStringConverter::Flag::WriteBom;
        const auto plain = QStringConverter::Flag::Default;
        row("UTF-8 with a mark", "UTF-8", "UTF-8", marked);
        row("UTF-16, little end first", "UTF-16LE", "UTF-16", marked);
        row("UTF-16, big end first", "UTF-16BE", "UTF-16", marked);
        row("UTF-16 by its exact name", "UTF-16LE", "UTF-16LE", marked);
        row("UTF-16 without a mark", "UTF-16BE", "UTF-16", plain);
        row("UTF-16 that calls itself UTF-8", "UTF-16LE", "UTF-8", marked);
        row("Shift JIS", "Shift_JIS", "Shift_JIS", plain);
        row("EUC-JP", "EUC-JP", "euc-jp", plain);
    }
    void otherEncodingsAreRead()
    {
        QFETCH(QByteArray, bytes);
        const auto list = parsed(bytes);
        QVERIFY(list.has_value());
        QCOMPARE(list->text("k"), std::optional(QStringLiteral("ゲーム")));
    }

    void latinTextsAreReadAsTheyAreDeclared()
    {
        const auto list = parsed(QByteArray(file("<dict><key>k</key><string>caf\xE9</string></dict>"))
                                     .replace("UTF-8", "ISO-8859-1"));
        QVERIFY(list.has_value());
        QCOMPARE(list->text("k"), std::optional(QStringLiteral("café")));
    }

    void anEmptyKeyMayCloseItself()
    {
        const auto list = parsed(file("<dict><key/><string>v</string><key>k</key><string/></dict>"));
        QVERIFY(list.has_value());
        QCOMPARE(list->text(""), std::optional(QStringLiteral("v")));
        QCOMPARE(list->text("k"), std::optional(QString()));
    }

    // A list of a hundred thousand games with options of their own is long, but no mistake.
    void aLongListIsReadAndWritten()
    {
        constexpr int entries = 100'000;
        QByteArray entry = "<dict>";
        for (int key = 0; key < 10; ++key)
            entry += "<key>" + QByteArray::number(key) + "</key><string>value</string>";
        entry += "</dict>";
        const auto list = parsed(file("<array>" + entry.repeated(entries) + "</array>"));
        QVERIFY(list.has_value());
        const auto written = list->xml(QStringLiteral("y.xml"));
        QVERIFY(written.has_value());
        const auto again = parsed(*written);
        QVERIFY(again.has_value());
        QCOMPARE(again->items().size(), std::size_t(entries));
    }

    // Whatever is written is read again: what would be too long for that is not written.
    void aListThatCouldNotBeReadIsNotWritten()
    {
        PropertyList list = PropertyList::dictionary();
        const QString half(static_cast<qsizetype>(largestPropertyList / 2), u'x');
        list.setText("a", half);
        QVERIFY(list.xml(QStringLiteral("y.xml")).has_value());
        list.setText("b", half);
        const auto written = list.xml(QStringLiteral("y.xml"));
        QVERIFY(!written.has_value());
        QCOMPARE(written.error().key, "failure_plist_large");
        QCOMPARE(written.error().arguments, QStringList{QStringLiteral("y.xml")});
    }

    void brokenFilesAreFailures_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("key");
        const auto row = [](const char* name, const QByteArray& bytes, const char* key) {
            QTest::newRow(name) << bytes << QByteArray(key);
        };
        row("empty", "", "failure_plist_empty");
        row("text", "hello", "failure_plist_malformed");
        row("another program's XML", "<html><body/></html>", "failure_plist_foreign");
        row("broken off before its last tag", head + "<array><string>a</string></array>",
            "failure_plist_truncated");
        row("broken off within a value", head + "<array><string>a</str", "failure_plist_truncated");
        row("no value", file(""), "failure_plist_malformed");
        row("two values", file("<array/><array/>"), "failure_plist_malformed");
        row("tags that do not match", file("<array><dict></array></dict>"), "failure_plist_malformed");
        row("text between values", file("<array>x<string/></array>"), "failure_plist_malformed");
        row("an element of another kind", file("<array><foo/></array>"), "failure_plist_malformed");
        row("key without a value", file("<dict><key>a</key></dict>"), "failure_plist_malformed");
        row("value without a key", file("<dict><string>a</string></dict>"), "failure_plist_malformed");
        row("two keys", file("<dict><key>a</key><key>b</key></dict>"), "failure_plist_malformed");
        row("no integer", file("<array><integer>12x</integer></array>"), "failure_plist_malformed");
        row("empty integer", file("<array><integer/></array>"), "failure_plist_malformed");
        row("integer that is too large", file("<array><integer>18446744073709551616</integer></array>"),
            "failure_plist_malformed");
        row("no date", file("<array><date>yesterday</date></array>"), "failure_plist_malformed");
        row("no real", file("<array><real>1,5</real></array>"), "failure_plist_malformed");
        row("element in a text", file("<array><string>a<b/></string></array>"), "failure_plist_malformed");
        row("unknown entity", file("<array><string>&foo;</string></array>"), "failure_plist_malformed");
        row("control character", file("<array><string>\x01</string></array>"), "failure_plist_malformed");
        row("no UTF-8", file("<array><string>\xFF\x80</string></array>"), "failure_plist_encoding");
        row("NUL", file(QByteArray("<array><string>a\0b</string></array>", 36)), "failure_plist_encoding");
        row("NUL as a number", file("<array><string>&#0;</string></array>"), "failure_plist_malformed");
        row("Shift JIS, broken",
            QByteArray(file("<array><string>\x83</string></array>")).replace("UTF-8", "Shift_JIS"),
            "failure_plist_encoding");
        row("an encoding that nobody knows",
            QByteArray(file("<array><string>a</string></array>")).replace("UTF-8", "x-nobody"),
            "failure_plist_encoding");
        row("UTF-16, half a character",
            QByteArray(QStringEncoder("UTF-16LE",
                                      QStringConverter::Flag::WriteBom)(QString::fromUtf8(file("<array/>"))))
                .chopped(1),
            "failure_plist_malformed");
        row("negative beyond the smallest", file("<array><integer>-9223372036854775809</integer></array>"),
            "failure_plist_malformed");
        row("no integer behind its sign", file("<array><integer>-0x</integer></array>"),
            "failure_plist_malformed");
        row("text behind the end", file("<array/>") + "junk", "failure_plist_malformed");
        row("binary, nothing but its name", "bplist00", "failure_plist_binary");
    }
    void brokenFilesAreFailures()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, key);
        QCOMPARE(failureKey(bytes), key);
    }

    void everyBeginningOfAFileIsAFailure()
    {
        const QByteArray xml = file("<array><dict><key>name</key><string>パックマン</string></dict></array>");
        const QByteArray binary = inBinary(xml);
        QVERIFY(parsed(binary).has_value());
        for (qsizetype length = 0; length < xml.size() - 1; ++length)
            QVERIFY2(!parsed(xml.first(length)), QByteArray::number(length).constData());
        for (qsizetype length = 0; length < binary.size(); ++length)
            QVERIFY2(!parsed(binary.first(length)), QByteArray::number(length).constData());
    }

    void deepFilesAreFailures()
    {
        const auto nested = [](int depth) {
            return file(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
        };
        QCOMPARE(failureKey(nested(deepestPropertyList)), QByteArray("none"));
        QCOMPARE(failureKey(nested(deepestPropertyList + 1)), QByteArray("failure_plist_large"));
        QCOMPARE(failureKey(nested(1'000'000)), QByteArray("failure_plist_large"));
    }

    void deepBinaryFilesAreFailures_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("deep enough") << deepestPropertyList << QByteArray("none");
        QTest::newRow("one more") << deepestPropertyList + 1 << QByteArray("failure_plist_binary");
        QTest::newRow("deep") << 200'000 << QByteArray("failure_plist_binary");
    }
    void deepBinaryFilesAreFailures()
    {
        QFETCH(int, depth);
        QFETCH(QByteArray, key);
        // Both ways round: each within the one before it, and within the one behind it.
        QList<QByteArray> objects{arrayOf({})};
        for (quint32 i = 0; i + 1 < static_cast<quint32>(depth); ++i)
            objects << arrayOf({i});
        QCOMPARE(failureKey(binaryFile(objects)), key);
    }

    void binaryFilesThatNameThemselvesAreFailures()
    {
        QCOMPARE(failureKey(binaryFile({arrayOf({0})})), QByteArray("failure_plist_binary"));
        QCOMPARE(failureKey(binaryFile({arrayOf({1}), arrayOf({0})})), QByteArray("failure_plist_binary"));
        QCOMPARE(failureKey(binaryFile({arrayOf({7})})), QByteArray("failure_plist_binary"));
    }

    void binaryTextsWithANulAreFailures()
    {
        QCOMPARE(failureKey(binaryFile({QByteArray("\x53"
                                                   "a\0b",
                                                   4),
                                        arrayOf({0})})),
                 QByteArray("failure_plist_binary"));
        QCOMPARE(failureKey(binaryFile({QByteArray("\x62\0a\0\0", 5), arrayOf({0})})),
                 QByteArray("failure_plist_binary"));
        QCOMPARE(failureKey(binaryFile({QByteArray("\x62\0a\0b", 5), arrayOf({0})})), QByteArray("none"));
        QCOMPARE(failureKey(binaryFile({QByteArray("\x43"
                                                   "a\0b",
                                                   4),
                                        arrayOf({0})})),
                 QByteArray("none"));
    }

    void binaryFilesThatGrowWithoutBoundsAreFailures()
    {
        // Each names the one before it twice: 2 to the 40th values.
        QList<QByteArray> objects{"\x51x"};
        for (quint32 i = 0; i < 40; ++i)
            objects << arrayOf({i, i});
        QCOMPARE(failureKey(binaryFile(objects)), QByteArray("failure_plist_binary"));
        QCOMPARE(failureKey(binaryFile(objects.first(10))), QByteArray("none"));
    }

    void numbersAreReadWithAPointInEveryLocale()
    {
        TESSERA_NEEDS(test::DecimalComma::canBeMade(), "localedef");
        const test::DecimalComma comma;
        QVERIFY(comma.holds());
        QCOMPARE(std::strtod("1,5", nullptr), 1.5);
        const auto list = parsed(file("<dict><key>k</key><real>1.5</real></dict>"));
        QVERIFY(list);
        QCOMPARE(list->text("k"), std::optional(QStringLiteral("1.5")));
        const auto xml = list->xml(QString());
        QVERIFY(xml->contains("<real>1.5</real>"));
    }

    void filesAreReadFromDisk()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.xml"));
        QCOMPARE(readPropertyList(path).error().key, "failure_plist_read");
        QCOMPARE(readPropertyList(folder.path()).error().key, "failure_plist_nofile");
        QCOMPARE(readPropertyList(QStringLiteral("/dev/zero")).error().key, "failure_plist_nofile");
        QFile written(path);
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(file("<array/>"));
        written.close();
        QVERIFY(readPropertyList(path).has_value());
        // Sparse: as large as a disk, and refused before it is read whole.
        QVERIFY(QFile::resize(path, qint64(1) << 40));
        QCOMPARE(readPropertyList(path).error().key, "failure_plist_large");
        QCOMPARE(readPropertyList(path).error().arguments, QStringList{path});
    }
};

TESSERA_TEST(PropertyListTest);
#include "propertylisttest.moc"
