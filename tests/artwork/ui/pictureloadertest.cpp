#include "artwork/ui/pictureloader.h"

#include "staging.h"
#include "support/testmain.h"

#include <QFile>
#include <QSignalSpy>

using namespace tessera;
using test::PictureStaging;

class PictureLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_loader = std::make_unique<PictureLoader>();
        m_loaded.clear();
        connect(m_loader.get(), &PictureLoader::loaded, this,
                [this](const QString& path, const QImage&) { m_loaded << path; });
        connect(m_loader.get(), &PictureLoader::failed, this,
                [this](const QString& path) { m_loaded << "failed " + path; });
    }

    void aPictureComesLater()
    {
        const QString path = m_staging.paint("one.png");
        m_loader->load(path);
        QVERIFY(m_loaded.isEmpty());
        QTRY_COMPARE(m_loaded, QStringList{path});
    }

    void onlyTheLastOneIsToldOf()
    {
        QStringList paths;
        for (int i = 0; i < 20; ++i)
            paths << m_staging.paint(QStringLiteral("%1.png").arg(i), {200, 200});
        for (const QString& path : std::as_const(paths))
            m_loader->load(path);
        QTRY_COMPARE(m_loaded, QStringList{paths.constLast()});
    }

    void aKeptOneComesAtOnce()
    {
        const QString path = m_staging.paint("one.png");
        m_loader->load(path);
        QTRY_COMPARE(m_loaded.size(), 1);
        m_loader->load(path);
        QCOMPARE(m_loaded.size(), 2);
    }

    void aChangedFileIsReadAnew()
    {
        const QString path = m_staging.paint("one.png");
        m_loader->load(path);
        QTRY_COMPARE(m_loaded.size(), 1);
        m_staging.paint("one.png", {40, 30}, Qt::blue);
        QImage seen;
        connect(m_loader.get(), &PictureLoader::loaded, this,
                [&seen](const QString&, const QImage& image) { seen = image; });
        m_loader->load(path);
        QCOMPARE(m_loaded.size(), 1);
        QTRY_COMPARE(seen.size(), QSize(40, 30));
    }

    // Either alone tells that it is another file.
    void aFileOfAnotherTimeOrLengthIsReadAnew_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("seconds");
        QTest::newRow("time") << QSize(4, 3) << 5;
        QTest::newRow("length") << QSize(4, 6) << 0;
    }

    void aFileOfAnotherTimeOrLengthIsReadAnew()
    {
        QFETCH(QSize, size);
        QFETCH(int, seconds);
        QColor seen;
        connect(m_loader.get(), &PictureLoader::loaded, this,
                [&seen](const QString&, const QImage& image) { seen = image.pixelColor(0, 0); });
        const QDateTime time(QDate(2026, 1, 2), QTime(3, 4, 5));
        const QString path = m_staging.paint("one.bmp", {4, 3});
        setTime(path, time);
        m_loader->load(path);
        QTRY_COMPARE(seen, QColor(Qt::red));
        m_staging.paint("one.bmp", size, Qt::blue);
        setTime(path, time.addSecs(seconds));
        m_loader->load(path);
        QTRY_COMPARE(seen, QColor(Qt::blue));
    }

    void whatIsTooLargeComesInTheSizeThatIsAskedFor_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("given");
        QTest::newRow("smaller") << QSize(99, 79) << QSize(99, 79);
        QTest::newRow("just as large") << QSize(100, 80) << QSize(100, 80);
        QTest::newRow("wider") << QSize(200, 80) << QSize(100, 40);
        QTest::newRow("higher") << QSize(50, 160) << QSize(25, 80);
        QTest::newRow("both") << QSize(200, 160) << QSize(100, 80);
    }

    void whatIsTooLargeComesInTheSizeThatIsAskedFor()
    {
        QFETCH(QSize, size);
        PictureLoader loader({100, 80});
        QSize seen;
        connect(&loader, &PictureLoader::loaded, &loader,
                [&seen](const QString&, const QImage& image) { seen = image.size(); });
        const QString path = m_staging.paint("sized.png", size);
        loader.load(path);
        QTRY_VERIFY(seen.isValid());
        QTEST(seen, "given");
    }

    void whatCouldNotBeReadIsTriedAgain()
    {
        const QString path = m_staging.path("later.png");
        m_loader->load(path);
        QTRY_COMPARE(m_loaded, QStringList{"failed " + path});
        m_staging.paint("later.png");
        m_loader->load(path);
        QTRY_COMPARE(m_loaded, (QStringList{"failed " + path, path}));
    }

    void whatIsAskedForFromWithinIsReadToo()
    {
        const QString first = m_staging.paint("first.png");
        const QString second = m_staging.paint("second.png");
        connect(m_loader.get(), &PictureLoader::loaded, this, [&](const QString& path) {
            if (path == first)
                m_loader->load(second);
        });
        m_loader->load(first);
        QTRY_COMPARE(m_loaded, (QStringList{first, second}));
        // A kept one just so.
        m_loader->load(first);
        QCOMPARE(m_loaded, (QStringList{first, second, first, second}));
    }

    void aKeptOneEndsTheWaitForAnother()
    {
        const QString kept = m_staging.paint("kept.png");
        m_loader->load(kept);
        QTRY_COMPARE(m_loaded.size(), 1);
        m_loader->load(m_staging.paint("other.png", {300, 300}));
        m_loader->load(kept);
        QCOMPARE(m_loaded, (QStringList{kept, kept}));
        // One is read after the other.
        const QString third = m_staging.paint("third.png");
        m_loader->load(third);
        QTRY_COMPARE(m_loaded, (QStringList{kept, kept, third}));
    }

    void whatCannotBeReadSaysSo()
    {
        m_loader->load(m_staging.path("none.png"));
        QTRY_COMPARE(m_loaded, QStringList{"failed " + m_staging.path("none.png")});
    }

    void whileItIsHeldNothingIsRead()
    {
        QSize seen;
        connect(m_loader.get(), &PictureLoader::loaded, this,
                [&seen](const QString&, const QImage& image) { seen = image.size(); });
        m_loader->setHeld(true);
        m_loader->load(m_staging.paint("first.png"));
        m_loader->load(m_staging.paint("last.png", {40, 30}));
        m_staging.paint("last.png", {20, 10});
        m_loader->setHeld(false);
        QTRY_COMPARE(m_loaded, QStringList{m_staging.path("last.png")});
        QCOMPARE(seen, QSize(20, 10));
    }

    void itMayGoWhileItReads()
    {
        m_loader->load(m_staging.paint("large.png", {1000, 1000}));
        m_loader.reset();
        QVERIFY(m_loaded.isEmpty());
    }

private:
    static void setTime(const QString& path, const QDateTime& time)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    PictureStaging m_staging;
    std::unique_ptr<PictureLoader> m_loader;
    QStringList m_loaded;
};

TESSERA_TEST(PictureLoaderTest);

#include "pictureloadertest.moc"
