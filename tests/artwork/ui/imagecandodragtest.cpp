#include "artwork/ui/imagecandodrag.h"

#include "support/testmain.h"

#include <QPainter>

using namespace tessera;

namespace {

// One pixel of red beside one of blue, above one another.
QImage halves()
{
    QImage image(2, 2, QImage::Format_RGB32);
    for (int y = 0; y < 2; ++y) {
        image.setPixelColor(0, y, Qt::red);
        image.setPixelColor(1, y, Qt::blue);
    }
    return image;
}

} // namespace

/// The picture within its window.
class ImageCandoDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholePixelsStaySharp()
    {
        ImageCandoDrag view;
        view.resize(200, 200);
        view.setImage(halves());
        const QImage seen = view.grab().toImage();
        QCOMPARE(seen.pixelColor(99, 100), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(100, 100), QColor(Qt::blue));
    }

    void partsOfPixelsAreMixed()
    {
        ImageCandoDrag view;
        view.resize(201, 201);
        view.setImage(halves());
        const QImage seen = view.grab().toImage();
        const QColor middle = seen.pixelColor(100, 100);
        QVERIFY(middle.red() > 50 && middle.blue() > 50);
    }

    void itIsWholeAndInTheMiddle()
    {
        QImage image(40, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        ImageCandoDrag view;
        view.resize(80, 80);
        view.setImage(image);
        QCOMPARE(view.image().size(), QSize(40, 10));
        const QImage seen = view.grab().toImage();
        for (const QPoint place : {QPoint(0, 31), QPoint(79, 31), QPoint(0, 48), QPoint(79, 48)})
            QCOMPARE(seen.pixelColor(place), QColor(Qt::red));
        QVERIFY(seen.pixelColor(40, 28) != QColor(Qt::red));
        QVERIFY(seen.pixelColor(40, 51) != QColor(Qt::red));
    }

    void withoutAPictureNothingIsDrawn()
    {
        ImageCandoDrag view;
        view.resize(20, 20);
        const QImage empty = view.grab().toImage();
        view.setImage(halves());
        QVERIFY(view.grab().toImage() != empty);
        view.setImage(QImage());
        QCOMPARE(view.grab().toImage(), empty);
    }

    void draggingMovesTheWindow()
    {
        QWidget window;
        window.resize(200, 200);
        window.move(50, 60);
        auto* view = new ImageCandoDrag(&window);
        view->setGeometry(0, 0, 200, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint start = window.pos();
        QTest::mousePress(view, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(view, {130, 80});
        QTest::mouseRelease(view, Qt::LeftButton, {}, {100, 100});
        QCOMPARE(window.pos(), start + QPoint(30, -20));
        // What was let go of stays.
        QTest::mouseMove(view, {10, 150});
        QCOMPARE(window.pos(), start + QPoint(30, -20));
    }
};

TESSERA_TEST(ImageCandoDragTest);

#include "imagecandodragtest.moc"
