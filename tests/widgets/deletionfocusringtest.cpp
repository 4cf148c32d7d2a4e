#include "widgets/deletionfocusring.h"

#include "support/testmain.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

using namespace tessera;

class DeletionFocusRingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsControlsHaveNoRingButOurBorder()
    {
        theme::applyStyleSheet(*qApp);
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        const auto addButton = [&](const char* name) {
            auto* button = new QPushButton(QStringLiteral("Choose…"));
            button->setObjectName(QLatin1StringView(name));
            button->setProperty("role", QStringLiteral("accent"));
            layout->addWidget(button);
            return button;
        };
        QPushButton* with = addButton("other");
        QPushButton* without = addButton("buttonroms");
        // Of a window that stands already: the start has no time for it before.
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        DeletionFocusRing::awakeFromNib(window);
        const auto shown = [](QWidget* button, bool focused) {
            for (int i = 0; i < 2 && button->hasFocus() != focused; ++i)
                QTest::keyClick(button->window(), Qt::Key_Tab);
            return button->grab().toImage();
        };
        QVERIFY(shown(with, true) != shown(with, false));
        QCOMPARE(shown(without, false), shown(with, false));
        QVERIFY(shown(without, true) != shown(with, true));
        QVERIFY(shown(without, true) != shown(without, false));
        qApp->setStyleSheet(QString());
    }

    void aWindowMayHoldSomeOfThem()
    {
        QWidget window;
        auto* button = new QPushButton(&window);
        button->setObjectName(QStringLiteral("buttonroms"));
        DeletionFocusRing::awakeFromNib(window);
        QCOMPARE(button->property("focusring").toString(), QStringLiteral("none"));
    }
};

TESSERA_TEST(DeletionFocusRingTest);
#include "deletionfocusringtest.moc"
