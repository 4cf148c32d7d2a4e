#include "info/textencoding.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

std::string bytesOf(const QByteArray& bytes)
{
    return bytes.toStdString();
}

QString nameOf(TextEncoding encoding)
{
    const QStringList names{"ISO-2022-JP",  "UTF-8",        "non-lossy ASCII", "Shift JIS",    "EUC-JP",
                            "Mac OS Roman", "Windows-1251", "Windows-1252",    "Windows-1253", "Windows-1254",
                            "Windows-1250", "ISO-8859-1",   "UTF-16"};
    return names.at(static_cast<int>(encoding));
}

} // namespace

class TextEncodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstThatTakesEveryByteIsTheAnswer_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QString>("text");
        const auto row
            = [](const char* name, const QByteArray& bytes, const char* encoding, const QString& text) {
                  QTest::newRow(name) << bytes << QString::fromLatin1(encoding) << text;
              };
        row("nothing", "", "UTF-8", "");
        row("seven bits", "$info=pacman\r\n", "UTF-8", "$info=pacman\r\n");
        row("seven bits with a backslash", "\\u3042", "UTF-8", "\\u3042");
        row("UTF-8", "\xE3\x83\x91\xE3\x83\x83\xE3\x82\xAF", "UTF-8", QString::fromUtf8("パック"));
        row("an escape in valid UTF-8 that is ISO-2022-JP", "\x1B$B%Q%C%/\x1B(B!", "ISO-2022-JP",
            QString::fromUtf8("パック!"));
        row("an escape that begins nothing", "\x1B!", "UTF-8", "\x1B!");
        row("an escape and eight bits", QByteArray("\x1B$B%Q\x1B(B\xE3\x83\x91"), "UTF-8",
            QString::fromUtf8("\x1B$B%Q\x1B(Bパ"));
        row("Shift JIS", "\x83\x70\x83\x62\x83\x4E", "Shift JIS", QString::fromUtf8("パック"));
        row("code page 932", "\x87\x40\xED\x40\xFA\x5C", "Shift JIS", QString::fromUtf8("①纊纊"));
        row("half-width", "\xCA\xDF", "Shift JIS", QString::fromUtf8("ﾊﾟ"));
        // The last byte is no second one in Shift JIS.
        row("EUC-JP", "\xA5\xD1\xA5\xC3\xA5\xAF\xE1\xFE", "EUC-JP", QString::fromUtf8("パック癰"));
        // What EUC-JP has no place for, though it would take the rest of both.
        row("quotation marks of Mac OS Roman", "\x93Hi\x94 said he \x85 ", "Mac OS Roman",
            QString::fromUtf8("ìHiî said he Ö "));
        row("an umlaut of Mac OS Roman", "f\x9f r", "Mac OS Roman", QString::fromUtf8("fü r"));
        row("Mac OS Roman", "caf\x8E \xFF", "Mac OS Roman", QString::fromUtf8("café ˇ"));
        row("UTF-16", QByteArray("\xFF\xFE\x41\x30", 4), "Mac OS Roman", QString());
        row("half a character at the end", "\x83\x70\xE1", "Mac OS Roman", QString());
    }

    void theFirstThatTakesEveryByteIsTheAnswer()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, encoding);
        QFETCH(QString, text);
        QCOMPARE(nameOf(detectEncoding(bytesOf(bytes))), encoding);
        const DecodedText decoded = decodedText(bytesOf(bytes));
        QCOMPARE(nameOf(decoded.encoding), encoding);
        QVERIFY(decoded.text.has_value());
        if (!text.isNull())
            QCOMPARE(QString::fromStdString(*decoded.text), text);
    }

    void theTrialsStandInTheirOrder()
    {
        QStringList names;
        for (const EncodingTrial& trial : encodings)
            names << nameOf(trial.encoding);
        QCOMPARE(
            names.join(", "),
            QStringLiteral("UTF-8, non-lossy ASCII, Shift JIS, EUC-JP, Mac OS Roman, Windows-1251, "
                           "Windows-1252, Windows-1253, Windows-1254, Windows-1250, ISO-8859-1, UTF-16"));
    }

    void everyByteIsMacOsRoman()
    {
        std::string bytes;
        for (int i = 0; i < 256; ++i)
            bytes += static_cast<char>(i);
        QCOMPARE(nameOf(detectEncoding(bytes)), QStringLiteral("Mac OS Roman"));
    }

    // The text is decoded piece by piece; no piece may lose or double anything at its ends.
    void longTextsAreWhole_data()
    {
        QTest::addColumn<QString>("character");
        QTest::newRow("one byte") << "a";
        QTest::newRow("two bytes") << QString::fromUtf8("パ");
        QTest::newRow("two of the code page") << QString::fromUtf8("①");
    }

    void longTextsAreWhole()
    {
        QFETCH(QString, character);
        const std::string encoded = character == "a" ? "a" : character == u"①" ? "\x87\x40" : "\x83\x70";
        for (const int before : {0, 1, 8190, 8191, 8192, 8193}) {
            const std::string start(static_cast<std::size_t>(before), 'x');
            std::string bytes = start + "\x83\x70";
            QString expected = QString::fromStdString(start) + QString::fromUtf8("パ");
            for (int i = 0; i < 20'000; ++i)
                bytes += encoded;
            expected += character.repeated(20'000);
            const DecodedText decoded = decodedText(bytes);
            QCOMPARE(nameOf(decoded.encoding), QStringLiteral("Shift JIS"));
            QVERIFY(QString::fromStdString(*decoded.text) == expected);
        }
    }

    void surrogatePairsSurviveTheEndOfAPiece()
    {
        for (const int before : {8190, 8191, 8192}) {
            const QString text = QString(before, u'x') + QString::fromUtf8("😀").repeated(9000);
            const std::string bytes(reinterpret_cast<const char*>(text.utf16()),
                                    static_cast<std::size_t>(text.size()) * 2);
            const auto decoded = decodedAs(TextEncoding::Utf16, "\xFF\xFE" + bytes);
            QVERIFY(decoded.has_value());
            QVERIFY(QString::fromStdString(*decoded) == text);
        }
    }

    // Every byte beyond ASCII needs another one behind it, or stands nowhere.
    void noHighByteAloneIsEucJp()
    {
        for (int byte = 0x80; byte < 0x100; ++byte)
            QVERIFY2(!decodedAs(TextEncoding::EucJp, std::string("a") + static_cast<char>(byte)),
                     qPrintable(QString::number(byte, 16)));
        QCOMPARE(QString::fromStdString(decodedAs(TextEncoding::EucJp, "\x8E\xCA\x8F\xB0\xA1").value_or("")),
                 QString::fromUtf8("ﾊ丂"));
    }

    void everyEncodingIsStrict_data()
    {
        QTest::addColumn<int>("encoding");
        QTest::addColumn<QByteArray>("valid");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("invalid"); // empty where every byte is valid
        const auto row = [](TextEncoding encoding, const QByteArray& valid, const char* text,
                            const QByteArray& invalid) {
            QTest::newRow(qPrintable(nameOf(encoding)))
                << static_cast<int>(encoding) << valid << QString::fromUtf8(text) << invalid;
        };
        row(TextEncoding::Iso2022Jp, "\x1B$B%Q\x1B(B", "パ", "\x1B!");
        row(TextEncoding::Utf8, "\xE3\x83\x91", "パ", "\xE3\x83");
        row(TextEncoding::NonLossyAscii, "pac", "pac", "p\xE3");
        row(TextEncoding::ShiftJis, "\x83\x70", "パ", "\x83");
        row(TextEncoding::EucJp, "\xA5\xD1", "パ", "\x93");
        row(TextEncoding::MacOsRoman, "\x8E", "é", "");
        row(TextEncoding::Windows1251, "\xCF", "П", "\x98");
        row(TextEncoding::Windows1252, "\xE9", "é", "\x81");
        row(TextEncoding::Windows1253, "\xE1", "α", "\xD2");
        row(TextEncoding::Windows1254, "\xFE", "ş", "\x81");
        row(TextEncoding::Windows1250, "\xB3", "ł", "\x81");
        row(TextEncoding::Iso8859_1, "\xE9\x81", "é\xC2\x81", "");
        row(TextEncoding::Utf16, QByteArray("\xFE\xFF\x30\xD1", 4), "パ", "\xFE\xFF\x30");
    }

    void everyEncodingIsStrict()
    {
        QFETCH(int, encoding);
        QFETCH(QByteArray, valid);
        QFETCH(QString, text);
        QFETCH(QByteArray, invalid);
        const auto one = static_cast<TextEncoding>(encoding);
        QCOMPARE(QString::fromStdString(decodedAs(one, bytesOf(valid)).value_or("")), text);
        if (!invalid.isEmpty())
            QVERIFY(!decodedAs(one, bytesOf(invalid)));
    }
};

TESSERA_TEST(TextEncodingTest);
#include "textencodingtest.moc"
