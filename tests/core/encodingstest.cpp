#include "core/encodings.h"

#include "support/testmain.h"

using namespace tessera;

class EncodingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void invalidBytesBecomeReplacementCharacters_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const QByteArray& bytes, const QByteArray& text) {
            QTest::newRow(name) << bytes << text;
        };
        row("empty", "", "");
        row("ascii", "Pong <1972>", "Pong <1972>");
        row("kana", "\xE3\x82\xB0", "\xE3\x82\xB0");
        row("four bytes", "\xF0\x9F\x8E\xAE", "\xF0\x9F\x8E\xAE");
        row("lone continuation", "a\x80z", "a\xEF\xBF\xBDz");
        row("latin-1 letter", "caf\xE9 bar", "caf\xEF\xBF\xBD bar");
        row("cut at the end", "a\xE3\x82", "a\xEF\xBF\xBD");
        row("cut in the middle", "\xE3\x82z", "\xEF\xBF\xBDz");
        row("overlong slash", "\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD");
        row("overlong three", "\xE0\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
        row("surrogate", "\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
        row("above the last", "\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
        row("never a lead", "\xFF\xFE", "\xEF\xBF\xBD\xEF\xBF\xBD");
        row("last character", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF");
        const QByteArray broken = "\xEF\xBF\xBD";
        row("first of two bytes", "\xC2\x80", "\xC2\x80");
        row("last of two bytes", "\xDF\xBF", "\xDF\xBF");
        row("overlong two", "\xC1\xBF", broken + broken);
        row("two bytes, the second too low", "\xC2\x7F", broken + "\x7F");
        row("two bytes, the second too high", "\xC2\xC0", broken + broken);
        row("first of three bytes", "\xE0\xA0\x80", "\xE0\xA0\x80");
        row("three bytes with the lowest second one", "\xE1\x80\x80", "\xE1\x80\x80");
        row("three bytes with the highest ones", "\xEF\xBF\xBF", "\xEF\xBF\xBF");
        row("three bytes, the third too low", "\xE1\x80\x7F", broken + "\x7F");
        row("three bytes, the third too high", "\xE1\x80\xC0", broken + broken);
        row("before the surrogates", "\xED\x9F\xBF", "\xED\x9F\xBF");
        row("behind the surrogates", "\xEE\x80\x80", "\xEE\x80\x80");
        row("first of four bytes", "\xF0\x90\x80\x80", "\xF0\x90\x80\x80");
        row("overlong four", "\xF0\x8F\xBF\xBF", broken.repeated(4));
        row("four bytes with the highest second one", "\xF1\xBF\x80\x80", "\xF1\xBF\x80\x80");
        row("four bytes, the last one missing", "\xF1\x80\x80", broken);
        row("a lead of five bytes", "\xF8\x88\x80\x80\x80", broken.repeated(5));
        row("above the last lead", "\xF5\x80\x80\x80", broken.repeated(4));
    }

    void invalidBytesBecomeReplacementCharacters()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, text);
        std::string out = "before ";
        appendUtf8(out, bytes.toStdString());
        QCOMPARE(out, "before " + text.toStdString());
        QCOMPARE(isUtf8(bytes.toStdString()), bytes == text);
    }

    void shiftJisIsReadInItsCodePage932Form_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("kana") << QByteArray("\x83\x70\x83\x62\x83\x4E") << QStringLiteral("パック");
        QTest::newRow("half-width") << QByteArray("\xCA\xDF") << QStringLiteral("ﾊﾟ");
        QTest::newRow("vendor numeral") << QByteArray("\x87\x55") << QStringLiteral("Ⅱ");
        QTest::newRow("vendor kanji") << QByteArray("\xFB\xFC") << QStringLiteral("髙");
        QTest::newRow("backslash stays") << QByteArray("a\\b~") << QStringLiteral("a\\b~");
        QTest::newRow("broken") << QByteArray("a\x83") << QStringLiteral("a\uFFFD");
    }

    void shiftJisIsReadInItsCodePage932Form()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(QString::fromStdString(fromShiftJis(bytes.toStdString())), text);
    }

    void asciiIsBelow128()
    {
        QVERIFY(isAscii(""));
        QVERIFY(isAscii("abc\x7F"));
        QVERIFY(!isAscii("abc\x80"));
        QVERIFY(!isAscii("\x80"));
    }
};

TESSERA_TEST(EncodingsTest);
#include "encodingstest.moc"
