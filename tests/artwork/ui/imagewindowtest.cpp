#include "artwork/ui/imagewindow.h"

#include "artwork/ui/imagecandodrag.h"
#include "artwork/ui/imageframe.h"
#include "support/testmain.h"

#include <QScreen>

using namespace tessera;

class ImageWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFrameIsThePicturesSizeAndAStrip()
    {
        QCOMPARE(imageFrame({10, 20, 1, 1}, {224, 288}), (Frame{10, 20, 224, 308}));
    }

    void aPictureIsShownAtItsOwnSize()
    {
        m_window.show(image({320, 240}), QStringLiteral("pong.png"));
        QVERIFY(m_window.isVisible());
        QCOMPARE(m_window.windowTitle(), QStringLiteral("pong.png"));
        QCOMPARE(m_window.size(), QSize(320, 260));
        QCOMPARE(m_window.imageView2->size(), QSize(320, 240));
        QCOMPARE(m_window.grab().toImage().pixelColor(160, 120), QColor(Qt::red));
    }

    void theLowerLeftCornerStays()
    {
        m_window.show(image({200, 200}), QString());
        m_window.move(100, 300);
        const QRect before = m_window.geometry();
        m_window.show(image({320, 240}), QString());
        QCOMPARE(m_window.size(), QSize(320, 260));
        QCOMPARE(m_window.geometry().bottomLeft(), before.bottomLeft());
    }

    void itStaysOnTheScreen()
    {
        const QRect free = m_window.screen()->availableGeometry();
        m_window.show(image({200, 200}), QString());
        m_window.move(free.right() - 100, 50);
        m_window.show(image({300, 400}), QString());
        QVERIFY(free.contains(m_window.geometry()));
        m_window.show(image({free.width() * 2, free.height() * 2}), QString());
        QVERIFY(m_window.width() <= free.width() && m_window.height() <= free.height());
        // Smaller than itself, but whole.
        QCOMPARE(m_window.grab().toImage().pixelColor(m_window.width() / 2, 100), QColor(Qt::red));
    }

    void escapeClosesIt()
    {
        m_window.show(image({100, 100}), QString());
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
        QTest::keyClick(&m_window, Qt::Key_Escape);
        QVERIFY(!m_window.isVisible());
    }

private:
    static QImage image(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }

    ImageWindow m_window;
};

TESSERA_TEST(ImageWindowTest);

#include "imagewindowtest.moc"
