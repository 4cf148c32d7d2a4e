#include "catalogue/search/yearrange.h"

#include "support/testmain.h"

using namespace tessera;

class YearRangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordedYearsAreRead_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        const auto row = [](const char* value, int first, int last) {
            QTest::newRow(value) << QByteArray(value) << first << last;
        };
        row("1985", 1985, 1985);
        row("198?", 1980, 1989);
        row("19??", 1900, 1999);
        row("1995?", 1995, 1995);
        row("1985/1986", 1985, 1985);
        const int none = -1;
        row("????", none, none);
        row("", none, none);
        row("198", none, none);
        row("19855", none, none);
        row("19?5", none, none);
        row("?985", none, none);
        row("abcd", none, none);
        row("-985", none, none);
    }

    void recordedYearsAreRead()
    {
        QFETCH(QByteArray, value);
        QFETCH(int, first);
        QFETCH(int, last);
        const auto range = recordedYear(value.toStdString());
        QCOMPARE(range.has_value(), first >= 0);
        if (range) {
            QCOMPARE(int(range->first), first);
            QCOMPARE(int(range->last), last);
        }
    }

    // A year that is half known counts where no year that it may be lies outside.
    void aRangeHoldsWhatLiesWholeInIt()
    {
        const YearRange eighties{1980, 1989};
        QVERIFY(eighties.holds({1980, 1980}));
        QVERIFY(eighties.holds({1989, 1989}));
        QVERIFY(eighties.holds({1980, 1989}));
        QVERIFY(!eighties.holds({1979, 1979}));
        QVERIFY(!eighties.holds({1900, 1999}));
        QVERIFY(!(YearRange{1985, 1985}.holds({1980, 1989})));
        QVERIFY(YearRange().holds({1900, 1999}));
        QVERIFY(!YearRange().holds(unknownYear));
        QVERIFY(!(YearRange{0, 1989}.holds(unknownYear)));
    }
};

TESSERA_TEST(YearRangeTest);
#include "yearrangetest.moc"
