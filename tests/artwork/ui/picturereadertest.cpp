#include "artwork/ui/picturereader.h"

#include "staging.h"
#include "support/testmain.h"

#include <QFile>

#include <sys/stat.h>

using namespace tessera;
using test::PictureStaging;

namespace {

// The head of a file that claims this size; nothing of it follows.
QByteArray headOf(int width, int height)
{
    return "P6\n" + QByteArray::number(width) + ' ' + QByteArray::number(height) + "\n255\n";
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
        QTest::newRow("enormous") << headOf(20000, 20000) << "picture_toolarge";
        QTest::newRow("one more than can be") << headOf(8192, 4097) << "picture_toolarge";
        QTest::newRow("no size") << headOf(0, 0) << "picture_unreadable";
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

    void aPipeIsNotWaitedFor()
    {
        const QString pipe = m_staging.path("pipe.png");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!readPicture(pipe));
    }

    void aFolderIsNoPicture() { QVERIFY(!readPicture(m_staging.path("snap"))); }

private:
    PictureStaging m_staging;
};

TESSERA_TEST(PictureReaderTest);

#include "picturereadertest.moc"
