#include "widgets/windowgeometry.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

// As a failed comparison can show it.
QString line(const Frame& frame)
{
    return QStringLiteral("%1,%2 %3x%4").arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
}

} // namespace

class WindowGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theGripIsAtTheLowerRightCorner_data()
    {
        QTest::addColumn<double>("fromRight");
        QTest::addColumn<double>("fromBottom");
        QTest::addColumn<bool>("resizes");
        QTest::newRow("10 from the right, 5 from the bottom") << 10.0 << 5.0 << true;
        QTest::newRow("20 from the right") << 20.0 << 5.0 << false;
        QTest::newRow("its left edge") << 18.0 << 5.0 << true;
        QTest::newRow("short of its left edge") << 18.5 << 5.0 << false;
        QTest::newRow("its right edge is outside") << 2.0 << 5.0 << false;
        QTest::newRow("short of its right edge") << 2.5 << 5.0 << true;
        QTest::newRow("its lower edge") << 10.0 << 2.0 << true;
        QTest::newRow("beneath it") << 10.0 << 1.5 << false;
        QTest::newRow("short of its upper edge") << 10.0 << 17.5 << true;
        QTest::newRow("its upper edge is outside") << 10.0 << 18.0 << false;
        QTest::newRow("the upper right corner") << 10.0 << 195.0 << false;
    }
    void theGripIsAtTheLowerRightCorner()
    {
        QFETCH(double, fromRight);
        QFETCH(double, fromBottom);
        QFETCH(bool, resizes);
        const Frame window{100, 50, 300, 200};
        const Place mouse{window.x() + window.width() - fromRight, window.y() + fromBottom};
        QCOMPARE(holds(resizeGrip(window), inWindow(window, mouse)), resizes);
    }

    void movingStopsAtTheMenuBarOnly_data()
    {
        QTest::addColumn<double>("mouseX");
        QTest::addColumn<double>("mouseY");
        QTest::addColumn<QString>("frame");
        QTest::newRow("nowhere") << 150.0 << 70.0 << QStringLiteral("100,50 300x200");
        QTest::newRow("right and up") << 250.0 << 170.0 << QStringLiteral("200,150 300x200");
        QTest::newRow("as high as it goes") << 150.0 << 878.0 << QStringLiteral("100,858 300x200");
        QTest::newRow("higher") << 150.0 << 879.0 << QStringLiteral("100,858 300x200");
        QTest::newRow("far higher") << 150.0 << 5000.0 << QStringLiteral("100,858 300x200");
        QTest::newRow("out at the bottom") << 150.0 << -500.0 << QStringLiteral("100,-520 300x200");
        QTest::newRow("out at the left") << -500.0 << 70.0 << QStringLiteral("-550,50 300x200");
        QTest::newRow("out at the right") << 5000.0 << 70.0 << QStringLiteral("4950,50 300x200");
    }
    void movingStopsAtTheMenuBarOnly()
    {
        QFETCH(double, mouseX);
        QFETCH(double, mouseY);
        QFETCH(QString, frame);
        // Taken at 50, 20. The screen is 1080 high, of which the menu bar takes 22.
        const Screen screen{{0, 0, 1920, 1080}, 22};
        QCOMPARE(line(movedFrame({100, 50, 300, 200}, {50, 20}, {mouseX, mouseY}, screen)), frame);
    }

    void theScreensOwnOriginCounts()
    {
        const Screen screen{{0, -300, 1920, 1080}, 0};
        QCOMPARE(line(movedFrame({0, 0, 100, 100}, {0, 0}, {0, 900}, screen)),
                 QStringLiteral("0,680 100x100"));
    }

    void resizingKeepsTheUpperEdge_data()
    {
        QTest::addColumn<double>("right");
        QTest::addColumn<double>("down");
        QTest::addColumn<QString>("frame");
        // From 100,50 300x200; at least 200x150, at most 400x300.
        QTest::newRow("nowhere") << 0.0 << 0.0 << QStringLiteral("100,50 300x200");
        QTest::newRow("larger") << 40.0 << 30.0 << QStringLiteral("100,20 340x230");
        QTest::newRow("smaller") << -40.0 << -30.0 << QStringLiteral("100,80 260x170");
        QTest::newRow("narrower than it may be") << -150.0 << 0.0 << QStringLiteral("100,50 200x200");
        QTest::newRow("wider than it may be") << 150.0 << 0.0 << QStringLiteral("100,50 400x200");
        QTest::newRow("lower than it may be") << 0.0 << -80.0 << QStringLiteral("100,100 300x150");
        QTest::newRow("as high as it may be") << 0.0 << 100.0 << QStringLiteral("100,-50 300x300");
        // The step by the minimum height: -51 + 301 - 150.
        QTest::newRow("higher than it may be") << 0.0 << 101.0 << QStringLiteral("100,100 300x300");
        QTest::newRow("far higher than it may be") << 0.0 << 300.0 << QStringLiteral("100,100 300x300");
    }
    void resizingKeepsTheUpperEdge()
    {
        QFETCH(double, right);
        QFETCH(double, down);
        QFETCH(QString, frame);
        const SizeLimits limits{200, 150, 400, 300};
        QCOMPARE(line(resizedFrame({100, 50, 300, 200}, {390, 55}, {390 + right, 55 - down}, limits)), frame);
    }

    void limitsThatAreNotPositiveAreNone()
    {
        const Frame start{100, 50, 300, 200};
        QCOMPARE(line(resizedFrame(start, {}, {-290, 190}, {})), QStringLiteral("100,240 10x10"));
        QCOMPARE(line(resizedFrame(start, {}, {5000, -5000}, {-1, -1, -1, -1})),
                 QStringLiteral("100,-4950 5300x5200"));
        // Without a minimum the step is the whole height.
        QCOMPARE(line(resizedFrame(start, {}, {0, -200}, {0, 0, 0, 300})), QStringLiteral("100,250 300x300"));
    }

    void aRaisedHeightMayBeTooHighAgain()
    {
        // At least 250, at most 220: raised first, then cut.
        QCOMPARE(line(resizedFrame({100, 50, 300, 200}, {}, {}, {0, 250, 0, 220})),
                 QStringLiteral("100,0 300x220"));
        QCOMPARE(line(resizedFrame({100, 50, 300, 200}, {}, {}, {350, 0, 320, 0})),
                 QStringLiteral("100,50 320x200"));
    }

    void theMousesWayIsHeldInSinglePrecision()
    {
        // 0.1 is no number of either precision; the nearer one of the two is not taken.
        const Frame frame = resizedFrame({0, 0, 100, 100}, {}, {0.1, 0}, {});
        QCOMPARE(frame.width(), 100.0 + static_cast<double>(0.1F));
        QVERIFY(frame.width() != 100.0 + 0.1);
    }

    void turningOverTwiceChangesNothing()
    {
        const Frame frame{10, 20, 300, 200};
        QCOMPARE(line(turnedOver(frame, 1080)), QStringLiteral("10,860 300x200"));
        QVERIFY(turnedOver(turnedOver(frame, 1080), 1080) == frame);
        QVERIFY(turnedOver(Place{3, 4}, 10) == (Place{3, 6}));
    }
};

TESSERA_TEST(WindowGeometryTest);
#include "windowgeometrytest.moc"
