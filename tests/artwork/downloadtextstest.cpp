#include "artwork/downloadtexts.h"

#include "artwork/pictureanswer.h"
#include "support/testmain.h"

using namespace tessera;

class DownloadTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepHasItsText()
    {
        QCOMPARE(downloadtexts::requested(QUrl("http://a.test/a%20b%251.png")),
                 QStringLiteral("Snap Download: Request...\nhttp://a.test/a%20b%251.png\n\n"));
        QCOMPARE(downloadtexts::requested(QUrl(".png")),
                 QStringLiteral("Snap Download: Request...\n.png\n\n"));
        QCOMPARE(downloadtexts::answered(12345), QStringLiteral("Snap Download:  12345 byte\n"));
        QCOMPARE(downloadtexts::received(7, 12345), QStringLiteral("Snap Download:    7 byte...\n"));
        QCOMPARE(downloadtexts::finished(12345), QStringLiteral("Snap Download:  12345 byte  Finish.\n"));
        QCOMPARE(downloadtexts::notAnImage, QLatin1StringView("Snap Download:  Cancel, not an image.\n"));
        QCOMPARE(downloadtexts::cancelled, QLatin1StringView("Snap Download:  Cancel.\n"));
        QCOMPARE(downloadtexts::failed, QLatin1StringView("Snap Download:  Error.\n"));
    }

    void anUnknownLengthShowsNoProgress()
    {
        QCOMPARE(downloadtexts::answered(unknownLength), QStringLiteral("Snap Download:  ??? byte\n"));
        QVERIFY(!downloadtexts::received(7, unknownLength));
        QCOMPARE(downloadtexts::finished(unknownLength),
                 QStringLiteral("Snap Download:   -1 byte  Finish.\n"));
        QVERIFY(!downloadPercent(7, unknownLength));
    }

    void progressIsAPercentage()
    {
        QCOMPARE(downloadPercent(0, 200), std::optional(0.0));
        QCOMPARE(downloadPercent(50, 200), std::optional(25.0));
        QCOMPARE(downloadPercent(200, 200), std::optional(100.0));
        QCOMPARE(downloadPercent(1, 1), std::optional(100.0));
        QVERIFY(!downloadPercent(0, 0));
        // A server may say less than it sends.
        QCOMPARE(downloadPercent(300, 200), std::optional(100.0));
    }
};

TESSERA_TEST(DownloadTextsTest);
#include "downloadtextstest.moc"
