#include "widgets/closekeys.h"
#include "support/testmain.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QVBoxLayout>
#include <QWindow>

using namespace tessera;

class CloseKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeClosesAnOpenPopUpAlone()
    {
        QWidget window;
        QComboBox popup;
        popup.addItems({QStringLiteral("a"), QStringLiteral("b")});
        (new QVBoxLayout(&window))->addWidget(&popup);
        closeByKeyboard(window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        popup.showPopup();
        QTRY_COMPARE(QGuiApplication::focusWindow(), popup.view()->window()->windowHandle());
        // As the window system sends it: to the window that has the keyboard.
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        QVERIFY(!popup.view()->isVisible());
        QVERIFY(window.isVisible());
        QTRY_COMPARE(QApplication::activeWindow(), &window);
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }
};

TESSERA_TEST(CloseKeysTest);
#include "closekeystest.moc"
