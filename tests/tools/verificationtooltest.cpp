#include "tools/ui/verificationtool.h"

#include "tools/plainverification.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/verificationpage.h"
#include "tools/utilitystage.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <csignal>

using namespace tessera;

namespace {

constexpr char printed[] = "romset a is bad\nromset b is good\na : x - NOT FOUND\n";

struct Stage : test::UtilityStage {
    VerificationPage& page = *window.verificationPage;

    explicit Stage(const QByteArray& bytes = printed)
    {
        window.pageList->setCurrentRow(3);
        window.show();
        qputenv("XDG_CACHE_HOME", QFile::encodeName(path("cache")));
        page.verifyromsTextField->setText(file("verifyroms.txt", bytes));
    }

    void choose(const QSet<QString>& endings)
    {
        for (std::size_t i = 0; i < verdicts.size(); ++i)
            page.boxes[i]->setChecked(endings.contains(verdicts[i].ending()));
    }

    QStringList sets() const
    {
        QStringList list;
        for (std::size_t i = 0; i < page.rows->size(); ++i)
            list << QString::fromStdString(page.rows->shown(i).name) + ' ' + page.rows->shown(i).state;
        return list;
    }

    void convert() { press(page.button_convert2); }
};

} // namespace

class VerificationToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("XDG_CACHE_HOME"); }

    void theIndicatorRunsUntilTheFileIsWritten()
    {
        Stage stage;
        bool ranWhileOpen = false;
        stage.desktop.whileOpen = [&] { ranWhileOpen = stage.isIndicatorRunning(); };
        stage.desktop.answerSave("verifyroms_convert", stage.path("report.txt"));
        QTest::mouseClick(stage.page.button_convert2, Qt::LeftButton);
        QVERIFY(stage.isIndicatorRunning());
        QTRY_COMPARE(stage.information(), "Saved a Verifyroms text.");
        QVERIFY(ranWhileOpen);
        QVERIFY(!stage.isIndicatorRunning());
        stage.desktop.takeTranscript();
    }

    void savesTheReportOfBadSetsAtFirst()
    {
        Stage stage;
        stage.desktop.answerSave("verifyroms_convert", stage.path("report.txt"));
        stage.convert();
        QCOMPARE(stage.desktop.transcript(), QStringList({"save verifyroms_convert", "sound st_ovenbell"}));
        QCOMPARE(stage.desktop.saveRequests.front().title, "Save Verifyroms text");
        QCOMPARE(stage.desktop.saveRequests.front().extensions, {"txt"});
        QCOMPARE(stage.information(), "Saved a Verifyroms text.");
        QCOMPARE(stage.read("report.txt"), "romset a is bad\n\n(is bad: 1)\n\n");
        QVERIFY(!stage.isIndicatorRunning());
    }

    void eachBoxHasItsSettingAndItsVerdict_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("key");
        const auto row = [](const char* box, const char* ending) {
            QTest::newRow(box) << QString(box) << QString("verifyromsButton_") + ending;
        };
        row("verifyButton1", "isgood");
        row("verifyButton2", "isbesta");
        row("verifyButton9", "iclength");
        row("verifyButton10", "iccsum");
        row("verifyButton3", "nredump");
        row("verifyButton4", "ngdk");
        row("verifyButton6", "isbad");
        row("verifyButton7", "notfound");
        row("verifyButton8", "nfsparent");
        row("verifyButton_nfngd", "nfngd");
        row("verifyButton_nfbo", "nfbo");
        row("verifyButton5", "other");
    }

    void eachBoxHasItsSettingAndItsVerdict()
    {
        QFETCH(QString, box);
        QFETCH(QString, key);
        Stage stage;
        stage.choose({});
        auto* button = stage.window.findChild<QCheckBox*>(box);
        button->click();
        stage.defaults.synchronize();
        QVERIFY(stage.read("settings.ini").contains((key + "=true").toLatin1()));
        stage.desktop.answerSave("verifyroms_convert", stage.path("report.txt"));
        stage.convert();
        QCOMPARE(stage.read("report.txt"),
                 test::plainVerification(printed, {key.mid(key.indexOf('_') + 1)}).toUtf8());
        stage.desktop.takeTranscript();
    }

    void aMissingFileIsNamed()
    {
        Stage stage;
        stage.page.verifyromsTextField->setText(stage.path("none"));
        stage.convert();
        QCOMPARE(stage.information(), "verifyroms.txt file is not found.");
        QCOMPARE(stage.desktop.transcript(), {"beep"});
    }

    void withoutABoxThereIsNothing()
    {
        Stage stage;
        stage.choose({});
        stage.convert();
        QCOMPARE(stage.information(), "Not found.");
        QCOMPARE(stage.desktop.transcript(), {"beep"});
        QVERIFY(!stage.isIndicatorRunning());
    }

    void cancellingTheSavePanelIsSaid()
    {
        Stage stage;
        stage.desktop.answerSave("verifyroms_convert", std::nullopt);
        stage.convert();
        QCOMPARE(stage.information(), "Cancel.");
        QCOMPARE(stage.desktop.transcript(), {"save verifyroms_convert"});
        QVERIFY(!stage.isIndicatorRunning());
    }

    void aFailedWriteIsSaidWithoutABeep()
    {
        Stage stage;
        const QString target = stage.path("none/%1.txt");
        stage.desktop.answerSave("verifyroms_convert", target);
        stage.convert();
        QVERIFY2(stage.information().startsWith("Error writing file at " + target + " - "),
                 qPrintable(stage.information()));
        QCOMPARE(stage.desktop.transcript(), {"save verifyroms_convert"});
        QVERIFY(!stage.isIndicatorRunning());
    }

    void aFileThatCannotBeReadIsRefused()
    {
        Stage stage;
        stage.page.verifyromsTextField->setText(stage.folder.path());
        stage.convert();
        QCOMPARE(stage.information(), "convert_not_read");
        QCOMPARE(stage.desktop.transcript(), {"beep"});
        QVERIFY(!stage.isIndicatorRunning());
    }

    void cancellingTheJobAsksForNoFile()
    {
        Stage stage;
        QTest::mouseClick(stage.page.button_convert2, Qt::LeftButton);
        QVERIFY(stage.isIndicatorRunning());
        QCOMPARE(stage.information(), "Now Extracting...");
        stage.press(stage.foot.button_cancel);
        QCOMPARE(stage.information(), "Cancel.");
        QCOMPARE(stage.desktop.transcript(), QStringList());
    }

    void theSetsOfAFileAreListed()
    {
        Stage stage("a : x (4 bytes) - NOT FOUND\nromset a [p] is bad\nromset b is good\n");
        stage.desktop.answerSave("verifyroms_convert", std::nullopt);
        stage.convert();
        stage.desktop.takeTranscript();
        QCOMPARE(stage.sets(), QStringList({"a state_bad · state_missing", "b state_good"}));
        stage.page.setList->setCurrentIndex(stage.page.rows->index(0, 0));
        QCOMPARE(stage.page.setDetails->toPlainText(), "a · state_bad · state_missing\n\n• wrong_missing");
        stage.page.setList->sortByColumn(RowsModel::NameColumn, Qt::DescendingOrder);
        stage.page.setList->setCurrentIndex(stage.page.rows->index(0, 0));
        QCOMPARE(stage.page.setDetails->toPlainText(), "b · state_good");
    }

    void theSetsAreListedWithoutABoxToo()
    {
        Stage stage;
        stage.choose({});
        stage.convert();
        QCOMPARE(stage.sets().size(), 3);
        stage.desktop.takeTranscript();
    }

    void letsTheEmulatorVerify()
    {
        Stage stage;
        stage.rooms.roms = "/my roms";
        stage.rooms.emulatorToAsk = stage.script("echo \"$@\" > '" + stage.path("arguments").toUtf8()
                                                 + "'; echo romset a is bad; echo romset b is good; exit 2");
        stage.press(stage.page.button_ask3);
        QCOMPARE(stage.read("arguments"), QByteArray("-verifyroms -rompath /my roms\n"));
        QCOMPARE(stage.information(), "verification_verified");
        QCOMPARE(stage.sets(), QStringList({"a state_bad", "b state_good"}));
        QCOMPARE(stage.desktop.takeTranscript(), {"sound st_ovenbell"});
        // The report is made of the same text.
        QCOMPARE(stage.page.verifyromsTextField->text(), stage.path("cache/Tessera/printed/verifyroms.txt"));
        stage.desktop.answerSave("verifyroms_convert", stage.path("report.txt"));
        stage.convert();
        QCOMPARE(stage.read("report.txt"), "romset a is bad\n\n(is bad: 1)\n\n");
        stage.desktop.takeTranscript();
    }

    void withoutARomFolderTheEmulatorHasItsOwn()
    {
        Stage stage;
        stage.rooms.emulatorToAsk
            = stage.script("echo \"$@\" > '" + stage.path("arguments").toUtf8() + "'; echo romset a is good");
        stage.press(stage.page.button_ask3);
        QCOMPARE(stage.read("arguments"), QByteArray("-verifyroms\n"));
        stage.desktop.takeTranscript();
    }

    void theSetsAreCountedWhileItVerifies()
    {
        Stage stage;
        stage.rooms.emulatorToAsk = stage.script("echo romset a is good; echo romset b is good; sleep 100");
        QTest::mouseClick(stage.page.button_ask3, Qt::LeftButton);
        QTRY_VERIFY(stage.foot.progressCount->isVisible());
        QCOMPARE(stage.foot.progressCount->text(), "verification_count");
        QVERIFY(stage.isIndicatorRunning());
        stage.press(stage.foot.button_cancel);
        QCOMPARE(stage.information(), "Cancel.");
        QVERIFY(!QFile::exists(stage.path("cache/Tessera/printed/verifyroms.txt")));
        QVERIFY(stage.sets().isEmpty());
    }

    void closingTheWindowEndsTheEmulator()
    {
        Stage stage;
        const QByteArray id = stage.path("id").toUtf8();
        stage.rooms.emulatorToAsk = stage.script("echo $$ > '" + id + "'; echo romset a is good; sleep 100");
        QTest::mouseClick(stage.page.button_ask3, Qt::LeftButton);
        QTRY_VERIFY(stage.foot.progressCount->isVisible());
        const int emulator = stage.read("id").trimmed().toInt();
        QVERIFY(emulator > 0 && ::kill(emulator, 0) == 0);
        stage.desktop.answerAlert("tool_close_Message", 1);
        stage.window.close();
        QVERIFY(!stage.isBusy());
        QTRY_COMPARE(::kill(emulator, 0), -1);
        stage.desktop.takeTranscript();
    }

    void anEmulatorThatCannotVerifyIsNamed()
    {
        Stage stage;
        stage.press(stage.page.button_ask3);
        QCOMPARE(stage.information(), "failure_no_emulator");
        stage.rooms.emulatorToAsk = stage.script("kill -SEGV $$");
        stage.press(stage.page.button_ask3);
        QCOMPARE(stage.information(), "emulator_crashed");
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "beep"}));
    }
};

TESSERA_TEST(VerificationToolTest);
#include "verificationtooltest.moc"
