#include "stagedapp.h"

#include "app/windows/emptystate.h"
#include "app/windows/mainwindow.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"
#include "widgets/myscrollers.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QToolButton>

using namespace tessera;
using test::StagedApp;

namespace {

QString log(StagedApp& staged)
{
    return staged.app->logWindow().infomationTextView->text();
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickStartsTheGame()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        GameTableView* table = staged.app->mainWindow().gameTable;
        QVERIFY(QTest::qWaitForWindowExposed(&staged.app->mainWindow()));
        const QPoint pong = table->visualRect(table->model()->index(2, 1)).center();
        // The stand-in does not know the game: its words are in the log, and the alert tells its status.
        staged.desktop.answerAlert(QStringLiteral("errerAlert 5"), 0);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, pong);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, pong);
        QVERIFY(log(staged).startsWith(QStringLiteral("SDL MAME :  pong  Launch...\n\n")));
        QTRY_VERIFY(log(staged).contains(QStringLiteral("Unknown system \"pong\"")));
        QTRY_VERIFY(staged.desktop.transcript().contains(QStringLiteral("alert errerAlert 5")));
    }

    void returnStartsTheGame()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(staged.app->gameList().selectGame(QStringLiteral("qix")));
        staged.desktop.answerAlert(QStringLiteral("errerAlert 5"), 0);
        QTest::keyClick(staged.app->mainWindow().gameTable, Qt::Key_Return);
        QTRY_VERIFY(staged.desktop.transcript().contains(QStringLiteral("alert errerAlert 5")));
        QVERIFY(log(staged).contains(QStringLiteral("qix  Launch...")));
    }

    void anEmulatorThatWasMovedIsFoundWithoutARestart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(QString());
        const auto restored = qScopeGuard([path = qgetenv("PATH")] { qputenv("PATH", path); });
        const QString first = staged.path(QStringLiteral("first"));
        const QString second = staged.path(QStringLiteral("second"));
        qputenv("PATH", QFile::encodeName(first + QLatin1Char(':') + second));
        QVERIFY(QDir().mkpath(first) && QDir().mkpath(second));
        const QString name = QStringLiteral("/mame");
        QVERIFY(QFile::copy(QStringLiteral(TESSERA_FAKEEMULATOR), first + name));
        staged.start();
        const auto* label = staged.app->mainWindow().findChild<QLabel*>(QStringLiteral("emulatorLabel"));
        QCOMPARE(label->text(), first + name);

        QVERIFY(QFile::rename(first + name, second + name));
        staged.app->launcher().Launchusing(QStringLiteral("exit0"));
        QTRY_VERIFY(log(staged).contains(QStringLiteral("leaving")));
        QCOMPARE(label->text(), second + name);
    }

    void playWithNothingSelectedBeeps()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->mainWindow().gameTable->clearSelection();
        staged.app->mainWindow().playButton->click();
        QCOMPARE(staged.desktop.transcript(), QStringList{QStringLiteral("beep")});
    }

    void stopEndsTheGameWithoutAnAlert()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QToolButton* stop = staged.app->mainWindow().stopButton;
        QVERIFY(!stop->isEnabled());
        staged.app->launcher().Launchusing(QStringLiteral("wait"));
        QTRY_VERIFY(log(staged).contains(QStringLiteral("ready")));
        QVERIFY(stop->isEnabled());
        stop->click();
        QTRY_VERIFY(!staged.app->launcher().isRunning());
        QVERIFY(!stop->isEnabled());
        QVERIFY(staged.desktop.alerts.empty());
    }

    void quittingDuringAGameAsksOnce()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->launcher().Launchusing(QStringLiteral("wait"));
        QTRY_VERIFY(log(staged).contains(QStringLiteral("ready")));
        staged.desktop.answerAlert(QString(), 1);
        QVERIFY(!staged.app->applicationShouldTerminate());
        QVERIFY(staged.app->launcher().isRunning());
        staged.desktop.answerAlert(QString(), 0);
        QVERIFY(staged.app->applicationShouldTerminate());
        staged.app->applicationWillTerminate();
        QVERIFY(!staged.app->launcher().isRunning());
        QCOMPARE(staged.desktop.alerts.size(), std::size_t(2));
    }

    void theCountStandsInTheStatusLine()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QCOMPARE(staged.app->mainWindow().findChild<QLabel*>(QStringLiteral("countLabel"))->text(),
                 QStringLiteral("main_count"));
        QVERIFY(staged.app->mainWindow().gameTable->isVisible());
    }

    void anEmptyListSaysWhatToDo()
    {
        StagedApp staged;
        staged.expectMissingStore(-1);
        staged.start();
        QVERIFY(staged.app->mainWindow().emptyState->isVisible());
        QVERIFY(!staged.app->mainWindow().gameTable->isVisible());
        QVERIFY(!staged.app->mainWindow().emptyState->findChild<QPushButton*>()->text().isEmpty());
    }

    void columnsAndPlaceAreAsTheyWereLeft()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->mainWindow().gameTable->setColumnWidth(1, 177);
        staged.app->mainWindow().resize(901, 607);
        staged.app->applicationWillTerminate();
        staged.app.reset();

        staged.start();
        QCOMPARE(staged.app->mainWindow().gameTable->columnWidth(1), 177);
        QCOMPARE(staged.app->mainWindow().size(), QSize(901, 607));
    }

    void theSidePanelKeepsItsWidth()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        MainWindow& window = staged.app->mainWindow();
        auto* split = window.findChild<QSplitter*>(QStringLiteral("MainSplitView"));
        QVERIFY(split != nullptr);
        split->setSizes({260, 900});
        for (const int width : {900, 1300}) {
            window.resize(width, 700);
            QCOMPARE(window.factsPanel->width(), 260);
        }
        split->setSizes({1, 900});
        QCOMPARE(window.factsPanel->width(), 236);
        split->setSizes({window.width() - 2, 1});
        QCOMPARE(split->sizes().at(1), 18);
    }

    void theListAndTheLogHaveKnobsOnly()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        for (const QAbstractScrollArea* area :
             {static_cast<QAbstractScrollArea*>(staged.app->mainWindow().gameTable),
              static_cast<QAbstractScrollArea*>(staged.app->logWindow().infomationTextView)}) {
            for (QScrollBar* bar : {area->verticalScrollBar(), area->horizontalScrollBar()}) {
                auto* knobOnly = qobject_cast<MyScrollers*>(bar);
                QVERIFY(knobOnly != nullptr);
                // Under the style sheet, too, the knob leaves the bar's edges free.
                knobOnly->setRange(0, 1000);
                QVERIFY(!knobOnly->knob().isEmpty());
                QVERIFY(QRectF(knobOnly->rect()).adjusted(1, 1, -1, -1).contains(knobOnly->knob()));
            }
        }
    }
};

TESSERA_TEST(MainWindowTest);
#include "mainwindowtest.moc"
