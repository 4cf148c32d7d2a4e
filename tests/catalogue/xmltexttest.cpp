#include "core/xmlencoding.h"
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
};

TESSERA_TEST(XmlTextTest);
#include "xmltexttest.moc"
