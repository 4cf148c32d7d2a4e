#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "app/windows/mainwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "support/endings.h"
#include "support/installedtexts.h"
#include "support/ordinaryuser.h"
#include "support/testmain.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/workbench.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProcess>
#include <QSignalSpy>
#include <QTimer>

#include <thread>

using namespace tessera;
using test::StagedApp;

namespace {

void editFirstTitle(StagedApp& staged, const QString& text)
{
    staged.app->catalogue().setValue(0, Field::Title, text);
}

// As somebody does who chooses the menu's row or presses its key.
void pressSave(StagedApp& staged)
{
    auto* save = staged.app->mainWindow().menuBar()->findChild<QAction*>(QStringLiteral("menu_save"));
    QVERIFY(save != nullptr);
    save->trigger();
}

QString status(StagedApp& staged)
{
    return staged.app->mainWindow().findChild<QLabel*>(QStringLiteral("messageLabel"))->text();
}

} // namespace

class QuittingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutEditsNothingIsAskedOrWritten()
    {
        StagedApp staged;
        staged.writeCatalogue();
        const QByteArray before = staged.store();
        staged.start();
        QVERIFY(staged.app->applicationShouldTerminate());
        QCOMPARE(staged.store(), before);
    }

    void editsAreSaved()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Table tennis"));
        QVERIFY(staged.app->applicationShouldTerminate());
        QVERIFY(staged.store().contains("Table tennis"));
        QVERIFY(!staged.app->catalogue().hasChanges());
    }

    void textStillInAnEditorIsCommittedFirst()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        GameTableView* table = staged.app->mainWindow().gameTable;
        table->setCurrentIndex(table->model()->index(2, 1));
        QVERIFY(QTest::qWaitForWindowExposed(&staged.app->mainWindow()));
        staged.app->editCell();
        auto* editor = table->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText(QStringLiteral("Typed and not yet entered"));
        QVERIFY(staged.app->applicationShouldTerminate());
        QVERIFY(staged.store().contains("Typed and not yet entered"));
    }

    void aFailedSaveAsks_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("quits");
        QTest::newRow("Quit anyway") << 0 << true;
        QTest::newRow("Cancel") << 1 << false;
    }

    void aFailedSaveAsks()
    {
        QFETCH(int, button);
        QFETCH(bool, quits);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const QByteArray before = staged.store();
        editFirstTitle(staged, QStringLiteral("Lost?"));
        staged.defaults.setValue(keys::Movierecord.name, true);
        staged.defaults.setValue(keys::Replaymove.name, true);
        staged.desktop.answerError(QStringLiteral("failure_write"));
        staged.desktop.answerAlert(QStringLiteral("quit_unsaved_message"), button);

        QFile::setPermissions(staged.storePath(), QFile::ReadOwner | QFile::ReadOther);
        {
            const test::OrdinaryUser user;
            QVERIFY(user.holds());
            QCOMPARE(staged.app->applicationShouldTerminate(), quits);
        }
        const Alert& alert = staged.desktop.alerts.back();
        QCOMPARE(alert.buttons, (QStringList{QStringLiteral("quit_anyway"), QStringLiteral("cancel")}));
        QCOMPARE(staged.store(), before);
        QVERIFY(staged.app->catalogue().hasChanges());
        // Whatever the answer, recording and replay do not stay on.
        QCOMPARE(staged.defaults.value(keys::Movierecord.name), QVariant(false));
        QCOMPARE(staged.defaults.value(keys::Replaymove.name), QVariant(false));
    }

    // It saves when its window closes, and not before.
    void quittingWaitsForTheGame_data()
    {
        QTest::addColumn<bool>("asks");
        QTest::newRow("by the menu") << true;
        QTest::newRow("with the session") << false;
    }

    void quittingWaitsForTheGame()
    {
        QFETCH(bool, asks);
        StagedApp staged;
        staged.writeCatalogue();
        qputenv("FAKE_SAVED", QFile::encodeName(staged.path(QStringLiteral("saved"))));
        staged.start();
        staged.desktop.windows = test::clickCloseButton;
        staged.app->launcher().Launchusing(QStringLiteral("windowed"));
        const LogView& log = *staged.app->logWindow().infomationTextView;
        QVERIFY(QTest::qWaitFor([&] { return log.text().contains(QStringLiteral("ready")); }, 20000));
        if (asks)
            staged.desktop.answerAlert(QStringLiteral("launch_quitmessage"), 0);
        QTimer::singleShot(0, staged.app.get(),
                           asks ? &Tessera_AppDelegate::terminate : &Tessera_AppDelegate::endWithSession);
        QCOMPARE(QCoreApplication::exec(), 0);
        qunsetenv("FAKE_SAVED");
        QVERIFY(QFile::exists(staged.path(QStringLiteral("saved"))));
        QVERIFY(!staged.app->launcher().isRunning());
        QVERIFY(log.text().endsWith(QStringLiteral("asked to close\n")));
    }

    // Another start finds nobody who would take its file and then be gone.
    void whileTheGameEndsAnotherStartIsLeftToItself()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.desktop.windows = test::clickCloseButton;
        staged.app->launcher().Launchusing(QStringLiteral("windowed"));
        const LogView& log = *staged.app->logWindow().infomationTextView;
        QVERIFY(QTest::qWaitFor([&] { return log.text().contains(QStringLiteral("ready")); }, 20000));
        staged.desktop.takeTranscript();
        bool wasRunning = false;
        connect(staged.app.get(), &Tessera_AppDelegate::everythingIsSaved, this, [&] {
            // While it is waited for.
            QTimer::singleShot(0, staged.app.get(), [&] {
                wasRunning = staged.app->launcher().isRunning();
                staged.app->comeForward(QStringLiteral("/roms/qix.zip"));
            });
        });
        QTimer::singleShot(0, staged.app.get(), &Tessera_AppDelegate::endWithSession);
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(wasRunning);
        // Not even by a beep.
        QCOMPARE(staged.desktop.takeTranscript(), QStringList{QStringLiteral("close")});
        QVERIFY(log.text().endsWith(QStringLiteral("asked to close\n")));
    }

    // As by a second Ctrl+C, or by a session that ends while the program does.
    void tellingItTwiceDoesNotCutTheGamesEndShort()
    {
        StagedApp staged;
        staged.writeCatalogue();
        qputenv("FAKE_SAVED", QFile::encodeName(staged.path(QStringLiteral("saved"))));
        staged.start();
        staged.app->launcher().Launchusing(QStringLiteral("windowed"));
        const LogView& log = *staged.app->logWindow().infomationTextView;
        QVERIFY(QTest::qWaitFor([&] { return log.text().contains(QStringLiteral("ready")); }, 20000));
        staged.desktop.windows = [&staged](qint64 process) {
            // It takes its time, and is told again meanwhile.
            QTimer::singleShot(0, staged.app.get(), &Tessera_AppDelegate::endWithSession);
            QTimer::singleShot(200, staged.app.get(), [process] { test::clickCloseButton(process); });
            return true;
        };
        QTimer::singleShot(0, staged.app.get(), &Tessera_AppDelegate::endWithSession);
        QCOMPARE(QCoreApplication::exec(), 0);
        qunsetenv("FAKE_SAVED");
        QVERIFY(QFile::exists(staged.path(QStringLiteral("saved"))));
        QVERIFY(!staged.app->launcher().isRunning());
    }

    void aToolAtWorkIsAskedAbout_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("quits");
        QTest::newRow("it goes on") << 0 << false;
        QTest::newRow("it is stopped") << 1 << true;
    }
    void aToolAtWorkIsAskedAbout()
    {
        QFETCH(int, button);
        QFETCH(bool, quits);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->utilityOrderFront();
        Workbench& workbench = staged.app->utility().workbench();
        workbench.run(
            [](const Job& job) {
                while (!job.stop().stop_requested())
                    std::this_thread::yield();
                return 0;
            },
            [](int, bool) {});
        staged.desktop.answerAlert(QStringLiteral("tool_close_Message"), button);
        QCOMPARE(staged.app->applicationShouldTerminate(), quits);
        workbench.cancel();
        QTRY_VERIFY(!workbench.isBusy());
        // Nothing is asked where nothing is at work.
        QVERIFY(staged.app->applicationShouldTerminate());
    }

    void recordingIsOffOnDiskAfterwards()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.defaults.setValue(keys::Movierecord.name, true);
        QVERIFY(staged.app->applicationShouldTerminate());
        QFile file(staged.settingsPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("Movierecord=false"));
    }

    void theMenuCommandAsksOnce()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Lost"));
        QFile::remove(staged.storePath());
        QVERIFY(QDir().mkpath(staged.storePath() + QStringLiteral("/in the way")));
        staged.desktop.answerError(QStringLiteral("failure_write"));
        staged.desktop.answerAlert(QStringLiteral("quit_unsaved_message"), 0);
        auto* quit = staged.app->mainWindow().menuBar()->findChild<QAction*>(QStringLiteral("menu_quit"));
        QVERIFY(quit != nullptr);
        QTimer::singleShot(0, quit, &QAction::trigger);
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(staged.desktop.alerts.size(), std::size_t(1));
    }

    void aStoreThatSomebodyElseWroteIsKept()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Ours"));
        QFile::remove(staged.storePath());
        staged.writeStore("somebody else's newer store");
        staged.app->saveAction();
        QVERIFY(staged.store().contains("Ours"));
        const QDir folder(staged.path(QStringLiteral("data")));
        const QStringList kept = folder.entryList({QStringLiteral("Tessera *.xml")});
        QCOMPARE(kept.size(), 1);
        QFile file(folder.filePath(kept.constFirst()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("somebody else's newer store"));
        // Our own file is not a reason to keep another.
        editFirstTitle(staged, QStringLiteral("Again"));
        staged.app->saveAction();
        QCOMPARE(folder.entryList({QStringLiteral("Tessera *.xml")}).size(), 1);
    }

    void aStoreOfAnotherModelIsAnErrorAndStaysAsItIs()
    {
        StagedApp staged;
        const QByteArray foreign = "<database><object type=\"Plant\" id=\"z102\"/></database>";
        staged.writeStore(foreign);
        staged.desktop.answerError(QStringLiteral("failure_store_model"));
        staged.start();
        staged.app->saveAction();
        QVERIFY(staged.app->applicationShouldTerminate());
        QCOMPARE(staged.store(), foreign);
    }

    void saveWithoutChangesWritesNothing()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        // What another program built meanwhile is not taken back.
        staged.writeStore("somebody else's newer store");
        pressSave(staged);
        QCOMPARE(status(staged), QStringLiteral("catalogue_save_nothing"));
        QCOMPARE(staged.store(), QByteArray("somebody else's newer store"));
        QCOMPARE(QDir(staged.path(QStringLiteral("data"))).entryList(QDir::Files).size(), 1);
    }

    void saveSaysThatItSaved()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Ours"));
        pressSave(staged);
        QVERIFY(staged.store().contains("Ours"));
        QCOMPARE(status(staged), QStringLiteral("catalogue_saved"));
    }

    void saveSaysWhereTheOldFileIsKept_data()
    {
        QTest::addColumn<bool>("replaced");
        QTest::newRow("not in our layout") << false;
        QTest::newRow("changed on disk since it was read") << true;
    }
    void saveSaysWhereTheOldFileIsKept()
    {
        QFETCH(bool, replaced);
        const test::InstalledTexts texts(QStringLiteral("en"));
        StagedApp staged;
        staged.writeCatalogue();
        const QByteArray indented = staged.store().replace("<object ", "  <object ");
        if (!replaced)
            staged.writeStore(indented);
        staged.start();
        QCOMPARE(staged.app->catalogue().records().size(), std::size_t(4));
        if (replaced)
            staged.writeStore(indented);
        editFirstTitle(staged, QStringLiteral("Ours"));
        pressSave(staged);
        QVERIFY(staged.store().contains("Ours"));
        const QDir folder(staged.path(QStringLiteral("data")));
        const QStringList kept = folder.entryList({QStringLiteral("Tessera *.xml")});
        QCOMPARE(kept.size(), 1);
        QFile file(folder.filePath(kept.constFirst()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), indented);
        QVERIFY2(status(staged).contains(folder.filePath(kept.constFirst())), qPrintable(status(staged)));
    }

    void theEndLogsWhereTheOldFileIsKept()
    {
        const test::InstalledTexts texts(QStringLiteral("en"));
        StagedApp staged;
        staged.writeCatalogue();
        staged.writeStore(staged.store() + '\n');
        staged.start();
        editFirstTitle(staged, QStringLiteral("Ours"));
        (void)staged.desktop.takeTranscript();
        QVERIFY(staged.app->applicationShouldTerminate());
        const QStringList said = staged.desktop.takeTranscript();
        QCOMPARE(said.size(), 1);
        const QDir folder(staged.path(QStringLiteral("data")));
        const QStringList kept = folder.entryList({QStringLiteral("Tessera *.xml")});
        QCOMPARE(kept.size(), 1);
        QVERIFY2(said.constFirst().endsWith(folder.filePath(kept.constFirst())),
                 qPrintable(said.constFirst()));
    }

    void saveTakesOverWhatIsTypedInACell()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        GameTableView* table = staged.app->mainWindow().gameTable;
        table->setCurrentIndex(table->model()->index(2, 1));
        QVERIFY(QTest::qWaitForWindowExposed(&staged.app->mainWindow()));
        staged.app->editCell();
        auto* editor = table->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->setText(QStringLiteral("Typed and not yet entered"));
        pressSave(staged);
        QVERIFY(staged.store().contains("Typed and not yet entered"));
    }

    void closingTheMainWindowIsARequestToQuit()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Kept"));
        staged.app->mainWindow().close();
        QVERIFY(staged.store().contains("Kept"));
    }

    void theEndOfTheSessionSavesWithoutAQuestion()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.defaults.setValue(keys::Movierecord.name, true);
        editFirstTitle(staged, QStringLiteral("Kept"));
        staged.app->gameList().selectRow(0);
        staged.app->addFavorite();
        (void)staged.desktop.takeTranscript();
        staged.app->endWithSession();
        QVERIFY(staged.store().contains("Kept"));
        QVERIFY(QFile::exists(staged.app->favorites().favourites().path()));
        QVERIFY(!staged.defaults.flag(keys::Movierecord.name));
        QCOMPARE(staged.desktop.takeTranscript(), QStringList());
    }

    // Nothing has been restored yet, so nothing may be stored either.
    void aSignalDuringTheStartUpAlertEndsTheProgram()
    {
        QTemporaryDir folder;
        const QString settings = folder.filePath(QStringLiteral("Tessera/Tessera.ini"));
        const QByteArray stored("[General]\nFavoriteTable=2\nMainWindowGeometry=a place\n");
        QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
        QFile file(settings);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(stored) == stored.size());
        file.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QLatin1StringView(place), folder.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.filePath(QStringLiteral("data")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TESSERA_PROGRAM), QStringList());
        // Made just before the alert that says that there is no catalogue.
        QTRY_VERIFY(QFileInfo::exists(folder.filePath(QStringLiteral("data/Tessera"))));
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        const UserDefaults left(settings);
        QCOMPARE(left.value(keys::FavoriteTable.name).value().toInt(), 2);
        QCOMPARE(left.value(keys::MainWindowGeometry.name).value().toString(), QStringLiteral("a place"));
    }

    void aSessionEndThatCannotSaveIsOnlyLogged()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Lost"));
        QFile::remove(staged.storePath());
        QVERIFY(QDir().mkpath(staged.storePath() + QStringLiteral("/in the way")));
        (void)staged.desktop.takeTranscript();
        staged.app->saveForSessionEnd();
        const QStringList said = staged.desktop.takeTranscript();
        QCOMPARE(said.size(), 1);
        QVERIFY2(said.constFirst().startsWith(QStringLiteral("log ")), qPrintable(said.constFirst()));
        QVERIFY(staged.app->mainWindow().isVisible());
    }

    void theWindowStaysAfterCancel()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        editFirstTitle(staged, QStringLiteral("Lost?"));
        staged.desktop.answerError(QStringLiteral("failure_write"));
        staged.desktop.answerAlert(QStringLiteral("quit_unsaved_message"), 1);
        QFile::remove(staged.storePath());
        QVERIFY(QDir().mkpath(staged.storePath() + QStringLiteral("/in the way")));
        staged.app->mainWindow().close();
        QVERIFY(staged.app->mainWindow().isVisible());
    }

    void aStoreThatCouldNotBeReadIsNeverOverwritten()
    {
        StagedApp staged;
        staged.writeStore("<database><object type=\"MAME\"");
        staged.desktop.answerError(QString());
        staged.start();
        QVERIFY(staged.app->catalogue().records().empty());
        staged.app->saveAction();
        QVERIFY(staged.app->applicationShouldTerminate());
        QCOMPARE(staged.store(), QByteArray("<database><object type=\"MAME\""));
    }
};

TESSERA_TEST(QuittingTest);
#include "quittingtest.moc"
