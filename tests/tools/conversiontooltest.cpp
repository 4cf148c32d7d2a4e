#include "tools/ui/conversiontool.h"

#include "tools/conversion.h"
#include "tools/titletable.h"
#include "tools/ui/conversionpage.h"
#include "tools/utilitystage.h"

#include <QLineEdit>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    ConversionPage& page = *window.conversionPage;

    explicit Stage(int machines = 1)
    {
        QByteArray list;
        for (int i = 0; i < machines; ++i)
            list += "<machine name=\"m" + QByteArray::number(i)
                + "\" ><description>M</description></machine>\n";
        window.show();
        page.listxmlTextField->setText(file("list.xml", list));
        page.mame32jpTextField->setText(file("titles.lst", ""));
    }

    void convert()
    {
        desktop.answerSave("Tessera", path("out.xml"));
        press(page.button_convert);
        desktop.takeTranscript();
    }
};

} // namespace

class ConversionToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cancellingTheJobAsksForNoFile()
    {
        Stage stage(20'000);
        QTest::mouseClick(stage.page.button_convert, Qt::LeftButton);
        QVERIFY(stage.isIndicatorRunning());
        QCOMPARE(stage.information(), "Now converting...");
        stage.press(stage.foot.button_cancel);
        QCOMPARE(stage.information(), "Cancel.");
        QCOMPARE(stage.desktop.transcript(), QStringList());
        QVERIFY(!stage.isIndicatorRunning());
    }

    void progressReachesTheWhole()
    {
        QTemporaryDir folder;
        QFile list(folder.filePath("list.xml"));
        QVERIFY(list.open(QIODevice::WriteOnly));
        for (int i = 0; i < 10'000; ++i)
            list.write("<machine name=\"m" + QByteArray::number(i) + "\" ></machine>\n");
        list.close();
        std::atomic<std::int64_t> all = 0;
        const Watch watch{{}, [&](std::int64_t more) { all += more; }};
        QVERIFY(convertFile(list.fileName(), TitleTable(), {}, watch, 1));
        QCOMPARE(all.load(), QFileInfo(list).size());
    }

    void aStoppedConversionEndsEarly()
    {
        QTemporaryDir folder;
        QFile list(folder.filePath("list.xml"));
        QVERIFY(list.open(QIODevice::WriteOnly));
        for (int i = 0; i < 10'000; ++i)
            list.write("<machine name=\"m" + QByteArray::number(i) + "\" ></machine>\n");
        list.close();
        std::stop_source stop;
        std::int64_t all = 0;
        const Watch watch{stop.get_token(), [&](std::int64_t more) {
                              all += more;
                              stop.request_stop();
                          }};
        (void)convertFile(list.fileName(), TitleTable(), {}, watch, 1);
        QVERIFY(all > 0 && all < QFileInfo(list).size());
    }

    void aSavedFileIsOfferedAsCatalogue()
    {
        Stage stage;
        QVERIFY(!stage.page.button_useNow->isEnabled());
        QVERIFY(!stage.page.button_changes->isVisible());
        stage.convert();
        QVERIFY(stage.page.button_useNow->isEnabled());
        stage.rooms.changes = "three more";
        QTest::mouseClick(stage.page.button_useNow, Qt::LeftButton);
        QCOMPARE(stage.rooms.told, QStringList{"use " + stage.path("out.xml")});
        QCOMPARE(stage.page.savedText->text(), "three more");
        QVERIFY(!stage.page.button_useNow->isEnabled());
        QTest::mouseClick(stage.page.button_changes, Qt::LeftButton);
        QCOMPARE(stage.rooms.told.back(), "show changes");
    }

    void aFileThatIsNotTakenIsStillOffered()
    {
        Stage stage;
        stage.convert();
        stage.rooms.changes.reset();
        QTest::mouseClick(stage.page.button_useNow, Qt::LeftButton);
        QVERIFY(stage.page.button_useNow->isEnabled());
        QVERIFY(!stage.page.button_changes->isVisible());
    }

    void aFileThatWasNotWrittenIsNotOffered()
    {
        Stage stage;
        stage.desktop.answerSave("Tessera", stage.path("none/out.xml"));
        stage.press(stage.page.button_convert);
        QVERIFY(!stage.page.button_useNow->isEnabled());
        stage.desktop.takeTranscript();
    }

    void whatWasSavedBeforeIsNotOfferedAgain()
    {
        Stage stage;
        stage.convert();
        stage.desktop.answerSave("Tessera", std::nullopt);
        stage.press(stage.page.button_convert);
        QVERIFY(!stage.page.button_useNow->isEnabled());
        stage.desktop.takeTranscript();
    }
};

TESSERA_TEST(ConversionToolTest);
#include "conversiontooltest.moc"
