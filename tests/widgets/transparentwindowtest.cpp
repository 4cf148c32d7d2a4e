#include "widgets/transparentwindow.h"

#include "support/testmain.h"
#include "widgets/rounded_view2.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QToolButton>
#include <QWindow>

using namespace tessera;

namespace {

QString line(const Frame& frame)
{
    return QStringLiteral("%1,%2 %3x%4").arg(frame.x()).arg(frame.y()).arg(frame.width()).arg(frame.height());
}

double screenHeight()
{
    return QGuiApplication::primaryScreen()->geometry().height();
}

// A person's hand: places on the screen, with y upwards.
class Hand
{
public:
    explicit Hand(QWidget& window)
        : m_window(window)
    {
    }

    void press(Place place) { send(QEvent::MouseButtonPress, place, Qt::LeftButton); }
    void move(Place place) { send(QEvent::MouseMove, place, Qt::NoButton); }
    void release(Place place) { send(QEvent::MouseButtonRelease, place, Qt::LeftButton); }

private:
    void send(QEvent::Type type, Place place, Qt::MouseButton button)
    {
        const Place turned = turnedOver(place, screenHeight());
        const QPointF global(turned.x(), turned.y());
        QMouseEvent event(type, m_window.mapFromGlobal(global), global, button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &event);
    }

    QWidget& m_window;
};

} // namespace

class TransparentWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<TransparentWindow>();
        m_window->setLimits({200, 100, 400, 300});
        m_window->setFrame({100, 150, 300, 200});
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(line(m_window->frame()), QStringLiteral("100,150 300x200"));
    }
    void cleanup() { m_window.reset(); }

    void itHasNoBordersAndASeeThroughBackground()
    {
        QVERIFY(m_window->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(!m_window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(m_window->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(m_window->panel()->size(), QSize(300, 200));
    }

    void aFreePlaceMovesIt()
    {
        Hand hand(*m_window);
        hand.press({380, 155}); // 20 from the right edge
        QVERIFY(m_window->isDragging() && !m_window->isResizing());
        hand.move({390, 175});
        QCOMPARE(line(m_window->frame()), QStringLiteral("110,170 300x200"));
        hand.move({-20, 155});
        QCOMPARE(line(m_window->frame()), QStringLiteral("-300,150 300x200"));
        hand.release({-20, 155});
        QVERIFY(!m_window->isDragging());
        hand.move({390, 175});
        QCOMPARE(line(m_window->frame()), QStringLiteral("-300,150 300x200"));
    }

    void aPressIsPassedOnToTheStandardHandling()
    {
        // Which leaves it to whoever is behind.
        const QPointF place = m_window->rect().center();
        QMouseEvent press(QEvent::MouseButtonPress, place, m_window->mapToGlobal(place), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &press);
        QVERIFY(m_window->isDragging());
        QVERIFY(!press.isAccepted());
    }

    void movingUpStopsAtTheUpperEdge()
    {
        Hand hand(*m_window);
        hand.press({250, 250});
        hand.move({250, 5000});
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(m_window->frame().y() + m_window->frame().height(), screenHeight() - available.y());
        hand.release({250, 5000});
    }

    void theGripResizesIt()
    {
        Hand hand(*m_window);
        hand.press({390, 155}); // 10 from the right edge, 5 from the lower one
        QVERIFY(m_window->isResizing() && !m_window->isDragging());
        hand.move({420, 135});
        QCOMPARE(line(m_window->frame()), QStringLiteral("100,130 330x220"));
        // Beneath the minimum the upper edge stays.
        hand.move({0, 500});
        QCOMPARE(line(m_window->frame()), QStringLiteral("100,250 200x100"));
        // Above the maximum it steps, by the minimum: -50 + 400 - 100.
        hand.move({390, -45});
        QCOMPARE(line(m_window->frame()), QStringLiteral("100,250 300x300"));
        hand.release({390, -45});
        QVERIFY(!m_window->isResizing());
    }

    void itsPanelTakesTheMouseForIt()
    {
        const QPoint place(150, 100);
        QTest::mousePress(m_window->panel(), Qt::LeftButton, {}, place);
        QVERIFY(m_window->isDragging());
        QTest::mouseRelease(m_window->panel(), Qt::LeftButton, {}, place);
        QVERIFY(!m_window->isDragging());
        QTest::mousePress(m_window->panel(), Qt::RightButton, {}, place);
        QVERIFY(!m_window->isDragging());
    }

    void itsButtonsPutItAway_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("pressed") << false;
        QTest::newRow("by their keys") << true;
    }
    void itsButtonsPutItAway()
    {
        QFETCH(bool, byKey);
        const auto press = [&](QToolButton* button, Qt::Key key) {
            QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
            if (byKey)
                QTest::keyClick(m_window->windowHandle(), key, Qt::ControlModifier);
            else
                QTest::mouseClick(button, Qt::LeftButton);
        };
        QSignalSpy out(m_window.get(), &TransparentWindow::orderedOut);
        m_window->activateWindow();
        press(m_window->panel()->closeButton, Qt::Key_W);
        QTRY_VERIFY(!m_window->isVisible());
        QCOMPARE(out.size(), 1);
        m_window->show();
        m_window->activateWindow();
        press(m_window->panel()->minimiseButton, Qt::Key_M);
        QTRY_VERIFY(m_window->isMinimized());
        QCOMPARE(out.size(), 1);
    }

    void aboveOthersIsAnOption()
    {
        m_window->setAbove(true);
        QVERIFY(m_window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(m_window->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(m_window->isVisible());
        QCOMPARE(line(m_window->frame()), QStringLiteral("100,150 300x200"));
        m_window->setAbove(false);
        QVERIFY(!m_window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }

    void theShadowLiesAroundThePanelOnly()
    {
        m_window->panel()->hide();
        QImage image(m_window->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        m_window->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        const int middle = image.width() / 2;
        const int nearest = image.pixelColor(middle, TransparentWindow::shadowWidth - 1).alpha();
        const int farthest = image.pixelColor(middle, 0).alpha();
        QVERIFY(farthest > 0 && nearest > 2 * farthest);
        QCOMPARE(image.pixelColor(middle, image.height() / 2).alpha(), 0);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }

private:
    std::unique_ptr<TransparentWindow> m_window;
};

TESSERA_TEST(TransparentWindowTest);
#include "transparentwindowtest.moc"
