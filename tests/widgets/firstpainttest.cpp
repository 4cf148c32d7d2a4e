#include "widgets/firstpaint.h"
#include "support/testmain.h"

#include <QWidget>

using namespace tessera;

class FirstPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itRunsOnceAfterThePaint()
    {
        QWidget window;
        int runs = 0;
        connect(new FirstPaint(window), &FirstPaint::passed, this, [&] { ++runs; });
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_COMPARE(runs, 1);
        window.repaint();
        QCoreApplication::processEvents();
        QCOMPARE(runs, 1);
    }

    void aWindowThatGoesTakesItAlong()
    {
        int runs = 0;
        {
            QWidget window;
            connect(new FirstPaint(window), &FirstPaint::passed, this, [&] { ++runs; });
            window.show();
            window.repaint();
        }
        QCoreApplication::processEvents();
        QCOMPARE(runs, 0);
    }
};

TESSERA_TEST(FirstPaintTest);
#include "firstpainttest.moc"
