#include "stagedapp.h"

#include "app/windows/mainwindow.h"
#include "app/windows/preferenceswindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>

using namespace tessera;
using test::StagedApp;

/// The commands that act on the window that is key, and those of the table.
class KeyCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        QByteArray store = "<database>";
        for (int i = 0; i < 300; ++i)
            store += "<object type=\"MAME\" id=\"z" + QByteArray::number(102 + i)
                + "\"><attribute name=\"name\" type=\"string\">set" + QByteArray::number(1000 + i)
                + "</attribute><attribute name=\"title\" type=\"string\">Title\t" + QByteArray::number(i)
                + "</attribute></object>";
        m_staged->writeStore(store + "</database>");
        m_staged->start();
        m_table = m_staged->app->mainWindow().gameTable;
        becomeKey(m_staged->app->mainWindow());
    }

    void cleanup() { m_staged.reset(); }

    void randomSelectsOneRowAndSounds()
    {
        QSet<QString> chosen;
        for (int i = 0; i < 60; ++i) {
            m_table->selectAll();
            m_staged->app->mameslotAction();
            QCOMPARE(m_staged->app->gameList().selectedCount(), 1);
            QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("sound slot_end")});
            const QRect row = m_table->visualRect(m_table->selectionModel()->selectedRows().constFirst());
            QVERIFY(m_table->viewport()->rect().intersects(row));
            chosen << m_staged->app->gameList().tableViewSelectionROM();
        }
        QVERIFY(chosen.size() > 10);
    }

    void randomOfAnEmptyListBeeps()
    {
        m_table->selectRow(7);
        QTest::keyClicks(m_staged->app->mainWindow().searchField, "nothing is called so");
        QCOMPARE(m_staged->app->gameList().list().size(), std::size_t(0));
        QSignalSpy selected(&m_staged->app->gameList(), &GameListController::selectionChanged);
        m_staged->app->mameslotAction();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{QStringLiteral("beep")});
        QCOMPARE(selected.count(), 0);
        QCOMPARE(m_staged->app->gameList().tableViewSelectionROM(), QString());
    }

    void homeAndEndScrollTheList()
    {
        m_table->selectRow(150);
        QScrollBar* bar = m_table->verticalScrollBar();
        QTRY_VERIFY(m_staged->app->mainWindow().isActiveWindow());
        QTest::keyClick(m_table, Qt::Key_End);
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        QTest::keyClick(m_table, Qt::Key_Home);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(m_staged->app->gameList().tableViewSelectionROM(), QStringLiteral("set1150"));
    }

    void theLogMovesByOnePageOnly()
    {
        LogWindow& log = m_staged->app->logWindow();
        log.infomationTextView->replace(QStringLiteral("line\n").repeated(500));
        m_staged->app->showLogWindow();
        becomeKey(log);
        QScrollBar* bar = log.infomationTextView->verticalScrollBar();
        bar->setValue(200);
        QTRY_VERIFY(log.isActiveWindow());
        log.infomationTextView->setFocus();
        QTest::keyClick(log.infomationTextView, Qt::Key_Home);
        const int page = 200 - bar->value();
        QVERIFY(page > 10 && page <= bar->pageStep() + 1);
        QTest::keyClick(log.infomationTextView, Qt::Key_End);
        QTest::keyClick(log.infomationTextView, Qt::Key_End);
        QVERIFY(bar->value() > 200 && bar->value() <= 200 + page + 1);
        QCOMPARE(m_table->verticalScrollBar()->value(), 0);
    }

    void aCommandsOwnKeysSelectOneRowAlone()
    {
        QTRY_VERIFY(m_staged->app->mainWindow().isActiveWindow());
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(m_table, Qt::Key_G, Qt::ControlModifier);
            QCOMPARE(m_staged->app->gameList().selectedCount(), 1);
        }
        QVERIFY(m_staged->desktop.takeTranscript().contains(QStringLiteral("sound slot_end")));
    }

    void otherWindowsLetTheCommandsDoNothing()
    {
        m_staged->app->showPrefsWindow();
        becomeKey(m_staged->app->preferencesWindow());
        m_staged->app->scrollsEndAction();
        m_staged->app->mameslotAction();
        QCOMPARE(m_table->verticalScrollBar()->value(), 0);
        QCOMPARE(m_staged->app->gameList().selectedCount(), 0);
        QVERIFY(m_staged->desktop.takeTranscript().isEmpty());
    }

    void aPopUpLeavesTheKeyWindowKey()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("item"));
        menu.popup(QPoint(20, 20));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        m_staged->app->scrollsEndAction();
        QVERIFY(m_table->verticalScrollBar()->value() > 0);
    }

    void copyGivesLinesWithTabs()
    {
        m_table->selectRow(4);
        m_table->selectionModel()->select(m_table->model()->index(2, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
        for (int column = 2; column < m_table->model()->columnCount(); ++column)
            m_table->setColumnHidden(column, true);
        m_staged->app->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("set1002\tTitle 2\nset1004\tTitle 4\n"));
        m_table->horizontalHeader()->moveSection(1, 0);
        m_staged->app->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Title 2\tset1002\nTitle 4\tset1004\n"));
    }

    void selectedTextIsCopiedBeforeRows()
    {
        m_table->selectRow(4);
        auto* title = new QLabel(QStringLiteral("A whole title"), &m_staged->app->mainWindow());
        title->setTextInteractionFlags(Qt::TextSelectableByMouse);
        title->show();
        title->setFocus();
        title->setSelection(2, 5);
        m_staged->app->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("whole"));
        m_table->setFocus();
        m_staged->app->copySelection();
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("set1004\t")));
    }

    void anotherWindowsCopyTakesNoRows()
    {
        m_table->selectRow(4);
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        m_staged->app->showPrefsWindow();
        becomeKey(m_staged->app->preferencesWindow());
        m_staged->app->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }

    void nothingSelectedLeavesTheClipboard()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        m_table->clearSelection();
        m_staged->app->copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }

    void whatIsNotedOfPlayingIsSwitchedBesideItsClearing()
    {
        const QList<QAction*> items
            = m_staged->app->mainWindow().menuBar()->findChild<QMenu*>("menu_game")->actions();
        QStringList names;
        for (const QAction* item : items)
            names << item->objectName();
        const qsizetype notes = names.indexOf(QStringLiteral("menu_notesplayed"));
        QVERIFY(notes > 0);
        QCOMPARE(names.value(notes + 1), QStringLiteral("menu_clearplayed"));
    }

    void columnsAreShownAndHidden()
    {
        const int status = m_table->model()->columnCount() - 2;
        QVERIFY(m_table->isColumnHidden(status));
        QMenu menu;
        m_table->fillColumnsMenu(menu);
        menu.actions().at(status)->trigger();
        QVERIFY(!m_table->isColumnHidden(status));
        for (int column = 1; column < m_table->model()->columnCount(); ++column)
            m_table->setColumnHidden(column, true);
        m_table->fillColumnsMenu(menu);
        QVERIFY(!menu.actions().at(0)->isEnabled());
        QVERIFY(menu.actions().at(1)->isEnabled());
    }

    void hiddenColumnsAreRemembered()
    {
        m_table->setColumnHidden(2, true);
        m_staged->app->mainWindow().remember();
        m_table->setColumnHidden(2, false);
        m_staged->app->mainWindow().restore();
        QVERIFY(m_table->isColumnHidden(2));
        QVERIFY(!m_table->isColumnHidden(1));
    }

private:
    static void becomeKey(QWidget& window)
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    std::unique_ptr<StagedApp> m_staged;
    GameTableView* m_table = nullptr;
};

TESSERA_TEST(KeyCommandsTest);
#include "keycommandstest.moc"
