#include "core/xmlaswritten.h"

#include "support/testmain.h"

using namespace tessera;

class XmlAsWrittenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        XmlAsWritten xml(text.toStdString());
        QVERIFY2(xml.readElement(), qPrintable(xml.errorString()));
        xml.readToEnd();
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    }

    void illFormedTextsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("endsTooEarly");
        constexpr bool ends = true;
        constexpr bool breaks = false;
        const auto row = [](const char* text, bool endsTooEarly) {
            QTest::newRow(text) << QByteArray(text) << endsTooEarly;
        };
        row("", ends);
        row("  ", ends);
        row("text", breaks);
        row("<!-- only -->", ends);
        row("<a>", ends);
        row("<a", ends);
        row("<a/><b/>", breaks);
        row("<a/>text", breaks);
        row("<a/>&amp;", breaks);
        row("<a/><![CDATA[x]]>", breaks);
        row("<a></b>", breaks);
        row("<a><b></a></b>", breaks);
        row("</a>", breaks);
        row("<a b/>", breaks);
        row("<a b=1/>", breaks);
        row("<a b=\"1/>", ends);
        row("<a b=\"<\"/>", breaks);
        row("<a b=\"1\"c=\"2\"/>", breaks);
        row("<a b=\"1\" b=\"2\"/>", breaks);
        row("<a b=\"&\"/>", breaks);
        row("<a>&</a>", breaks);
        row("<a>& b</a>", breaks);
        row("<a>&b</a>", breaks);
        row("<a>&#0;</a>", breaks);
        row("<a>&#xD800;</a>", breaks);
        row("<a>]]></a>", breaks);
        row("<a><!-- -- --></a>", breaks);
        row("<a><!-- ---></a>", breaks);
        row("<a><!-- ", ends);
        row("<a><![CDATA[ ]]", ends);
        row("<a><?x", ends);
        row("<a><?xml version=\"1.0\"?></a>", breaks);
        row(" <?xml version=\"1.0\"?><a/>", breaks);
        row("<a/><!DOCTYPE a>", breaks);
        row("<!DOCTYPE a><!DOCTYPE a><a/>", breaks);
        row("<a><!DOCTYPE a></a>", breaks);
        row("<!DOCTYPE a [ <a/> ]><a/>", breaks);
        row("<!DOCTYPE a [ <!ENTITY x \"1\" ]><b/>", breaks);
        row("<!DOCTYPE a", ends);
        row("<!DOCTYPE a SYSEM \"x\"><a/>", breaks);
        row("<1/>", breaks);
        row("< a/>", breaks);
        row("<a / >", breaks);
    }
    void illFormedTextsAreRefused()
    {
        QFETCH(QByteArray, text);
        XmlAsWritten xml(text.toStdString());
        xml.readElement();
        xml.readToEnd();
        QVERIFY(xml.hasError());
        QTEST(xml.endsTooEarly(), "endsTooEarly");
    }

    void entitiesStayAsTheyAreWritten_data()
    {
        QTest::addColumn<QByteArray>("documentType");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("elsewhere") << QByteArray("<!DOCTYPE a SYSTEM 'a.dtd'>");
        QTest::newRow("declared") << QByteArray("<!DOCTYPE a [<!ENTITY own 'x'><!ENTITY b SYSTEM '/b'>]>");
        QTest::newRow("nested") << QByteArray("<!DOCTYPE a [<!ENTITY b '&own;'><!ENTITY own '&b;&b;'>]>");
        QTest::newRow("other signs") << QByteArray("<!-- é😀 -->\r\n<!DOCTYPE a [<!ENTITY own '😀é<b/>'>]>");
        QTest::newRow("predefined") << QByteArray("<!DOCTYPE a [<!ENTITY lt '&#38;#60;'>]>");
        QTest::newRow("other values") << QByteArray("<!DOCTYPE a [<!ATTLIST a c CDATA '1'>]>");
    }
    void entitiesStayAsTheyAreWritten()
    {
        QFETCH(QByteArray, documentType);
        XmlAsWritten xml(documentType.toStdString() + "<a b='&own;&lt;'>&own; &b;&lt;</a>");
        QVERIFY2(xml.readElement(), qPrintable(xml.errorString()));
        QCOMPARE(xml.attribute("b"), std::string("&own;<"));
        QCOMPARE(xml.attribute("c"), std::string());
        QCOMPARE(xml.readText(), std::string("&own; &b;<"));
        xml.readToEnd();
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    }

    void whatItDeclaresIsPassedOver_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("another encoding") << QByteArray("<?xml version='1.0' encoding='Shift_JIS'?>");
        QTest::newRow("another version") << QByteArray("<?xml version='1.1'?>");
        QTest::newRow("lines") << QByteArray(
            "<?xml\nversion='1.0'\n?>\n<!DOCTYPE a\n[\n<!ENTITY b 'c'>\n]>\n");
    }
    void whatItDeclaresIsPassedOver()
    {
        QFETCH(QByteArray, start);
        XmlAsWritten xml(start.toStdString() + "<a>é\n&</a>");
        QVERIFY2(xml.readElement(), qPrintable(xml.errorString()));
        xml.readToEnd();
        QVERIFY(xml.hasError() && !xml.endsTooEarly());
        QCOMPARE(xml.lineNumber(), start.count('\n') + 2);
    }

    void childrenAreFoundByTheirName()
    {
        XmlAsWritten xml("<a><b n='1'>x<a>no</a><!-- -->y</b>z<c><b n='no'/></c><b/></a>");
        QVERIFY(xml.readElement() && xml.isAt("a") && !xml.isAt("A"));
        QVERIFY(xml.readElement("b"));
        QCOMPARE(xml.attribute("n"), std::string("1"));
        QCOMPARE(xml.readText(), std::string("xy"));
        QVERIFY(xml.readElement("b"));
        QCOMPARE(xml.attribute("n"), std::string());
        QCOMPARE(xml.readText(), std::string());
        QVERIFY(!xml.readElement("b"));
        QVERIFY(!xml.hasError());
    }
};

TESSERA_TEST(XmlAsWrittenTest);
#include "xmlaswrittentest.moc"
