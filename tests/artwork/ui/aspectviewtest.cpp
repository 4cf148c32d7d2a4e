#include "artwork/ui/aspectview.h"

#include "staging.h"
#include "support/testmain.h"
#include "widgets/theme.h"

#include <QSignalSpy>
#include <QStyleHints>
#include <QTimer>

using namespace tessera;
using test::PictureStaging;

namespace {

/// Counts how often a widget is painted.
class PaintWatch : public QObject
{
public:
    int painted = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

class AspectViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_window = std::make_unique<QWidget>();
        m_view = new AspectView(m_staging->defaults, m_window.get());
        m_view->setGeometry(0, 0, 400, 400);
        m_window->resize(400, 400);
        m_window->move(50, 60);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void aPictureFillsTheViewInItsRatio_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QRect>("drawn");
        QTest::newRow("own") << 0 << QRect(0, 50, 400, 300);
        QTest::newRow("16:9") << 4 << QRect(0, 88, 400, 225);
        QTest::newRow("square") << 2 << QRect(0, 0, 400, 400);
    }

    void aPictureFillsTheViewInItsRatio()
    {
        QFETCH(int, position);
        m_view->setImage(image({320, 240}));
        m_staging->defaults.setIndex(keys::AspectRatio, position);
        QCOMPARE(m_view->rationum(), position);
        QTEST(m_view->drawnRect(), "drawn");
    }

    void itIsPaintedWhereItIsDrawn()
    {
        m_view->setImage(image({320, 240}));
        const QImage seen = m_window->grab().toImage();
        QCOMPARE(seen.pixelColor(200, 200), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(10, 60), QColor(Qt::red));
        QVERIFY(seen.pixelColor(200, 40) != QColor(Qt::red));
        QVERIFY(seen.pixelColor(200, 360) != QColor(Qt::red));
    }

    void anotherRatioIsDrawnAtOnce()
    {
        m_view->setImage(image({320, 240}));
        m_window->grab();
        m_staging->defaults.setIndex(keys::AspectRatio, 2);
        QCOMPARE(m_window->grab().toImage().pixelColor(200, 40), QColor(Qt::red));
    }

    void wholeStepsKeepPixelsEven()
    {
        m_staging->defaults.setText(keys::PictureWholeSteps, QStringLiteral("1"));
        m_view->setImage(image({150, 100}));
        QCOMPARE(m_view->drawnRect().size(), QSize(300, 200));
        // What is larger than the view is drawn as ever.
        m_view->setImage(image({800, 400}));
        QCOMPARE(m_view->drawnRect().size(), QSize(400, 200));
    }

    void itIsDrawnWellOnceItRests()
    {
        // Lines of one pixel: drawn fast, three quarters of them are lost.
        QImage lines(1600, 1600, QImage::Format_RGB32);
        for (int y = 0; y < lines.height(); ++y) {
            for (int x = 0; x < lines.width(); ++x)
                lines.setPixel(x, y, y % 4 == 0 ? 0xffffffff : 0xff000000);
        }
        m_view->setImage(lines);
        const auto grey = [this] { return qGray(m_window->grab().toImage().pixel(200, 200)); };
        QVERIFY(grey() < 20 || grey() > 100);
        QTRY_VERIFY(grey() > 50 && grey() < 80);
        // What was to be drawn well may be gone by then.
        m_view->setImage(image({320, 240}));
        m_window->grab();
        auto* const refining = m_view->findChild<QTimer*>();
        QVERIFY(refining != nullptr && refining->isActive());
        m_view->setImage(QImage());
        QTRY_VERIFY(!refining->isActive());
        QVERIFY(m_view->drawnRect().isEmpty());
    }

    void wholeStepsAreDrawnEvenly()
    {
        QImage halves(2, 2, QImage::Format_RGB32);
        halves.fill(Qt::red);
        halves.setPixelColor(1, 0, Qt::blue);
        halves.setPixelColor(1, 1, Qt::blue);
        m_staging->defaults.setText(keys::PictureWholeSteps, QStringLiteral("1"));
        m_view->setImage(halves);
        const QImage seen = m_window->grab().toImage();
        QCOMPARE(seen.pixelColor(199, 200), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(200, 200), QColor(Qt::blue));
        // There is nothing to be drawn better.
        QVERIFY(!m_view->findChild<QTimer*>()->isActive());
        m_staging->defaults.setText(keys::PictureWholeSteps, QStringLiteral("false"));
        const QColor mixed = m_window->grab().toImage().pixelColor(200, 200);
        QVERIFY(mixed.red() > 50 && mixed.blue() > 50);
        QVERIFY(m_view->findChild<QTimer*>()->isActive());
    }

    void aLineOfAPictureIsStillDrawn()
    {
        m_view->setImage(image({2000, 1}));
        QCOMPARE(m_view->drawnRect().size(), QSize(400, 1));
        m_view->setImage(image({1, 2000}));
        QCOMPARE(m_view->drawnRect().size(), QSize(1, 400));
    }

    void whereTheKeyboardIsItHasABorder()
    {
        m_view->setImage(image({320, 320}));
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        const QList<QPoint> corners{{0, 0}, {399, 0}, {0, 399}, {399, 399}};
        m_view->setFocus();
        QImage seen = m_window->grab().toImage();
        for (const QPoint corner : corners)
            QCOMPARE(seen.pixelColor(corner), theme::color("accent"));
        QCOMPARE(seen.pixelColor(2, 2), QColor(Qt::red));
        m_view->clearFocus();
        seen = m_window->grab().toImage();
        for (const QPoint corner : corners)
            QCOMPARE(seen.pixelColor(corner), QColor(Qt::red));
    }

    void itIsReachedByTheKeyboardAndCanBeClicked()
    {
        QCOMPARE(m_view->focusPolicy(), Qt::TabFocus);
        QCOMPARE(m_view->cursor().shape(), Qt::PointingHandCursor);
        // The shape of most pictures.
        QCOMPARE(m_view->sizeHint().width() * 3, m_view->sizeHint().height() * 4);
    }

    void aChangeThatConcernsItIsPainted_data()
    {
        QTest::addColumn<bool>("isRatio");
        QTest::newRow("the ratio") << true;
        QTest::newRow("whole steps") << false;
    }

    void aChangeThatConcernsItIsPainted()
    {
        QFETCH(bool, isRatio);
        m_view->setImage(image({150, 100}));
        PaintWatch watch;
        m_view->installEventFilter(&watch);
        QTRY_VERIFY(watch.painted > 0);
        watch.painted = 0;
        if (isRatio)
            m_staging->defaults.setIndex(keys::AspectRatio, 2);
        else
            m_staging->defaults.setText(keys::PictureWholeSteps, QStringLiteral("1"));
        QTRY_VERIFY(watch.painted > 0);
        watch.painted = 0;
        m_staging->defaults.revertToInitialValues();
        QTRY_VERIFY(watch.painted > 0);
    }

    void anotherPictureIsNotDrawnFromTheOneBefore()
    {
        m_view->setImage(image({320, 240}));
        m_window->grab();
        auto* const refining = m_view->findChild<QTimer*>();
        QTRY_VERIFY(!refining->isActive());
        QImage other = image({320, 240});
        other.fill(Qt::blue);
        m_view->setImage(other);
        QCOMPARE(m_window->grab().toImage().pixelColor(200, 200), QColor(Qt::blue));
    }

    void withoutAPictureNothingIsDrawn()
    {
        m_view->setImage(QImage());
        QVERIFY(m_view->drawnRect().isEmpty());
        m_window->grab();
    }

    void aClickAsksForThePicture()
    {
        QSignalSpy clicked(m_view, &AspectView::clicked);
        QTest::mouseClick(m_view, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QTest::mouseClick(m_view, Qt::RightButton);
        QCOMPARE(clicked.size(), 1);
    }

    void keysAskForItToo()
    {
        QSignalSpy clicked(m_view, &AspectView::clicked);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(m_view, key);
        QCOMPARE(clicked.size(), 3);
        QTest::keyClick(m_view, Qt::Key_A);
        QCOMPARE(clicked.size(), 3);
    }

    void draggingMovesTheWindow()
    {
        QSignalSpy clicked(m_view, &AspectView::clicked);
        const QPoint start = m_window->pos();
        QTest::mousePress(m_view, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(m_view, {130, 80});
        // The window has gone with the mouse: within the view it is where it was.
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, {100, 100});
        QCOMPARE(m_window->pos(), start + QPoint(30, -20));
        QVERIFY(clicked.isEmpty());
    }

    void aTremblingClickIsNoDrag()
    {
        QSignalSpy clicked(m_view, &AspectView::clicked);
        const QPoint start = m_window->pos();
        QTest::mousePress(m_view, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(m_view, {101, 101});
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, {101, 101});
        QCOMPARE(m_window->pos(), start);
        QCOMPARE(clicked.size(), 1);
    }

private:
    static QImage image(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }

    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<QWidget> m_window;
    AspectView* m_view = nullptr; // the window's
};

TESSERA_TEST(AspectViewTest);

#include "aspectviewtest.moc"
