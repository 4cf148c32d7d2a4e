#include "widgets/bringforward.h"
#include "support/testmain.h"

#include <QWidget>

using namespace tessera;

class BringForwardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHiddenWindowIsShownAndKey()
    {
        QWidget window;
        bringForward(window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void aMinimisedWindowComesBackAsItWas()
    {
        QWidget window;
        window.showMaximized();
        window.setWindowState(window.windowState() | Qt::WindowMinimized);
        bringForward(window);
        QVERIFY(!window.isMinimized());
        QVERIFY(window.isMaximized());
    }
};

TESSERA_TEST(BringForwardTest);
#include "bringforwardtest.moc"
