#include "artwork/ui/downloadpanel.h"

#include "support/testmain.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

using namespace tessera;

class DownloadPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAWindowOfItsOwn()
    {
        QWidget parent;
        const DownloadPanel panel(&parent);
        QVERIFY(panel.isWindow());
    }

    void untilADownloadBeginsThereIsNothingToStop()
    {
        DownloadPanel panel;
        QVERIFY(!panel.cancelButton->isEnabled());
        QVERIFY(panel.closeButton->isEnabled());
        QCOMPARE(panel.progressInd2->maximum(), 100);
        panel.setRunning(true);
        QVERIFY(panel.cancelButton->isEnabled());
        panel.setRunning(false);
        QVERIFY(!panel.cancelButton->isEnabled());
    }

    void theProgressIsWithoutAMeasureOrOfAHundred()
    {
        DownloadPanel panel;
        panel.setIndeterminate(true);
        QCOMPARE(panel.progressInd2->minimum(), 0);
        QCOMPARE(panel.progressInd2->maximum(), 0);
        panel.setIndeterminate(false);
        QCOMPARE(panel.progressInd2->minimum(), 0);
        QCOMPARE(panel.progressInd2->maximum(), 100);
        // The text beneath says more than a number on it.
        QVERIFY(!panel.progressInd2->isTextVisible());
    }

    void aPartIsRoundedAndStaysWithinTheWhole_data()
    {
        QTest::addColumn<double>("percent");
        QTest::addColumn<int>("shown");
        QTest::newRow("nothing") << 0.0 << 0;
        QTest::newRow("less than nothing") << -3.0 << 0;
        QTest::newRow("less than a half") << 12.4 << 12;
        QTest::newRow("more than a half") << 12.6 << 13;
        QTest::newRow("one") << 1.0 << 1;
        QTest::newRow("nearly all") << 99.0 << 99;
        QTest::newRow("all") << 100.0 << 100;
        QTest::newRow("more than all") << 140.0 << 100;
    }

    void aPartIsRoundedAndStaysWithinTheWhole()
    {
        QFETCH(double, percent);
        DownloadPanel panel;
        panel.setPercent(50);
        panel.setPercent(percent);
        QTEST(panel.progressInd2->value(), "shown");
    }

    void itIsClosedByItsButtonAndByEscape()
    {
        DownloadPanel panel;
        panel.show();
        QTest::mouseClick(panel.closeButton, Qt::LeftButton);
        QVERIFY(!panel.isVisible());
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QTest::keyClick(&panel, Qt::Key_Escape);
        QVERIFY(!panel.isVisible());
    }

    void whatItSaysCanBeReadAndLeftByKeyboard()
    {
        DownloadPanel panel;
        QVERIFY(panel.infomationTextView->isReadOnly());
        QVERIFY(panel.infomationTextView->tabChangesFocus());
    }

    // A folder's name comes from outside, and may be longer than the panel is wide.
    void aFolderIsNeverMarkupAndNeverWidensIt()
    {
        DownloadPanel panel;
        QCOMPARE(panel.folderLabel->textFormat(), Qt::PlainText);
        const int width = panel.minimumSizeHint().width();
        panel.folderLabel->setText(QStringLiteral("/a/long/path").repeated(100));
        QCOMPARE(panel.minimumSizeHint().width(), width);
    }

    void itsPartsStandInTheirOrder()
    {
        DownloadPanel panel;
        panel.folderLabel->setText(QStringLiteral("/art"));
        panel.show();
        QVERIFY(panel.infomationTextView->geometry().bottom() < panel.progressInd2->y());
        QVERIFY(panel.progressInd2->geometry().bottom() < panel.closeButton->y());
        QVERIFY(panel.folderLabel->geometry().right() < panel.cancelButton->x());
        QVERIFY(panel.cancelButton->geometry().right() < panel.closeButton->x());
        QVERIFY(panel.folderLabel->width() > panel.cancelButton->width());
        QVERIFY(panel.infomationTextView->height() > panel.progressInd2->height());
    }
};

TESSERA_TEST(DownloadPanelTest);

#include "downloadpaneltest.moc"
