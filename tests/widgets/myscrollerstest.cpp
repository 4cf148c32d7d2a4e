#include "widgets/myscrollers.h"

#include "support/testmain.h"
#include "widgets/theme.h"

using namespace tessera;

namespace {

const QColor under(Qt::magenta);

QImage paintedOver(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(under);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QColor middle(MyScrollers& bar)
{
    return paintedOver(bar).pixelColor(bar.knob().center().toPoint());
}

} // namespace

class MyScrollersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheKnobIsPainted_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<QSize>("size");
        QTest::newRow("upright") << Qt::Vertical << QSize(12, 300);
        QTest::newRow("lying") << Qt::Horizontal << QSize(300, 12);
    }

    void onlyTheKnobIsPainted()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(QSize, size);
        MyScrollers bar(orientation);
        bar.resize(size);
        bar.setRange(0, 100);
        bar.setPageStep(50);
        bar.setValue(30);
        const QImage image = paintedOver(bar);
        const QRect knob = bar.knob().toAlignedRect();
        QVERIFY(!knob.isEmpty() && bar.rect().contains(knob));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(knob.contains(x, y) || image.pixelColor(x, y) == under);
        }
        QCOMPARE(image.pixelColor(knob.center()), theme::color("border"));
    }

    void theKnobMovesWithTheValue()
    {
        MyScrollers bar(Qt::Vertical);
        bar.resize(12, 300);
        bar.setRange(0, 100);
        const qreal top = bar.knob().top();
        bar.setValue(100);
        QVERIFY(bar.knob().top() > top);
        QVERIFY(bar.knob().bottom() <= 300);
    }

    void withNothingToScrollNothingIsPainted()
    {
        MyScrollers bar(Qt::Vertical);
        bar.resize(12, 300);
        bar.setRange(0, 0);
        QVERIFY(bar.knob().isEmpty());
        QImage empty(bar.size(), QImage::Format_RGB32);
        empty.fill(under);
        QCOMPARE(paintedOver(bar), empty);
    }

    void theKnobIsBrighterWhileItIsPressed()
    {
        MyScrollers bar(Qt::Vertical);
        bar.resize(12, 300);
        bar.setRange(0, 100);
        bar.setPageStep(50);
        bar.show();
        const QPoint knob = bar.knob().center().toPoint();
        QTest::mousePress(&bar, Qt::LeftButton, {}, knob);
        QCOMPARE(middle(bar), theme::color("dim"));
        QTest::mouseMove(&bar, knob + QPoint(0, 60));
        QVERIFY(bar.value() > 0);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, knob + QPoint(0, 60));
        QVERIFY(middle(bar) != theme::color("dim"));
    }

    void theKnobIsBrighterUnderThePointer()
    {
        QWidget window;
        window.resize(100, 300);
        auto* bar = new MyScrollers(Qt::Vertical, &window);
        bar->setGeometry(80, 0, 12, 300);
        bar->setRange(0, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::mouseMove(&window, QPoint(10, 10));
        QTRY_COMPARE(middle(*bar), theme::color("border"));
        QTest::mouseMove(bar, QPoint(6, 150));
        QTRY_COMPARE(middle(*bar), theme::color("faint"));
        QTest::mouseMove(&window, QPoint(10, 10));
        QTRY_COMPARE(middle(*bar), theme::color("border"));
    }
};

TESSERA_TEST(MyScrollersTest);
#include "myscrollerstest.moc"
