#include "widgets/calmwheel.h"
#include "support/testmain.h"

#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace tessera;

namespace {

void turnWheelOver(QWidget& control)
{
    const QPointF place = control.rect().center();
    QWheelEvent event(place, control.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // As from the window system: only then it goes on to what the control stands on, and may give the focus.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&control, &event);
}

} // namespace

class CalmWheelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrollingAPageChangesNothingOnIt_data()
    {
        QTest::addColumn<QString>("control");
        for (const char* name : {"pop-up", "number field", "slider"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void scrollingAPageChangesNothingOnIt()
    {
        QFETCH(QString, control);
        const CalmWheel calm;
        QScrollArea area;
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        auto* popup = new QComboBox;
        popup->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        auto* number = new QSpinBox;
        number->setValue(50);
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setValue(50);
        for (QWidget* each : std::initializer_list<QWidget*>{popup, number, slider})
            layout->addWidget(each);
        layout->addSpacing(2000);
        area.setWidget(page);
        area.resize(200, 200);
        area.show();
        area.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&area));

        QWidget* asked = control == QStringLiteral("pop-up") ? static_cast<QWidget*>(popup)
            : control == QStringLiteral("slider")            ? static_cast<QWidget*>(slider)
                                                             : number;
        const auto values
            = [&] { return QList<int>{popup->currentIndex(), number->value(), slider->value()}; };
        turnWheelOver(*asked);
        QCOMPARE(values(), (QList<int>{0, 50, 50}));
        QVERIFY(!asked->hasFocus() && (asked->focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
        QVERIFY(area.verticalScrollBar()->value() > 0);
        // Chosen by a click or the keyboard it takes the wheel.
        asked->setFocus();
        turnWheelOver(*asked);
        QVERIFY(values() != (QList<int>{0, 50, 50}));
    }
};

TESSERA_TEST(CalmWheelTest);
#include "calmwheeltest.moc"
