#include "stagedapp.h"

#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/searchfield.h"
#include "support/testmain.h"
#include "tools/ui/existencepage.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace tessera;

namespace {

struct Stage : test::StagedApp {
    Stage()
    {
        writeCatalogue();
        QFile list(path("listfull.txt"));
        QVERIFY(list.open(QIODevice::WriteOnly));
        QVERIFY(list.write("Name: Description:\nqix \"Qix\"\npong \"Pong\"\ngone \"Gone\"\n") > 0);
        QVERIFY(QDir().mkpath(path("roms")));
        start();
    }

    ExistencePage& page() { return *app->utility().utilityWindow().existencePage; }

    void check()
    {
        app->utilityOrderFront();
        app->utility().utilityWindow().pageList->setCurrentRow(1);
        page().listfullTextField2->setText(path("listfull.txt"));
        page().rompathTextField2->setText(path("roms"));
        QTest::mouseClick(page().button_check2, Qt::LeftButton);
        QTRY_COMPARE(page().rows->size(), std::size_t(4));
        desktop.takeTranscript();
    }

    // By a double click, as a person would.
    void open(const QString& name)
    {
        RowsList& list = *page().reportList;
        for (int row = 0; row < page().rows->rowCount(); ++row) {
            const QModelIndex index = page().rows->index(row, RowsModel::NameColumn);
            if (index.data().toString() != name)
                continue;
            list.scrollTo(index);
            const QPoint place = list.visualRect(index).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        }
    }

    QString selected()
    {
        const GameRecord* record = app->gameList().selectedRecord();
        return record == nullptr ? QString() : fieldText((*record)[Field::Name]);
    }
};

} // namespace

/// Rows of the existence report open their games in the whole program.
class ExistenceListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRowOpensItsGame()
    {
        Stage stage;
        stage.check();
        stage.open("pong");
        QCOMPARE(stage.selected(), "pong");
        QTRY_VERIFY(stage.app->mainWindow().isActiveWindow());
    }

    void aGameThatIsShownLeavesTheFilterAlone()
    {
        Stage stage;
        stage.check();
        stage.app->mainWindow().searchField->setText("pong");
        QTRY_COMPARE(stage.app->gameList().list().size(), std::size_t(1));
        stage.open("pong");
        QCOMPARE(stage.selected(), "pong");
        QCOMPARE(stage.app->gameList().list().size(), std::size_t(1));
    }

    void aGameThatTheFilterHidesIsShownAgain()
    {
        Stage stage;
        stage.check();
        stage.app->mainWindow().searchField->setText("pong");
        QTRY_COMPARE(stage.app->gameList().list().size(), std::size_t(1));
        stage.open("qix");
        QCOMPARE(stage.selected(), "qix");
        QCOMPARE(stage.app->gameList().list().size(), stage.app->catalogue().records().size());
        QCOMPARE(stage.app->mainWindow().searchField->text(), QString());
        QCOMPARE(stage.desktop.transcript(), QStringList());
    }

    void whatIsInNoCatalogueBeeps()
    {
        Stage stage;
        stage.check();
        stage.app->mainWindow().searchField->setText("pong");
        QTRY_COMPARE(stage.app->gameList().list().size(), std::size_t(1));
        for (const char* name : {"gone", "Name:"}) {
            stage.open(name);
            QCOMPARE(stage.desktop.takeTranscript(), {"beep"});
        }
        // And the filter stays.
        QCOMPARE(stage.app->gameList().list().size(), std::size_t(1));
    }
};

TESSERA_TEST(ExistenceListTest);
#include "existencelisttest.moc"
