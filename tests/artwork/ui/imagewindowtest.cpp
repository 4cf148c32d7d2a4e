#include "artwork/ui/imagewindow.h"

#include "artwork/ui/imagecandodrag.h"
#include "support/testmain.h"

#include <QLabel>
#include <QScreen>

using namespace tessera;

class ImageWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_window.hide(); }

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

    // Shown where the user sees it; the picture is shown as large as the room beneath the strip allows.
    void aPictureOfTheScreensSizeIsShownAtItsOwn()
    {
        ImageWindow window;
        const QSize room = window.screen()->availableGeometry().size() - QSize(0, imageStrip);
        window.show(image({room.width(), 100}), QString());
        QCOMPARE(window.imageView2->size(), QSize(room.width(), 100));
        window.show(image({100, room.height()}), QString());
        QCOMPARE(window.imageView2->size(), QSize(100, room.height()));
        window.show(image({room.width() * 2, 100}), QString());
        QCOMPARE(window.imageView2->size(), QSize(room.width(), 50));
        window.show(image({100, room.height() * 2}), QString());
        QCOMPARE(window.imageView2->size(), QSize(50, room.height()));
    }

    void whatWouldBeBeyondAnEdgeIsAtIt()
    {
        ImageWindow window;
        const QRect free = window.screen()->availableGeometry();
        window.show(image({200, 200}), QString());
        window.setGeometry(free.right() - 50, 300, 200, 220);
        window.show(image({300, 100}), QString());
        QCOMPARE(window.geometry().right(), free.right());
        window.setGeometry(free.left() - 50, 300, 200, 220);
        window.show(image({300, 100}), QString());
        QCOMPARE(window.geometry().left(), free.left());
        window.setGeometry(100, free.top() + 10, 200, 100);
        window.show(image({300, 400}), QString());
        QCOMPARE(window.geometry().top(), free.top());
        window.setGeometry(100, free.bottom() - 50, 200, 220);
        window.show(image({300, 100}), QString());
        QCOMPARE(window.geometry().bottom(), free.bottom());
        // What fits is left where it is.
        window.setGeometry(free.right() + 1 - 300, free.top(), 300, 120);
        window.show(image({300, 100}), QString());
        QCOMPARE(window.geometry(), QRect(free.right() + 1 - 300, free.top(), 300, 120));
    }

    void theDesktopPlacesItAtFirst()
    {
        ImageWindow window;
        window.show(image({200, 200}), QString());
        QVERIFY(!window.testAttribute(Qt::WA_Moved));
    }

    // Where it is shown already, the list that the next picture is chosen in stays key.
    void anotherPictureDoesNotBringItForward()
    {
        ImageWindow window;
        window.show(image({100, 100}), QString());
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        window.show(image({120, 100}), QString());
        QVERIFY(other.isActiveWindow());
        window.hide();
        window.show(image({100, 100}), QString());
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void aPictureMayBeNarrowerThanItsSizeInWords()
    {
        ImageWindow window;
        window.show(image({5, 5}), QString());
        QVERIFY(window.minimumSizeHint().width() <= 5);
        QCOMPARE(window.findChild<QLabel*>(QStringLiteral("imageSizeLabel"))->alignment(), Qt::AlignCenter);
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
