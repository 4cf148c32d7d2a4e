#include "core/xmlencoding.h"

#include "support/testmain.h"

#include <QStringEncoder>

using namespace tessera;

namespace {

const QString text = QStringLiteral("<a>パック é</a>");

std::string inEncoding(const char* encoding, bool hasMark)
{
    QStringEncoder encoder(encoding,
                           hasMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Stateless);
    const QByteArray bytes = encoder(text);
    return bytes.toStdString();
}

} // namespace

class XmlEncodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unicodeIsKnownByItsMarkOrItsFirstCharacter_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        for (const char* encoding : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"})
            QTest::newRow(encoding) << QByteArray(encoding);
    }
    void unicodeIsKnownByItsMarkOrItsFirstCharacter()
    {
        QFETCH(QByteArray, encoding);
        for (const bool hasMark : {true, false}) {
            const auto read = xmlToUtf8(inEncoding(encoding, hasMark));
            QVERIFY(read.has_value());
            QCOMPARE(*read, text.toStdString());
        }
    }

    void theDeclaredEncodingIsUsed()
    {
        const std::string head = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
        QCOMPARE(xmlToUtf8(head + "\xE9"), head + "\xC3\xA9");
        QCOMPARE(xmlToUtf8("<?xml version=\"1.0\" encoding=\"x-nobody\"?>").error(), "x-nobody");
    }

    // A mark is surer than words.
    void theMarkCountsMoreThanTheDeclaration()
    {
        const std::string head = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
        QCOMPARE(xmlToUtf8("\xEF\xBB\xBF" + head + "\xC3\xA9"), head + "\xC3\xA9");
    }

    void brokenTextNamesItsEncoding_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("encoding");
        QTest::newRow("UTF-8") << QByteArray("<a>\xFF") << QByteArray("UTF-8");
        QTest::newRow("UTF-8, declared")
            << QByteArray("<?xml version='1.0' encoding='utf-8'?>\xFF") << QByteArray("utf-8");
        QTest::newRow("UTF-16, half a pair")
            << QByteArray("\xFF\xFE<\0\x00\xD8", 6) << QByteArray("UTF-16LE");
        QTest::newRow("Shift JIS") << QByteArray("<?xml version='1.0' encoding='Shift_JIS'?>\x83")
                                   << QByteArray("Shift_JIS");
    }
    void brokenTextNamesItsEncoding()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, encoding);
        const auto read = xmlToUtf8(bytes.toStdString());
        QVERIFY(!read);
        QCOMPARE(read.error(), encoding.toStdString());
    }
};

TESSERA_TEST(XmlEncodingTest);
#include "xmlencodingtest.moc"
