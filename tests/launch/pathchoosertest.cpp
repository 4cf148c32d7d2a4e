#include "launch/ui/pathchooser.h"

#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"
#include "support/launchpage.h"
#include "support/testmain.h"
#include "widgets/pathfield.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace tessera;

namespace {

using Select = void (PathChooser::*)();

struct Room {
    QTemporaryDir folder;
    UserDefaults settings{folder.filePath(QStringLiteral("Tessera.ini"))};
    DefaultsController defaults{settings};
    test::ScriptedDesktop desktop;
    std::unique_ptr<EmulatorChoice> emulator;
    std::unique_ptr<PathChooser> chooser;
    std::unique_ptr<LaunchPages> pages;

    Room()
    {
        defaults.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/me"));
        emulator
            = std::make_unique<EmulatorChoice>(defaults, [] { return QStringLiteral("/usr/games/mame"); });
        chooser = std::make_unique<PathChooser>(desktop, defaults, *emulator);
        pages = std::make_unique<LaunchPages>(defaults, *emulator, *chooser);
    }

    // What another program would read from the settings file now. At the same path it would share our memory.
    QString onDisk(const char* key) const
    {
        const QTemporaryDir other;
        const QString copy = other.filePath(QStringLiteral("copy.ini"));
        QFile::copy(settings.path(), copy);
        return QSettings(copy, QSettings::IniFormat).value(QString::fromLatin1(key)).toString();
    }
};

} // namespace

Q_DECLARE_METATYPE(Select)

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

    void everyMemberStoresWhatItTook_data()
    {
        QTest::addColumn<Select>("select");
        QTest::addColumn<bool>("folder");
        QTest::addColumn<QString>("startsIn");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        using C = PathChooser;
        const auto row
            = [](Select select, bool folder, const char* startsIn, QLatin1StringView key, const char* value) {
                  QTest::newRow(key.data()) << select << folder << startsIn << QString(key) << value;
              };
        row(&C::selectExefile, false, "", keys::ExecutionPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectOSXfile, false, "", keys::MameosxPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectAppfile, false, "", keys::ApplicationPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectROMfolder, true, "", keys::RomsPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectSnapfolder, true, "", keys::SnapPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectTitlefolder, true, "", keys::TitlesnapPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectFryerfolder, true, "", keys::GameflyersPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectHistorybat, false, "", keys::HistoryPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectMameinfobat, false, "", keys::MameinfoPath.name, "/Apps/mame/inp/game1.inp");
        row(&C::selectPlaybackfile, false, "/usr/games/inp", keys::Playbackfilename.name, "game1.inp");
        row(&C::selectEffectfile, false, "/usr/games/artwork", keys::Effectname.name, "game1.inp");
    }

    void everyMemberStoresWhatItTook()
    {
        QFETCH(Select, select);
        QFETCH(bool, folder);
        QFETCH(QString, startsIn);
        QFETCH(QString, key);
        QFETCH(QString, value);
        Room room;
        room.desktop.answerOpen("/Apps/mame/inp/game1.inp");
        (room.chooser.get()->*select)();
        QCOMPARE(room.onDisk(qPrintable(key)), value);
        QCOMPARE(room.desktop.openRequests.at(0).folders, folder);
        QCOMPARE(room.desktop.openRequests.at(0).files, !folder);
        QCOMPARE(room.desktop.openRequests.at(0).directory.toLocalFile(), startsIn);
        // Only there an application is a folder.
        QCOMPARE(room.desktop.openRequests.at(0).applications, key == keys::MameosxPath.name);
        // Every file is shown at first.
        QVERIFY(room.desktop.openRequests.at(0).extensions.isEmpty());
    }

    void everyPanelSaysWhatIsChosen()
    {
        using C = PathChooser;
        QStringList titles;
        QStringList kinds;
        for (const Select select :
             {&C::exeSelect, &C::osxSelect, &C::appSelect, &C::romfolSelect, &C::snapfolSelect,
              &C::titlefolSelect, &C::fryerfolSelect, &C::historybatSelect, &C::mameinfobatSelect,
              &C::playbackfileSelect, &C::effectfileSelect}) {
            Room room;
            room.desktop.answerOpen(std::nullopt);
            (room.chooser.get()->*select)();
            const QString title = room.desktop.openRequests.at(0).title;
            QVERIFY2(title.startsWith("choose_") && !titles.contains(title), qPrintable(title));
            titles << title;
            kinds << room.desktop.openRequests.at(0).kind.join(u' ');
        }
        QCOMPARE(kinds, (QStringList{"", "", "", "", "", "", "", "dat xml", "dat", "inp", "png"}));
    }

    void theFieldsShowWhatWasChosen()
    {
        Room room;
        room.desktop.answerOpen("/Apps/mame/inp/game1.inp");
        room.chooser->playbackfileSelect();
        QCOMPARE(test::control<QLineEdit>(*room.pages, "textfildPlayback")->text(),
                 QStringLiteral("game1.inp"));
        room.desktop.answerOpen("/Apps/mame/artwork/scan.png");
        room.chooser->effectfileSelect();
        QCOMPARE(test::control<QLineEdit>(*room.pages, "effectTextField")->text(),
                 QStringLiteral("scan.png"));
    }

    void anEmulatorInAPathWithABlankGivesNoStartingPlace()
    {
        Room room;
        room.defaults.setText(keys::ExecutionPath, "/my games/mame");
        room.desktop.answerOpen(std::nullopt);
        room.chooser->playbackfileSelect();
        QVERIFY(!room.desktop.openRequests.at(0).directory.isValid());
    }

    void recordingsGetTheirFile_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("key");
        QTest::newRow("sound") << 1 << "record_save_wav" << "Sound_record.wav"
                               << QString(keys::Wavfilename.name);
        QTest::newRow("mng") << 2 << "record_save_mng" << "Movie_record.mng"
                             << QString(keys::Mngfilename.name);
        QTest::newRow("avi") << 3 << "record_save_avi" << "Movie_record.avi"
                             << QString(keys::Avifilename.name);
    }

    void recordingsGetTheirFile()
    {
        QFETCH(int, tag);
        QFETCH(QString, title);
        QFETCH(QString, name);
        QFETCH(QString, key);
        Room room;
        room.desktop.answerSave(name, "/movies/mine.x");
        room.chooser->saveRecordfile(tag);
        QCOMPARE(room.desktop.saveRequests.at(0).title, title);
        QCOMPARE(room.desktop.saveRequests.at(0).name, name);
        QCOMPARE(room.onDisk(qPrintable(key)), QStringLiteral("/movies/mine.x"));
        room.desktop.answerSave(name, std::nullopt);
        room.chooser->saveRecordfile(tag);
        QCOMPARE(room.onDisk(qPrintable(key)), QStringLiteral("/movies/mine.x"));
    }

    void aRecordingOfNoKindBeepsAndStoresNothing()
    {
        for (const int tag : {-1, 0, 4}) {
            Room room;
            room.defaults.setText(keys::Effectname, "typed");
            room.desktop.answerSave("", "/movies/mine.x");
            room.chooser->saveRecordfile(tag);
            QCOMPARE(room.desktop.transcript(), QStringList({"save", "beep"}));
            QCOMPARE(room.desktop.saveRequests.at(0).title, QStringLiteral("record_save"));
            for (const auto& key : {keys::Wavfilename, keys::Mngfilename, keys::Avifilename})
                QVERIFY(!room.settings.value(key.name));
            // What was changed before is written all the same.
            QCOMPARE(room.onDisk("Effectname"), QStringLiteral("typed"));
        }
    }

    void theButtonsRunTheirCommands()
    {
        Room room;
        std::vector<std::unique_ptr<OptionPage>> pages;
        for (OptionPage* page : room.pages->all()) {
            page->show();
            pages.emplace_back(page);
        }
        int count = 0;
        for (const char* name : {"buttonexe", "buttonroms", "buttonosx", "buttonapp",
                                 "effectTextField_choose", "textfildPlayback_choose"}) {
            auto* button = test::control<QPushButton>(*room.pages, name);
            room.desktop.answerOpen(QStringLiteral("/chosen/%1").arg(++count));
            button->click();
            QVERIFY(!button->accessibleName().isEmpty());
        }
        QCOMPARE(room.settings.string(keys::ExecutionPath.name), QStringLiteral("/chosen/1"));
        QCOMPARE(room.settings.string(keys::RomsPath.name), QStringLiteral("/chosen/2"));
        QCOMPARE(test::control<QLineEdit>(*room.pages, "osxTextField")->text(), QStringLiteral("/chosen/3"));
        QCOMPARE(test::control<QLineEdit>(*room.pages, "appTextField")->text(), QStringLiteral("/chosen/4"));
        QCOMPARE(room.settings.string(keys::Effectname.name), QStringLiteral("5"));
        QCOMPARE(room.settings.string(keys::Playbackfilename.name), QStringLiteral("6"));
        for (const char* field : {"wavnameTextField", "mngnameTextField", "avinameTextField"}) {
            room.desktop.answerSave("ord.", std::nullopt);
            const QByteArray button = QByteArray(field) + "_choose";
            test::control<QPushButton>(*room.pages, button.constData())->click();
        }
        QCOMPARE(room.desktop.saveRequests.at(2).name, QStringLiteral("Movie_record.avi"));
    }

    void pathsAreShownInTheFileManager()
    {
        Room room;
        const QString file = room.folder.filePath("history.dat");
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        const std::array shown{keys::ExecutionPath, keys::MameosxPath, keys::ApplicationPath,
                               keys::HistoryPath, keys::MameinfoPath};
        for (int tag = 0; tag < 5; ++tag) {
            room.defaults.setText(shown[static_cast<std::size_t>(tag)], "/missing");
            room.chooser->show_file_in_finder(tag);
            QCOMPARE(room.desktop.takeTranscript(), QStringList({"beep"}));
            room.defaults.setText(shown[static_cast<std::size_t>(tag)], file);
            room.chooser->show_file_in_finder(tag);
            QCOMPARE(room.desktop.takeTranscript(), QStringList({"reveal " + file}));
        }
        room.chooser->show_file_in_finder(5);
        QCOMPARE(room.desktop.takeTranscript(), QStringList({"beep"}));
    }

    void theModesFolderAndTheRomFolderAreOpened()
    {
        Room room;
        const QString place = room.folder.path();
        const QStringList folders{place + "/a", place + "/b", place + "/c", place + "/roms"};
        for (const QString& folder : folders)
            QVERIFY(QDir().mkpath(folder));
        room.defaults.setText(keys::ExecutionPath, folders[0] + "/mame");
        room.defaults.setText(keys::MameosxPath, folders[1] + "/MAME.app");
        room.defaults.setText(keys::ApplicationPath, folders[2] + "/other");
        for (const int mode : {0, 1, 2}) {
            room.defaults.setIndex(keys::Launchgamesusing, mode);
            room.chooser->openCurrentdir();
        }
        room.chooser->openROMfolder();
        room.defaults.setText(keys::RomsPath, folders[3]);
        room.chooser->openROMfolder();
        QCOMPARE(room.desktop.transcript(),
                 QStringList({"folder " + folders[0], "folder " + folders[1], "folder " + folders[2], "beep",
                              "folder " + folders[3]}));
    }

    void theOtherAlertsOfferTheirChooser_data()
    {
        QTest::addColumn<Select>("alert");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("informative");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QString>("key");
        const QStringList select{"select", "cancel"};
        QTest::newRow("2") << Select(&PathChooser::displayAlert2) << "alert_Message2" << "alert_Info1"
                           << select << QString(keys::MameosxPath.name);
        QTest::newRow("3") << Select(&PathChooser::displayAlert3) << "alert_Message3" << "alert_Info1"
                           << select << QString(keys::ApplicationPath.name);
        QTest::newRow("4") << Select(&PathChooser::displayAlert4) << "alert_Message4" << "alert_Info4"
                           << QStringList{"OK"} << QString();
        QTest::newRow("5") << Select(&PathChooser::displayAlert5) << "alert_Message5" << "alert_Info5"
                           << QStringList{"select", "disable"} << QString(keys::RomsPath.name);
    }

    void theOtherAlertsOfferTheirChooser()
    {
        QFETCH(Select, alert);
        QFETCH(QString, message);
        QFETCH(QString, informative);
        QFETCH(QStringList, buttons);
        QFETCH(QString, key);
        Room room;
        room.desktop.answerAlert(message, 0);
        if (!key.isEmpty())
            room.desktop.answerOpen("/chosen");
        (room.chooser.get()->*alert)();
        QCOMPARE(room.desktop.transcript().mid(0, 2), QStringList({"beep", "alert " + message}));
        QCOMPARE(room.desktop.alerts.at(0).informative, informative);
        QCOMPARE(room.desktop.alerts.at(0).buttons, buttons);
        QCOMPARE(room.desktop.alerts.at(0).style, Alert::Style::Informational);
        if (!key.isEmpty())
            QCOMPARE(room.onDisk(qPrintable(key)), QStringLiteral("/chosen"));
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
};

TESSERA_TEST(PathChooserTest);
#include "pathchoosertest.moc"
