#include "tools/ui/existencetool.h"

#include "tools/ui/existencepage.h"
#include "tools/ui/foundbar.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/utilitystage.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>

#include <csignal>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    ExistencePage& page = *window.existencePage;
    ExistenceTool& tool = utility.existence();

    void fill(const QByteArray& listfull)
    {
        window.pageList->setCurrentRow(1);
        window.show();
        for (const char* name : {"roms/b.zip", "roms/d.zip", "roms/z.7z"})
            file(name, "");
        page.listfullTextField2->setText(file("listfull.txt", listfull));
        page.rompathTextField2->setText(path("roms"));
    }

    // What an emulator prints is kept in here.
    void useCache() const { qputenv("XDG_CACHE_HOME", QFile::encodeName(path("cache"))); }

    void check() { press(page.button_check2); }

    QStringList rows() const
    {
        QStringList list;
        for (std::size_t i = 0; i < page.rows->size(); ++i)
            list << QString::fromStdString(page.rows->shown(i).name) + ' ' + page.rows->shown(i).state;
        return list;
    }
};

constexpr char listfull[] = "Name: Description:\nz x\nd x\na x\nb x\n";

} // namespace

class ExistenceToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("XDG_CACHE_HOME"); }

    void listsTheFoundFirst()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        QCOMPARE(stage.rows(),
                 QStringList({"d Found", "b Found", "Name: Not found", "z Not found", "a Not found"}));
        QCOMPARE(stage.information(), "5 ROMs ( Found: 2 / Not found: 3 )");
        QCOMPARE(stage.desktop.transcript(), {"sound st_ovenbell"});
        QVERIFY(!stage.isIndicatorRunning());
        QCOMPARE(stage.tool.fNumber(), 2);
        QCOMPARE(stage.tool.nNumber(), 3);
    }

    void theIndicatorRunsMeanwhile()
    {
        Stage stage;
        stage.fill(listfull);
        QTest::mouseClick(stage.page.button_check2, Qt::LeftButton);
        QVERIFY(stage.isIndicatorRunning() && stage.isBusy());
        QCOMPARE(stage.information(), "Now Checking...");
        QVERIFY(!stage.page.button_check2->isVisible() && !stage.page.button_save->isEnabled());
        QVERIFY(stage.foot.progressInd->isVisible() && stage.foot.button_cancel->isVisible());
        // A second one must wait.
        stage.tool.romlistup();
        QCOMPARE(stage.desktop.takeTranscript(), {"beep"});
        QTRY_VERIFY(!stage.isBusy());
        QVERIFY(stage.page.button_check2->isVisible() && stage.page.button_check2->isEnabled());
        QVERIFY(!stage.foot.progressInd->isVisible());
    }

    void theKeyboardStaysWhereItWas()
    {
        Stage stage;
        stage.fill(listfull);
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        stage.page.button_check2->setFocus();
        QTest::keyClick(stage.page.button_check2, Qt::Key_Space);
        QCOMPARE(stage.window.focusWidget(), stage.foot.button_cancel);
        QTRY_VERIFY(!stage.isBusy());
        QCOMPARE(stage.window.focusWidget(), stage.page.button_check2);
    }

    void missingPathsAreNamed_data()
    {
        QTest::addColumn<bool>("hasList");
        QTest::addColumn<bool>("hasRoms");
        QTest::addColumn<QString>("information");
        QTest::newRow("no list") << false << true << "listfull.txt file is not found.";
        QTest::newRow("neither: the list comes first") << false << false << "listfull.txt file is not found.";
        QTest::newRow("no ROM folder") << true << false << "ROMs folder is not found.";
    }

    void missingPathsAreNamed()
    {
        QFETCH(bool, hasList);
        QFETCH(bool, hasRoms);
        QFETCH(QString, information);
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        if (!hasList)
            stage.page.listfullTextField2->clear();
        if (!hasRoms)
            stage.page.rompathTextField2->setText(stage.path("none"));
        stage.check();
        QCOMPARE(stage.information(), information);
        QCOMPARE(stage.desktop.transcript(), {"beep"});
        // The last list stays.
        QCOMPARE(stage.rows().size(), 5);
    }

    void withoutAHeaderTheCheckStopsInTheMiddle()
    {
        Stage stage;
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        stage.file("listfull.txt", "b x\n");
        stage.check();
        QCOMPARE(stage.information(), "Now Checking...");
        QVERIFY(stage.isIndicatorRunning());
        QCOMPARE(stage.rows(), QStringList());
        QCOMPARE(stage.desktop.transcript(), QStringList());
        // Why is said elsewhere, and the window stays usable.
        QCOMPARE(status.size(), 1);
        QCOMPARE(status.front().front().toString(), "existence_no_header");
        QCOMPARE(stage.page.reportList->emptyText(), "existence_no_header");
        stage.file("listfull.txt", listfull);
        stage.check();
        QCOMPARE(stage.rows().size(), 5);
        QVERIFY(!stage.isIndicatorRunning());
        QCOMPARE(stage.page.reportList->emptyText(), "existence_empty");
    }

    void aListThatCannotBeReadIsRefused()
    {
        Stage stage;
        stage.fill(listfull);
        stage.page.listfullTextField2->setText(stage.folder.path());
        stage.check();
        QCOMPARE(stage.information(), "convert_not_read");
        QCOMPARE(stage.desktop.transcript(), {"beep"});
        QVERIFY(!stage.isIndicatorRunning());
    }

    void savesTheReport()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        stage.desktop.answerSave("ROM Existence Report", stage.path("report.txt"));
        QTest::mouseClick(stage.page.button_save, Qt::LeftButton);
        QCOMPARE(stage.desktop.transcript(), {"save ROM Existence Report"});
        QCOMPARE(stage.desktop.saveRequests.front().title, "Save Report file");
        QCOMPARE(stage.desktop.saveRequests.front().extensions, {"txt"});
        const QByteArray report
            = "MAME ROM Existence Report\nAll: 5 ROMs ( Found: 2 / Not found: 3 )\n\n"
              "d\t\tFound\nb\t\tFound\nName:\t\tNot found\nz\t\tNot found\na\t\tNot found\n";
        QCOMPARE(stage.read("report.txt"), report);
        QCOMPARE(stage.tool.reportString(), report.toStdString());
        QCOMPARE(stage.information(), "5 ROMs ( Found: 2 / Not found: 3 )");
    }

    void theReportHasTheOrderShown()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.page.reportList->sortByColumn(RowsModel::NameColumn, Qt::DescendingOrder);
        stage.desktop.answerSave("ROM Existence Report", stage.path("report.txt"));
        stage.tool.saveAction();
        QVERIFY(stage.read("report.txt")
                    .endsWith("\n\nz\t\tNot found\nd\t\tFound\nb\t\tFound\na\t\tNot found\n"
                              "Name:\t\tNot found\n"));
        // A new check begins anew.
        stage.check();
        QCOMPARE(stage.rows().first(), "d Found");
    }

    void thereMustBeAReportToSave()
    {
        Stage stage;
        stage.tool.saveAction();
        QCOMPARE(stage.information(), "No Report file.");
        QCOMPARE(stage.desktop.transcript(), {"beep"});
    }

    void aCancelledSaveChangesNothing()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        stage.desktop.answerSave("ROM Existence Report", std::nullopt);
        stage.tool.saveAction();
        QCOMPARE(stage.desktop.transcript(), {"save ROM Existence Report"});
        QCOMPARE(stage.information(), "5 ROMs ( Found: 2 / Not found: 3 )");
    }

    void aFailedSaveIsLoggedOnly()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        const QString target = stage.path("none/report %1.txt");
        stage.desktop.answerSave("ROM Existence Report", target);
        stage.tool.saveAction();
        const QStringList transcript = stage.desktop.transcript();
        QCOMPARE(transcript.size(), 2);
        QVERIFY2(transcript[1].startsWith("log Error writing file at " + target + "\n"),
                 qPrintable(transcript[1]));
        QVERIFY(transcript[1].section('\n', 1).size() > 5);
        QCOMPARE(stage.information(), "5 ROMs ( Found: 2 / Not found: 3 )");
    }

    void oneSetIsTestedAndCounted()
    {
        Stage stage;
        stage.fill(listfull);
        for (const auto& [name, answer] : {std::pair{"b", "Found"},
                                           {"z.7z", "Found"},
                                           {"z", "Not found"},
                                           {"gone", "Not found"},
                                           {".", "Found"}})
            QCOMPARE(stage.tool.existscheck(name), answer);
        QCOMPARE(stage.tool.fNumber(), 3);
        QCOMPARE(stage.tool.nNumber(), 2);
    }

    void closingEmptiesTheList()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        stage.window.close();
        QCOMPARE(stage.rows(), QStringList());
        QCOMPARE(stage.information(), QString());
        QCOMPARE(stage.page.reportList->horizontalHeader()->sortIndicatorSection(), -1);
        stage.tool.saveAction();
        QCOMPARE(stage.information(), "No Report file.");
    }

    void whyACheckStoppedIsWithdrawnByTheNextOne()
    {
        Stage stage;
        QSignalSpy withdrawn(&stage.utility, &UtilityObject::statusWithdrawn);
        stage.fill("b x\n");
        stage.check();
        QCOMPARE(withdrawn.size(), 0);
        stage.fill(listfull);
        stage.check();
        QCOMPARE(withdrawn.size(), 1);
        QCOMPARE(withdrawn.front().front().toString(), "existence_no_header");
        stage.check();
        QCOMPARE(withdrawn.size(), 1);
        stage.desktop.takeTranscript();
    }

    void closingAbandonsACheck()
    {
        Stage stage;
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        stage.fill(listfull);
        stage.desktop.answerAlert("tool_close_Message", 1);
        QTest::mouseClick(stage.page.button_check2, Qt::LeftButton);
        stage.window.close();
        QVERIFY(!stage.isBusy() && !stage.isIndicatorRunning());
        // It has ended when that is said.
        QTRY_COMPARE(status.size(), 1);
        QCOMPARE(stage.desktop.takeTranscript(),
                 QStringList({"alert tool_close_Message", "log tool_undone"}));
        QCOMPARE(stage.rows(), QStringList());
        QCOMPARE(stage.information(), QString());
        QCOMPARE(stage.desktop.transcript(), QStringList());
        stage.window.show();
        stage.check();
        QCOMPARE(stage.rows().size(), 5);
    }

    void cancellingShowsNoList()
    {
        Stage stage;
        stage.fill(listfull);
        QTest::mouseClick(stage.page.button_check2, Qt::LeftButton);
        stage.press(stage.foot.button_cancel);
        QCOMPARE(stage.information(), "Cancel.");
        QCOMPARE(stage.rows(), QStringList());
        QVERIFY(!stage.isIndicatorRunning());
        QCOMPARE(stage.desktop.transcript(), QStringList());
    }

    void asksTheEmulatorItself()
    {
        Stage stage;
        stage.fill("");
        stage.useCache();
        stage.rooms.emulatorToAsk
            = stage.script("[ \"$*\" = -listfull ] || exit 1\nprintf 'Name: D:\\nz x\\nd x\\n'");
        stage.press(stage.page.button_ask2);
        QTRY_VERIFY(!stage.isIndicatorRunning());
        QCOMPARE(stage.rows(), QStringList({"d Found", "Name: Not found", "z Not found"}));
        QCOMPARE(stage.information(), "3 ROMs ( Found: 1 / Not found: 2 )");
        // For the separation, and for the next time.
        QCOMPARE(stage.page.listfullTextField2->text(), stage.path("cache/Tessera/printed/listfull.txt"));
        QCOMPARE(stage.defaults.string(keys::listfullPath.name), stage.page.listfullTextField2->text());
        QCOMPARE(stage.read("cache/Tessera/printed/listfull.txt"), QByteArray("Name: D:\nz x\nd x\n"));
        stage.desktop.takeTranscript();
    }

    void anEmulatorThatDoesNotAnswerIsNamed_data()
    {
        QTest::addColumn<QByteArray>("commands");
        QTest::addColumn<QString>("information");
        QTest::newRow("none") << QByteArray() << "failure_no_emulator";
        QTest::newRow("it fails") << QByteArray("echo half; exit 3") << "emulator_status";
        QTest::newRow("it is silent") << QByteArray("exit 0") << "emulator_silent";
        QTest::newRow("no header") << QByteArray("echo pong") << "Now Checking...";
    }

    void anEmulatorThatDoesNotAnswerIsNamed()
    {
        QFETCH(QByteArray, commands);
        QFETCH(QString, information);
        Stage stage;
        stage.fill("");
        stage.useCache();
        if (!commands.isEmpty())
            stage.rooms.emulatorToAsk = stage.script(commands);
        stage.press(stage.page.button_ask2);
        QTRY_COMPARE(stage.information(), information);
        QCOMPARE(stage.page.rows->size(), std::size_t(0));
        stage.desktop.takeTranscript();
    }

    void cancellingEndsTheEmulator()
    {
        Stage stage;
        stage.fill("");
        stage.useCache();
        const QString begun = stage.path("begun");
        stage.rooms.emulatorToAsk
            = stage.script("echo $$ > '" + begun.toUtf8() + ".new'; mv '" + begun.toUtf8() + ".new' '"
                           + begun.toUtf8() + "'; echo Name:; sleep 100");
        QTest::mouseClick(stage.page.button_ask2, Qt::LeftButton);
        QVERIFY(stage.isBusy());
        QTRY_VERIFY(QFile::exists(begun));
        stage.press(stage.foot.button_cancel);
        QCOMPARE(::kill(stage.read("begun").trimmed().toInt(), 0), -1);
        QCOMPARE(stage.information(), "Cancel.");
        QVERIFY(!QFile::exists(stage.path("cache/Tessera/printed/listfull.txt")));
        QVERIFY(stage.page.listfullTextField2->text() != stage.path("cache/Tessera/printed/listfull.txt"));
    }

    void aFilterHidesRowsButNotFromTheReport()
    {
        Stage stage;
        stage.fill(listfull);
        stage.check();
        stage.page.filterField->setText("NAMES");
        QCOMPARE(stage.page.rows->rowCount(), 0);
        stage.page.filterField->setText(" B ");
        QCOMPARE(stage.page.rows->rowCount(), 1);
        QCOMPARE(stage.page.rows->visible(0).name, std::string("b"));
        stage.desktop.answerSave("ROM Existence Report", stage.path("report.txt"));
        QTest::mouseClick(stage.page.button_save, Qt::LeftButton);
        QCOMPARE(stage.read("report.txt").count("\t\t"), 5);
        stage.page.filterField->clear();
        QCOMPARE(stage.page.rows->rowCount(), 5);
        stage.page.filterField->setText("b");
        stage.check();
        QCOMPARE(stage.page.rows->rowCount(), 5);
        stage.desktop.takeTranscript();
    }

    void aRowOpensItsGame()
    {
        Stage stage;
        stage.rooms.games = QStringList{"b"};
        stage.fill(listfull);
        stage.check();
        stage.desktop.takeTranscript();
        for (const int row : {1, 0}) {
            const QModelIndex index = stage.page.rows->index(row, 0);
            stage.page.reportList->setCurrentIndex(index);
            QTest::keyClick(stage.page.reportList, Qt::Key_Return);
        }
        QCOMPARE(stage.rooms.told, QStringList({"open b", "open d"}));
        QCOMPARE(stage.desktop.transcript(), {"beep"});
    }

    void theBarHasBothNumbers()
    {
        Stage stage;
        stage.fill(listfull);
        QVERIFY(!stage.page.foundBar->isVisible());
        stage.check();
        QVERIFY(stage.page.foundBar->isVisible());
        QCOMPARE(stage.page.foundBar->part(), 0.4);
        stage.window.close();
        QVERIFY(stage.page.foundBar->isHidden());
        stage.desktop.takeTranscript();
    }

    void valuesAreExported()
    {
        Stage stage;
        stage.fill("Name: D\nd x\na\"b,c x\n");
        QTest::mouseClick(stage.page.button_csv, Qt::LeftButton);
        QCOMPARE(stage.information(), "No Report file.");
        stage.check();
        stage.desktop.takeTranscript();
        stage.desktop.answerSave("ROM Existence Report", stage.path("report.csv"));
        QTest::mouseClick(stage.page.button_csv, Qt::LeftButton);
        QCOMPARE(stage.desktop.saveRequests.front().extensions, {"csv"});
        QCOMPARE(stage.read("report.csv"),
                 QByteArray("Set,Existence\r\nd,Found\r\nName:,Not found\r\n\"a\"\"b,c\",Not found\r\n"));
        QCOMPARE(stage.information(), "existence_csv_saved");
        stage.desktop.answerSave("ROM Existence Report", stage.path("none/report.csv"));
        QTest::mouseClick(stage.page.button_csv, Qt::LeftButton);
        QCOMPARE(stage.information(), "failure_write");
        stage.desktop.takeTranscript();
    }
};

TESSERA_TEST(ExistenceToolTest);
#include "existencetooltest.moc"
