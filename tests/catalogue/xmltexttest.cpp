#include "catalogue/wellformedness.h"
#include "core/xmldeclaration.h"
#include "catalogue/xmltext.h"

#include "support/testmain.h"

#include <string>

using namespace tessera;

class XmlTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void referencesStandForOneCharacter_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("character"); // -1 for none
        const auto row
            = [](const char* name, int character) { QTest::newRow(name) << QByteArray(name) << character; };
        row("amp", '&');
        row("lt", '<');
        row("gt", '>');
        row("quot", '"');
        row("apos", '\'');
        row("#65", 'A');
        row("#065", 'A');
        row("#x41", 'A');
        row("#x3042", 0x3042);
        row("#x1F600", 0x1F600);
        row("#x10FFFF", 0x10FFFF);
        row("#9", 9);
        row("#13", 13);
        row("nbsp", -1);
        row("AMP", -1);
        row("", -1);
        row("#", -1);
        row("#x", -1);
        row("#X41", -1);
        row("#-65", -1);
        row("#6 5", -1);
        row("#0", -1);
        row("#8", -1);
        row("#xD800", -1);
        row("#xFFFE", -1);
        row("#x110000", -1);
        row("#99999999999999999999", -1);
    }
    void referencesStandForOneCharacter()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, character);
        const auto found = referencedCharacter(name.toStdString());
        QCOMPARE(found ? static_cast<int>(*found) : -1, character);
    }

    void charactersAreWrittenAsUtf8()
    {
        for (const char32_t c : {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFD', U'\x10000', U'\x10FFFF'}) {
            std::string text;
            appendCharacter(text, c);
            QCOMPARE(QString::fromStdString(text), QString::fromUcs4(&c, 1));
        }
    }

    void textEndsBeforeWhatXmlForbids_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("length");
        QTest::newRow("empty") << QByteArray("") << 0;
        QTest::newRow("text") << QByteArray("a\tb\nc\rd") << 7;
        QTest::newRow("japanese") << QByteArray("パックマン") << 15;
        QTest::newRow("four bytes") << QByteArray("\xF0\x9F\x98\x80") << 4;
        QTest::newRow("NUL") << QByteArray("ab\0c", 4) << 2;
        QTest::newRow("bell") << QByteArray("abc\x07") << 3;
        QTest::newRow("stray byte") << QByteArray("a\x80"
                                                  "b")
                                    << 1;
        QTest::newRow("Latin-1") << QByteArray("caf\xE9") << 3;
        QTest::newRow("overlong") << QByteArray("\xC0\xBC") << 0;
        QTest::newRow("surrogate") << QByteArray("a\xED\xA0\x80") << 1;
        QTest::newRow("cut off") << QByteArray("a\xE3\x82") << 1;
        QTest::newRow("U+FFFE") << QByteArray("a\xEF\xBF\xBE") << 1;
        QTest::newRow("U+FFFF") << QByteArray("a\xEF\xBF\xBF") << 1;
        QTest::newRow("U+FFFD") << QByteArray("a\xEF\xBF\xBD") << 4;
    }
    void textEndsBeforeWhatXmlForbids()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, length);
        QCOMPARE(static_cast<int>(xmlTextLength(bytes.toStdString())), length);
    }

    void textIsEscaped_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("five entities") << QByteArray("&<>\"'") << QByteArray("&amp;&lt;&gt;&quot;&apos;");
        QTest::newRow("once only") << QByteArray("&amp;") << QByteArray("&amp;amp;");
        QTest::newRow("blanks stay") << QByteArray(" \t\n ") << QByteArray(" \t\n ");
        QTest::newRow("carriage return") << QByteArray("a\r\nb") << QByteArray("a&#13;\nb");
        QTest::newRow("controls") << QByteArray("a\0b\x1B"
                                                "c",
                                                5)
                                  << QByteArray("a\uFFFDb\uFFFDc");
        QTest::newRow("no characters")
            << QByteArray("\xEF\xBF\xBE|\xEF\xBF\xBF|") << QByteArray("\uFFFD|\uFFFD|");
        QTest::newRow("no UTF-8") << QByteArray("caf\xE9 <") << QByteArray("caf\uFFFD &lt;");
        QTest::newRow("japanese") << QByteArray("ゲーム & ウオッチ") << QByteArray("ゲーム &amp; ウオッチ");
        QTest::newRow("same lead byte") << QByteArray("\uFFFDﾊﾟｯｸ") << QByteArray("\uFFFDﾊﾟｯｸ");
    }
    void textIsEscaped()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, xml);
        std::string escaped;
        appendEscaped(escaped, text.toStdString());
        QCOMPARE(QByteArray::fromStdString(escaped), xml);
    }

    void declarationNamesItsEncoding_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("encoding"); // "!" where it is not well-formed
        const auto row = [](const char* text, const char* encoding) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(encoding);
        };
        row("<?xml version=\"1.0\"?>", "");
        row("<?xml version='1.0' encoding='UTF-8'?>", "UTF-8");
        row("<?xml version = \"1.1\"\n encoding=\"Shift_JIS\" standalone=\"no\" ?>", "Shift_JIS");
        row("<?xml version=\"1.0\" standalone=\"yes\"?>", "");
        row("<?xml version=\"1.0\" standalone=\"maybe\"?>", "!");
        row("<?xml version=\"2.0\"?>", "!");
        row("<?xml version=\"1.0x\"?>", "!");
        row("<?xml encoding=\"UTF-8\"?>", "!");
        row("<?xml version=\"1.0\"encoding=\"UTF-8\"?>", "!");
        row("<?xml version=\"1.0\" encoding=\"\"?>", "!");
        row("<?xml version=\"1.0\" encoding=\"UTF-8?>", "!");
        row("<?xml version=\"1.0\" standalone=\"no\" encoding=\"UTF-8\"?>", "!");
        row("<?xml version=\"1.0\">", "!");
        row("<?xml", "!");
        row(" <?xml version=\"1.0\"?>", "!");
        row("<database/>", "!");
    }
    void declarationNamesItsEncoding()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, encoding);
        const std::string kept = text.toStdString();
        const auto declaration = xmlDeclaration(kept);
        QCOMPARE(declaration ? QByteArray::fromStdString(std::string(declaration->encoding))
                             : QByteArray("!"),
                 encoding);
        if (declaration)
            QCOMPARE(declaration->length, kept.size());
    }

    void wellFormedTextsPass_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* text) { QTest::newRow(text) << QByteArray(text); };
        row("<a/>");
        row("<a></a>");
        row("<a ></a >");
        row("<?xml version=\"1.0\"?>\n<!DOCTYPE a>\n<a b=\"1\" c='2'>text</a>\n<!-- end -->\n<?pi?>");
        row("<a><b/><b>x</b><![CDATA[<&]]></a>");
        row("<a>&amp;&#65;&#x41;&own;</a>");
        row("<a b=\"&lt;&own; >'\"/>");
        row("<a>]] > ]&gt;</a>");
        row("<!--a-b--><a/>");
        row("<?xml-stylesheet href='x'?><a/>");
        row("<!DOCTYPE a SYSTEM \"a>.dtd\" [ <!ENTITY x \"]>'\"> <!-- ' --> <?p ?> %pe; <!ELEMENT a ANY> ] "
            "><a/>");
        row("<!DOCTYPE a PUBLIC '-//x' \"y\"><a/>");
        row("<名前 属性=\"値\"/>");
        row("<a:b xmlns:a='u'/>");
    }
    void wellFormedTextsPass()
    {
        QFETCH(QByteArray, text);
        const auto offset = illFormedAt(text.toStdString());
        QVERIFY2(!offset, offset ? text.mid(static_cast<qsizetype>(*offset)).constData() : "");
    }

    void illFormedTextsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("offset");
        const auto row
            = [](const char* text, int offset) { QTest::newRow(text) << QByteArray(text) << offset; };
        row("", 0);
        row("  ", 2);
        row("text", 0);
        row("<!-- only -->", 13);
        row("<a>", 3);
        row("<a", 2);
        row("<a/><b/>", 4);
        row("<a/>text", 4);
        row("<a/>&amp;", 4);
        row("<a/><![CDATA[x]]>", 4);
        row("<a></b>", 5);
        row("<a><b></a></b>", 8);
        row("</a>", 2);
        row("<a b/>", 4);
        row("<a b=1/>", 5);
        row("<a b=\"1/>", 9);
        row("<a b=\"<\"/>", 6);
        row("<a b=\"1\"c=\"2\"/>", 8);
        row("<a b=\"1\" b=\"2\"/>", 14);
        row("<a b=\"&\"/>", 7);
        row("<a>&</a>", 4);
        row("<a>& b</a>", 4);
        row("<a>&b</a>", 5);
        row("<a>&#0;</a>", 4);
        row("<a>&#xD800;</a>", 4);
        row("<a>]]></a>", 5);
        row("<a><!-- -- --></a>", 10);
        row("<a><!-- ---></a>", 10);
        row("<a><!-- ", 8);
        row("<a><![CDATA[ ]]", 15);
        row("<a><?x", 6);
        row("<a><?xml version=\"1.0\"?></a>", 8);
        row(" <?xml version=\"1.0\"?><a/>", 6);
        row("<a/><!DOCTYPE a>", 4);
        row("<!DOCTYPE a><!DOCTYPE a><a/>", 12);
        row("<!DOCTYPE a [ <a/> ]><a/>", 14);
        row("<!DOCTYPE a [ <!ENTITY x \"1\" ]><b/>", 31);
        row("<!DOCTYPE a", 11);
        row("<!DOCTYPE a SYSEM \"x\"><a/>", 17);
        row("<1/>", 1);
        row("< a/>", 1);
        row("<a / >", 3);
    }
    void illFormedTextsAreRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, offset);
        const auto found = illFormedAt(text.toStdString());
        QVERIFY(found.has_value());
        QCOMPARE(static_cast<int>(*found), offset);
    }
};

TESSERA_TEST(XmlTextTest);
#include "xmltexttest.moc"
