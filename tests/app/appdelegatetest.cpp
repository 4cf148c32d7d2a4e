#include "stagedapp.h"

#include "app/mainwindow.h"
#include "app/preferenceswindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>

using namespace tessera;
using test::StagedApp;

class AppDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartWritesNoneOfTheInitialValues()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(staged.defaults.synchronize());
        const UserDefaults onDisk(staged.settingsPath());
        QStringList written;
        for (const InitialSetting& row : initialSettings) {
            if (onDisk.value(row.name))
                written << row.name;
        }
        QCOMPARE(written, QStringList());
    }

    void theCatalogueIsListedAtStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
        QVERIFY(staged.app->mainWindow().isVisible());
        QCOMPARE(staged.desktop.transcript(), QStringList());
    }

    void aMissingStoreGivesAnErrorAndAnEmptyList()
    {
        StagedApp staged;
        staged.expectMissingStore(-1);
        staged.start();
        QCOMPARE(staged.app->catalogue().records().size(), std::size_t(0));
        QVERIFY(staged.app->mainWindow().isVisible());
        QVERIFY(!QFile::exists(staged.storePath()));
    }

    void theStoreFolderIsMade()
    {
        StagedApp staged;
        QVERIFY(QDir(staged.path(QStringLiteral("data"))).removeRecursively());
        staged.expectMissingStore(-1);
        staged.start();
        QVERIFY(QFileInfo(staged.app->applicationSupportFolder()).isDir());
    }

    void theTitleNamesTheLaunchMode()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QCOMPARE(staged.app->mainWindow().windowTitle(), QStringLiteral("Tessera  |  SDL MAME"));
    }

    void recordingAndReplayAreOffAfterTheStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.defaults.setValue(keys::Movierecord.name, true);
        staged.defaults.setValue(keys::Replaymove.name, true);
        staged.start();
        staged.app->showPrefsWindow();
        for (const char* name : {"checkMovierecord", "checkBoxReplay"})
            QVERIFY(!staged.app->preferencesWindow().findChild<QCheckBox*>(QLatin1String(name))->isChecked());
    }

    void openingNoFileStartsNothing()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(!staged.app->application_openFile(QString()));
        QVERIFY(staged.app->logWindow().infomationTextView->isEmpty());
        QVERIFY(!staged.app->launcher().isRunning());
    }

    void aFileGivenAtTheStartIsLaunched()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start(QStringLiteral("/roms/pong.zip"));
        QVERIFY(staged.app->logWindow().infomationTextView->text().startsWith(
            QStringLiteral("SDL MAME :  pong  Launch...\n\n")));
        QVERIFY(staged.desktop.transcript().contains(QStringLiteral("recent /roms/pong.zip")));
    }

    void anotherStartComesForwardWithItsFile()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->mainWindow().hide();
        staged.app->comeForward(QStringLiteral("/roms/qix.zip"));
        QVERIFY(staged.app->mainWindow().isVisible());
        QVERIFY(
            staged.app->logWindow().infomationTextView->text().contains(QStringLiteral("qix  Launch...")));
    }

    void aMissingEmulatorIsSaidAtTheStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(QStringLiteral("/nowhere/mame"));
        staged.desktop.answerAlert(QStringLiteral("alert_Message1"), 1);
        staged.start();
        QCOMPARE(staged.desktop.transcript(),
                 (QStringList{QStringLiteral("beep"), QStringLiteral("alert alert_Message1")}));
    }

    void resetBringsBackTheInitialValues()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        auto* maximize
            = staged.app->preferencesWindow().findChild<QCheckBox*>(QStringLiteral("checkboxMaximize"));
        maximize->click();
        staged.defaults.setValue(keys::Videodriver.name, 0);
        staged.defaults.setValue(keys::GamelistColoring.name, true);
        QSignalSpy posted(staged.app.get(), &Tessera_AppDelegate::defaultAction);

        staged.app->preferencesWindow().resetButton->click();

        QVERIFY(!maximize->isChecked());
        QCOMPARE(posted.count(), 1);
        QCOMPARE(staged.defaults.value(keys::Videodriver.name), QVariant(2.0));
        QCOMPARE(staged.defaults.value(keys::GamelistColoring.name), QVariant(true));
        QCOMPARE(staged.defaults.string(keys::ExecutionPath.name), QStringLiteral(TESSERA_FAKEEMULATOR));
        QCOMPARE(staged.app->logWindow().infomationTextView->text(), QStringLiteral("preferences_ini"));
        QCOMPARE(staged.desktop.transcript(), QStringList{QStringLiteral("sound Tink")});
    }

    void escapeClosesTheOtherWindows()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        staged.app->showLogWindow();
        for (QWidget* window : {static_cast<QWidget*>(&staged.app->preferencesWindow()),
                                static_cast<QWidget*>(&staged.app->logWindow())}) {
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(!window->isVisible());
        }
        QVERIFY(staged.app->mainWindow().isVisible());
    }

    void everyMenuCommandHasAName()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const auto actions = staged.app->mainWindow().menuBar()->findChildren<QAction*>();
        QVERIFY(actions.size() > 20);
        for (const QAction* action : actions)
            QVERIFY(action->isSeparator() || !action->text().isEmpty() || action->menu() != nullptr);
    }

    void shortcutsAreNotGivenTwice()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QSet<QKeySequence> seen;
        for (const QAction* action : staged.app->mainWindow().menuBar()->findChildren<QAction*>()) {
            if (action->shortcut().isEmpty())
                continue;
            QVERIFY2(!seen.contains(action->shortcut()), qPrintable(action->text()));
            seen.insert(action->shortcut());
        }
    }

    void everyControlHasAnAccessibleName()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        for (QWidget* window : {static_cast<QWidget*>(&staged.app->mainWindow()),
                                static_cast<QWidget*>(&staged.app->preferencesWindow()),
                                static_cast<QWidget*>(&staged.app->logWindow())}) {
            for (const QWidget* control : window->findChildren<QWidget*>()) {
                const bool named = control->inherits("QAbstractButton") || control->inherits("QLineEdit")
                    || control->inherits("QComboBox") || control->inherits("QTableView")
                    || control->inherits("QPlainTextEdit");
                // Parts of a table and the text field inside a pop-up are not controls of ours.
                if (!named || control->objectName().startsWith(QStringLiteral("qt_"))
                    || control->inherits("QTableCornerButton"))
                    continue;
                const QAccessibleInterface* heard
                    = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
                QVERIFY2(heard != nullptr && !heard->text(QAccessible::Name).isEmpty(),
                         qPrintable(QLatin1String(control->metaObject()->className()) + QLatin1Char(' ')
                                    + control->objectName()));
            }
        }
    }
};

TESSERA_TEST(AppDelegateTest);
#include "appdelegatetest.moc"
