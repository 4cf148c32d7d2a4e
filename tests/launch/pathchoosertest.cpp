#include "launch/ui/pathchooser.h"

#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"
#include "widgets/pathfield.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace tessera;

namespace {

struct Room {
    QTemporaryDir folder;
    UserDefaults settings{folder.filePath(QStringLiteral("Tessera.ini"))};
    DefaultsController defaults{settings};
    test::ScriptedDesktop desktop;
    std::unique_ptr<LaunchPages> pages;
    std::unique_ptr<PathChooser> chooser;

    Room()
    {
        defaults.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/me"));
        pages = std::make_unique<LaunchPages>(defaults, [] { return QStringLiteral("/usr/games/mame"); });
        chooser = std::make_unique<PathChooser>(desktop, defaults, *pages);
        pages->general().setChooser(*chooser);
    }

    // What another program would read from the settings file now.
    QString onDisk(const char* key) const
    {
        return QSettings(settings.path(), QSettings::IniFormat).value(QString::fromLatin1(key)).toString();
    }
};

} // namespace

class PathChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingTheEmulatorFillsFieldAndSettingAtOnce()
    {
        Room room;
        QSignalSpy spy(room.chooser.get(), &PathChooser::chosen);
        room.desktop.answerOpen("/Apps/mame/mame");
        room.chooser->exeSelect();
        QCOMPARE(room.pages->general().exeTextField->text(), QStringLiteral("/Apps/mame/mame"));
        QCOMPARE(room.onDisk("ExecutionPath"), QStringLiteral("/Apps/mame/mame"));
        QVERIFY(room.desktop.openRequests.at(0).files);
        QVERIFY(!room.desktop.openRequests.at(0).folders);
        QVERIFY(!room.desktop.openRequests.at(0).directory.isValid());
        QVERIFY(room.desktop.openRequests.at(0).extensions.isEmpty());
        QCOMPARE(spy.size(), 1);
    }

    void choosingTheFoundEmulatorStoresIt()
    {
        Room room;
        room.desktop.answerOpen("/usr/games/mame");
        room.chooser->exeSelect();
        QCOMPARE(room.onDisk("ExecutionPath"), QStringLiteral("/usr/games/mame"));
    }

    void choosingTheRomFolderAsksForAFolder()
    {
        Room room;
        room.desktop.answerOpen("/my roms");
        room.chooser->romfolSelect();
        QCOMPARE(room.pages->general().romsTextField->text(), QStringLiteral("/my roms"));
        QCOMPARE(room.onDisk("RomsPath"), QStringLiteral("/my roms"));
        QVERIFY(!room.desktop.openRequests.at(0).files);
        QVERIFY(room.desktop.openRequests.at(0).folders);
    }

    void cancelChangesNothing()
    {
        Room room;
        room.defaults.setText(keys::RomsPath, "/old");
        room.desktop.answerOpen(std::nullopt);
        room.chooser->romfolSelect();
        room.desktop.answerOpen(std::nullopt);
        room.chooser->exeSelect();
        QCOMPARE(room.pages->general().romsTextField->text(), QStringLiteral("/old"));
        QCOMPARE(room.settings.string(keys::RomsPath.name), QStringLiteral("/old"));
        QCOMPARE(room.pages->general().exeTextField->text(), QStringLiteral("/usr/games/mame"));
        QVERIFY(!room.settings.value(keys::ExecutionPath.name));
    }

    void theButtonsRunTheirCommands()
    {
        Room room;
        room.desktop.answerOpen("/a/mame");
        room.pages->general().exePath->chooseButton()->click();
        room.desktop.answerOpen("/roms");
        room.pages->general().romsPath->chooseButton()->click();
        QCOMPARE(room.settings.string(keys::ExecutionPath.name), QStringLiteral("/a/mame"));
        QCOMPARE(room.settings.string(keys::RomsPath.name), QStringLiteral("/roms"));
    }

    void theStartingPlaceIsAUrl()
    {
        Room room;
        room.desktop.answerOpen("/x");
        QCOMPARE(room.chooser->openPanelpath({true, true, "file:///some/place"}), QStringLiteral("/x"));
        QCOMPARE(room.desktop.openRequests.at(0).directory, QUrl("file:///some/place"));
        QVERIFY(room.desktop.openRequests.at(0).files);
        QVERIFY(room.desktop.openRequests.at(0).folders);
    }

    void theAlertBeepsAndOffersTheChooser()
    {
        Room room;
        room.desktop.answerAlert("alert_Message1", 0);
        room.desktop.answerOpen("/a/mame");
        room.chooser->displayAlert1();
        QCOMPARE(room.desktop.transcript(), QStringList({"beep", "alert alert_Message1", "open"}));
        QCOMPARE(room.desktop.alerts.at(0).informative, QStringLiteral("alert_Info1"));
        QCOMPARE(room.desktop.alerts.at(0).buttons, QStringList({"select", "cancel"}));
        QCOMPARE(room.desktop.alerts.at(0).style, Alert::Style::Informational);
        QCOMPARE(room.settings.string(keys::ExecutionPath.name), QStringLiteral("/a/mame"));
    }

    void theAlertsOtherButtonDoesNothing()
    {
        Room room;
        room.desktop.answerAlert("alert_Message1", 1);
        room.chooser->displayAlert1();
        QCOMPARE(room.desktop.transcript(), QStringList({"beep", "alert alert_Message1"}));
    }

    void recentDocumentsAreNotedWithoutLooking()
    {
        Room room;
        room.chooser->saveOpenRecent("/no such/file.zip");
        QCOMPARE(room.desktop.transcript(), QStringList({"recent /no such/file.zip"}));
    }

    void saysWhenTheSettingsCannotBeWritten()
    {
        QTemporaryDir folder;
        QFile blocked(folder.filePath("file"));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        UserDefaults settings(folder.filePath("file/Tessera.ini"));
        DefaultsController defaults(settings);
        LaunchPages pages(defaults, [] { return QString(); });
        test::ScriptedDesktop desktop;
        PathChooser chooser(desktop, defaults, pages);
        QSignalSpy spy(&chooser, &PathChooser::statusMessage);
        desktop.answerOpen("/a/mame");
        chooser.exeSelect();
        QCOMPARE(spy.size(), 1);
        QCOMPARE(pages.general().exeTextField->text(), QStringLiteral("/a/mame"));
    }
};

TESSERA_TEST(PathChooserTest);
#include "pathchoosertest.moc"
