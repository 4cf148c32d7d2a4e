#include "core/xmlencoding.h"

#include "support/testmain.h"

using namespace tessera;

class XmlDeclarationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWellFormedIsADeclaration_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("encoding");
        const auto row = [](const char* name, const char* text, const char* encoding) {
            QTest::newRow(name) << QByteArray(text) << QByteArray(encoding);
        };
        row("version", "<?xml version=\"1.0\"?>", "");
        row("another version", "<?xml version=\"1.1\"?>", "");
        row("encoding", "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>", "Shift_JIS");
        row("single quotes", "<?xml version='1.0' encoding='x'?>", "x");
        row("a quote of the other kind", "<?xml version='1.0' encoding='a\"b'?>", "a\"b");
        row("stands alone", "<?xml version=\"1.0\" encoding=\"x\" standalone=\"yes\"?>", "x");
        row("does not", "<?xml version=\"1.0\" standalone='no' ?>", "");
        row("blanks", "<?xml\tversion \r=\n \"1.0\"  encoding\t=\t'x'\n?>", "x");
    }
    void whatIsWellFormedIsADeclaration()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, encoding);
        const std::string whole = text.toStdString() + "<a/>";
        const auto declaration = xmlDeclaration(whole);
        QVERIFY(declaration.has_value());
        QCOMPARE(declaration->encoding, encoding.toStdString());
        QCOMPARE(declaration->length, static_cast<std::size_t>(text.size()));
    }

    void whatIsNotIsNone_data()
    {
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const char* text) { QTest::newRow(name) << QByteArray(text); };
        row("nothing", "");
        row("another instruction", "<?xml-stylesheet version=\"1.0\"?>");
        row("no version", "<?xml encoding=\"x\"?>");
        row("nothing in it", "<?xml ?>");
        row("no blank before the version", "<?xmlversion=\"1.0\"?>");
        row("no blank before the encoding", "<?xml version=\"1.0\"encoding=\"x\"?>");
        row("another number", "<?xml version=\"2.0\"?>");
        row("no number", "<?xml version=\"1.x\"?>");
        row("empty version", "<?xml version=\"\"?>");
        row("empty encoding", "<?xml version=\"1.0\" encoding=\"\"?>");
        row("empty standalone", "<?xml version=\"1.0\" standalone=\"\"?>");
        row("stands half alone", "<?xml version=\"1.0\" standalone=\"maybe\"?>");
        row("the other order", "<?xml version=\"1.0\" standalone=\"no\" encoding=\"x\"?>");
        row("no equals sign", "<?xml version \"1.0\"?>");
        row("no quotes", "<?xml version=1.0?>");
        row("quotes that do not match", "<?xml version=\"1.0'?>");
        row("no end", "<?xml version=\"1.0\"");
        row("half an end", "<?xml version=\"1.0\"?");
        row("something else in it", "<?xml version=\"1.0\" more=\"x\"?>");
        row("a blank before it", " <?xml version=\"1.0\"?>");
    }
    void whatIsNotIsNone()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!xmlDeclaration(text.toStdString()));
    }
};

TESSERA_TEST(XmlDeclarationTest);
#include "xmldeclarationtest.moc"
