#include "app/desks/commandsdesk.h"

#include "app/desks/artworkdesk.h"
#include "app/windows/mainwindow.h"
#include "app/windows/preferenceswindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "launch/ui/commandbar.h"
#include "launch/ui/commandlinefoot.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "stagedapp.h"
#include "support/testmain.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

using namespace tessera;

/// The emulator's commands, the launch modes and the launch script in the whole program.
class CommandsDeskTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<test::StagedApp> m_staged;

    QMenu* menu(const char* name) const
    {
        return m_staged->app->mainWindow().menuBar()->findChild<QMenu*>(QLatin1String(name));
    }
    QString log() const { return m_staged->app->logWindow().infomationTextView->text(); }

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<test::StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
        QVERIFY(m_staged->app->gameList().selectGame(QStringLiteral("pong")));
        m_staged->desktop.takeTranscript();
        qputenv("FAKE_COMMAND", "print");
    }
    void cleanup()
    {
        qunsetenv("FAKE_COMMAND");
        m_staged.reset();
    }

    void theLogWindowHasTheCommands()
    {
        LogWindow& window = m_staged->app->logWindow();
        QVERIFY(!window.findChild<CommandBar*>());
        m_staged->app->showLogWindow();
        const auto* bar = window.findChild<CommandBar*>();
        QVERIFY(bar && bar->isVisible());
        QTest::mouseClick(bar->returnButton, Qt::LeftButton);
        QCOMPARE(log(), QStringLiteral("Command:  mame  -help , is executed...\n\n[-help]\n"));
        QCOMPARE(m_staged->desktop.transcript(), QStringList({"sound Pop"}));
    }

    void theGameMenuHasTheQuickAudits()
    {
        QMenu* game = menu("menu_game");
        QVERIFY(!game->findChild<QMenu*>(QStringLiteral("menu_audit")));
        Q_EMIT game->aboutToShow();
        Q_EMIT game->aboutToShow();
        QCOMPARE(game->findChildren<QMenu*>(QStringLiteral("menu_audit")).size(), 1);
        QAction* verify = game->findChild<QMenu*>(QStringLiteral("menu_audit"))->actions().at(0);
        QCOMPARE(verify->data().toInt(), 17);
        verify->trigger();
        QVERIFY(log().endsWith("\n\n[pong]\n[-verifyroms]\n"));
        QVERIFY(m_staged->app->logWindow().isVisible());
    }

    void exactlyOneLaunchModeIsMarked()
    {
        const auto marked = [this] {
            QStringList titles;
            for (const QAction* action : menu("menu_emulator")->actions()) {
                if (action->isChecked())
                    titles << action->text();
            }
            return titles;
        };
        QCOMPARE(marked(), QStringList({"SDL MAME"}));
        QAction* osx = m_staged->app->findMenuItemNamed(QStringLiteral("MAME OS X"));
        osx->trigger();
        QCOMPARE(marked(), QStringList({"MAME OS X"}));
        osx->trigger();
        QCOMPARE(marked(), QStringList({"MAME OS X"}));
        QCOMPARE(m_staged->defaults.value(keys::Launchgamesusing.name)->toInt(), 1);
        QCOMPARE(m_staged->app->mainWindow().windowTitle(), QStringLiteral("Tessera  |  MAME OS X"));
        m_staged->app->DefaultAction();
        QCOMPARE(marked(), QStringList({"SDL MAME"}));
    }

    void aScriptStartsTheSelectedGame()
    {
        m_staged->app->utilityOrderFront();
        ScriptPage& page = *m_staged->app->utility().utilityWindow().scriptPage;
        page.filenamePop->setCurrentIndex(1);
        page.preoptionPop->setCurrentIndex(1);
        m_staged->desktop.answerSave(QStringLiteral("Pong.tool"), m_staged->path(QStringLiteral("out.tool")));
        page.button_make->click();
        QFile file(m_staged->path(QStringLiteral("out.tool")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QFileInfo emulator(QStringLiteral(TESSERA_FAKEEMULATOR));
        QCOMPARE(QString::fromUtf8(file.readAll()),
                 QStringLiteral("cd %1\n./%2 pong").arg(emulator.path(), emulator.fileName()));
    }

    void thePreferencesFootShowsTheLiveCommandLine()
    {
        PreferencesWindow& window = m_staged->app->preferencesWindow();
        QVERIFY(!window.findChild<CommandLineFoot*>());
        m_staged->app->showPrefsWindow();
        const auto* foot = window.findChild<CommandLineFoot*>();
        QVERIFY(foot && foot->isVisible());
        QVERIFY2(foot->text().startsWith(QStringLiteral(TESSERA_FAKEEMULATOR) + " pong -video opengl "),
                 qPrintable(foot->text()));
        window.findChild<QCheckBox*>(QStringLiteral("checkboxMaximize"))->click();
        QVERIFY(foot->text().contains(" -maximize "));
        m_staged->app->gameList().selectGame(QStringLiteral("qix"));
        QVERIFY(foot->text().contains(" qix -video"));
        foot->copyButton->click();
        QCOMPARE(QGuiApplication::clipboard()->text(), foot->text());
    }

    void aLauncherStartsTheSelectedGame()
    {
        const QString path = m_staged->path(QStringLiteral("pong.desktop"));
        m_staged->desktop.answerSave(QStringLiteral("pong.desktop"), path);
        // Beside the scripts; the menu has the same.
        m_staged->app->utility().utilityWindow().scriptPage->button_launcher->click();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray entry = file.readAll();
        QVERIFY(entry.contains("\nName=Pong\n"));
        QVERIFY(entry.contains("\nExec=\"" TESSERA_FAKEEMULATOR "\" \"pong\" \"-video\" \"opengl\" "));
        QVERIFY(!entry.contains("\nIcon="));
        QVERIFY(QFileInfo(path).isExecutable());
    }

    void aLauncherHasTheGamesPicture()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(m_staged->path(QStringLiteral("pong.png"))));
        m_staged->defaults.setValue(keys::SnapPath.name, m_staged->folder.path());
        m_staged->app->artwork().folder().Setsnapfolder();
        const QString path = m_staged->path(QStringLiteral("pong.desktop"));
        m_staged->desktop.answerSave(QStringLiteral("pong.desktop"), path);
        m_staged->app->saveLauncher();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray icon = "\nIcon=" + m_staged->path(QStringLiteral("pong.png")).toUtf8() + '\n';
        QVERIFY(file.readAll().contains(icon));
    }

    void quittingIsRefusedWhileACommandRuns()
    {
        qputenv("FAKE_COMMAND", "wait");
        bool quits = true;
        QTimer::singleShot(300, m_staged->app.get(), [&] {
            quits = m_staged->app->applicationShouldTerminate();
            m_staged->app->stopGame();
        });
        m_staged->app->showLogWindow();
        m_staged->app->commands().bar().returnButton->click();
        QVERIFY(!quits);
        QCOMPARE(m_staged->desktop.transcript(), QStringList({"beep", "close"}));
    }
};

TESSERA_TEST(CommandsDeskTest);
#include "commandsdesktest.moc"
