#include "catalogue/ui/chiplayout.h"

#include "support/testmain.h"

#include <QWidget>

using namespace tessera;

namespace {

// So wide at least, and so wide where there is room.
class Chip : public QWidget
{
public:
    Chip(int least, int wanted, int height)
        : m_least(least, 10)
        , m_wanted(wanted, height)
    {
    }
    QSize sizeHint() const override { return m_wanted; }
    QSize minimumSizeHint() const override { return m_least; }

private:
    QSize m_least;
    QSize m_wanted;
};

} // namespace

class ChipLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_parent = std::make_unique<QWidget>();
        m_layout = new ChipLayout;
        m_parent->setLayout(m_layout);
        m_layout->setContentsMargins(0, 0, 0, 0);
        m_layout->setSpacing(6);
    }
    void cleanup() { m_parent.reset(); }

    void withoutChipsThereIsNothing()
    {
        QCOMPARE(m_layout->sizeHint(), QSize(0, 0));
        QCOMPARE(m_layout->count(), 0);
        QCOMPARE(m_layout->heightForWidth(100), 0);
        QVERIFY(m_layout->itemAt(0) == nullptr);
        QVERIFY(m_layout->takeAt(0) == nullptr);
    }

    // With room for all of it the last one stands at the right; with less the last ones take their least,
    // then all, and a row of its own where one has to.
    void chipsStandInRows_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("places");
        QTest::newRow("more than enough") << 200 << "0,0 50 | 56,0 40 | 170,0 30";
        QTest::newRow("just enough") << 132 << "0,0 50 | 56,0 40 | 102,0 30";
        QTest::newRow("a little less") << 131 << "0,0 50 | 56,0 40 | 111,0 20";
        QTest::newRow("enough for the first one") << 121 << "0,0 50 | 56,0 20 | 101,0 20";
        QTest::newRow("not for it") << 101 << "0,0 20 | 26,0 20 | 81,0 20";
        QTest::newRow("just enough for the least") << 72 << "0,0 20 | 26,0 20 | 52,0 20";
        QTest::newRow("two rows") << 71 << "0,0 20 | 26,0 20 | 51,30 20";
        QTest::newRow("just two in a row") << 46 << "0,0 20 | 26,0 20 | 26,30 20";
        QTest::newRow("a row each") << 45 << "0,0 20 | 0,30 20 | 25,60 20";
        QTest::newRow("narrower than one") << 10 << "0,0 20 | 0,30 20 | 0,60 20";
    }

    void chipsStandInRows()
    {
        QFETCH(int, width);
        addThree();
        m_layout->setGeometry(QRect(0, 0, width, 100));
        QStringList places;
        int bottom = 0;
        for (int i = 0; i < m_layout->count(); ++i) {
            const QRect place = m_layout->itemAt(i)->widget()->geometry();
            places << QStringLiteral("%1,%2 %3").arg(place.x()).arg(place.y()).arg(place.width());
            QCOMPARE(place.height(), 24);
            bottom = std::max(bottom, place.y() + place.height());
        }
        QTEST(places.join(" | "), "places");
        QCOMPARE(m_layout->heightForWidth(width), bottom);
        QVERIFY(m_layout->hasHeightForWidth());
    }

    void itStandsWhereItIsPut()
    {
        addThree();
        m_layout->setGeometry(QRect(7, 9, 132, 24));
        QCOMPARE(m_layout->itemAt(1)->widget()->pos(), QPoint(63, 9));
    }

    void itNeedsTheWidestAndWantsOneRow()
    {
        addThree();
        QCOMPARE(m_layout->sizeHint(), QSize(132, 24));
        QCOMPARE(m_layout->minimumSize(), QSize(20, 10));
    }

    void chipsAreTakenOut()
    {
        addThree();
        QVERIFY(m_layout->itemAt(-1) == nullptr);
        QVERIFY(m_layout->itemAt(3) == nullptr);
        QVERIFY(m_layout->takeAt(3) == nullptr);
        const QWidget* second = m_layout->itemAt(1)->widget();
        const std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(1));
        QCOMPARE(taken->widget(), second);
        QCOMPARE(m_layout->count(), 2);
        QVERIFY(m_layout->itemAt(1)->widget() != second);
        QCOMPARE(m_layout->sizeHint().width(), 86);
    }

private:
    void addThree()
    {
        m_layout->addWidget(new Chip(20, 50, 20));
        m_layout->addWidget(new Chip(20, 40, 24));
        m_layout->addWidget(new Chip(20, 30, 20));
    }

    std::unique_ptr<QWidget> m_parent;
    ChipLayout* m_layout = nullptr;
};

TESSERA_TEST(ChipLayoutTest);
#include "chiplayouttest.moc"
