#include "support/installedtexts.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/separationpage.h"
#include "tools/ui/workbench.h"
#include "tools/utilitystage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QLayout>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QToolButton>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    ConversionPage& page = *window.conversionPage;

    void fillFields()
    {
        page.listxmlTextField->setText(file("list.xml",
                                            "<machine name=\"a\" ><description>A</description></machine>"
                                            "<machine name=\"b\" isbios=\"yes\" ></machine>"
                                            "<machine name=\"m\" ismechanical=\"yes\" ></machine>"
                                            "<machine name=\"d\" isdevice=\"yes\" ></machine>"));
        page.mame32jpTextField->setText(file("titles.lst", "a\tB\n"));
    }

    void convert() { press(page.button_convert); }
};

} // namespace

class UtilityObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The toolkit's; our own border stays.
    void theFocusRingsOfItsControlsAreOff()
    {
        Stage stage;
        int controls = 0;
        for (const QWidget* widget : stage.window.findChildren<QWidget*>()) {
            const bool isControl = qobject_cast<const QLineEdit*>(widget) != nullptr
                || qobject_cast<const QAbstractButton*>(widget) != nullptr
                || qobject_cast<const QComboBox*>(widget) != nullptr || widget == stage.window.utilityTabView;
            if (!isControl)
                continue;
            ++controls;
            QVERIFY2(widget->property("focusring").toString() == QStringLiteral("none"),
                     qPrintable(widget->objectName()));
        }
        QVERIFY(controls > 40);
    }

    void tabLeavesAList()
    {
        Stage stage;
        SeparationPage& page = *stage.window.separationPage;
        page.rows->setRows({{"a", QString()}, {"b", QString()}});
        stage.window.pageList->setCurrentRow(2);
        stage.window.show();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        page.separationList->setFocus();
        page.separationList->setCurrentIndex(page.separationList->model()->index(0, 0));
        QTest::keyClick(page.separationList, Qt::Key_Tab);
        QVERIFY(!page.separationList->hasFocus());
    }

    void convertsThenAsksWhereToThenReports()
    {
        Stage stage;
        stage.fillFields();
        const QString target = stage.folder.filePath("out.xml");
        stage.desktop.answerSave("Tessera", target);
        stage.convert();
        QCOMPARE(stage.desktop.transcript(),
                 QStringList({"log Search end.", "save Tessera", "sound st_ovenbell"}));
        QCOMPARE(stage.information(), "The conversion work is finished.  ( 4 games )");
        QCOMPARE(stage.desktop.saveRequests.size(), std::size_t(1));
        QCOMPARE(stage.desktop.saveRequests.front().title, "Save XMLlist file");
        QCOMPARE(stage.desktop.saveRequests.front().extensions, {"xml"});
        QVERIFY(stage.read("out.xml").contains("<nextObjectID>105</nextObjectID>"));
        QVERIFY(stage.read("out.xml").contains(">B</attribute>"));
    }

    void theBoxesLeaveSetsOut_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("bios") << "button_isbios" << QByteArray("b");
        QTest::newRow("mechanical") << "button_ismechanical" << QByteArray("m");
        QTest::newRow("devices") << "button_isdevice" << QByteArray("d");
    }

    void theBoxesLeaveSetsOut()
    {
        QFETCH(QString, box);
        QFETCH(QByteArray, name);
        Stage stage;
        stage.fillFields();
        stage.window.findChild<QCheckBox*>(box)->click();
        stage.desktop.answerSave("Tessera", stage.folder.filePath("out.xml"));
        stage.convert();
        QCOMPARE(stage.information(), "The conversion work is finished.  ( 3 games )");
        QVERIFY(!stage.read("out.xml").contains(QByteArray("\"string\">" + name + "</attribute>")));
    }

    void noGamesIsAResultLikeAnyOther()
    {
        Stage stage;
        stage.page.listxmlTextField->setText(stage.file("list.xml", "<mame></mame>"));
        stage.page.mame32jpTextField->setText(stage.file("titles.lst", ""));
        stage.desktop.answerSave("Tessera", stage.folder.filePath("out.xml"));
        stage.convert();
        QCOMPARE(stage.information(), "The conversion work is finished.  ( 0 games )");
        QVERIFY(stage.read("out.xml").contains("<nextObjectID>101</nextObjectID>"));
    }

    void missingFilesAreNamed_data()
    {
        QTest::addColumn<bool>("hasList");
        QTest::addColumn<bool>("hasTitles");
        QTest::addColumn<QString>("information");
        QTest::newRow("no list") << false << true << "listxml.xml file is not found.";
        QTest::newRow("neither: the list comes first") << false << false << "listxml.xml file is not found.";
        QTest::newRow("no titles") << true << false << "mame32jp.lst file is not found.";
    }

    void missingFilesAreNamed()
    {
        QFETCH(bool, hasList);
        QFETCH(bool, hasTitles);
        QFETCH(QString, information);
        Stage stage;
        stage.fillFields();
        if (!hasList)
            stage.page.listxmlTextField->setText(stage.folder.filePath("none"));
        if (!hasTitles)
            stage.page.mame32jpTextField->clear();
        stage.convert();
        QCOMPARE(stage.information(), information);
        QCOMPARE(stage.desktop.transcript(), {"beep"});
    }

    void cancellingTheSavePanelChangesNothing()
    {
        Stage stage;
        stage.fillFields();
        stage.desktop.answerSave("Tessera", std::nullopt);
        stage.convert();
        QCOMPARE(stage.information(), "Now converting...");
        QCOMPARE(stage.desktop.transcript(), QStringList({"log Search end.", "save Tessera"}));
    }

    void aFailedWriteIsReported()
    {
        Stage stage;
        stage.fillFields();
        const QString target = stage.folder.filePath("none/out%1.xml");
        stage.desktop.answerSave("Tessera", target);
        stage.convert();
        QCOMPARE(stage.desktop.transcript(), QStringList({"log Search end.", "save Tessera", "beep"}));
        QVERIFY2(stage.information().startsWith("Error writing file at " + target + " - "),
                 qPrintable(stage.information()));
        QVERIFY(stage.information().size() > ("Error writing file at " + target + " - ").size());
    }

    void aListThatIsNoneIsRefused()
    {
        Stage stage;
        stage.fillFields();
        stage.page.listxmlTextField->setText(stage.file("nul.xml", QByteArray("<machine \0", 10)));
        stage.convert();
        QCOMPARE(stage.desktop.transcript(), {"beep"});
        QCOMPARE(stage.information(), qtTrId("convert_has_nul"));
    }

    void theIndicatorRunsBetweenStartAndStop()
    {
        Stage stage;
        QVERIFY(stage.foot.progressInd->maximum() > 0);
        stage.utility.workbench().indicator_start();
        QCOMPARE(stage.foot.progressInd->maximum(), 0);
        stage.utility.workbench().indicator_stop();
        QVERIFY(stage.foot.progressInd->maximum() > 0);
        // Nothing of it is left after a failure either.
        stage.fillFields();
        stage.page.mame32jpTextField->setText(stage.folder.path());
        stage.convert();
        QVERIFY(stage.foot.progressInd->maximum() > 0);
        stage.desktop.takeTranscript();
    }

    void theIndicatorRunsUntilTheFileIsWritten()
    {
        // It may show how far the list is read by then.
        Stage stage;
        stage.utility.utilityOrderFront();
        stage.fillFields();
        bool ranWhileOpen = false;
        stage.desktop.whileOpen = [&] { ranWhileOpen = stage.foot.progressInd->isVisible(); };
        stage.desktop.answerSave("Tessera", stage.path("out.xml"));
        QTest::mouseClick(stage.page.button_convert, Qt::LeftButton);
        QVERIFY(stage.isIndicatorRunning());
        QTRY_COMPARE(stage.information(), "The conversion work is finished.  ( 4 games )");
        QVERIFY(ranWhileOpen);
        QVERIFY(!stage.foot.progressInd->isVisible());
        // After Cancel in the panel as well.
        ranWhileOpen = false;
        stage.desktop.answerSave("Tessera", std::nullopt);
        stage.convert();
        QVERIFY(ranWhileOpen);
        QVERIFY(!stage.foot.progressInd->isVisible());
        stage.desktop.takeTranscript();
    }

    void aListThatIsCutOffIsOfferedUpToThere()
    {
        Stage stage;
        stage.fillFields();
        stage.page.listxmlTextField->setText(
            stage.file("cut.xml", "<machine name=\"a\" ></machine><machine name=\"b\" ><descr"));
        QString saidWhileOpen;
        stage.desktop.whileOpen = [&] { saidWhileOpen = stage.information(); };
        stage.desktop.answerSave("Tessera", stage.path("out.xml"));
        const test::InstalledTexts texts("en");
        stage.convert();
        const QString reason = "The list is cut off within “b”: what stands before that set was converted.";
        QCOMPARE(saidWhileOpen, reason);
        QCOMPARE(stage.information(), "The conversion work is finished.  ( 1 games )  " + reason);
        QVERIFY(stage.read("out.xml").contains("<nextObjectID>102</nextObjectID>"));
        stage.desktop.takeTranscript();
    }

    // The information line has what the buttons of the page that is shown leave.
    void theInformationLineHasTheWholeFreeWidth()
    {
        Stage stage;
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        for (int page = 0; page < stage.window.pageList->count(); ++page) {
            stage.window.pageList->setCurrentRow(page);
            QCoreApplication::sendPostedEvents();
            int first = stage.foot.width();
            for (const QPushButton* button : stage.foot.findChildren<QPushButton*>()) {
                if (button->isVisible())
                    first = std::min(first, button->mapTo(&stage.foot, QPoint()).x());
            }
            const int gap = first - stage.foot.infoTextField->geometry().right();
            QVERIFY2(gap > 0 && gap < 40, qPrintable(QString::number(page) + ' ' + QString::number(gap)));
        }
    }

    void choosersFillStoreAndFlush_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("isFolder");
        const auto row = [](const char* button, const char* field, const char* key, bool isFolder) {
            QTest::newRow(field) << QString(button) << QString(field) << QString(key) << isFolder;
        };
        row("button_listxml", "listxmlTextField", "listxmlPath", false);
        row("button_mame32jp", "mame32jpTextField", "localizePath", false);
        row("button_listfull2", "listfullTextField2", "listfullPath", false);
        row("button_rompath2", "rompathTextField2", "RomsPath", true);
        row("button_listfull1", "listfullTextField1", "listfullPath", false);
        row("button_rompath1", "rompathTextField1", "romsfolderPath", true);
        row("button_movepath", "movepathTextField", "movefolderPath", true);
        row("button_verifyroms", "verifyromsTextField", "verifyromsText", false);
        row("button_favorites", "favoritesTextField", "listxmlPath", false);
    }

    void choosersFillStoreAndFlush()
    {
        QFETCH(QString, button);
        QFETCH(QString, field);
        QFETCH(QString, key);
        QFETCH(bool, isFolder);
        Stage stage;
        stage.desktop.answerOpen("/a/file");
        stage.window.findChild<QPushButton*>(button)->click();
        QCOMPARE(stage.window.findChild<QLineEdit*>(field)->text(), "/a/file");
        QVERIFY(stage.read("settings.ini").contains(QByteArray(key.toLatin1() + "=/a/file")));
        const OpenRequest request = stage.desktop.openRequests.front();
        QVERIFY(request.files != isFolder && request.folders == isFolder && request.extensions.isEmpty());

        stage.desktop.answerOpen(std::nullopt);
        stage.window.findChild<QPushButton*>(button)->click();
        QCOMPARE(stage.window.findChild<QLineEdit*>(field)->text(), "/a/file");
    }

    void fieldsShowTheStoredPaths()
    {
        Stage stage;
        stage.controller.setText(keys::listfullPath, "/stored/listfull");
        stage.controller.setText(keys::RomsPath, "/stored/roms");
        for (const auto& [field, path] : {std::pair{"listfullTextField1", "/stored/listfull"},
                                          {"listfullTextField2", "/stored/listfull"},
                                          {"rompathTextField1", ""},
                                          {"rompathTextField2", "/stored/roms"}})
            QCOMPARE(stage.window.findChild<QLineEdit*>(field)->text(), path);
        stage.controller.setText(keys::listxmlPath, "/stored/list");
        stage.controller.setText(keys::localizePath, "/stored/titles");
        QCOMPARE(stage.page.listxmlTextField->text(), "/stored/list");
        QCOMPARE(stage.page.mame32jpTextField->text(), "/stored/titles");
    }

    void openPanelpathPassesItsFlags()
    {
        Stage stage;
        stage.desktop.answerOpen("/f");
        QCOMPARE(stage.utility.workbench().openPanelpath(false, true), "/f");
        QVERIFY(!stage.desktop.openRequests.back().files && stage.desktop.openRequests.back().folders);
        stage.desktop.answerOpen(std::nullopt);
        QCOMPARE(stage.utility.workbench().openPanelpath(true, false), QString());
    }

    void revealsWhatAFieldNames_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("field"); // empty for a beep
        QTest::addColumn<QString>("button");
        const auto row = [](int tag, const char* field, const char* button) {
            QTest::addRow("%d", tag) << tag << QString(field) << QString(button);
        };
        row(1, "listfullTextField2", "reveal_listfull2");
        row(2, "rompathTextField2", "reveal_rompath2");
        row(3, "rompathTextField1", "reveal_rompath1");
        row(4, "listfullTextField1", "reveal_listfull1");
        row(5, "movepathTextField", "reveal_movepath");
        row(6, "listxmlTextField", "reveal_listxml");
        row(7, "mame32jpTextField", "reveal_mame32jp");
        row(8, "verifyromsTextField", "reveal_verifyroms");
        row(9, "favoritesTextField", "reveal_favorites");
        row(0, "", "");
        row(10, "", "");
        row(-1, "", "");
    }

    void revealsWhatAFieldNames()
    {
        QFETCH(int, tag);
        QFETCH(QString, field);
        QFETCH(QString, button);
        Stage stage;
        for (QLineEdit* other : stage.window.findChildren<QLineEdit*>())
            other->setText("/nowhere");
        if (field.isEmpty()) {
            stage.utility.show_file_in_finder2(tag);
            QCOMPARE(stage.desktop.transcript(), {"beep"});
            return;
        }
        const QString path = stage.file("revealed", "");
        stage.window.findChild<QLineEdit*>(field)->setText(path);
        stage.utility.show_file_in_finder2(tag);
        stage.window.findChild<QToolButton*>(button)->click();
        QCOMPARE(stage.desktop.transcript(), QStringList({"reveal " + path, "reveal " + path}));
    }

    void revealingNothingBeeps()
    {
        Stage stage;
        stage.page.listxmlTextField->setText(stage.folder.filePath("gone"));
        stage.window.findChild<QToolButton*>("reveal_listxml")->click();
        stage.window.findChild<QToolButton*>("reveal_mame32jp")->click();
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "beep"}));
    }

    void identifiersAreUpperCaseAndNew()
    {
        Stage stage;
        const QString uuid = stage.utility.issueuuid();
        QVERIFY(QRegularExpression("^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$").match(uuid).hasMatch());
        QVERIFY(uuid != stage.utility.issueuuid());
    }

    void closingClearsTheInformationLine()
    {
        Stage stage;
        stage.utility.utilityOrderFront();
        QVERIFY(stage.window.isVisible());
        stage.convert();
        QVERIFY(!stage.information().isEmpty());
        stage.window.close();
        QCOMPARE(stage.information(), QString());
        stage.desktop.takeTranscript();
    }

    void everythingIsReachedByKeyboard()
    {
        Stage stage;
        stage.fillFields();
        stage.utility.utilityOrderFront();
        QVERIFY(QTest::qWaitForWindowActive(&stage.window));
        QSet<QWidget*> reached;
        stage.window.pageList->setFocus();
        for (int i = 0; i < 30; ++i) {
            reached << stage.window.focusWidget();
            QTest::keyClick(stage.window.focusWidget(), Qt::Key_Tab);
        }
        for (QWidget* widget : QList<QWidget*>{
                 stage.window.pageList, stage.page.listxmlTextField,
                 stage.window.findChild<QWidget*>("button_listxml"),
                 stage.window.findChild<QWidget*>("reveal_listxml"), stage.page.mame32jpTextField,
                 stage.window.findChild<QWidget*>("button_mame32jp"),
                 stage.window.findChild<QWidget*>("reveal_mame32jp"), stage.page.button_isbios,
                 stage.page.button_ismechanical, stage.page.button_isdevice, stage.page.button_convert})
            QVERIFY2(reached.contains(widget), qPrintable(widget->objectName()));
        QTest::keyClick(&stage.window, Qt::Key_Escape);
        QVERIFY(!stage.window.isVisible());
    }

    void eachPageHasItsButtonsAtTheFoot()
    {
        Stage stage;
        stage.utility.utilityOrderFront();
        const QList<QStringList> buttons{{"button_convert"},
                                         {"button_save", "button_ask2", "button_check2"},
                                         {"button_check1", "button_separete"},
                                         {"button_ask3", "button_convert2"},
                                         {"button_convert3"},
                                         {"button_launcher", "button_make"}};
        QCOMPARE(stage.window.utilityTabView->count(), buttons.size());
        for (int page = 0; page < buttons.size(); ++page) {
            stage.window.pageList->setCurrentRow(page);
            QCOMPARE(stage.window.utilityTabView->currentIndex(), page);
            for (int other = 0; other < buttons.size(); ++other) {
                for (const QString& name : buttons[other])
                    QCOMPARE(stage.window.findChild<QPushButton*>(name)->isVisible(), page == other);
            }
        }
    }

    void everyControlHasANameForAScreenReader()
    {
        Stage stage;
        QCOMPARE(stage.window.objectName(), "utilityWindow");
        for (const QWidget* widget : stage.window.findChildren<QWidget*>()) {
            if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QToolButton*>(widget)
                || qobject_cast<const QListWidget*>(widget) || qobject_cast<const QProgressBar*>(widget)) {
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
                QVERIFY2(!widget->objectName().isEmpty(), qPrintable(widget->accessibleName()));
            }
        }
        for (const auto& [widget, name] :
             {std::pair<QWidget*, QString>{stage.foot.infoTextField, "infoTextField"},
              {stage.foot.progressInd, "progressInd"},
              {stage.page.button_convert, "button_convert"},
              {stage.window.utilityTabView, "utilityTabView"},
              {stage.page.button_isbios, "button_isbios"}})
            QCOMPARE(widget->objectName(), name);
    }
};

TESSERA_TEST(UtilityObjectTest);
#include "utilityobjecttest.moc"
