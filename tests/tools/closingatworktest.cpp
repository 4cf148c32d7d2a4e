#include "tools/ui/conversionpage.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/verificationpage.h"
#include "tools/utilitystage.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>

#include <optional>

using namespace tessera;

namespace {

// Its window is closed while a tool saves.
struct SavingStage : test::UtilityStage {
    SavingStage()
    {
        window.conversionPage->listxmlTextField->setText(
            file("list.xml", "<machine name=\"pong\" ><description>Pong</description></machine>\n"));
        window.conversionPage->mame32jpTextField->setText(file("titles.lst", ""));
        window.verificationPage->verifyromsTextField->setText(file("verifyroms.txt", "romset a is bad\n"));
        // What is posted while the panel stands comes before the end of the job that the panel's answer
        // begins.
        desktop.whileOpen = [this] {
            desktop.answerAlert("tool_close_Message", 1);
            QMetaObject::invokeMethod(&window, &QWidget::close, Qt::QueuedConnection);
        };
    }

    void begin(int page, const QString& name, const QString& toPath)
    {
        window.pageList->setCurrentRow(page);
        window.show();
        desktop.answerSave(name, toPath);
        QTest::mouseClick(page == 0 ? window.conversionPage->button_convert
                                    : window.verificationPage->button_convert2,
                          Qt::LeftButton);
        if (!QTest::qWaitFor([this] { return !window.isVisible(); }, 30'000))
            QTest::qFail("it is not closed", __FILE__, __LINE__);
    }
};

} // namespace

/// What becomes of a tool at work whose window is closed.
class ClosingAtWorkTest : public QObject
{
    Q_OBJECT

    static void tools()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("name");
        QTest::newRow("conversion") << 0 << "Tessera";
        QTest::newRow("verification") << 3 << "verifyroms_convert";
    }

private Q_SLOTS:
    void closingWhileAJobRunsAsksFirst_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<bool>("stops");
        QTest::newRow("Escape, and it goes on") << true << false;
        QTest::newRow("Escape, and it is stopped") << true << true;
        QTest::newRow("closing, and it goes on") << false << false;
        QTest::newRow("closing, and it is stopped") << false << true;
    }

    void closingWhileAJobRunsAsksFirst()
    {
        QFETCH(bool, byKey);
        QFETCH(bool, stops);
        test::UtilityStage stage;
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        // An emulator that is verified ends when the test says so.
        const QString go = stage.path("go");
        qputenv("XDG_CACHE_HOME", QFile::encodeName(stage.path("cache")));
        stage.rooms.emulatorToAsk = stage.script("while [ ! -e '" + go.toUtf8()
                                                 + "' ]; do sleep 0.02; done; echo romset a is good");
        stage.window.pageList->setCurrentRow(3);
        QTest::mouseClick(stage.window.verificationPage->button_ask3, Qt::LeftButton);
        QVERIFY(stage.isBusy());
        stage.desktop.answerAlert("tool_close_Message", stops ? 1 : 0);
        if (byKey)
            QTest::keyClick(&stage.window, Qt::Key_Escape);
        else
            stage.window.close();
        QCOMPARE(stage.window.isVisible(), !stops);
        QCOMPARE(stage.isBusy(), !stops);
        QCOMPARE(stage.desktop.alerts.back().escape, std::optional(0));
        if (stops) {
            QTRY_COMPARE(status.size(), 1);
            QCOMPARE(status.front().front().toString(), "tool_undone");
            QVERIFY(stage.desktop.transcript().contains("log tool_undone"));
        } else {
            stage.file("go", "");
            QTRY_VERIFY(!stage.isBusy());
            QCOMPARE(stage.window.verificationPage->rows->size(), std::size_t(1));
            QCOMPARE(status.size(), 0);
            // Nothing is at work any more, and nothing is asked.
            QTest::keyClick(&stage.window, Qt::Key_Escape);
            QVERIFY(!stage.window.isVisible());
        }
        stage.desktop.takeTranscript();
        qunsetenv("XDG_CACHE_HOME");
    }

    void whatEndsWhileTheQuestionStandsWaitsForTheAnswer_data()
    {
        QTest::addColumn<bool>("stops");
        QTest::newRow("it goes on") << false;
        QTest::newRow("it is stopped") << true;
    }

    // The job is done long before somebody has read the question.
    void whatEndsWhileTheQuestionStandsWaitsForTheAnswer()
    {
        QFETCH(bool, stops);
        test::UtilityStage stage;
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        stage.window.pageList->setCurrentRow(3);
        stage.window.verificationPage->verifyromsTextField->setText(
            stage.file("verifyroms.txt", "romset a is bad\n"));
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        stage.desktop.answerAlert("tool_close_Message", stops ? 1 : 0);
        stage.desktop.whileAsked = [] { QTest::qWait(300); };
        if (!stops)
            stage.desktop.answerSave("verifyroms_convert", stage.path("out.txt"));
        QTest::mouseClick(stage.window.verificationPage->button_convert2, Qt::LeftButton);
        QVERIFY(stage.isBusy());
        stage.window.close();
        QCOMPARE(stage.window.isVisible(), !stops);
        if (stops)
            QTRY_COMPARE(status.size(), 1);
        else
            QTRY_COMPARE(stage.information(), "Saved a Verifyroms text.");
        QCOMPARE(stage.desktop.transcript().first(), "alert tool_close_Message");
        QCOMPARE(stage.read("out.txt").isEmpty(), stops);
        stage.desktop.takeTranscript();
    }

    void whatWasCancelledIsNotAskedAbout()
    {
        test::UtilityStage stage;
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        qputenv("XDG_CACHE_HOME", QFile::encodeName(stage.path("cache")));
        stage.rooms.emulatorToAsk = stage.script("exec sleep 60");
        stage.window.pageList->setCurrentRow(3);
        QTest::mouseClick(stage.window.verificationPage->button_ask3, Qt::LeftButton);
        QTest::mouseClick(stage.foot.button_cancel, Qt::LeftButton);
        QVERIFY(stage.isBusy());
        stage.window.close();
        QVERIFY(!stage.window.isVisible());
        QCOMPARE(stage.desktop.takeTranscript().filter("alert"), QStringList());
        qunsetenv("XDG_CACHE_HOME");
    }

    void whatIsNotWrittenIsStillSaid_data() { tools(); }

    void whatIsNotWrittenIsStillSaid()
    {
        QFETCH(int, page);
        QFETCH(QString, name);
        SavingStage stage;
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        const QString nowhere = stage.path("nowhere/out");
        stage.begin(page, name, nowhere);
        QTRY_COMPARE(status.size(), 1);
        const QString said = status.front().front().toString();
        QVERIFY2(said.startsWith("Error writing file at " + nowhere + " - "), qPrintable(said));
        QCOMPARE(stage.desktop.takeTranscript().filter("log Error"), QStringList("log " + said));
        QCOMPARE(stage.information(), QString());
    }

    void whatIsWrittenIsWhole_data() { tools(); }

    void whatIsWrittenIsWhole()
    {
        QFETCH(int, page);
        QFETCH(QString, name);
        QTemporaryDir folder;
        const QString path = folder.filePath("out");
        std::optional<SavingStage> stage(std::in_place);
        QSignalSpy status(&stage->utility, &UtilityObject::statusMessage);
        stage->begin(page, name, path);
        stage->desktop.takeTranscript();
        // With the stage ends whatever is still under way.
        stage.reset();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains(page == 0 ? "</database>" : "(is bad: 1)"));
        QCOMPARE(status.size(), 0);
    }
};

TESSERA_TEST(ClosingAtWorkTest);
#include "closingatworktest.moc"
