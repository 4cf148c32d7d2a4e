#include "widgets/inputblock.h"

#include "support/testmain.h"

#include <QAction>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace tessera;

namespace {

struct Window : QWidget {
    QPushButton* one = new QPushButton(QStringLiteral("&one"), this);
    QPushButton* stop = new QPushButton(QStringLiteral("&stop"), this);
    QAction action;
    QSignalSpy ones{one, &QPushButton::clicked};
    QSignalSpy stops{stop, &QPushButton::clicked};
    QSignalSpy triggered{&action, &QAction::triggered};

    Window()
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(one);
        layout->addWidget(stop);
        action.setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
        addAction(&action);
        show();
        activateWindow();
    }
};

} // namespace

class InputBlockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatIsLeftOpenTakesInput()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        {
            const InputBlock block({window.stop});
            QTest::mouseClick(window.one, Qt::LeftButton);
            QTest::mouseClick(window.stop, Qt::LeftButton);
            window.one->setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Space);
            QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
            window.stop->setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Space);
        }
        QCOMPARE(window.ones.size(), 0);
        QCOMPARE(window.triggered.size(), 0);
        QCOMPARE(window.stops.size(), 2);
        QTest::mouseClick(window.one, Qt::LeftButton);
        QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(window.ones.size(), 1);
        QCOMPARE(window.triggered.size(), 1);
    }

    void anActionThatIsLeftOpenKeepsItsKeys()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const InputBlock block({&window.action});
        QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(window.triggered.size(), 1);
    }

    void neitherWindowNorProgramIsClosed()
    {
        Window window;
        const InputBlock block({});
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // As the window's own cross does it.
        window.windowHandle()->close();
        QVERIFY(window.isVisible());
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &quit);
        QVERIFY(!quit.isAccepted());
    }
};

TESSERA_TEST(InputBlockTest);
#include "inputblocktest.moc"
