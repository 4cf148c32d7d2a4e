#include "tools/ui/separationtool.h"

#include "support/installedtexts.h"
#include "support/ordinaryuser.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/separationpage.h"
#include "tools/utilitystage.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalSpy>

#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    SeparationPage& page = *window.separationPage;
    SeparationTool& tool = utility.separation();

    Stage()
    {
        window.pageList->setCurrentRow(2);
        window.show();
        for (const char* name :
             {"roms/PONG.ZIP", "roms/gone.zip", "roms/old/rom", "roms/.hidden", "roms/Icon\r"})
            file(name, "bytes");
        QDir(folder.path()).mkdir("aside");
        page.rompathTextField1->setText(path("roms"));
        page.listfullTextField1->setText(file("listfull.txt", "Name: Description:\npong \"Pong\"\n"));
        page.movepathTextField->setText(path("aside"));
    }

    void check() { press(page.button_check1); }
    void separate() { press(page.button_separete); }
    void checkByName()
    {
        check();
        page.separationList->sortByColumn(RowsModel::NameColumn, Qt::AscendingOrder);
    }

    QStringList rows() const
    {
        QStringList list;
        for (std::size_t i = 0; i < page.rows->size(); ++i)
            list << QString::fromStdString(page.rows->shown(i).name) + '=' + page.rows->shown(i).state;
        return list;
    }

    QStringList entries(const QString& name) const
    {
        return QDir(path(name)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QString success(const QString& name) const
    {
        return QString::fromUtf8("log ファイルのコピーに成功：") + path("roms/" + name)
            + QString::fromUtf8(" → ") + path("aside/" + name);
    }
};

} // namespace

class SeparationToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCheckListsWithoutMarking()
    {
        Stage stage;
        stage.checkByName();
        QCOMPARE(stage.rows(), QStringList({"PONG.ZIP=", "gone.zip=", "old="}));
        QCOMPARE(stage.information(), "All: 3 ROMs");
        QCOMPARE(stage.desktop.transcript(), {"sound st_ovenbell"});
        QCOMPARE(stage.entries("aside"), QStringList());
        QVERIFY(!stage.isIndicatorRunning());
        auto names = stage.tool.romlist();
        std::ranges::sort(names);
        QCOMPARE(names, std::vector<std::string>({"PONG.ZIP", "gone.zip", "old"}));
    }

    void missingPathsAreNamed_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("information");
        QTest::newRow("no ROM folder") << "roms" << "ROMs folder is not found.";
        QTest::newRow("no list") << "list" << "listfull.txt file is not found.";
        QTest::newRow("neither: the folder comes first") << "both" << "ROMs folder is not found.";
    }

    void missingPathsAreNamed()
    {
        QFETCH(QString, missing);
        QFETCH(QString, information);
        Stage stage;
        if (missing != "list")
            stage.page.rompathTextField1->setText(stage.path("none"));
        if (missing != "roms")
            stage.page.listfullTextField1->setText(stage.path("none"));
        stage.check();
        QCOMPARE(stage.information(), information);
        QCOMPARE(stage.desktop.transcript(), {"beep"});
    }

    void separatingNeedsADestinationAndAList()
    {
        Stage stage;
        stage.separate();
        QCOMPARE(stage.information(), "No Separating file.");
        stage.page.movepathTextField->setText(stage.path("none"));
        stage.separate();
        QCOMPARE(stage.information(), "Move folder is not found.");
        stage.check();
        stage.separate();
        QCOMPARE(stage.information(), "Move folder is not found.");
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "beep", "sound st_ovenbell", "beep"}));
    }

    void marksAndCopiesInTheOrderShown()
    {
        Stage stage;
        stage.check();
        stage.page.separationList->sortByColumn(RowsModel::NameColumn, Qt::DescendingOrder);
        stage.desktop.takeTranscript();
        stage.separate();
        QCOMPARE(stage.rows(), QStringList({"old=Moved", "gone.zip=Moved", "PONG.ZIP=Support"}));
        QCOMPARE(stage.information(), "3 ROMs ( Support: 1 / Moved: 2 )");
        QCOMPARE(stage.desktop.transcript(),
                 QStringList({stage.success("old"), stage.success("gone.zip"), "sound st_ovenbell"}));
        QCOMPARE(stage.entries("aside"), QStringList({"gone.zip", "old"}));
        QCOMPARE(stage.entries("roms").size(), 5);
        QVERIFY(!stage.isIndicatorRunning());
        QVERIFY(stage.page.failedCopies->isHidden());
    }

    void whatWasNotCopiedIsListedAndLogged()
    {
        Stage stage;
        stage.file("aside/gone.zip", "older");
        stage.checkByName();
        stage.desktop.takeTranscript();
        stage.separate();
        QCOMPARE(stage.rows(), QStringList({"PONG.ZIP=Support", "gone.zip=Moved", "old=Moved"}));
        QCOMPARE(stage.information(), "3 ROMs ( Support: 1 / Moved: 2 )");
        QCOMPARE(stage.desktop.takeTranscript(),
                 QStringList({QString::fromUtf8("log ファイルのコピーに失敗：copy_exists"),
                              stage.success("old"), "sound st_ovenbell"}));
        QCOMPARE(stage.read("aside/gone.zip"), "older");
        QVERIFY(!stage.page.failedCopies->isHidden());
        QCOMPARE(stage.page.failedCopies->toPlainText(), "separation_not_copied\ncopy_exists");
        // Once more: everything is there, and nothing is replaced.
        stage.separate();
        QCOMPARE(stage.page.failedCopies->toPlainText(), "separation_not_copied\ncopy_exists\ncopy_exists");
        QCOMPARE(stage.information(), "3 ROMs ( Support: 1 / Moved: 2 )");
        stage.check();
        QVERIFY(stage.page.failedCopies->isHidden());
    }

    void aFailureTakesOneLineWhateverTheFileIsCalled()
    {
        Stage stage;
        stage.page.showFailures({"a\nb\tc", "d"});
        QCOMPARE(stage.page.failedCopies->toPlainText(),
                 QString::fromUtf8("separation_not_copied\na\u21B5b\uFFFDc\nd"));
    }

    void withoutPermissionEachFailureIsNamed()
    {
        Stage stage;
        stage.checkByName();
        ::chmod(QFile::encodeName(stage.folder.path()).constData(), 0755);
        ::chmod(QFile::encodeName(stage.path("aside")).constData(), 0555);
        stage.desktop.takeTranscript();
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            stage.separate();
        }
        QCOMPARE(stage.rows(), QStringList({"PONG.ZIP=Support", "gone.zip=Moved", "old=Moved"}));
        QCOMPARE(stage.information(), "3 ROMs ( Support: 1 / Moved: 2 )");
        QCOMPARE(stage.page.failedCopies->toPlainText(),
                 "separation_not_copied\nfailure_write\nfailure_write");
        QCOMPARE(stage.entries("aside"), QStringList());
        const QString line = QString::fromUtf8("log ファイルのコピーに失敗：failure_write");
        QCOMPARE(stage.desktop.transcript(), QStringList({line, line, "sound st_ovenbell"}));
    }

    void aListThatVanishedMeanwhileSupportsNothing()
    {
        Stage stage;
        stage.checkByName();
        QFile::remove(stage.path("listfull.txt"));
        stage.separate();
        QCOMPARE(stage.information(), "3 ROMs ( Support: 0 / Moved: 3 )");
        QCOMPARE(stage.entries("aside"), QStringList({"gone.zip", "old", "PONG.ZIP"}));
    }

    void thePlanIsToldBesideTheList()
    {
        Stage stage;
        QVERIFY(stage.page.planText->isHidden());
        stage.check();
        QTRY_VERIFY(!stage.page.planText->isHidden());
        QVERIFY(stage.page.planText->text().startsWith("separation_plan"));
        QVERIFY(!stage.page.planText->text().contains("separation_plan_there"));
        stage.page.movepathTextField->setText(stage.path("none"));
        QVERIFY(stage.page.planText->isHidden());
        stage.file("else/gone.zip", "");
        stage.page.movepathTextField->setText(stage.path("else"));
        QTRY_VERIFY(stage.page.planText->text().contains("separation_plan_there"));
        QVERIFY(stage.rows().filter("=Moved").isEmpty());
        stage.window.close();
        QVERIFY(stage.page.planText->isHidden());
    }

    void oneFileIsCopiedAndLogged()
    {
        Stage stage;
        stage.tool.movefile("gone.zip");
        stage.tool.movefile("gone.zip");
        QCOMPARE(stage.desktop.transcript(),
                 QStringList({stage.success("gone.zip"),
                              QString::fromUtf8("log ファイルのコピーに失敗：copy_exists")}));
        QCOMPARE(stage.read("aside/gone.zip"), "bytes");
    }

    void cancellingStopsTheCopying()
    {
        Stage stage;
        for (int i = 0; i < 300; ++i)
            stage.file(QString("roms/%1.zip").arg(i), QByteArray(1 << 20, 'x'));
        stage.check();
        stage.desktop.takeTranscript();
        const int width = stage.window.width();
        QTest::mouseClick(stage.page.button_separete, Qt::LeftButton);
        QVERIFY(stage.isBusy());
        QTRY_VERIFY(!stage.foot.progressCount->isHidden());
        QVERIFY(!stage.isIndicatorRunning() && stage.foot.progressInd->value() >= 0);
        stage.press(stage.foot.button_cancel);
        QCOMPARE(stage.information(), "Cancel.");
        QVERIFY(!stage.desktop.transcript().contains("sound st_ovenbell"));
        const QStringList copied = stage.entries("aside");
        QVERIFY(!copied.isEmpty() && copied.size() < 302);
        // Each row that is marked was copied whole, and no other.
        QCOMPARE(stage.rows().filter("=Moved").size(), copied.size());
        for (const QString& name : copied)
            QVERIFY(name == "old"
                    || QFileInfo(stage.path("aside/" + name)).size()
                        == QFileInfo(stage.path("roms/" + name)).size());
        QVERIFY(stage.foot.progressCount->isHidden());
        QCOMPARE(stage.window.width(), width);
    }

    // However far it has come by then: what is said is what is there.
    void closingSaysHowFarTheCopyingCame()
    {
        Stage stage;
        for (int i = 0; i < 300; ++i)
            stage.file(QString("roms/%1.zip").arg(i), QByteArray(1 << 20, 'x'));
        stage.check();
        QSignalSpy status(&stage.utility, &UtilityObject::statusMessage);
        const test::InstalledTexts texts("en");
        stage.desktop.answerAlert("Stop the tool that is at work?", 1);
        QTest::mouseClick(stage.page.button_separete, Qt::LeftButton);
        stage.window.close();
        QVERIFY(!stage.isBusy());
        QCOMPARE(stage.rows(), QStringList());
        QCOMPARE(stage.information(), QString());
        QTRY_COMPARE(status.size(), 1);
        // PONG.ZIP is supported and stays; each other one that was done was copied.
        static const QRegularExpression words("^The separation was stopped when its window was closed, after "
                                              "(\\d+) of 303 files and folders\\.$");
        const auto said = words.match(status.front().front().toString());
        QVERIFY2(said.hasMatch(), qPrintable(status.front().front().toString()));
        const auto copied = stage.entries("aside").size();
        // Each of them is in the log, whenever it ended.
        QCOMPARE(stage.desktop.transcript().filter(QRegularExpression("^log .*\\.zip")).size(), copied);
        const int done = said.captured(1).toInt();
        QVERIFY2(done == copied || done == copied + 1, qPrintable(QString::number(copied)));
        QVERIFY(stage.entries("aside").filter(".tessera").isEmpty());
        stage.window.show();
        stage.check();
        QCOMPARE(stage.information(), "All: 303 ROMs");
        stage.desktop.takeTranscript();
    }

    void copyingGoesOnWhereTheWindowIsNotClosed()
    {
        Stage stage;
        for (int i = 0; i < 300; ++i)
            stage.file(QString("roms/%1.zip").arg(i), QByteArray(1 << 20, 'x'));
        stage.check();
        stage.desktop.answerAlert("tool_close_Message", 0);
        QTest::mouseClick(stage.page.button_separete, Qt::LeftButton);
        stage.window.close();
        QVERIFY(stage.window.isVisible());
        QTRY_VERIFY(!stage.isBusy());
        QCOMPARE(stage.entries("aside").size(), 302);
        stage.desktop.takeTranscript();
    }

    void closingEmptiesTheList()
    {
        Stage stage;
        stage.check();
        stage.window.close();
        QCOMPARE(stage.rows(), QStringList());
        stage.separate();
        QCOMPARE(stage.information(), "No Separating file.");
    }

    void namesThatAreNoTextAreCopied()
    {
        Stage stage;
        const QByteArray name = "caf\xE9\n\"x\".zip";
        const std::string path = stage.path("roms/").toStdString() + name.toStdString();
        QVERIFY(std::ofstream(path).is_open());
        stage.check();
        stage.separate();
        QCOMPARE(stage.information(), "4 ROMs ( Support: 1 / Moved: 3 )");
        QVERIFY(stage.page.failedCopies->isHidden());
        QVERIFY(::access((stage.path("aside/").toStdString() + name.toStdString()).c_str(), F_OK) == 0);
    }
};

TESSERA_TEST(SeparationToolTest);
#include "separationtooltest.moc"
