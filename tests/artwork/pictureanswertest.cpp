#include "artwork/pictureanswer.h"

#include "support/testmain.h"

using namespace tessera;

class PictureAnswerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyImageTypesArePictures_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<bool>("isPicture");
        QTest::newRow("png") << QByteArray("image/png") << true;
        QTest::newRow("any image") << QByteArray("image/x-whatever; a=b") << true;
        QTest::newRow("capitals") << QByteArray(" Image/PNG") << true;
        QTest::newRow("a page") << QByteArray("text/html") << false;
        QTest::newRow("another type") << QByteArray("application/image/png") << false;
        QTest::newRow("no slash") << QByteArray("image") << false;
        QTest::newRow("no type") << QByteArray() << false;
    }

    void onlyImageTypesArePictures()
    {
        QFETCH(QByteArray, type);
        QTEST(isPictureAnswer(type), "isPicture");
    }

    void aLengthIsANumberOrUnknown_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<double>("length");
        QTest::newRow("number") << QByteArray("1234") << 1234.0;
        QTest::newRow("blanks") << QByteArray(" 7 ") << 7.0;
        QTest::newRow("nothing at all") << QByteArray("0") << 0.0;
        QTest::newRow("none") << QByteArray() << -1.0;
        QTest::newRow("negative") << QByteArray("-5") << -1.0;
        QTest::newRow("a word") << QByteArray("many") << -1.0;
        QTest::newRow("beyond all") << QByteArray("99999999999999999999") << -1.0;
    }

    void aLengthIsANumberOrUnknown()
    {
        QFETCH(QByteArray, header);
        QTEST(expectedLength(header), "length");
    }

    void aPictureIsKnownByItsStart_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isImage");
        const QByteArray rest(12, '\0');
        QTest::newRow("PNG") << QByteArray("\x89PNG\r\n\x1a\n") + rest << true;
        QTest::newRow("JPEG") << QByteArray("\xff\xd8\xff\xe0") + rest << true;
        QTest::newRow("GIF") << QByteArray("GIF89a") + rest << true;
        QTest::newRow("BMP") << QByteArray("BM") + rest << true;
        QTest::newRow("WebP") << QByteArray("RIFF....WEBPVP8 ") << true;
        QTest::newRow("a sound") << QByteArray("RIFF....WAVEfmt ") << false;
        QTest::newRow("a page") << QByteArray("<!DOCTYPE html>") << false;
        QTest::newRow("changed line ends") << QByteArray("\x89PNG\n\x1a\n") + rest << false;
        QTest::newRow("just long enough") << QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(4, '\0') << true;
        QTest::newRow("one byte too short") << QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(3, '\0') << false;
        QTest::newRow("a picture further on") << QByteArray("xBM") + rest << false;
        QTest::newRow("too short") << QByteArray("\x89PNG\r\n\x1a\n") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void aPictureIsKnownByItsStart()
    {
        QFETCH(QByteArray, content);
        QTEST(startsLikeImage(content), "isImage");
    }

    void theNameIsTheAddressesLastComponent_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("name"); // empty for none
        QTest::newRow("plain") << "http://a.test/snap/pong.png" << "pong.png";
        QTest::newRow("with a query") << "http://a.test/snap/pong.png?size=1#top" << "pong.png";
        QTest::newRow("a blank") << "http://a.test/a%20b.png" << "a b.png";
        QTest::newRow("Japanese") << "http://a.test/%E3%83%91.png" << QString::fromUtf8("パ.png");
        QTest::newRow("percent") << "http://a.test/100%25.png" << "100%.png";
        QTest::newRow("encoded slashes") << "http://a.test/s/..%2F..%2Fetc%2Fx.png" << "x.png";
        QTest::newRow("a backslash of the name") << "http://a.test/s/a%5Cx.png" << "a\\x.png";
        QTest::newRow("dots and a backslash") << "http://a.test/s/..%5Cx.png" << "\\x.png";
        QTest::newRow("encoded NUL") << "http://a.test/po%00ng.png" << "pong.png";
        QTest::newRow("line end") << "http://a.test/po%0Ang.png" << "pong.png";
        QTest::newRow("hidden") << "http://a.test/.png" << "png";
        QTest::newRow("dots and blanks") << "http://a.test/%20..%20.x" << "x";
        QTest::newRow("dots alone") << "http://a.test/..." << "";
        QTest::newRow("an encoded slash at the end") << "http://a.test/pong%2F" << "";
        QTest::newRow("a folder") << "http://a.test/snap/" << "";
        QTest::newRow("no path") << "http://a.test" << "";
    }

    void theNameIsTheAddressesLastComponent()
    {
        QFETCH(QString, address);
        QTEST(pictureFileName({}, QUrl(address)).value_or(QString()), "name");
    }

    void theServerMaySuggestAnotherName_data()
    {
        QTest::addColumn<QByteArray>("disposition");
        QTest::addColumn<QString>("name");
        QTest::newRow("quoted") << QByteArray("attachment; filename=\"a b;c.png\"; size=3") << "a b;c.png";
        QTest::newRow("bare") << QByteArray("inline;FileName = qix.png ; size=3") << "qix.png";
        QTest::newRow("escaped") << QByteArray(R"(x; filename="a\"b.png")") << "a\"b.png";
        QTest::newRow("UTF-8") << QByteArray("x; filename=\"old.png\"; filename*=UTF-8'ja'%E3%83%91.png")
                               << QString::fromUtf8("パ.png");
        QTest::newRow("Latin-1") << QByteArray("x; filename*=iso-8859-1''caf%E9.png")
                                 << QString::fromUtf8("café.png");
        QTest::newRow("within quotation marks")
            << QByteArray("x; a=\"; filename=no.png\"; filename=qix.png") << "qix.png";
        QTest::newRow("leading out") << QByteArray("x; filename=\"../../.ssh/config\"") << "config";
        QTest::newRow("from the root") << QByteArray("x; filename=/etc/passwd") << "passwd";
        QTest::newRow("of another system") << QByteArray("x; filename*=UTF-8''C:%5Cx%5Cqix.png") << "qix.png";
        QTest::newRow("hidden") << QByteArray("x; filename=\".bashrc\"") << "bashrc";
        QTest::newRow("turned round") << QByteArray("x; filename*=UTF-8''a%E2%80%AEgnp.exe") << "agnp.exe";
        QTest::newRow("unsafe") << QByteArray("x; filename=\"..\"") << "pong.png";
        QTest::newRow("empty") << QByteArray("x; filename=\"\"") << "pong.png";
        QTest::newRow("not closed") << QByteArray("x; filename=\"qix.png") << "qix.png";
        QTest::newRow("a backslash at the end") << QByteArray("x; filename=\"qix.png\\") << "pong.png";
        QTest::newRow("blanks around the sign") << QByteArray("x; filename = \"qix.png\"") << "qix.png";
        QTest::newRow("another parameter")
            << QByteArray("x; myfilename=no.png; filename=qix.png") << "qix.png";
        QTest::newRow("without a sign") << QByteArray("x; filename; filename=qix.png") << "qix.png";
        QTest::newRow("an escaped mark within another")
            << QByteArray("x; a=\"\\\"; filename=no\"; filename=qix.png") << "qix.png";
        QTest::newRow("an escaped backslash") << QByteArray("x; filename=\"a\\\\b.png\"") << "b.png";
        QTest::newRow("behind the mark") << QByteArray("x; filename=\"qix.png\"no") << "qix.png";
        QTest::newRow("bare, and another") << QByteArray("x; filename=qix.png;a=b") << "qix.png";
        QTest::newRow("UTF-8 in capitals")
            << QByteArray("x; FILENAME*=utf-8''%E3%83%91.png") << QString::fromUtf8("パ.png");
        QTest::newRow("plain UTF-8") << QByteArray("x; filename=\"\xE3\x83\x91.png\"")
                                     << QString::fromUtf8("パ.png");
        QTest::newRow("at the front") << QByteArray("filename=no.png") << "pong.png";
        QTest::newRow("none") << QByteArray("attachment") << "pong.png";
    }

    void theServerMaySuggestAnotherName()
    {
        QFETCH(QByteArray, disposition);
        QTEST(pictureFileName(disposition, QUrl("http://a.test/pong.png")).value_or(QString()), "name");
    }
};

TESSERA_TEST(PictureAnswerTest);
#include "pictureanswertest.moc"
