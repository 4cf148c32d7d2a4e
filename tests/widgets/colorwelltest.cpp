#include "widgets/colorwell.h"

#include "support/testmain.h"

#include <QSignalSpy>

using namespace tessera;

namespace {

int coloursInTheMiddle(ColorWell& well)
{
    const QImage image = well.grab().toImage();
    QSet<QRgb> seen;
    for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
        for (int x = image.width() / 4; x < image.width() * 3 / 4; ++x)
            seen.insert(image.pixel(x, y));
    }
    return static_cast<int>(seen.size());
}

} // namespace

class ColorWellTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOpaqueColourIsShownAsItIs()
    {
        ColorWell well;
        well.resize(well.sizeHint());
        well.setColor(QColor(10, 200, 30));
        QCOMPARE(well.grab().toImage().pixelColor(well.rect().center()), QColor(10, 200, 30));
        QCOMPARE(coloursInTheMiddle(well), 1);
    }

    void aTransparentOneLetsTheSquaresThrough()
    {
        ColorWell well;
        well.resize(well.sizeHint());
        well.setColor(QColor(10, 200, 30, 128));
        QVERIFY(coloursInTheMiddle(well) > 1);
    }

    void itsColourIsToldToWhoCannotSeeIt()
    {
        ColorWell well;
        well.setColor(QColor(16, 32, 48, 64));
        QCOMPARE(well.accessibleDescription(), QStringLiteral("#40102030"));
        QCOMPARE(well.toolTip(), QStringLiteral("#40102030"));
    }

    void spacePressesIt()
    {
        ColorWell well;
        QSignalSpy clicks(&well, &ColorWell::clicked);
        QTest::keyClick(&well, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
        QVERIFY(well.focusPolicy() & Qt::TabFocus);
    }
};

TESSERA_TEST(ColorWellTest);
#include "colorwelltest.moc"
