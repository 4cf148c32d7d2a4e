#include "artwork/ui/picturereader.h"

#include "staging.h"
#include "support/testmain.h"

#include <QFile>
#include <QtEndian>

#include <sys/stat.h>

using namespace tessera;
using test::PictureStaging;

namespace {

// The head of a file that claims this size; nothing of it follows.
QByteArray headOf(int width, int height)
{
    QByteArray head(54, '\0');
    const auto put = [&head](qsizetype at, int number) { qToLittleEndian(number, head.data() + at); };
    head.replace(0, 2, "BM");
    put(10, 54);
    put(14, 40);
    put(18, width);
    put(22, height);
    head[26] = 1;
    head[28] = 24;
    return head;
}

} // namespace

class PictureReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureIsReadInItsOwnSize()
    {
        const auto image = readPicture(m_staging.paint("pong.png", {320, 240}));
        QVERIFY(image);
        QCOMPARE(image->size(), QSize(320, 240));
        QCOMPARE(image->pixelColor(0, 0), QColor(Qt::red));
    }

    void theContentTellsTheFormat()
    {
        m_staging.paint("flyer.jpg", {16, 16});
        QVERIFY(QFile::rename(m_staging.path("flyer.jpg"), m_staging.path("flyer.png")));
        QVERIFY(readPicture(m_staging.path("flyer.png")));
    }

    void whatIsNoPictureSaysSo_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << "picture_unreadable";
        QTest::newRow("text") << QByteArray("<html>not found</html>") << "picture_unreadable";
        QTest::newRow("cut off") << headOf(64, 64) << "picture_unreadable";
        QTest::newRow("enormous") << headOf(9000, 9000) << "picture_toolarge";
        QTest::newRow("as much as can be, cut off") << headOf(8192, 4096) << "picture_unreadable";
        QTest::newRow("one more than can be") << headOf(8192, 4097) << "picture_toolarge";
        QTest::newRow("no size") << headOf(0, 0) << "picture_unreadable";
        QTest::newRow("a drawing") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" "
                                                 "height=\"9\"><rect width=\"9\" height=\"9\"/></svg>")
                                   << "picture_unreadable";
    }

    void whatIsNoPictureSaysSo()
    {
        QFETCH(QByteArray, content);
        QFile file(m_staging.path("bad.png"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        const auto image = readPicture(file.fileName());
        QVERIFY(!image);
        QTEST(QString(image.error().key), "reason");
    }

    void theReasonNamesTheFile()
    {
        const QString none = m_staging.path("none.png");
        QCOMPARE(readPicture(none).error().arguments, (QStringList{none, "picture_nofile"}));
        const QString large = write("large.png", headOf(9000, 8000));
        QCOMPARE(readPicture(large).error().arguments, (QStringList{large, "9000", "8000"}));
        for (const QByteArray& content : {QByteArray("text"), headOf(64, 64)}) {
            const QStringList said = readPicture(write("bad.png", content)).error().arguments;
            QCOMPARE(said.size(), 2);
            QCOMPARE(said[0], m_staging.path("bad.png"));
            QVERIFY(!said[1].isEmpty());
        }
    }

    void everyUsualFormatIsRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("png") << m_staging.paint("a.png");
        QTest::newRow("jpeg") << m_staging.paint("a.jpg");
        QTest::newRow("bmp") << m_staging.paint("a.bmp");
        QTest::newRow("gif") << write(
            "a.gif", QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7"));
    }

    void everyUsualFormatIsRead()
    {
        QFETCH(QString, path);
        QVERIFY(readPicture(path));
    }

    void anyOtherFormatIsNot() { QVERIFY(!readPicture(m_staging.paint("a.ppm"))); }

    // As a camera marks what is to be turned.
    void aTurnedPictureIsShownUpright()
    {
        QFile file(m_staging.paint("turned.jpg", {16, 8}));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray mark = QByteArray::fromHex("ffe10022457869660000"
                                                    "4d4d002a00000008"
                                                    "0001011200030000000100060000"
                                                    "00000000");
        const auto image = readPicture(write("turned.png", file.readAll().insert(2, mark)));
        QVERIFY(image);
        QCOMPARE(image->size(), QSize(8, 16));
    }

    void itComesAsItIsDrawnFastest()
    {
        QCOMPARE(readPicture(m_staging.paint("a.png"))->format(), QImage::Format_RGB32);
        QImage clear(4, 4, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QVERIFY(clear.save(m_staging.path("clear.png")));
        QCOMPARE(readPicture(m_staging.path("clear.png"))->format(), QImage::Format_ARGB32_Premultiplied);
    }

    void aNameThatTellsOfADensityChangesNothing()
    {
        const auto image = readPicture(m_staging.paint("pong@2x.png", {32, 24}));
        QVERIFY(image);
        QCOMPARE(image->devicePixelRatio(), 1.0);
    }

    void aPipeIsNotWaitedFor()
    {
        const QString pipe = m_staging.path("pipe.png");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!readPicture(pipe));
    }

    void aFolderIsNoPicture() { QVERIFY(!readPicture(m_staging.path("snap"))); }

private:
    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(m_staging.path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("no file");
        return file.fileName();
    }

    PictureStaging m_staging;
};

TESSERA_TEST(PictureReaderTest);

#include "picturereadertest.moc"
