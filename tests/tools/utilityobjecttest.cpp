#include "tools/ui/utilityobject.h"

#include "catalogue/gamerecord.h"
#include "platform/defaultscontroller.h"
#include "support/ordinaryuser.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/utilitywindow.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>

using namespace tessera;

namespace {

// The utility window on a desktop that answers from a script.
struct Stage {
    QTemporaryDir folder;
    test::ScriptedDesktop desktop;
    UserDefaults defaults{folder.filePath("settings.ini")};
    DefaultsController controller{defaults};
    UtilityObject utility{desktop, controller};
    UtilityWindow& window = utility.utilityWindow();
    ConversionPage& page = *window.conversionPage;

    QString file(const QString& name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    QByteArray read(const QString& name)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void fillFields()
    {
        page.listxmlTextField->setText(file("list.xml",
                                            "<machine name=\"a\" ><description>A</description></machine>"
                                            "<machine name=\"b\" isbios=\"yes\" ></machine>"
                                            "<machine name=\"m\" ismechanical=\"yes\" ></machine>"
                                            "<machine name=\"d\" isdevice=\"yes\" ></machine>"));
        page.mame32jpTextField->setText(file("titles.lst", "a\tB\n"));
    }

    QString information() const { return window.infoTextField->text(); }
    void convert() { QTest::mouseClick(window.button_convert, Qt::LeftButton); }
};

} // namespace

class UtilityObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QVERIFY(stage.window.progressInd->maximum() > 0);
        stage.utility.indicator_start();
        QCOMPARE(stage.window.progressInd->maximum(), 0);
        stage.utility.indicator_stop();
        QVERIFY(stage.window.progressInd->maximum() > 0);
        // Nothing of it is left after a failure either.
        stage.fillFields();
        stage.page.mame32jpTextField->setText(stage.folder.path());
        stage.convert();
        QVERIFY(stage.window.progressInd->maximum() > 0);
    }

    void choosersFillStoreAndFlush_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("key");
        QTest::newRow("list") << "button_listxml" << "listxmlTextField" << "listxmlPath";
        QTest::newRow("titles") << "button_mame32jp" << "mame32jpTextField" << "localizePath";
    }

    void choosersFillStoreAndFlush()
    {
        QFETCH(QString, button);
        QFETCH(QString, field);
        QFETCH(QString, key);
        Stage stage;
        stage.desktop.answerOpen("/a/file");
        stage.window.findChild<QPushButton*>(button)->click();
        QCOMPARE(stage.window.findChild<QLineEdit*>(field)->text(), "/a/file");
        QVERIFY(stage.read("settings.ini").contains(QByteArray(key.toLatin1() + "=/a/file")));
        const OpenRequest request = stage.desktop.openRequests.front();
        QVERIFY(request.files && !request.folders && request.extensions.isEmpty());

        stage.desktop.answerOpen(std::nullopt);
        stage.window.findChild<QPushButton*>(button)->click();
        QCOMPARE(stage.window.findChild<QLineEdit*>(field)->text(), "/a/file");
    }

    void fieldsShowTheStoredPaths()
    {
        Stage stage;
        stage.controller.setText(keys::listxmlPath, "/stored/list");
        stage.controller.setText(keys::localizePath, "/stored/titles");
        QCOMPARE(stage.page.listxmlTextField->text(), "/stored/list");
        QCOMPARE(stage.page.mame32jpTextField->text(), "/stored/titles");
    }

    void openPanelpathPassesItsFlags()
    {
        Stage stage;
        stage.desktop.answerOpen("/f");
        QCOMPARE(stage.utility.openPanelpath(false, true), "/f");
        QVERIFY(!stage.desktop.openRequests.back().files && stage.desktop.openRequests.back().folders);
        stage.desktop.answerOpen(std::nullopt);
        QCOMPARE(stage.utility.openPanelpath(true, false), QString());
    }

    void revealsWhatAFieldNames_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("name"); // empty for a beep
        QTest::newRow("list") << 6 << "list.xml";
        QTest::newRow("titles") << 7 << "titles.lst";
        QTest::newRow("no such tag") << 0 << "";
        QTest::newRow("a far tag") << 99 << "";
    }

    void revealsWhatAFieldNames()
    {
        QFETCH(int, tag);
        QFETCH(QString, name);
        Stage stage;
        stage.fillFields();
        stage.utility.show_file_in_finder2(tag);
        const QString line = name.isEmpty() ? QString("beep") : "reveal " + stage.folder.filePath(name);
        QCOMPARE(stage.desktop.transcript(), {line});
    }

    void revealingNothingBeeps()
    {
        Stage stage;
        stage.page.listxmlTextField->setText(stage.folder.filePath("gone"));
        stage.page.reveal_listxml->click();
        stage.page.reveal_mame32jp->click();
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
                 stage.window.pageList, stage.page.listxmlTextField, stage.page.button_listxml,
                 stage.page.reveal_listxml, stage.page.mame32jpTextField, stage.page.button_mame32jp,
                 stage.page.reveal_mame32jp, stage.page.button_isbios, stage.page.button_ismechanical,
                 stage.page.button_isdevice, stage.window.button_convert})
            QVERIFY2(reached.contains(widget), qPrintable(widget->objectName()));
        QTest::keyClick(&stage.window, Qt::Key_Escape);
        QVERIFY(!stage.window.isVisible());
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
             {std::pair<QWidget*, QString>{stage.window.infoTextField, "infoTextField"},
              {stage.window.progressInd, "progressInd"},
              {stage.window.button_convert, "button_convert"},
              {stage.window.utilityTabView, "utilityTabView"},
              {stage.page.button_isbios, "button_isbios"}})
            QCOMPARE(widget->objectName(), name);
    }
};

TESSERA_TEST(UtilityObjectTest);
#include "utilityobjecttest.moc"
