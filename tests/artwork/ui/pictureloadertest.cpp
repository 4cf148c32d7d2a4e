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
    PictureStaging m_staging;
    std::unique_ptr<PictureLoader> m_loader;
    QStringList m_loaded;
};

TESSERA_TEST(PictureLoaderTest);

#include "pictureloadertest.moc"
