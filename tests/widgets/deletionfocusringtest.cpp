#include "widgets/deletionfocusring.h"

#include "support/testmain.h"

#include <QLineEdit>
#include <QPushButton>

using namespace tessera;

class DeletionFocusRingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itsControlsHaveNoRing()
    {
        QWidget window;
        auto* group = new QWidget(&window);
        for (const QLatin1StringView name : DeletionFocusRing::controls)
            (new QLineEdit(group))->setObjectName(name);
        auto* other = new QPushButton(group);
        other->setObjectName(QStringLiteral("other"));
        DeletionFocusRing::awakeFromNib(window);
        int without = 0;
        for (const QLineEdit* each : group->findChildren<QLineEdit*>()) {
            QVERIFY(!each->testAttribute(Qt::WA_MacShowFocusRect));
            QCOMPARE(each->property("focusring").toString(), QStringLiteral("none"));
            ++without;
        }
        QCOMPARE(without, 27);
        QVERIFY(!other->property("focusring").isValid());
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
