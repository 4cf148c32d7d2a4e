#include "widgets/bringforward.h"

#include "support/showwatch.h"
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

    void togglingClosesOnlyWhatIsOnTheScreen()
    {
        QWidget window;
        toggle(window);
        QVERIFY(isShown(window));
        window.setWindowState(window.windowState() | Qt::WindowMinimized);
        QVERIFY(window.isVisible() && !isShown(window));
        toggle(window);
        QVERIFY(isShown(window));
        toggle(window);
        QVERIFY(!window.isVisible());
    }

    // The offscreen platform makes every new window key, so the request alone can be seen here.
    void aWindowShownBesidesLeavesTheKeyWindow()
    {
        QWidget other;
        test::ShowWatch watch;
        other.installEventFilter(&watch);
        showBesides(other);
        QVERIFY(watch.withoutActivating);
        other.setWindowState(other.windowState() | Qt::WindowMinimized);
        showBesides(other);
        QVERIFY(isShown(other));
        other.hide();
        bringForward(other);
        QVERIFY(!watch.withoutActivating);
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
