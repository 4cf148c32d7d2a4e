#include "widgets/rounded_view2.h"

#include "support/testmain.h"

#include <QSignalSpy>
#include <QToolButton>

#include <cmath>

using namespace tessera;

namespace {

QImage drawn(Rounded_View2& view)
{
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

} // namespace

class RoundedViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOutlineLiesOnWholeNumbers_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<float>("borderWidth");
        QTest::addColumn<QRectF>("edges");
        QTest::newRow("as it begins") << QSize(300, 200) << 0.9F << QRectF(0, 0, 300, 200);
        QTest::newRow("odd sizes") << QSize(301, 201) << 0.9F << QRectF(0, 0, 301, 201);
        QTest::newRow("no border") << QSize(300, 200) << 0.0F << QRectF(0, 0, 300, 200);
        QTest::newRow("a wide border") << QSize(300, 200) << 3.0F << QRectF(2, 2, 296, 196);
        QTest::newRow("a border of broken width") << QSize(300, 200) << 1.8F << QRectF(1, 1, 298, 198);
        QTest::newRow("nothing left") << QSize(2, 2) << 9.0F << QRectF();
    }
    void theOutlineLiesOnWholeNumbers()
    {
        QFETCH(QSize, size);
        QFETCH(float, borderWidth);
        Rounded_View2 view;
        view.resize(size);
        view.setBorderWidth(borderWidth);
        QTEST(view.outline().boundingRect(), "edges");
    }

    void cornersAreRoundedByTheirRadius()
    {
        Rounded_View2 view;
        view.resize(300, 200);
        const QPainterPath path = view.outline();
        QCOMPARE(path.boundingRect(), QRectF(0, 0, 300, 200));
        // Along the diagonal a quarter of a circle of 19 leaves 19 * (sqrt 2 - 1) = 7.87 of its corner free.
        const double edge = Rounded_View2::radius - Rounded_View2::radius / std::sqrt(2.0);
        for (const QPointF corner : {QPointF(0, 0), QPointF(300, 0), QPointF(0, 200), QPointF(300, 200)}) {
            const QPointF inward((corner.x() > 0 ? -1 : 1), (corner.y() > 0 ? -1 : 1));
            QVERIFY(!path.contains(corner + inward * (edge - 0.1)));
            QVERIFY(path.contains(corner + inward * (edge + 0.1)));
            QVERIFY(path.contains(corner + QPointF(inward.x() * 19.5, inward.y() * 0.1)));
            QVERIFY(path.contains(corner + QPointF(inward.x() * 0.1, inward.y() * 19.5)));
        }
    }

    void buttonsStandAtTheUpperEdge()
    {
        Rounded_View2 view;
        for (const QSize size : {QSize(300, 200), QSize(500, 90)}) {
            view.resize(size);
            view.grab();
            // 26 from the upper edge up to their lower one.
            QCOMPARE(view.closeButton->geometry(), QRect(8, 12, 14, 14));
            QCOMPARE(view.minimiseButton->geometry(), QRect(28, 12, 14, 14));
        }
        QCOMPARE(view.closeButton->objectName(), QStringLiteral("bu_close2"));
        QCOMPARE(view.minimiseButton->objectName(), QStringLiteral("bu_minus2"));
        QCOMPARE(view.closeButton->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
        QCOMPARE(view.minimiseButton->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_M));
    }

    void buttonsActOnTheWindow()
    {
        Rounded_View2 view;
        QSignalSpy out(&view, &Rounded_View2::orderOut);
        QSignalSpy small(&view, &Rounded_View2::miniaturize);
        QTest::mouseClick(view.closeButton, Qt::LeftButton);
        QCOMPARE(out.size(), 1);
        QTest::mouseClick(view.minimiseButton, Qt::LeftButton);
        QCOMPARE(small.size(), 1);
    }

    void itBeginsTranslucentBlackWithAGreyOutline()
    {
        const Rounded_View2 view;
        QCOMPARE(view.borderWidth(), 0.9F);
        QCOMPARE(view.borderColor().rgba(), qRgba(102, 102, 102, 191));
        QCOMPARE(view.backgroundColor().rgba(), qRgba(0, 0, 0, 191));
    }

    void withoutAWidthItIsFilledButNotOutlined()
    {
        Rounded_View2 view;
        view.resize(300, 200);
        view.closeButton->hide();
        view.minimiseButton->hide();
        view.setBackgroundColor(Qt::blue);
        view.setBorderColor(Qt::red);
        const auto reds = [&] {
            const QImage image = drawn(view);
            int count = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    count += qRed(image.pixel(x, y)) > 60 ? 1 : 0;
            }
            return count;
        };
        QVERIFY(reds() > 500);
        view.setBorderWidth(0);
        QCOMPARE(reds(), 0);
        const QImage image = drawn(view);
        QCOMPARE(image.pixelColor(150, 100), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(150, 1), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(299, 199).alpha(), 0);
    }
};

TESSERA_TEST(RoundedViewTest);
#include "roundedviewtest.moc"
