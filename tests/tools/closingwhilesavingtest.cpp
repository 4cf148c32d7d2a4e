#include "tools/conversion.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/verificationpage.h"
#include "tools/utilitystage.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>

#include <optional>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    Stage()
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

class ClosingWhileSavingTest : public QObject
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
    void whatIsNotWrittenIsStillSaid_data() { tools(); }

    void whatIsNotWrittenIsStillSaid()
    {
        QFETCH(int, page);
        QFETCH(QString, name);
        Stage stage;
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
        std::optional<Stage> stage(std::in_place);
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

TESSERA_TEST(ClosingWhileSavingTest);
#include "closingwhilesavingtest.moc"
