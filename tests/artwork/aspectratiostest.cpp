#include "artwork/aspectratios.h"

#include "support/testmain.h"

using namespace tessera;

class AspectRatiosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPositionHasItsRatio_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<double>("longToShort");
        QTest::newRow("own") << 0 << 320.0 / 240.0;
        QTest::newRow("4:3") << 3 << 4.0 / 3.0;
        QTest::newRow("16:9") << 4 << 16.0 / 9.0;
        QTest::newRow("6:4") << 6 << 1.5;
        QTest::newRow("8:3") << 7 << 8.0 / 3.0;
        QTest::newRow("12:3") << 8 << 4.0;
        for (const int position : {1, 2, 5, 9, 100, -1})
            QTest::newRow(qPrintable(QStringLiteral("square %1").arg(position))) << position << 1.0;
    }

    void everyPositionHasItsRatio()
    {
        QFETCH(int, position);
        const AspectRatio ratio = aspectRatio(position, {320, 240});
        QTEST(ratio.longSide / ratio.shortSide, "longToShort");
    }

    void aPictureIsDrawnInItsRatio_data()
    {
        QTest::addColumn<QSizeF>("picture");
        QTest::addColumn<QRectF>("view");
        QTest::addColumn<int>("position");
        QTest::addColumn<QRectF>("drawn");
        const QRectF square(0, 0, 400, 400);
        QTest::newRow("landscape, 16:9") << QSizeF(320, 240) << square << 4 << QRectF(0, 87.5, 400, 225);
        QTest::newRow("landscape, own") << QSizeF(320, 240) << square << 0 << QRectF(0, 50, 400, 300);
        QTest::newRow("portrait, 3:4") << QSizeF(224, 288) << square << 3 << QRectF(50, 0, 300, 400);
        QTest::newRow("portrait, own") << QSizeF(240, 320) << square << 0 << QRectF(50, 0, 300, 400);
        QTest::newRow("portrait, square") << QSizeF(240, 320) << square << 1 << square;
        QTest::newRow("as wide as high, own") << QSizeF(64, 64) << square << 0 << square;
        // Counts as landscape.
        QTest::newRow("as wide as high, 8:3") << QSizeF(64, 64) << square << 7 << QRectF(0, 125, 400, 150);
        QTest::newRow("a view elsewhere")
            << QSizeF(320, 240) << QRectF(10, 20, 400, 150) << 0 << QRectF(110, 20, 200, 150);
        QTest::newRow("a low view") << QSizeF(320, 240) << QRectF(0, 0, 400, 50) << 8
                                    << QRectF(100, 0, 200, 50);
        QTest::newRow("the view's own shape")
            << QSizeF(320, 240) << QRectF(0, 0, 400, 100) << 8 << QRectF(0, 0, 400, 100);
    }

    void aPictureIsDrawnInItsRatio()
    {
        QFETCH(QSizeF, picture);
        QFETCH(QRectF, view);
        QFETCH(int, position);
        QFETCH(QRectF, drawn);
        const auto place = picturePlace(picture, view, position);
        QVERIFY(place);
        const QRectF rectangle = place->rectangle(picture);
        // Single precision.
        for (const double distance : {rectangle.x() - drawn.x(), rectangle.y() - drawn.y(),
                                      rectangle.width() - drawn.width(), rectangle.height() - drawn.height()})
            QVERIFY2(qAbs(distance) < 1e-4, qPrintable(QString::number(distance)));
        QVERIFY(qAbs(rectangle.center().x() - view.center().x()) < 1e-9);
        QVERIFY(qAbs(rectangle.center().y() - view.center().y()) < 1e-9);
    }

    void wholeStepsGrowEvenly_data()
    {
        QTest::addColumn<QSizeF>("picture");
        QTest::addColumn<int>("position");
        QTest::addColumn<QRectF>("drawn");
        QTest::newRow("2.67 is 2") << QSizeF(150, 100) << 0 << QRectF(50, 100, 300, 200);
        QTest::newRow("2 is 2") << QSizeF(200, 150) << 0 << QRectF(0, 50, 400, 300);
        QTest::newRow("smaller than itself") << QSizeF(800, 400) << 0 << QRectF(0, 100, 400, 200);
        // The height grows 1.5 times, the width twice: the least goes down to 1, the other with it.
        QTest::newRow("squeezed") << QSizeF(200, 150) << 4 << QRectF(66.6667, 125, 266.6667, 150);
    }

    void wholeStepsGrowEvenly()
    {
        QFETCH(QSizeF, picture);
        QFETCH(int, position);
        QFETCH(QRectF, drawn);
        const auto place = picturePlace(picture, {0, 0, 400, 400}, position);
        QVERIFY(place);
        const QRectF rectangle = inWholeSteps(*place, picture).rectangle(picture);
        for (const double distance : {rectangle.x() - drawn.x(), rectangle.y() - drawn.y(),
                                      rectangle.width() - drawn.width(), rectangle.height() - drawn.height()})
            QVERIFY2(qAbs(distance) < 1e-3, qPrintable(QString::number(distance)));
    }

    void aHairBelowAWholeNumberIsThatNumber()
    {
        const auto widthOf = [](float scale) {
            return inWholeSteps({0, 0, scale, scale}, {100, 100}).rectangle({100, 100}).width();
        };
        QVERIFY(qAbs(widthOf(2.9995F) - 300) < 1e-3);
        QVERIFY(qAbs(widthOf(2.998F) - 200) < 1e-3);
        QVERIFY(qAbs(widthOf(0.9995F) - 100) < 1e-3);
        QVERIFY(qAbs(widthOf(0.998F) - 99.8) < 1e-3);
        QVERIFY(qAbs(widthOf(1) - 100) < 1e-3);
    }

    void theScaleIsHeldInSinglePrecision()
    {
        const auto place = picturePlace({3, 3}, {0, 0, 1, 1}, 0);
        QVERIFY(place);
        QCOMPARE(place->rectangle({3, 3}).width(), 3 * static_cast<double>(1.0F / 3.0F));
    }

    void nothingIsDrawnWhereNothingIs()
    {
        QVERIFY(!picturePlace({0, 240}, {0, 0, 400, 400}, 0));
        QVERIFY(!picturePlace({320, 0}, {0, 0, 400, 400}, 3));
        QVERIFY(!picturePlace({320, 240}, {0, 0, 0, 400}, 0));
        QVERIFY(!picturePlace({320, 240}, {0, 0, 400, -1}, 3));
    }
};

TESSERA_TEST(AspectRatiosTest);
#include "aspectratiostest.moc"
